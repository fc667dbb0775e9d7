#include "kestaccount/AuthClient.h"

#include "kestaccount/ApiClient.h"
#include "kestaccount/JsonRecords.h"
#include "kestaccount/TokenClaims.h"
#include "kestaccount/TokenManager.h"
#include "kestaccount/WebAuthHandler.h"

#include <QDesktopServices>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

QString item(const QUrlQuery &query, const QString &key)
{
    return query.queryItemValue(key, QUrl::FullyDecoded);
}

} // namespace

AuthClient::AuthClient(const QString &authBaseUrl, const QString &realmSlug,
                       const QString &clientId, ApiClient *apiClient, TokenManager *tokenManager,
                       QObject *parent)
    : QObject(parent)
    , m_authBaseUrl(authBaseUrl)
    , m_realmSlug(realmSlug)
    , m_clientId(clientId)
    , m_apiClient(apiClient)
    , m_tokenManager(tokenManager)
{
    setupRefreshCallback();
}

// The tokens of a good answer are taken unseen: an answer without them stores empty ones, and the
// next request finds nothing to refresh with.
void AuthClient::setupRefreshCallback()
{
    m_tokenManager->setRefreshCallback(
        [api = QPointer(m_apiClient)](const QString &refreshToken,
                                      const TokenManager::RefreshSucceeded &succeeded,
                                      const TokenManager::RefreshFailed &failed) {
            if (!api)
                return;
            api->postPublic(u"/auth/token/refresh"_s, {{"refresh_token"_L1, refreshToken}},
                            [succeeded, failed](bool success, int status, const QJsonObject &body) {
                                if (success)
                                    succeeded(body.value("access_token"_L1).toString(),
                                              body.value("refresh_token"_L1).toString());
                                else
                                    failed(status >= 400 && status <= 499);
                            });
        });
}

void AuthClient::initialize()
{
    m_tokenManager->loadFromStore();
    if (!m_tokenManager->accessToken().isEmpty()) {
        setState(AuthState::Authenticated);
        return;
    }
    if (m_tokenManager->refreshToken().isEmpty()) {
        setState(AuthState::Unauthenticated);
        return;
    }
    m_tokenManager->refresh([self = QPointer(this)](RefreshResult result) {
        if (!self)
            return;
        if (result == RefreshResult::Rejected)
            self->m_tokenManager->clearTokens();
        // Without an answer the user stays signed in, offline, with the tokens for a later try.
        self->setState(result == RefreshResult::Rejected ? AuthState::Unauthenticated
                                                         : AuthState::Authenticated);
    });
}

// No time limit: a person may take long over the page. A handler whose page was abandoned listens
// until the program ends, and the next one finds a port of its own.
void AuthClient::login()
{
    auto *handler = new WebAuthHandler(this);
    const QString redirectUri = handler->start();
    if (redirectUri.isEmpty()) {
        Q_EMIT loginFailed(u"Failed to start local auth server"_s);
        handler->deleteLater();
        return;
    }
    connect(handler, &WebAuthHandler::callbackReceived, this, [this, handler](const QUrl &url) {
        handleCallback(url);
        handler->deleteLater();
    });
    const QString page = u"%1/%2/account/login?client_id=%3&redirect_uri=%4"_s.arg(
        m_authBaseUrl, m_realmSlug, m_clientId,
        QString::fromLatin1(QUrl::toPercentEncoding(redirectUri)));
    QDesktopServices::openUrl(QUrl(page));
}

void AuthClient::handleCallback(const QUrl &url)
{
    QUrlQuery tokens(url.fragment(QUrl::FullyEncoded));
    if (item(tokens, u"access_token"_s).isEmpty())
        tokens = QUrlQuery(url);
    const QString access = item(tokens, u"access_token"_s);
    const QString refresh = item(tokens, u"refresh_token"_s);
    if (access.isEmpty() || refresh.isEmpty()) {
        Q_EMIT loginFailed(u"No tokens received"_s);
        return;
    }
    ++m_session;
    m_tokenManager->setTokens(access, refresh);
    setState(AuthState::Authenticated);
    Q_EMIT loginSucceeded();
}

void AuthClient::logout()
{
    m_apiClient->post(u"/auth/logout"_s, {}, {});
    signOutLocally();
    Q_EMIT logoutCompleted();
}

void AuthClient::refreshToken(std::function<void(bool)> callback)
{
    m_tokenManager->refresh([self = QPointer(this), callback](RefreshResult result) {
        if (!self)
            return;
        if (result == RefreshResult::Rejected)
            self->signOutLocally();
        if (callback)
            callback(result == RefreshResult::Success);
    });
}

void AuthClient::fetchCurrentUser(std::function<void(const User &)> callback)
{
    m_apiClient->get(
        u"/users/me"_s,
        [this, session = m_session, callback](bool success, int, const QJsonObject &body) {
            takeUser(success && session == m_session, body, callback);
        });
}

void AuthClient::updateProfile(const QString &displayName,
                               std::function<void(const User &)> callback)
{
    m_apiClient->patch(
        u"/users/me"_s, {{"display_name"_L1, displayName}},
        [this, session = m_session, callback](bool success, int, const QJsonObject &body) {
            takeUser(success && session == m_session, body, callback);
        });
}

// An answer that comes after a sign-out tells of somebody else.
void AuthClient::takeUser(bool success, const QJsonObject &body,
                          const std::function<void(const User &)> &callback)
{
    if (success)
        m_currentUser = parseUser(body);
    if (callback)
        callback(m_currentUser);
}

void AuthClient::changePassword(const QString &currentPassword, const QString &newPassword,
                                std::function<void(bool)> callback)
{
    m_apiClient->post(u"/users/me/password"_s,
                      {{"current_password"_L1, currentPassword}, {"new_password"_L1, newPassword}},
                      [callback](bool success, int, const QJsonObject &) {
                          if (callback)
                              callback(success);
                      });
}

void AuthClient::listSessions(std::function<void(const QList<Session> &)> callback)
{
    m_apiClient->get(
        u"/users/me/sessions"_s, [callback](bool success, int, const QJsonObject &body) {
            if (callback)
                callback(success ? parseRecords(body.value("sessions"_L1), parseSession)
                                 : QList<Session>());
        });
}

void AuthClient::revokeSession(const QString &sessionId)
{
    m_apiClient->del(u"/users/me/sessions/%1"_s.arg(sessionId), {});
}

QString AuthClient::userId() const
{
    return parseTokenSubject(m_tokenManager->accessToken());
}

void AuthClient::setState(AuthState state)
{
    if (m_state == state)
        return;
    m_state = state;
    Q_EMIT stateChanged(state);
}

void AuthClient::signOutLocally()
{
    ++m_session;
    m_tokenManager->clearTokens();
    m_currentUser = {};
    setState(AuthState::Unauthenticated);
}

} // namespace KestAccount
