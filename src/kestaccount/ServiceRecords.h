#pragma once

#include <QDateTime>
#include <QJsonObject>
#include <QList>
#include <QString>

#include <optional>

// What the sign-in and the account service tell of a user. A key that is missing or of another type
// leaves its field empty, 0, false or an invalid date; nothing is refused.
namespace KestAccount {

struct User
{
    QString id{};
    QString email{};
    QString displayName{};
    QString username{};
    QString avatarUrl{};
    QDateTime createdAt{};

    bool operator==(const User &) const = default;
};

struct Session
{
    QString id{};
    QString userAgent{};
    QString ipAddress{};
    QDateTime createdAt{};
    QDateTime lastActiveAt{};
    bool isCurrent = false;

    bool operator==(const Session &) const = default;
};

struct Device
{
    QString id{};
    QString deviceName{};
    QString platform{};
    QString appId{};
    QString appVersion{};
    QDateTime lastSyncAt{};
    QString deviceFingerprint{};
    QDateTime createdAt{};

    bool operator==(const Device &) const = default;
};

struct GroupMember
{
    QString accountId{};
    QString authUserId{};
    QString displayName{};
    QString email{};
    QString role{};
    QDateTime joinedAt{};

    bool operator==(const GroupMember &) const = default;
};

struct GroupInvitation
{
    QString id{};
    QString invitedEmail{}; // empty: a bare code, not sent to anybody
    QString inviteCode{};
    QString status{};
    QDateTime expiresAt{};

    bool operator==(const GroupInvitation &) const = default;
};

struct Group
{
    QString id{}; // empty: the user has no group, or the request failed
    QString name{};
    int maxSeats = 0;
    QList<GroupMember> members{};
    QList<GroupInvitation> pendingInvitations{};

    bool operator==(const Group &) const = default;
};

struct GroupSummary
{
    QString id{};
    QString name{};
    QString role{};
    int memberCount = 0;

    bool operator==(const GroupSummary &) const = default;
};

struct Profile
{
    QString id{};
    QString email{};
    QString displayName{};
    QString avatarUrl{};
    QString language{};
    QString timezone{};
    QString status{};
    QDateTime createdAt{};
    std::optional<GroupSummary> group{};

    bool operator==(const Profile &) const = default;
};

User parseUser(const QJsonObject &object);
Session parseSession(const QJsonObject &object);
Device parseDevice(const QJsonObject &object);
GroupMember parseGroupMember(const QJsonObject &object);
GroupInvitation parseGroupInvitation(const QJsonObject &object);
Group parseGroup(const QJsonObject &object);
GroupSummary parseGroupSummary(const QJsonObject &object);
Profile parseProfile(const QJsonObject &object);

} // namespace KestAccount
