#pragma once

#include "kestaccount/ClientConfig.h"
#include "kestaccount/ServiceRecords.h"

#include <QObject>

#include <functional>

namespace KestAccount {

class ApiClient;
class AuthClient;

// The account service: the user's profile, the family group and the devices.
//
// A callback runs once, from the event loop, and may be empty. A request that failed hands over an
// empty record, an empty list or false, and says no more.
class AccountClient : public QObject
{
    Q_OBJECT

public:
    // The two clients are not owned.
    AccountClient(ApiClient *apiClient, AuthClient *authClient, const ClientConfig &config,
                  QObject *parent = nullptr);

    void getProfile(std::function<void(const Profile &)> callback);
    void deleteAccount(std::function<void(bool ok)> callback); // does not sign out

    void getGroup(std::function<void(const Group &)> callback);
    void inviteByEmail(const QString &email,
                       std::function<void(const GroupInvitation &)> callback); // sends a mail
    void generateInviteCode(std::function<void(const GroupInvitation &)> callback);
    void joinGroup(const QString &inviteCode, std::function<void(bool ok)> callback);
    void leaveGroup();
    void removeMember(const QString &accountId);
    void revokeInvitation(const QString &invitationId);

    void getDevices(std::function<void(const QList<Device> &)> callback);
    void registerDevice(); // once a sign-in; the service knows this machine by its fingerprint
    void removeDevice(const QString &deviceId);

Q_SIGNALS:
    void groupChanged(); // through this client: joined, left, or a member removed

private:
    template <typename Record>
    static std::function<void(bool, int, const QJsonObject &)>
    handOver(std::function<void(const Record &)> callback, Record (*parse)(const QJsonObject &));
    void takeNewGroup();

    ApiClient *m_apiClient;
    AuthClient *m_authClient;
    QString m_appId;
    QString m_appVersion;
};

} // namespace KestAccount
