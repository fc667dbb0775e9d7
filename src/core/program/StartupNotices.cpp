#include "core/program/StartupNotices.h"

#include "core/Deployment.h"
#include "core/state/UpdateConfig.h"
#include "data/PreferencesRepository.h"
#include "kestupdate/Client.h"
#include "kestupdate/UpdateDialog.h"
#include "kestupdate/UpdateFlows.h"
#include "kestupdate/Version.h"

#include <QCoreApplication>
#include <QDebug>
#include <QSettings>

using namespace Qt::StringLiterals;
using KestUpdate::parseVersion;

namespace {

constexpr QLatin1StringView kLastShownKey{"whatsNew/lastShownVersion"};
constexpr QLatin1StringView kDismissedKey{"update_dismissed_version"};

QString lastShownVersion(QSettings &settings, const PreferencesRepository &preferences)
{
    QString version = settings.value(kLastShownKey).toString();
    if (!version.isEmpty())
        return version;
    // Earlier releases kept it with the household, which may be opened on several machines.
    version = preferences.getOr(u"last_whats_new_version"_s, QString());
    if (!version.isEmpty())
        settings.setValue(kLastShownKey, version);
    return version;
}

void offerUpdate(const KestUpdate::Artifact &artifact, PreferencesRepository *preferences,
                 QWidget *window)
{
    const QString dismissed = preferences->getOr(kDismissedKey, QString());
    if (!dismissed.isEmpty() && parseVersion(artifact.version) <= parseVersion(dismissed))
        return;
    auto *dialog =
        new KestUpdate::UpdateDialog(artifact, kApplicationVersion, kDisplayName, window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(
        dialog, &QDialog::finished, preferences,
        [preferences, version = artifact.version] { preferences->set(kDismissedKey, version); });
    dialog->show();
}

} // namespace

void offerWhatsNew(PreferencesRepository *preferences, QWidget *window)
{
    QSettings settings;
    const QString lastShown = lastShownVersion(settings, *preferences);
    if (!(parseVersion(lastShown) < parseVersion(kApplicationVersion)))
        return;
    settings.setValue(kLastShownKey, QString(kApplicationVersion));
    settings.sync();
    KestUpdate::showWhatsNew(updateClientConfig(), kDisplayName, window);
}

void startUpdateCheck(PreferencesRepository *preferences, QWidget *window)
{
    auto *client = new KestUpdate::Client(updateClientConfig(), qApp);
    QObject::connect(client, &KestUpdate::Client::updateAvailable, window,
                     [preferences, window](const KestUpdate::Artifact &artifact) {
                         offerUpdate(artifact, preferences, window);
                     });
    QObject::connect(client, &KestUpdate::Client::checkFailed, qApp, [](const QString &reason) {
        qWarning().noquote() << "update check failed:" << reason;
    });
    client->checkForUpdates();
}
