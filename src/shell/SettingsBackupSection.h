#pragma once

#include "services/BackupService.h"

#include <QMessageBox>
#include <QWidget>

#include <optional>

class AppState;
class QPushButton;

// Writes a backup into a file and brings one back.
class SettingsBackupSection : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsBackupSection(AppState *appState, QWidget *parent = nullptr); // not owned

Q_SIGNALS:
    void backupImported(); // whatever came of it; the repositories tell nobody

private:
    void exportBackup();
    void importBackup();
    QByteArray buildBackup();
    BackupImportResult mergeBackup(const QByteArray &bytes, BackupMergeMode mode);
    std::optional<BackupMergeMode> askForMode();
    void showResult(const BackupImportResult &result);
    void tell(QMessageBox::Icon icon, const QString &name, const QString &title,
              const QString &text);

    AppState *m_appState;
    QPushButton *m_exportButton;
    QPushButton *m_importButton;
};
