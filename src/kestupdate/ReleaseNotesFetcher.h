#pragma once

#include "kestupdate/Config.h"

#include <QObject>
#include <QUrl>

class QNetworkAccessManager;
class QNetworkReply;

namespace KestUpdate {

// Gets the notes of a release as Markdown, in the user's language if there are some.
class ReleaseNotesFetcher : public QObject
{
    Q_OBJECT

public:
    // The notes of the running version.
    explicit ReleaseNotesFetcher(const Config &config, QObject *parent = nullptr);
    ReleaseNotesFetcher(const QUrl &url, const QString &productId, QObject *parent = nullptr);

    void fetch(); // one of the signals follows, before this returns for an address of no use

Q_SIGNALS:
    void notesReady(const QString &markdown); // never blank
    void notesUnavailable();

private:
    void request(const QUrl &url, bool isLocalized);
    void handleReply(QNetworkReply *reply, bool isLocalized);

    QString m_productId;
    QNetworkAccessManager *m_networkManager;
    QUrl m_url; // in the source language
    QUrl m_localizedUrl; // invalid: none to try
};

} // namespace KestUpdate
