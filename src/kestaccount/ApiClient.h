#pragma once

#include <QJsonObject>
#include <QObject>
#include <QUrl>
#include <QUrlQuery>

#include <functional>

class QNetworkAccessManager;
class QNetworkReply;

namespace KestAccount {

class TokenManager;

// JSON over HTTP to one of our services: frames each request, refreshes a stale token ahead of it
// and once after a 401. It knows no endpoint, clears no tokens and signs nobody out.
class ApiClient : public QObject
{
    Q_OBJECT

public:
    // success: a status from 200 to 299. status: 0 when no HTTP answer came. body: empty when the
    // answer was no JSON object. Runs once per request, unless the client is gone before; from the
    // event loop, or before the call returns when there is nothing to refresh the token with.
    using ResponseCallback = std::function<void(bool success, int status, const QJsonObject &body)>;

    explicit ApiClient(TokenManager *tokenManager, QObject *parent = nullptr); // not owned

    void setBaseUrl(const QUrl &url); // scheme, host and path prefix of the service
    void setAppIdentity(const QString &appId, const QString &appVersion, const QString &platform);

    // A path begins with "/". An empty body is sent as no bytes at all.
    void get(const QString &path, ResponseCallback callback, const QUrlQuery &query = {});
    void post(const QString &path, const QJsonObject &body, ResponseCallback callback);
    void postPublic(const QString &path, const QJsonObject &body,
                    ResponseCallback callback); // without a token
    void patch(const QString &path, const QJsonObject &body, ResponseCallback callback);
    void del(const QString &path, ResponseCallback callback);

Q_SIGNALS:
    void authenticationRequired(); // a refresh that a request needed was refused
    void networkError(const QString &message); // a request ended without any HTTP status

private:
    struct Request
    {
        QString method;
        QUrl url; // finished, so that the query survives a refresh and a retry
        QByteArray body;
        ResponseCallback callback;
    };

    void sendRequest(const QString &method, const QString &path, const QJsonObject &body,
                     ResponseCallback callback, const QUrlQuery &query, bool requiresAuth);
    void sendAfterRefresh(const Request &request);
    void executeRequest(const Request &request, const QString &token, bool allowRetry);
    void handleReply(QNetworkReply *reply, const Request &request, bool allowRetry);
    void retryAfterRefresh(const Request &request);
    QUrl urlOf(const QString &path, const QUrlQuery &query) const;
    QNetworkReply *issue(const Request &request, const QString &token);

    QNetworkAccessManager *m_networkManager;
    TokenManager *m_tokenManager;
    QUrl m_baseUrl{};
    QString m_appId{};
    QString m_appVersion{};
    QString m_platform{};
};

} // namespace KestAccount
