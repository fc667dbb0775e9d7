#include "kestaccount/AccountClient.h"

#include "kestaccount/ApiClient.h"
#include "kestaccount/AuthClient.h"
#include "kestaccount/DeviceIdentity.h"
#include "kestaccount/JsonRecords.h"

using namespace Qt::StringLiterals;

namespace KestAccount {

AccountClient::AccountClient(ApiClient *apiClient, AuthClient *authClient,
                             const ClientConfig &config, QObject *parent)
    : QObject(parent)
    , m_apiClient(apiClient)
    , m_authClient(authClient)
    , m_appId(config.appId)
    , m_appVersion(config.appVersion)
{
}

template <typename Record>
std::function<void(bool, int, const QJsonObject &)>
AccountClient::handOver(std::function<void(const Record &)> callback,
                        Record (*parse)(const QJsonObject &))
{
    return [callback, parse](bool success, int, const QJsonObject &body) {
        if (callback)
            callback(success ? parse(body) : Record());
    };
}

void AccountClient::getProfile(std::function<void(const Profile &)> callback)
{
    m_apiClient->get(u"/profile"_s, handOver(std::move(callback), parseProfile));
}

void AccountClient::deleteAccount(std::function<void(bool)> callback)
{
    m_apiClient->del(u"/profile"_s, [callback](bool success, int, const QJsonObject &) {
        if (callback)
            callback(success);
    });
}

void AccountClient::getGroup(std::function<void(const Group &)> callback)
{
    m_apiClient->get(u"/group"_s, handOver(std::move(callback), parseGroup));
}

void AccountClient::inviteByEmail(const QString &email,
                                  std::function<void(const GroupInvitation &)> callback)
{
    m_apiClient->post(u"/group/invite"_s, {{"email"_L1, email}},
                      handOver(std::move(callback), parseGroupInvitation));
}

// The same endpoint as for a mail: no address asks for a bare code.
void AccountClient::generateInviteCode(std::function<void(const GroupInvitation &)> callback)
{
    m_apiClient->post(u"/group/invite"_s, {}, handOver(std::move(callback), parseGroupInvitation));
}

void AccountClient::joinGroup(const QString &inviteCode, std::function<void(bool)> callback)
{
    m_apiClient->post(u"/group/join/%1"_s.arg(inviteCode), {},
                      [this, callback](bool success, int, const QJsonObject &) {
                          if (success)
                              takeNewGroup();
                          if (callback)
                              callback(success);
                      });
}

void AccountClient::leaveGroup()
{
    m_apiClient->post(u"/group/leave"_s, {}, [this](bool success, int, const QJsonObject &) {
        if (success)
            takeNewGroup();
    });
}

// The claims in the token tell of the group, so a new token is fetched; nobody waits for it.
void AccountClient::takeNewGroup()
{
    m_authClient->refreshToken();
    Q_EMIT groupChanged();
}

// No new token: the claims of the removed user change, not ours.
void AccountClient::removeMember(const QString &accountId)
{
    m_apiClient->del(u"/group/members/%1"_s.arg(accountId),
                     [this](bool success, int, const QJsonObject &) {
                         if (success)
                             Q_EMIT groupChanged();
                     });
}

void AccountClient::revokeInvitation(const QString &invitationId)
{
    m_apiClient->del(u"/group/invitations/%1"_s.arg(invitationId), {});
}

void AccountClient::getDevices(std::function<void(const QList<Device> &)> callback)
{
    m_apiClient->get(u"/devices"_s, [callback](bool success, int, const QJsonObject &body) {
        if (callback)
            callback(success ? parseRecords(body.value("devices"_L1), parseDevice)
                             : QList<Device>());
    });
}

void AccountClient::registerDevice()
{
    m_apiClient->post(u"/devices/register"_s,
                      {{"device_name"_L1, deviceName()},
                       {"platform"_L1, devicePlatform()},
                       {"app_id"_L1, m_appId},
                       {"app_version"_L1, m_appVersion},
                       {"device_fingerprint"_L1, deviceFingerprint(m_appId)}},
                      {});
}

void AccountClient::removeDevice(const QString &deviceId)
{
    m_apiClient->del(u"/devices/%1"_s.arg(deviceId), {});
}

} // namespace KestAccount
