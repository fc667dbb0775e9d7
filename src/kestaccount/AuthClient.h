#pragma once

#include "kestaccount/AuthState.h"
#include "kestaccount/ServiceRecords.h"

#include <QObject>

#include <functional>

namespace KestAccount {

class ApiClient;
class TokenManager;

// The sign-in state: restores a session at start, signs in through the user's browser, signs out,
// and speaks to the sign-in service about the user, the password and the sessions.
//
// A callback runs once, from the event loop, and may be empty.
class AuthClient : public QObject
{
    Q_OBJECT
    Q_PROPERTY(KestAccount::AuthState state READ state NOTIFY stateChanged)
    Q_PROPERTY(bool isAuthenticated READ isAuthenticated NOTIFY stateChanged)

public:
    // The client of the service and the tokens are not owned.
    AuthClient(const QString &authBaseUrl, const QString &realmSlug, const QString &clientId,
               ApiClient *apiClient, TokenManager *tokenManager, QObject *parent = nullptr);

    AuthState state() const { return m_state; }
    bool isAuthenticated() const { return m_state == AuthState::Authenticated; }

    void initialize(); // restores the session of the last run
    void login(); // opens the browser; connect loginFailed first, it may come before this returns
    void logout(); // at once, without waiting for the service
    void refreshToken(std::function<void(bool ok)> callback = {}); // signs out when refused

    // Both hand over the last known user when the service does not answer.
    void fetchCurrentUser(std::function<void(const User &)> callback);
    void updateProfile(const QString &displayName, std::function<void(const User &)> callback);
    void changePassword(const QString &currentPassword, const QString &newPassword,
                        std::function<void(bool ok)> callback);
    void listSessions(std::function<void(const QList<Session> &)> callback); // empty: failed
    void revokeSession(const QString &sessionId); // whether it worked is not told

    User currentUser() const { return m_currentUser; } // empty until fetched
    QString userId() const; // empty without a usable access token

Q_SIGNALS:
    void stateChanged(KestAccount::AuthState state); // only on a different state
    void loginSucceeded(); // after stateChanged, when the tokens are stored
    void loginFailed(const QString &error);
    void logoutCompleted(); // after stateChanged

private:
    void setupRefreshCallback();
    void setState(AuthState state);
    void signOutLocally();
    void handleCallback(const QUrl &url);
    void takeUser(bool success, const QJsonObject &body,
                  const std::function<void(const User &)> &callback);

    QString m_authBaseUrl;
    QString m_realmSlug;
    QString m_clientId;
    ApiClient *m_apiClient;
    TokenManager *m_tokenManager;
    AuthState m_state = AuthState::Unknown;
    User m_currentUser{};
    int m_session = 0; // the one whose answers tell of the current user
};

} // namespace KestAccount
