#include "Users.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMaxSeats = 5;

QString freshId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

QString now()
{
    return QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
}

QString base64Url(const QJsonObject &object)
{
    return QString::fromLatin1(
        QJsonDocument(object)
            .toJson(QJsonDocument::Compact)
            .toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals));
}

QJsonArray arrayOf(const QList<QJsonObject> &rows)
{
    QJsonArray array;
    for (const QJsonObject &row : rows)
        array.append(row);
    return array;
}

} // namespace

Users::Users(ServiceDatabase &database)
    : m_database(database)
{
}

Users::Tokens Users::signIn(const QString &email, const QString &password, const QString &userAgent)
{
    if (email.isEmpty() || password.isEmpty())
        return {};
    m_database.run("INSERT INTO users VALUES (?, ?, ?, ?, ?, ?) ON CONFLICT (email) DO NOTHING",
                   {freshId(), freshId(), email, email.section(u'@', 0, 0), password, now()});
    const QJsonObject user =
        m_database.first("SELECT id, password FROM users WHERE email = ?", {email});
    if (user.value("password"_L1).toString() != password)
        return {};
    const QString userId = user.value("id"_L1).toString();
    const qint64 expiry = QDateTime::currentSecsSinceEpoch() + m_tokenLife;
    const Tokens tokens{.access = accessTokenFor(userId, expiry), .refresh = freshId()};
    m_database.run(
        "INSERT INTO sessions VALUES (?, ?, ?, ?, ?, ?, ?, ?)",
        {freshId(), userId, tokens.access, expiry, tokens.refresh, userAgent, now(), now()});
    return tokens;
}

// The refresh token stays the same: an answer that got lost on its way costs no session.
Users::Tokens Users::refresh(const QString &refreshToken)
{
    const QJsonObject session = m_database.first(
        "SELECT id, user_id FROM sessions WHERE refresh_token = ?", {refreshToken});
    if (session.isEmpty())
        return {};
    const qint64 expiry = QDateTime::currentSecsSinceEpoch() + m_tokenLife;
    const QString access = accessTokenFor(session.value("user_id"_L1).toString(), expiry);
    m_database.run("UPDATE sessions SET access_token = ?, expires_at = ?, last_active_at = ? "
                   "WHERE id = ?",
                   {access, expiry, now(), session.value("id"_L1).toString()});
    return {.access = access, .refresh = refreshToken};
}

QString Users::accessTokenFor(const QString &userId, qint64 expiry)
{
    const QJsonObject member = membership(userId);
    const QJsonObject kes{{"group_id"_L1, member.value("group_id"_L1).toString()},
                          {"role"_L1, member.value("role"_L1).toString()}};
    const QJsonObject payload{
        {"sub"_L1, userId}, {"exp"_L1, expiry}, {"custom"_L1, QJsonObject{{"kes"_L1, kes}}}};
    // The last part stands where others have a signature; here it only makes the token unique.
    return u"%1.%2.%3"_s.arg(base64Url({{"alg"_L1, "none"_L1}}), base64Url(payload), freshId());
}

QJsonObject Users::sessionOf(const QString &accessToken)
{
    return m_database.first(
        "SELECT id, user_id FROM sessions WHERE access_token = ? AND expires_at > ?",
        {accessToken, QDateTime::currentSecsSinceEpoch()});
}

QJsonObject Users::user(const QString &userId)
{
    return m_database.first("SELECT id, email, display_name, email AS username, '' AS avatar_url, "
                            "created_at FROM users WHERE id = ?",
                            {userId});
}

void Users::rename(const QString &userId, const QString &displayName)
{
    m_database.run("UPDATE users SET display_name = ? WHERE id = ?", {displayName, userId});
}

bool Users::changePassword(const QString &userId, const QString &current, const QString &next)
{
    return !next.isEmpty()
        && m_database.run("UPDATE users SET password = ? WHERE id = ? AND password = ?",
                          {next, userId, current})
        == 1;
}

QJsonArray Users::sessions(const QString &userId, const QString &currentSessionId)
{
    QJsonArray array;
    for (QJsonObject row : m_database.select(
             "SELECT id, user_agent, '127.0.0.1' AS ip_address, created_at, last_active_at "
             "FROM sessions WHERE user_id = ? ORDER BY created_at, id",
             {userId})) {
        row.insert("is_current"_L1, row.value("id"_L1).toString() == currentSessionId);
        array.append(row);
    }
    return array;
}

void Users::endSession(const QString &userId, const QString &sessionId)
{
    m_database.run("DELETE FROM sessions WHERE user_id = ? AND id = ?", {userId, sessionId});
}

void Users::remove(const QString &userId)
{
    leave(userId);
    m_database.run("DELETE FROM sessions WHERE user_id = ?", {userId});
    m_database.run("DELETE FROM devices WHERE user_id = ?", {userId});
    m_database.run("DELETE FROM records WHERE owner_id = ?", {userId});
    m_database.run("DELETE FROM users WHERE id = ?", {userId});
}

QJsonObject Users::profile(const QString &userId)
{
    QJsonObject profile = m_database.first(
        "SELECT account_id AS id, email, display_name, '' AS avatar_url, 'en' AS language, "
        "'UTC' AS timezone, 'active' AS status, created_at FROM users WHERE id = ?",
        {userId});
    const QJsonObject member = membership(userId);
    if (!member.isEmpty())
        profile.insert(
            "group"_L1,
            m_database.first("SELECT g.id, g.name, m.role, (SELECT COUNT(*) FROM members "
                             "WHERE group_id = g.id) AS member_count FROM members m "
                             "JOIN family_groups g ON g.id = m.group_id WHERE m.user_id = ?",
                             {userId}));
    return profile;
}

QJsonObject Users::membership(const QString &userId)
{
    return m_database.first("SELECT group_id, role FROM members WHERE user_id = ?", {userId});
}

QJsonObject Users::group(const QString &userId)
{
    const QString groupId = membership(userId).value("group_id"_L1).toString();
    if (groupId.isEmpty())
        return {};
    QJsonObject group =
        m_database.first("SELECT id, name FROM family_groups WHERE id = ?", {groupId});
    group.insert("max_seats"_L1, kMaxSeats);
    group.insert("members"_L1,
                 arrayOf(m_database.select(
                     "SELECT u.account_id, u.id AS auth_user_id, u.display_name, u.email, m.role, "
                     "m.joined_at FROM members m JOIN users u ON u.id = m.user_id "
                     "WHERE m.group_id = ? ORDER BY m.joined_at, u.email",
                     {groupId})));
    group.insert("pending_invitations"_L1,
                 arrayOf(m_database.select(
                     "SELECT id, invited_email, invite_code, status, expires_at FROM invitations "
                     "WHERE group_id = ? AND status = 'pending' ORDER BY expires_at, id",
                     {groupId})));
    return group;
}

QString Users::ensureGroup(const QString &userId)
{
    const QJsonObject member = membership(userId);
    if (!member.isEmpty())
        return member.value("role"_L1) == "owner"_L1 ? member.value("group_id"_L1).toString()
                                                     : QString();
    const QString groupId = freshId();
    m_database.run("INSERT INTO family_groups VALUES (?, ?)",
                   {groupId, user(userId).value("display_name"_L1).toString() + u"'s family"_s});
    m_database.run("INSERT INTO members VALUES (?, ?, 'owner', ?)", {userId, groupId, now()});
    return groupId;
}

QJsonObject Users::invite(const QString &userId, const QString &email)
{
    const QString groupId = ensureGroup(userId);
    if (groupId.isEmpty())
        return {};
    const QString id = freshId();
    m_database.run("INSERT INTO invitations VALUES (?, ?, ?, ?, 'pending', ?)",
                   {id, groupId, email, freshId().first(8).toUpper(),
                    QDateTime::currentDateTimeUtc().addDays(7).toString(Qt::ISODate)});
    return m_database.first("SELECT id, invited_email, invite_code, status, expires_at "
                            "FROM invitations WHERE id = ?",
                            {id});
}

bool Users::join(const QString &userId, const QString &inviteCode)
{
    const QJsonObject invitation = m_database.first(
        "SELECT id, group_id FROM invitations WHERE invite_code = ? AND status = 'pending' AND "
        "expires_at > ? AND (SELECT COUNT(*) FROM members WHERE group_id = invitations.group_id) "
        "< ?",
        {inviteCode, now(), kMaxSeats});
    if (invitation.isEmpty() || !membership(userId).isEmpty())
        return false;
    m_database.run("UPDATE invitations SET status = 'accepted' WHERE id = ?",
                   {invitation.value("id"_L1).toString()});
    m_database.run("INSERT INTO members VALUES (?, ?, 'member', ?)",
                   {userId, invitation.value("group_id"_L1).toString(), now()});
    return true;
}

// The group ends with its owner, and what was shared in it with the membership.
bool Users::leave(const QString &userId)
{
    const QJsonObject member = membership(userId);
    if (member.isEmpty())
        return false;
    const QString groupId = member.value("group_id"_L1).toString();
    m_database.run("DELETE FROM shares WHERE user_id = ? OR owner_id = ?", {userId, userId});
    m_database.run("DELETE FROM members WHERE user_id = ?", {userId});
    if (member.value("role"_L1) == "owner"_L1) {
        m_database.run("DELETE FROM members WHERE group_id = ?", {groupId});
        m_database.run("DELETE FROM invitations WHERE group_id = ?", {groupId});
        m_database.run("DELETE FROM family_groups WHERE id = ?", {groupId});
    }
    return true;
}

bool Users::removeMember(const QString &ownerId, const QString &accountId)
{
    const QString removedId =
        m_database.first("SELECT id FROM users WHERE account_id = ?", {accountId})
            .value("id"_L1)
            .toString();
    const QJsonObject owner = membership(ownerId);
    const bool isFellow = membership(removedId).value("group_id"_L1) == owner.value("group_id"_L1);
    return owner.value("role"_L1) == "owner"_L1 && removedId != ownerId && isFellow
        && leave(removedId);
}

bool Users::revokeInvitation(const QString &ownerId, const QString &invitationId)
{
    return m_database.run("UPDATE invitations SET status = 'revoked' WHERE id = ? AND group_id = "
                          "(SELECT group_id FROM members WHERE user_id = ? AND role = 'owner')",
                          {invitationId, ownerId})
        == 1;
}

QString Users::fellowMember(const QString &userId, const QString &key)
{
    return m_database
        .first("SELECT u.id FROM users u JOIN members m ON m.user_id = u.id "
               "WHERE (u.account_id = ?1 OR u.email = ?1) AND u.id <> ?2 AND m.group_id = "
               "(SELECT group_id FROM members WHERE user_id = ?2)",
               {key, userId})
        .value("id"_L1)
        .toString();
}

QJsonArray Users::devices(const QString &userId)
{
    return arrayOf(m_database.select(
        "SELECT id, device_name, platform, app_id, app_version, last_sync_at, device_fingerprint, "
        "created_at FROM devices WHERE user_id = ? ORDER BY created_at, id",
        {userId}));
}

void Users::registerDevice(const QString &userId, const QJsonObject &device)
{
    m_database.run("INSERT INTO devices VALUES (?, ?, ?, ?, ?, ?, ?, '', ?) "
                   "ON CONFLICT (user_id, device_fingerprint) DO UPDATE SET "
                   "device_name = excluded.device_name, app_version = excluded.app_version",
                   {freshId(), userId, device.value("device_name"_L1).toString(),
                    device.value("platform"_L1).toString(), device.value("app_id"_L1).toString(),
                    device.value("app_version"_L1).toString(),
                    device.value("device_fingerprint"_L1).toString(), now()});
}

void Users::removeDevice(const QString &userId, const QString &deviceId)
{
    m_database.run("DELETE FROM devices WHERE user_id = ? AND id = ?", {userId, deviceId});
}

void Users::noteSync(const QString &userId)
{
    m_database.run("UPDATE devices SET last_sync_at = ? WHERE user_id = ?", {now(), userId});
}
