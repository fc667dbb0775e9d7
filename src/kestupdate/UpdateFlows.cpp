#include "kestupdate/UpdateFlows.h"

#include "kestupdate/Client.h"
#include "kestupdate/ReleaseNotesFetcher.h"
#include "kestupdate/UpdateDialog.h"
#include "kestupdate/WhatsNewDialog.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace KestUpdate {

namespace {

constexpr int kMessageMs = 5000;

// Calls the one or the other, and the fetcher is gone afterwards.
void fetch(ReleaseNotesFetcher *fetcher, const std::function<void(const QString &)> &onReady,
           const std::function<void()> &onUnavailable)
{
    QObject::connect(fetcher, &ReleaseNotesFetcher::notesReady, fetcher,
                     [fetcher, onReady](const QString &markdown) {
                         onReady(markdown);
                         fetcher->deleteLater();
                     });
    QObject::connect(fetcher, &ReleaseNotesFetcher::notesUnavailable, fetcher,
                     [fetcher, onUnavailable] {
                         onUnavailable();
                         fetcher->deleteLater();
                     });
    fetcher->fetch();
}

// What is the same in all that a flow does.
class Flow
{
    Q_DECLARE_TR_FUNCTIONS(KestUpdate::Flow)

public:
    Flow(const Config &config, const QString &appName, const QPointer<QWidget> &parent,
         const ProgressCallbacks &callbacks = {})
        : m_config(config)
        , m_appName(appName)
        , m_parent(parent)
        , m_callbacks(callbacks)
    {
    }

    void checkForUpdates() const;
    void showNotes() const;
    void showNotesSilently() const;

private:
    void begin(const QString &message) const
    {
        if (m_callbacks.showProgress)
            m_callbacks.showProgress(message);
    }
    void end(const QString &message = {}) const
    {
        if (m_callbacks.clearProgress)
            m_callbacks.clearProgress();
        if (!message.isEmpty() && m_callbacks.showMessage)
            m_callbacks.showMessage(message, kMessageMs);
    }
    void endWithoutNotes() const
    {
        end(tr("No release notes available for %1 %2").arg(m_appName, m_config.currentVersion));
    }
    void offer(const Artifact &artifact) const;
    void present(const QString &markdown, const QString &version, const QUrl &downloadUrl) const;
    void askManifestForNotes() const;
    void fetchNotesOf(const Artifact &artifact) const;

    Client *createClient() const { return new Client(m_config, qApp); }

    Config m_config;
    QString m_appName;
    QPointer<QWidget> m_parent;
    ProgressCallbacks m_callbacks;
};

void Flow::checkForUpdates() const
{
    Client *client = createClient();
    begin(tr("Checking for updates…"));
    QObject::connect(client, &Client::updateAvailable, client,
                     [flow = *this, client](const Artifact &artifact) {
                         flow.end();
                         flow.offer(artifact);
                         client->deleteLater();
                     });
    QObject::connect(client, &Client::upToDate, client, [flow = *this, client] {
        flow.end(
            tr("%1 is up to date (version %2)").arg(flow.m_appName, flow.m_config.currentVersion));
        client->deleteLater();
    });
    QObject::connect(client, &Client::checkFailed, client,
                     [flow = *this, client](const QString &reason) {
                         flow.end(tr("Update check failed: %1").arg(reason));
                         client->deleteLater();
                     });
    client->checkForUpdates();
}

void Flow::offer(const Artifact &artifact) const
{
    if (!m_parent)
        return;
    auto *dialog = new UpdateDialog(artifact, m_config.currentVersion, m_appName, m_parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
}

void Flow::present(const QString &markdown, const QString &version, const QUrl &downloadUrl) const
{
    if (!m_parent)
        return;
    auto *dialog = new WhatsNewDialog(markdown, version, m_config.currentVersion, m_appName,
                                      m_parent, downloadUrl);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
}

void Flow::showNotes() const
{
    begin(tr("Loading release notes…"));
    fetch(
        new ReleaseNotesFetcher(m_config, qApp),
        [flow = *this](const QString &markdown) {
            flow.end();
            flow.present(markdown, flow.m_config.currentVersion, {});
        },
        [flow = *this] { flow.askManifestForNotes(); });
}

// The running version may be too new or too old to have notes of its own.
void Flow::askManifestForNotes() const
{
    Client *client = createClient();
    QObject::connect(client, &Client::updateAvailable, client,
                     [flow = *this, client](const Artifact &artifact) {
                         if (artifact.releaseNotesUrl.isValid())
                             flow.fetchNotesOf(artifact);
                         else
                             flow.endWithoutNotes();
                         client->deleteLater();
                     });
    const auto giveUp = [flow = *this, client] {
        flow.endWithoutNotes();
        client->deleteLater();
    };
    QObject::connect(client, &Client::upToDate, client, giveUp);
    QObject::connect(client, &Client::checkFailed, client, giveUp);
    client->checkForUpdates();
}

void Flow::fetchNotesOf(const Artifact &artifact) const
{
    fetch(
        new ReleaseNotesFetcher(artifact.releaseNotesUrl, m_config.productId, qApp),
        [flow = *this, artifact](const QString &markdown) {
            flow.end();
            flow.present(markdown, artifact.version, artifact.url);
        },
        [flow = *this] { flow.endWithoutNotes(); });
}

void Flow::showNotesSilently() const
{
    fetch(
        new ReleaseNotesFetcher(m_config, qApp),
        [flow = *this](const QString &markdown) {
            flow.present(markdown, flow.m_config.currentVersion, {});
        },
        [] {});
}

} // namespace

void runUpdateCheck(const Config &config, const QString &appName, QPointer<QWidget> parent,
                    const ProgressCallbacks &callbacks)
{
    Flow(config, appName, parent, callbacks).checkForUpdates();
}

void showReleaseNotes(const Config &config, const QString &appName, QPointer<QWidget> parent,
                      const ProgressCallbacks &callbacks)
{
    Flow(config, appName, parent, callbacks).showNotes();
}

void showWhatsNew(const Config &config, const QString &appName, QPointer<QWidget> parent)
{
    Flow(config, appName, parent).showNotesSilently();
}

} // namespace KestUpdate
