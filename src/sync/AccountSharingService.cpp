#include "sync/AccountSharingService.h"

#include "kestaccount/ApiClient.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;
using KestAccount::ShareMember;

namespace {

ShareMember parseMember(const QJsonObject &object)
{
    return {.id = object.value("id"_L1).toString(),
            .userId = object.value("user_id"_L1).toString(),
            .email = object.value("email"_L1).toString(),
            .displayName = object.value("display_name"_L1).toString(),
            .role = object.value("role"_L1).toString(),
            .createdAt = object.value("created_at"_L1).toString()};
}

QList<ShareMember> parseMembers(const QJsonValue &value)
{
    QList<ShareMember> members;
    const QJsonArray elements = value.toArray();
    for (const QJsonValue &element : elements) {
        if (element.isObject())
            members.append(parseMember(element.toObject()));
    }
    return members;
}

// An address goes under both keys, so that the service can take either.
QJsonObject shareBody(const QString &memberKey, const QString &role)
{
    QJsonObject body{{"user_id"_L1, memberKey}, {"role"_L1, role.isEmpty() ? u"member"_s : role}};
    if (memberKey.contains(u'@'))
        body.insert("email"_L1, memberKey);
    return body;
}

} // namespace

AccountSharingService::AccountSharingService(KestAccount::ApiClient *apiClient, QObject *parent)
    : SharingBackend(parent)
    , m_apiClient(apiClient)
{
}

void AccountSharingService::listMembers(const QString &accountId, MembersCallback callback)
{
    m_apiClient->get(u"/accounts/%1/members"_s.arg(accountId),
                     [callback](bool success, int, const QJsonObject &body) {
                         if (callback)
                             callback(success ? parseMembers(body.value("members"_L1))
                                              : QList<ShareMember>());
                     });
}

void AccountSharingService::shareWith(const QString &accountId, const QString &memberKey,
                                      const QString &role, ShareCallback callback)
{
    m_apiClient->post(u"/accounts/%1/share"_s.arg(accountId), shareBody(memberKey, role),
                      [callback](bool success, int status, const QJsonObject &body) {
                          if (!callback)
                              return;
                          QString error{};
                          if (!success)
                              error = body.value("error"_L1).toString();
                          if (!success && error.isEmpty())
                              error = tr("Failed to share account (HTTP %1)").arg(status);
                          callback(success, error);
                      });
}

void AccountSharingService::removeShare(const QString &accountId, const QString &userId,
                                        RemoveCallback callback)
{
    m_apiClient->del(u"/accounts/%1/share/%2"_s.arg(accountId, userId),
                     [callback](bool success, int, const QJsonObject &) {
                         if (callback)
                             callback(success);
                     });
}
