#pragma once

#include "kestaccount/SharingBackend.h"

namespace KestAccount {
class ApiClient;
}

// Shares register accounts through the sync service, where an account goes by the id that it has
// on every device. It shows no failure and starts no sync.
class AccountSharingService : public KestAccount::SharingBackend
{
    Q_OBJECT

public:
    // The client of the sync service; not owned.
    explicit AccountSharingService(KestAccount::ApiClient *apiClient, QObject *parent = nullptr);

    void listMembers(const QString &accountId, MembersCallback callback) override;
    void shareWith(const QString &accountId, const QString &memberKey, const QString &role,
                   ShareCallback callback) override;
    void removeShare(const QString &accountId, const QString &userId,
                     RemoveCallback callback) override;

private:
    KestAccount::ApiClient *m_apiClient;
};
