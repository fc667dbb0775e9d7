#pragma once

#include "kestupdate/Config.h"
#include "kestupdate/Manifest.h"

#include <QObject>

class QNetworkAccessManager;
class QNetworkReply;

namespace KestUpdate {

// Asks the download location whether there is a newer release for this platform. It downloads no
// installer and changes nothing on the machine.
class Client : public QObject
{
    Q_OBJECT

public:
    explicit Client(const Config &config, QObject *parent = nullptr);

    // One of the signals follows; before this returns, if the configuration is of no use. None
    // follows while another check is under way: that one answers.
    void checkForUpdates();

Q_SIGNALS:
    void updateAvailable(const KestUpdate::Artifact &artifact);
    void upToDate(); // or no manifest, or none for this platform
    void checkFailed(const QString &reason);

private:
    void handleReply(QNetworkReply *reply);
    void handleManifest(const QByteArray &bytes);
    void offer(const Artifact &artifact);
    QUrl manifestUrl() const;

    Config m_config;
    QNetworkAccessManager *m_networkManager;
    bool m_inFlight = false;
};

} // namespace KestUpdate
