#pragma once

#include <QJsonObject>
#include <QString>

namespace KestAccount {

// What the access token says of its user. Nothing here is verified: the service enforces what the
// claims say, the application only shapes its screens by them.
struct KesClaims
{
    QString groupId{}; // of the family group; empty: none
    QString role{}; // in the group: "owner" or another word of the service

    bool operator==(const KesClaims &) const = default;
};

QJsonObject tokenPayload(const QString &token); // empty: not a readable token
int parseTokenExpiry(const QString &token); // seconds since the epoch; 0: none that fits 32 bits
QString parseTokenSubject(const QString &token); // the user's id; empty: none
KesClaims parseKesClaims(const QString &token); // empty fields: not in the token

} // namespace KestAccount

Q_DECLARE_METATYPE(KestAccount::KesClaims)
