#include "kestaccount/ApiClient.h"

#include "kestaccount/TokenManager.h"

#include <QDebug>
#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

void setHeader(QNetworkRequest &request, const QByteArray &name, const QString &value)
{
    if (!value.isEmpty())
        request.setRawHeader(name, value.toUtf8());
}

} // namespace

ApiClient::ApiClient(TokenManager *tokenManager, QObject *parent)
    : QObject(parent)
    , m_networkManager(new QNetworkAccessManager(this))
    , m_tokenManager(tokenManager)
{
}

void ApiClient::setBaseUrl(const QUrl &url)
{
    m_baseUrl = url;
}

void ApiClient::setAppIdentity(const QString &appId, const QString &appVersion,
                               const QString &platform)
{
    m_appId = appId;
    m_appVersion = appVersion;
    m_platform = platform;
}

void ApiClient::get(const QString &path, ResponseCallback callback, const QUrlQuery &query)
{
    sendRequest(u"GET"_s, path, {}, std::move(callback), query, true);
}

void ApiClient::post(const QString &path, const QJsonObject &body, ResponseCallback callback)
{
    sendRequest(u"POST"_s, path, body, std::move(callback), {}, true);
}

void ApiClient::postPublic(const QString &path, const QJsonObject &body, ResponseCallback callback)
{
    sendRequest(u"POST"_s, path, body, std::move(callback), {}, false);
}

void ApiClient::patch(const QString &path, const QJsonObject &body, ResponseCallback callback)
{
    sendRequest(u"PATCH"_s, path, body, std::move(callback), {}, true);
}

void ApiClient::del(const QString &path, ResponseCallback callback)
{
    sendRequest(u"DELETE"_s, path, {}, std::move(callback), {}, true);
}

void ApiClient::sendRequest(const QString &method, const QString &path, const QJsonObject &body,
                            ResponseCallback callback, const QUrlQuery &query, bool requiresAuth)
{
    if (!callback)
        callback = [](bool, int, const QJsonObject &) {};
    const Request request{method, urlOf(path, query),
                          body.isEmpty() ? QByteArray()
                                         : QJsonDocument(body).toJson(QJsonDocument::Compact),
                          std::move(callback)};
    if (!requiresAuth)
        executeRequest(request, {}, false);
    else if (m_tokenManager->needsRefresh())
        sendAfterRefresh(request);
    else
        executeRequest(request, m_tokenManager->accessToken(), true);
}

// The token was judged by its clock alone, so the request may still retry on a 401.
void ApiClient::sendAfterRefresh(const Request &request)
{
    const QString path = request.url.path();
    qDebug().noquote() << "ApiClient: token needs refresh before" << request.method << path;
    m_tokenManager->refresh([self = QPointer(this), request, path](RefreshResult result) {
        if (!self)
            return;
        if (result == RefreshResult::Success) {
            self->executeRequest(request, self->m_tokenManager->accessToken(), true);
            return;
        }
        const bool isRejected = result == RefreshResult::Rejected;
        qWarning().noquote() << "ApiClient: token refresh"
                             << (isRejected ? "rejected" : "failed (transient)") << "for"
                             << request.method << path;
        if (isRejected)
            Q_EMIT self->authenticationRequired();
        request.callback(false, isRejected ? 401 : 0, {});
    });
}

void ApiClient::executeRequest(const Request &request, const QString &token, bool allowRetry)
{
    QNetworkReply *reply = issue(request, token);
    if (!reply) {
        request.callback(false, 0, {});
        return;
    }
    connect(reply, &QNetworkReply::finished, this,
            [this, reply, request, allowRetry] { handleReply(reply, request, allowRetry); });
}

void ApiClient::handleReply(QNetworkReply *reply, const Request &request, bool allowRetry)
{
    reply->deleteLater();
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QJsonObject body = QJsonDocument::fromJson(reply->readAll()).object();
    if (status == 401 && allowRetry) {
        retryAfterRefresh(request);
        return;
    }
    if (status == 0 && reply->error() != QNetworkReply::NoError) {
        Q_EMIT networkError(reply->errorString());
        request.callback(false, 0, {});
        return;
    }
    request.callback(status >= 200 && status <= 299, status, body);
}

// No second retry: a service that keeps answering 401 costs one refresh and one repeat.
void ApiClient::retryAfterRefresh(const Request &request)
{
    m_tokenManager->refresh([self = QPointer(this), request](RefreshResult result) {
        if (!self)
            return;
        switch (result) {
        case RefreshResult::Success:
            self->executeRequest(request, self->m_tokenManager->accessToken(), false);
            return;
        case RefreshResult::Rejected:
            Q_EMIT self->authenticationRequired();
            request.callback(false, 401, {});
            return;
        case RefreshResult::TransientFailure:
            request.callback(false, 0, {});
            return;
        }
    });
}

QUrl ApiClient::urlOf(const QString &path, const QUrlQuery &query) const
{
    QUrl url = m_baseUrl;
    url.setPath(m_baseUrl.path(QUrl::FullyDecoded) + path, QUrl::DecodedMode);
    if (!query.isEmpty())
        url.setQuery(query);
    return url;
}

QNetworkReply *ApiClient::issue(const Request &request, const QString &token)
{
    QNetworkRequest networkRequest(request.url);
    networkRequest.setHeader(QNetworkRequest::ContentTypeHeader, u"application/json"_s);
    networkRequest.setRawHeader("Accept", "application/json");
    setHeader(networkRequest, "X-App-Id", m_appId);
    setHeader(networkRequest, "X-App-Version", m_appVersion);
    setHeader(networkRequest, "X-Platform", m_platform);
    if (!token.isEmpty())
        setHeader(networkRequest, "Authorization", u"Bearer "_s + token);

    if (request.method == "GET"_L1)
        return m_networkManager->get(networkRequest);
    if (request.method == "POST"_L1)
        return m_networkManager->post(networkRequest, request.body);
    if (request.method == "PUT"_L1)
        return m_networkManager->put(networkRequest, request.body);
    if (request.method == "PATCH"_L1)
        return m_networkManager->sendCustomRequest(networkRequest, "PATCH", request.body);
    if (request.method == "DELETE"_L1)
        return m_networkManager->deleteResource(networkRequest);
    return nullptr;
}

} // namespace KestAccount
