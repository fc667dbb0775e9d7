#include "services/BackupRestore.h"

#include "services/LighterCommits.h"

#include <QJsonDocument>

#include <exception>

using namespace Qt::StringLiterals;

namespace {

// How often rows are tried again that name a later one. No tree of categories is as deep, and a
// file made to cost time does not get it.
constexpr int kMostRounds = 64;

constexpr qsizetype kLongestName = 80; // of a column, in an error line

} // namespace

BackupRestore::BackupRestore(Database *database, const QByteArray &bytes, BackupMergeMode mode)
    : m_database(database)
    , m_mode(mode)
    , m_archive(bytes)
{
}

BackupImportResult BackupRestore::run(const ImportProgress::Report &report)
{
    const QString reason = refusal();
    if (!reason.isEmpty()) {
        m_result.errors << reason;
        return m_result;
    }
    const QList<Entries> tables = entriesByTable();
    qsizetype total = 0;
    for (const Entries &entries : tables)
        total += entries.size();
    BackupProgress progress(static_cast<int>(total), report);
    const LighterCommits commits(m_database);
    for (qsizetype i = 0; i < tables.size(); ++i)
        restoreTable(kBackupTables[i], tables.at(i), &progress);
    progress.finish();
    return m_result;
}

QString BackupRestore::refusal()
{
    if (!m_archive.isOpen())
        return tr("Failed to open ZIP archive");
    const QByteArray manifest = m_archive.read(QString(kBackupManifest));
    if (manifest.isEmpty())
        return tr("Invalid backup: missing manifest.json");
    const QJsonObject object = QJsonDocument::fromJson(manifest).object();
    const int version = object.value("version"_L1).toInt();
    return version == kBackupVersion ? QString()
                                     : tr("Unsupported backup version: %1").arg(version);
}

QList<BackupRestore::Entries> BackupRestore::entriesByTable() const
{
    QList<Entries> tables(std::size(kBackupTables));
    for (qint64 entry = 0; entry < m_archive.count(); ++entry) {
        const QString path = m_archive.path(entry);
        const qsizetype slash = path.indexOf(u'/');
        if (slash < 0 || !path.endsWith(".json"_L1))
            continue;
        for (qsizetype i = 0; i < tables.size(); ++i) {
            if (QStringView(path).left(slash) == kBackupTables[i].folder)
                tables[i].append(entry);
        }
    }
    return tables;
}

void BackupRestore::restoreTable(const BackupTable &table, const Entries &entries,
                                 BackupProgress *progress)
{
    BackupMerge merge(m_database, table, m_mode);
    Entries refused = restoreEntries(&merge, table, entries, progress);
    // A category may come before its parent, if it was moved below it later on.
    for (int round = 0; table.refers_to_itself && round < kMostRounds; ++round) {
        const qsizetype before = refused.size();
        refused = restoreEntries(&merge, table, refused, progress);
        if (refused.size() == before)
            break;
    }
    m_result.skipped.*table.count += static_cast<int>(refused.size());
}

BackupRestore::Entries BackupRestore::restoreEntries(BackupMerge *merge, const BackupTable &table,
                                                     const Entries &entries,
                                                     BackupProgress *progress)
{
    Entries refused;
    for (const qint64 entry : entries) {
        const std::optional<BackupMerge::Outcome> outcome = restoreEntry(merge, entry);
        if (outcome == BackupMerge::Outcome::Written)
            ++(m_result.imported.*table.count);
        else if (outcome == BackupMerge::Outcome::LeftAlone)
            ++(m_result.skipped.*table.count);
        else if (outcome == BackupMerge::Outcome::Refused)
            refused.append(entry);
        progress->next();
    }
    return refused;
}

std::optional<BackupMerge::Outcome> BackupRestore::restoreEntry(BackupMerge *merge, qint64 entry)
{
    // A row may be larger than the memory that is left.
    try {
        return mergeEntry(merge, entry);
    } catch (const std::exception &) {
        m_result.errors << tr("%1: unexpected error").arg(m_archive.path(entry));
        return std::nullopt;
    }
}

std::optional<BackupMerge::Outcome> BackupRestore::mergeEntry(BackupMerge *merge, qint64 entry)
{
    const QJsonObject row = QJsonDocument::fromJson(m_archive.read(entry)).object();
    if (row.isEmpty()) {
        m_result.errors << tr("%1: invalid JSON").arg(m_archive.path(entry));
        return std::nullopt;
    }
    const std::optional<QString> unknown = merge->unknownColumn(row);
    if (!unknown)
        return merge->merge(row);
    m_result.errors
        << tr("%1: unknown column \"%2\"").arg(m_archive.path(entry), unknown->left(kLongestName));
    return BackupMerge::Outcome::LeftAlone;
}
