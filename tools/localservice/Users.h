#pragma once

#include "ServiceDatabase.h"

// The people of the service: sign-in, tokens, sessions, the family group, devices.
class Users
{
public:
    struct Tokens
    {
        QString access{};
        QString refresh{};
    };

    explicit Users(ServiceDatabase &database); // must outlive this object

    void setTokenLife(int seconds) { m_tokenLife = seconds; } // of the access tokens from now on

    // The first sign-in with an address makes the user. Empty tokens: a wrong password, or
    // one of the two is empty.
    Tokens signIn(const QString &email, const QString &password, const QString &userAgent);
    Tokens refresh(const QString &refreshToken); // empty tokens: not known
    QJsonObject sessionOf(const QString &accessToken); // empty: not known, or its time is over

    QJsonObject user(const QString &userId);
    void rename(const QString &userId, const QString &displayName);
    bool changePassword(const QString &userId, const QString &current, const QString &next);
    QJsonArray sessions(const QString &userId, const QString &currentSessionId);
    void endSession(const QString &userId, const QString &sessionId);
    void remove(const QString &userId);

    QJsonObject profile(const QString &userId);
    QJsonObject group(const QString &userId); // empty: none
    QJsonObject invite(const QString &userId, const QString &email); // empty: not the owner
    bool join(const QString &userId, const QString &inviteCode);
    bool leave(const QString &userId);
    bool removeMember(const QString &ownerId, const QString &accountId);
    bool revokeInvitation(const QString &ownerId, const QString &invitationId);
    // By account id or address; empty: none.
    QString fellowMember(const QString &userId, const QString &key);

    QJsonArray devices(const QString &userId);
    void registerDevice(const QString &userId, const QJsonObject &device);
    void removeDevice(const QString &userId, const QString &deviceId);
    void noteSync(const QString &userId);

private:
    QString accessTokenFor(const QString &userId, qint64 expiry);
    QJsonObject membership(const QString &userId);
    QString ensureGroup(const QString &userId);

    ServiceDatabase &m_database;
    int m_tokenLife = 3600;
};
