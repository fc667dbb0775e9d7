#include "kestupdate/Client.h"

#include "kestupdate/UpdateRequest.h"
#include "kestupdate/Version.h"

#include <QLoggingCategory>
#include <QNetworkAccessManager>
#include <QNetworkReply>

using namespace Qt::StringLiterals;

namespace KestUpdate {

namespace {

Q_LOGGING_CATEGORY(log, "kestupdate.client")

constexpr qint64 kMaxManifestSize = 1024 * 1024; // one has a few hundred bytes per platform

} // namespace

Client::Client(const Config &config, QObject *parent)
    : QObject(parent)
    , m_config(config)
    , m_networkManager(new QNetworkAccessManager(this))
{
    connect(m_networkManager, &QNetworkAccessManager::finished, this, &Client::handleReply);
}

void Client::checkForUpdates()
{
    if (m_inFlight) {
        qCDebug(log) << "check already in flight, ignoring";
        return;
    }
    if (!m_config.manifestBaseUrl.isValid()) {
        Q_EMIT checkFailed(u"manifestBaseUrl is not valid"_s);
        return;
    }
    if (m_config.currentVersion.isEmpty()) {
        Q_EMIT checkFailed(u"currentVersion is empty"_s);
        return;
    }
    m_inFlight = true;
    sendRequest(m_networkManager, manifestUrl(), m_config.productId, kMaxManifestSize);
}

QUrl Client::manifestUrl() const
{
    QUrl url = m_config.manifestBaseUrl;
    QString path = url.path(QUrl::FullyDecoded);
    if (!path.endsWith(u'/'))
        path += u'/';
    url.setPath(path + u"latest.json"_s, QUrl::DecodedMode);
    return url;
}

void Client::handleReply(QNetworkReply *reply)
{
    reply->deleteLater();
    m_inFlight = false;
    if (reply->error() == QNetworkReply::NoError) {
        handleManifest(reply->readAll());
        return;
    }
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (reply->error() == QNetworkReply::ContentNotFoundError || status == 404) {
        qCInfo(log) << "manifest 404, treating as up-to-date"; // a channel may not have one
        Q_EMIT upToDate();
        return;
    }
    Q_EMIT checkFailed(u"network error: %1"_s.arg(reply->errorString()));
}

void Client::handleManifest(const QByteArray &bytes)
{
    QString error;
    const Manifest manifest = parseManifest(bytes, &error);
    if (!manifest.isValid()) {
        Q_EMIT checkFailed(u"manifest invalid: %1"_s.arg(error));
        return;
    }
    const QString platform = platformKey();
    if (platform.isEmpty()) {
        qCWarning(log) << "unknown platform, skipping update check";
        Q_EMIT upToDate();
        return;
    }
    const auto artifact = manifest.artifacts.constFind(platform);
    if (artifact == manifest.artifacts.cend()) {
        qCInfo(log) << "platform" << platform << "not shipped in current manifest";
        Q_EMIT upToDate();
        return;
    }
    offer(*artifact);
}

void Client::offer(const Artifact &artifact)
{
    const Version current = parseVersion(m_config.currentVersion);
    if (!(current < parseVersion(artifact.version))) {
        Q_EMIT upToDate();
        return;
    }
    const QString &oldest = artifact.minUpgradableFrom;
    if (!oldest.isEmpty() && current < parseVersion(oldest)) {
        Q_EMIT checkFailed(
            u"current version %1 is older than min_upgradable_from %2; please "
            "upgrade to an intermediate release first"_s.arg(m_config.currentVersion, oldest));
        return;
    }
    Q_EMIT updateAvailable(artifact);
}

} // namespace KestUpdate
