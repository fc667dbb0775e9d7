#pragma once

#include "kestaccount/ServiceRecords.h"
#include "kestaccount/ShareMember.h"

#include <QObject>

#include <functional>

namespace KestAccount {

// Who may use a shared thing, as the service that holds the thing knows it. What an account id
// stands for is the backend's alone. A callback runs once and may be empty.
class SharingBackend : public QObject
{
    Q_OBJECT

public:
    using MembersCallback = std::function<void(const QList<ShareMember> &members)>;
    using ShareCallback = std::function<void(bool ok, const QString &error)>; // error may be empty
    using RemoveCallback = std::function<void(bool ok)>;

    explicit SharingBackend(QObject *parent = nullptr);

    // An empty list: shared with nobody, or the request failed.
    virtual void listMembers(const QString &accountId, MembersCallback callback) = 0;
    virtual void shareWith(const QString &accountId, const QString &memberKey, const QString &role,
                           ShareCallback callback) = 0;
    virtual void removeShare(const QString &accountId, const QString &userId,
                             RemoveCallback callback) = 0;
    // What shareWith takes, and what ShareMember::userId is compared with.
    virtual QString memberKey(const GroupMember &member) const;
};

} // namespace KestAccount
