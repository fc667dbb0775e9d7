#pragma once

#include "services/BackupImportResult.h"

#include <QByteArray>
#include <QObject>

class Database;

// What to do with a row whose id is there already.
enum class BackupMergeMode {
    Skip = 0,
    Replace = 1,
    KeepNewer = 2, // replace it only if the backup's updated_at is the later one
};

// Writes the person's data into one ZIP archive and merges such an archive back, row by row and
// column by column, so that no record's fields are known here.
class BackupService : public QObject
{
    Q_OBJECT

public:
    explicit BackupService(Database *database, QObject *parent = nullptr); // not owned

    // The whole archive, soft-deleted rows included. A table that cannot be read is logged and left
    // out; empty only if no archive could be built at all, which is logged as well.
    QByteArray exportBackup();

    // Adds and changes rows, removes none; what it brings in is pending for the next sync. Each row
    // stands alone: one that fails leaves the others written. The repositories do not hear of it.
    BackupImportResult importBackup(const QByteArray &bytes, BackupMergeMode mode);

Q_SIGNALS:
    // A few times a second during long work, and once at its end; the windows are painted then.
    void progressed(int done, int total);

private:
    Database *m_database;
};
