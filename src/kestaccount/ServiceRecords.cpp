#include "kestaccount/ServiceRecords.h"

#include "kestaccount/JsonRecords.h"

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

QString text(const QJsonObject &object, QLatin1StringView key)
{
    return object.value(key).toString();
}

QDateTime moment(const QJsonObject &object, QLatin1StringView key)
{
    return QDateTime::fromString(text(object, key), Qt::ISODate);
}

} // namespace

User parseUser(const QJsonObject &object)
{
    return {
        .id = text(object, "id"_L1),
        .email = text(object, "email"_L1),
        .displayName = text(object, "display_name"_L1),
        .username = text(object, "username"_L1),
        .avatarUrl = text(object, "avatar_url"_L1),
        .createdAt = moment(object, "created_at"_L1),
    };
}

Session parseSession(const QJsonObject &object)
{
    return {
        .id = text(object, "id"_L1),
        .userAgent = text(object, "user_agent"_L1),
        .ipAddress = text(object, "ip_address"_L1),
        .createdAt = moment(object, "created_at"_L1),
        .lastActiveAt = moment(object, "last_active_at"_L1),
        .isCurrent = object.value("is_current"_L1).toBool(),
    };
}

Device parseDevice(const QJsonObject &object)
{
    return {
        .id = text(object, "id"_L1),
        .deviceName = text(object, "device_name"_L1),
        .platform = text(object, "platform"_L1),
        .appId = text(object, "app_id"_L1),
        .appVersion = text(object, "app_version"_L1),
        .lastSyncAt = moment(object, "last_sync_at"_L1),
        .deviceFingerprint = text(object, "device_fingerprint"_L1),
        .createdAt = moment(object, "created_at"_L1),
    };
}

GroupMember parseGroupMember(const QJsonObject &object)
{
    return {
        .accountId = text(object, "account_id"_L1),
        .authUserId = text(object, "auth_user_id"_L1),
        .displayName = text(object, "display_name"_L1),
        .email = text(object, "email"_L1),
        .role = text(object, "role"_L1),
        .joinedAt = moment(object, "joined_at"_L1),
    };
}

GroupInvitation parseGroupInvitation(const QJsonObject &object)
{
    return {
        .id = text(object, "id"_L1),
        .invitedEmail = text(object, "invited_email"_L1),
        .inviteCode = text(object, "invite_code"_L1),
        .status = text(object, "status"_L1),
        .expiresAt = moment(object, "expires_at"_L1),
    };
}

Group parseGroup(const QJsonObject &object)
{
    return {
        .id = text(object, "id"_L1),
        .name = text(object, "name"_L1),
        .maxSeats = object.value("max_seats"_L1).toInt(),
        .members = parseRecords(object.value("members"_L1), parseGroupMember),
        .pendingInvitations =
            parseRecords(object.value("pending_invitations"_L1), parseGroupInvitation),
    };
}

GroupSummary parseGroupSummary(const QJsonObject &object)
{
    return {
        .id = text(object, "id"_L1),
        .name = text(object, "name"_L1),
        .role = text(object, "role"_L1),
        .memberCount = object.value("member_count"_L1).toInt(),
    };
}

Profile parseProfile(const QJsonObject &object)
{
    Profile profile{
        .id = text(object, "id"_L1),
        .email = text(object, "email"_L1),
        .displayName = text(object, "display_name"_L1),
        .avatarUrl = text(object, "avatar_url"_L1),
        .language = text(object, "language"_L1),
        .timezone = text(object, "timezone"_L1),
        .status = text(object, "status"_L1),
        .createdAt = moment(object, "created_at"_L1),
    };
    if (object.contains("group"_L1))
        profile.group = parseGroupSummary(object.value("group"_L1).toObject());
    return profile;
}

} // namespace KestAccount
