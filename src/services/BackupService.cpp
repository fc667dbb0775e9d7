#include "services/BackupService.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "data/Database.h"
#include "data/Queries.h"
#include "services/BackupArchiveWriter.h"
#include "services/BackupProgress.h"
#include "services/BackupRestore.h"
#include "services/BackupTables.h"
#include "services/BackupValues.h"

#include <QDebug>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSqlError>
#include <QSqlRecord>

using namespace Qt::StringLiterals;

namespace {

int rowsOf(Database *database)
{
    int rows = 0;
    for (const BackupTable &table : kBackupTables) {
        QSqlQuery query = readQuery(database, u"SELECT COUNT(*) FROM %1"_s.arg(table.table));
        if (query.exec() && query.next())
            rows += intAt(query, 0);
    }
    return rows;
}

QStringList columnsOf(const QSqlQuery &query)
{
    const QSqlRecord record = query.record();
    QStringList names;
    for (int column = 0; column < record.count(); ++column)
        names << record.fieldName(column);
    return names;
}

QJsonObject rowOf(const QSqlQuery &query, const QStringList &columns)
{
    QJsonObject row;
    for (int column = 0; column < columns.size(); ++column)
        row.insert(columns.at(column), backupValue(query.value(column)));
    return row;
}

bool addRow(BackupArchiveWriter *archive, const BackupTable &table, const QJsonObject &row)
{
    const QByteArray text = QJsonDocument(row).toJson();
    const QString path = u"%1/%2.json"_s;
    // The path only tells rows apart: the id that counts stands in the text. So a row whose id does
    // for no path is not lost.
    return archive->add(path.arg(table.folder, row.value("id"_L1).toString()), text)
        || archive->add(path.arg(table.folder, newId()), text);
}

// How many rows it added.
int exportTable(Database *database, const BackupTable &table, BackupArchiveWriter *archive,
                BackupProgress *progress)
{
    QSqlQuery query = readQuery(database, u"SELECT * FROM %1"_s.arg(table.table));
    if (query.lastError().isValid() || !query.exec()) {
        qWarning() << "BackupService export query failed:" << query.lastError().text();
        return 0;
    }
    const QStringList columns = columnsOf(query);
    int count = 0;
    for (; query.next(); progress->next())
        count += addRow(archive, table, rowOf(query, columns)) ? 1 : 0;
    if (query.lastError().isValid()) // in the middle of the table
        qWarning() << "BackupService export query failed:" << query.lastError().text();
    return count;
}

} // namespace

BackupService::BackupService(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{
}

QByteArray BackupService::exportBackup()
{
    BackupProgress progress(rowsOf(m_database),
                            [this](int done, int total) { Q_EMIT progressed(done, total); });
    BackupArchiveWriter archive([&progress] { progress.pause(); });
    QJsonObject manifest{
        {"version"_L1, kBackupVersion},
        {"exportedAt"_L1, isoStamp(currentStamp())},
    };
    for (const BackupTable &table : kBackupTables)
        manifest.insert(table.manifest_key, exportTable(m_database, table, &archive, &progress));
    archive.add(QString(kBackupManifest), QJsonDocument(manifest).toJson());
    const QByteArray bytes = archive.finish();
    progress.finish();
    return bytes;
}

BackupImportResult BackupService::importBackup(const QByteArray &bytes, BackupMergeMode mode)
{
    return BackupRestore(m_database, bytes, mode).run([this](int done, int total) {
        Q_EMIT progressed(done, total);
    });
}
