#include "kestaccount/TokenClaims.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace KestAccount {

QJsonObject tokenPayload(const QString &token)
{
    const QStringList parts = token.split(u'.');
    if (parts.size() < 2)
        return {};
    const QByteArray payload = QByteArray::fromBase64(
        parts.at(1).toUtf8(), QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
    return QJsonDocument::fromJson(payload).object();
}

int parseTokenExpiry(const QString &token)
{
    return tokenPayload(token).value("exp"_L1).toInt(0);
}

QString parseTokenSubject(const QString &token)
{
    return tokenPayload(token).value("sub"_L1).toString();
}

KesClaims parseKesClaims(const QString &token)
{
    const QJsonObject kes =
        tokenPayload(token).value("custom"_L1).toObject().value("kes"_L1).toObject();
    return {.groupId = kes.value("group_id"_L1).toString(),
            .role = kes.value("role"_L1).toString()};
}

} // namespace KestAccount
