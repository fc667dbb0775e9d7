#include "kestupdate/ReleaseNotesFetcher.h"

#include "kestupdate/UpdateRequest.h"
#include "kestupdate/WebAddress.h"

#include <QLocale>
#include <QNetworkAccessManager>
#include <QNetworkReply>

using namespace Qt::StringLiterals;

namespace KestUpdate {

namespace {

constexpr QLatin1StringView kSuffix{".md"};

// Notes have a few kilobytes. Qt reads a text of nothing but links or list items in a time that
// grows with its square: seconds for this much, an hour for a megabyte.
constexpr qint64 kMaxNotesSize = 64 * 1024;

// The notes lie beside the channel's directory, in one named after the version.
QUrl notesUrl(const Config &config)
{
    QUrl url = config.manifestBaseUrl;
    QString path = url.path(QUrl::FullyDecoded);
    if (path.endsWith(u'/'))
        path.chop(1);
    path.truncate(path.lastIndexOf(u'/') + 1);
    url.setPath(path + config.currentVersion + u"/release-notes.md"_s, QUrl::DecodedMode);
    return url;
}

QUrl localized(const QUrl &url)
{
    const QString language = QLocale::system().name().left(2);
    if (language.isEmpty() || language == "en"_L1)
        return {};
    QUrl localizedUrl = url;
    QString path = url.path(QUrl::FullyEncoded);
    if (path.endsWith(kSuffix))
        path.insert(path.size() - kSuffix.size(), u'.' + language);
    localizedUrl.setPath(path, QUrl::StrictMode);
    return localizedUrl;
}

} // namespace

ReleaseNotesFetcher::ReleaseNotesFetcher(const Config &config, QObject *parent)
    : ReleaseNotesFetcher(notesUrl(config), config.productId, parent)
{
}

ReleaseNotesFetcher::ReleaseNotesFetcher(const QUrl &url, const QString &productId, QObject *parent)
    : QObject(parent)
    , m_productId(productId)
    , m_networkManager(new QNetworkAccessManager(this))
    , m_url(url)
    , m_localizedUrl(localized(url))
{
}

void ReleaseNotesFetcher::fetch()
{
    if (!isWebAddress(m_url)) { // a manifest could name a file of this machine
        Q_EMIT notesUnavailable();
        return;
    }
    const bool isLocalized = m_localizedUrl.isValid();
    request(isLocalized ? m_localizedUrl : m_url, isLocalized);
}

void ReleaseNotesFetcher::request(const QUrl &url, bool isLocalized)
{
    QNetworkReply *reply = sendRequest(m_networkManager, url, m_productId, kMaxNotesSize);
    connect(reply, &QNetworkReply::finished, this,
            [this, reply, isLocalized] { handleReply(reply, isLocalized); });
}

void ReleaseNotesFetcher::handleReply(QNetworkReply *reply, bool isLocalized)
{
    reply->deleteLater();
    const QByteArray body =
        reply->error() == QNetworkReply::NoError ? reply->readAll() : QByteArray();
    const QString markdown = QString::fromUtf8(body).trimmed();
    if (!markdown.isEmpty())
        Q_EMIT notesReady(markdown);
    else if (isLocalized)
        request(m_url, false);
    else
        Q_EMIT notesUnavailable();
}

} // namespace KestUpdate
