#include "shell/SettingsBackupSection.h"

#include "core/Dates.h"
#include "core/state/AppState.h"
#include "data/BulkWrite.h"
#include "screens/WorkProgressDialog.h"
#include "shell/SettingsSections.h"
#include "sync/SyncEngine.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QPushButton>
#include <QSaveFile>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int kProgressDelayMs = 500;
constexpr int kPassWaitMs = 3000; // a service that hangs keeps nobody from a backup
constexpr qint64 kLargestFile = 2LL * 1024 * 1024 * 1024; // bytes; no household has as much

// A button at work says so, cannot be pressed again, and has been painted like that.
class ButtonAtWork
{
public:
    ButtonAtWork(QPushButton *button, const QString &text)
        : m_button(button)
        , m_text(button->text())
    {
        button->setEnabled(false);
        button->setText(text);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        button->repaint();
    }
    ~ButtonAtWork()
    {
        m_button->setText(m_text);
        m_button->setEnabled(true);
        m_button->setFocus(); // it was lost with the disabling
    }
    ButtonAtWork(const ButtonAtWork &) = delete;
    ButtonAtWork &operator=(const ButtonAtWork &) = delete;

private:
    QPushButton *m_button;
    QString m_text;
};

// Late answers could bring rows into tables of which one is in the archive already, or mark rows as
// synced that the import has just changed. The next pass is held off by a bulk write.
void endSyncPass(SyncEngine *engine)
{
    if (engine->state() == SyncEngine::SyncState::Syncing) {
        QEventLoop loop;
        QObject::connect(engine, &SyncEngine::stateChanged, &loop, &QEventLoop::quit);
        QTimer::singleShot(kPassWaitMs, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
    if (engine->state() == SyncEngine::SyncState::Syncing)
        engine->scheduleSync(); // for what the abandoned one does not bring
    engine->abandonPass();
}

// An older backup of that name stays until the new one is complete.
bool writeFile(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    return !bytes.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()
        && file.commit();
}

std::optional<QByteArray> readFile(const QString &path)
{
    if (!QFileInfo(path).isFile() || QFileInfo(path).size() > kLargestFile)
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    return file.error() == QFile::NoError ? std::optional(bytes) : std::nullopt;
}

QString fileFilter()
{
    return SettingsBackupSection::tr("ZIP Files (*.zip)");
}

} // namespace

SettingsBackupSection::SettingsBackupSection(AppState *appState, QWidget *parent)
    : QWidget(parent)
    , m_appState(appState)
    , m_exportButton(new QPushButton(tr("Export Backup")))
    , m_importButton(new QPushButton(tr("Import Backup")))
{
    m_exportButton->setObjectName(u"exportButton"_s);
    m_importButton->setObjectName(u"importButton"_s);
    connect(m_exportButton, &QPushButton::clicked, this, &SettingsBackupSection::exportBackup);
    connect(m_importButton, &QPushButton::clicked, this, &SettingsBackupSection::importBackup);
    auto *row = new QHBoxLayout;
    row->addWidget(m_exportButton);
    row->addWidget(m_importButton);
    row->addStretch();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(makeSection(tr("Backup & Restore"),
                                  tr("Save or restore your data to a portable backup file.")));
    column->addLayout(row);
}

void SettingsBackupSection::exportBackup()
{
    const QString name = u"pursewell-backup-%1.zip"_s.arg(isoDate(QDate::currentDate()));
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Export Backup"), name, fileFilter());
    if (path.isEmpty())
        return;
    const ButtonAtWork working(m_exportButton, tr("Exporting..."));
    if (writeFile(path, buildBackup()))
        tell(QMessageBox::Information, u"backupCompleteBox"_s, tr("Backup Complete"),
             tr("Backup saved to:\n%1").arg(path));
    else
        tell(QMessageBox::Warning, u"backupFailedBox"_s, tr("Backup Failed"),
             tr("Could not write to:\n%1").arg(path));
}

QByteArray SettingsBackupSection::buildBackup()
{
    BackupService *service = m_appState->backupService();
    WorkProgressDialog progress(tr("Exporting..."), kProgressDelayMs, this);
    connect(service, &BackupService::progressed, &progress, &WorkProgressDialog::showProgress);
    const BulkWrite noSync(m_appState->transactions());
    endSyncPass(m_appState->syncEngine());
    return service->exportBackup();
}

void SettingsBackupSection::importBackup()
{
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Import Backup"), QString(), fileFilter());
    if (path.isEmpty())
        return;
    const std::optional<BackupMergeMode> mode = askForMode();
    if (!mode)
        return;
    const std::optional<QByteArray> bytes = readFile(path);
    if (!bytes) {
        tell(QMessageBox::Warning, u"importFailedBox"_s, tr("Import Failed"),
             tr("Could not read file."));
        return;
    }
    {
        const ButtonAtWork working(m_importButton, tr("Importing..."));
        showResult(mergeBackup(*bytes, *mode));
    }
    Q_EMIT backupImported();
}

std::optional<BackupMergeMode> SettingsBackupSection::askForMode()
{
    const QStringList items{tr("Replace all with backup data"),
                            tr("Keep newer (compare timestamps)"), tr("Skip existing items")};
    QInputDialog dialog(this);
    dialog.setObjectName(u"importModeDialog"_s);
    dialog.setWindowTitle(tr("Import Mode"));
    dialog.setLabelText(tr("How should existing data be handled?"));
    dialog.setComboBoxItems(items);
    dialog.setTextValue(items.first());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    switch (items.indexOf(dialog.textValue())) {
    case 0:
        return BackupMergeMode::Replace;
    case 1:
        return BackupMergeMode::KeepNewer;
    default:
        return BackupMergeMode::Skip;
    }
}

BackupImportResult SettingsBackupSection::mergeBackup(const QByteArray &bytes, BackupMergeMode mode)
{
    BackupService *service = m_appState->backupService();
    WorkProgressDialog progress(tr("Importing..."), kProgressDelayMs, this);
    connect(service, &BackupService::progressed, &progress, &WorkProgressDialog::showProgress);
    const BulkWrite noSync(m_appState->transactions());
    endSyncPass(m_appState->syncEngine());
    return service->importBackup(bytes, mode);
}

void SettingsBackupSection::showResult(const BackupImportResult &result)
{
    QString text = tr("Imported %1 items, skipped %2.")
                       .arg(result.imported.total())
                       .arg(result.skipped.total());
    if (!result.errors.isEmpty())
        text += tr("\n\n%n error(s) occurred.", nullptr, static_cast<int>(result.errors.size()));
    tell(QMessageBox::Information, u"importCompleteBox"_s, tr("Import Complete"), text);
}

void SettingsBackupSection::tell(QMessageBox::Icon icon, const QString &name, const QString &title,
                                 const QString &text)
{
    QMessageBox box(icon, title, text, QMessageBox::Ok, this);
    box.setObjectName(name);
    box.setTextFormat(Qt::PlainText); // a path may read like markup
    box.exec();
}
