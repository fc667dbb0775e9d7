#pragma once

#include "services/BackupArchiveReader.h"
#include "services/BackupMerge.h"
#include "services/BackupProgress.h"

#include <QCoreApplication>

#include <optional>

// One run of a backup's archive into the database.
class BackupRestore
{
    Q_DECLARE_TR_FUNCTIONS(BackupService)

public:
    BackupRestore(Database *database, const QByteArray &bytes, BackupMergeMode mode);

    BackupImportResult run(const ImportProgress::Report &report);

private:
    using Entries = QList<qint64>; // by their place in the archive

    QString refusal(); // why nothing of the archive is read; empty: it can be
    QList<Entries> entriesByTable() const;
    void restoreTable(const BackupTable &table, const Entries &entries, BackupProgress *progress);
    // Those that the database refused, which are not counted yet.
    Entries restoreEntries(BackupMerge *merge, const BackupTable &table, const Entries &entries,
                           BackupProgress *progress);
    // Nothing: no row could be read, and an error line says so.
    std::optional<BackupMerge::Outcome> restoreEntry(BackupMerge *merge, qint64 entry);
    std::optional<BackupMerge::Outcome> mergeEntry(BackupMerge *merge, qint64 entry);

    Database *m_database;
    BackupMergeMode m_mode;
    BackupArchiveReader m_archive;
    BackupImportResult m_result{};
};
