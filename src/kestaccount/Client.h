#pragma once

#include "kestaccount/AuthState.h"
#include "kestaccount/ClientConfig.h"
#include "kestaccount/TokenClaims.h"

#include <QObject>

namespace KestAccount {

class AccountClient;
class ApiClient;
class AuthClient;
class TokenManager;

// The front door of the account library: builds its parts from one configuration and passes the
// sign-in state on. It owns all that it hands out.
class Client : public QObject
{
    Q_OBJECT

public:
    explicit Client(const ClientConfig &config, QObject *parent = nullptr); // no I/O yet

    void initialize(); // restores the session of the last run; call once
    bool isAuthenticated() const;
    KesClaims claims() const; // of the present token, read each time; empty while it is stale

    const ClientConfig &config() const { return m_config; }
    AuthClient *authClient() const { return m_authClient; }
    AccountClient *accountClient() const { return m_accountClient; }
    ApiClient *syncApi() const { return m_syncApi; } // its base URL is the application's to set
    TokenManager *tokenManager() const { return m_tokenManager; }

Q_SIGNALS:
    void authStateChanged(KestAccount::AuthState state);
    void claimsUpdated(const KestAccount::KesClaims &claims); // on signing in, not on a refresh

private:
    ApiClient *createApi(const QString &baseUrl);
    void passOnState(AuthState state);

    ClientConfig m_config;
    TokenManager *m_tokenManager;
    ApiClient *m_authApi;
    ApiClient *m_accountApi;
    ApiClient *m_syncApi;
    AuthClient *m_authClient;
    AccountClient *m_accountClient;
};

} // namespace KestAccount
