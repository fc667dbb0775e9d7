#include "services/BackupMerge.h"

#include "data/Database.h"
#include "services/BackupValues.h"

#include <QSqlRecord>

using namespace Qt::StringLiterals;

namespace {

const QString kId = u"id"_s;

QString marks(qsizetype count)
{
    return QStringList(count, u"?"_s).join(u", "_s);
}

} // namespace

BackupMerge::BackupMerge(Database *database, const BackupTable &table, BackupMergeMode mode)
    : m_database(database)
    , m_table(table.table)
    , m_mode(mode)
{
    const QSqlRecord columns = database->connection().record(m_table);
    for (int column = 0; column < columns.count(); ++column)
        m_columns.insert(columns.fieldName(column));
}

std::optional<QString> BackupMerge::unknownColumn(const QJsonObject &row) const
{
    for (auto field = row.begin(); field != row.end(); ++field) {
        if (!m_columns.contains(field.key()))
            return field.key();
    }
    return std::nullopt;
}

BackupMerge::Outcome BackupMerge::merge(QJsonObject row)
{
    resetSyncState(&row);
    const QString id = row.value(kId).toString();
    if (id.isEmpty())
        return Outcome::LeftAlone;
    const std::optional<QString> stored = storedStamp(id);
    if (!stored)
        return insert(row);
    return isToReplace(row, *stored) ? update(row) : Outcome::LeftAlone;
}

// Whatever comes from a backup is a new change of this device. Split lines have no such state: they
// are synced with their transaction.
void BackupMerge::resetSyncState(QJsonObject *row) const
{
    const std::pair<QString, QJsonValue> fresh[]{
        {u"sync_status"_s, u"pending"_s}, {u"server_id"_s, QJsonValue::Null}, {u"version"_s, 1}};
    for (const auto &[column, value] : fresh) {
        if (m_columns.contains(column))
            row->insert(column, value);
    }
}

std::optional<QString> BackupMerge::storedStamp(const QString &id)
{
    QSqlQuery &query =
        m_find.ready(m_database, u"SELECT id, updated_at FROM %1 WHERE id = ?"_s.arg(m_table));
    query.addBindValue(id);
    std::optional<QString> stamp;
    if (m_find.run("BackupService cannot look a row up:") && query.next())
        stamp = query.value(1).toString();
    query.finish();
    return stamp;
}

bool BackupMerge::isToReplace(const QJsonObject &row, const QString &storedStamp) const
{
    switch (m_mode) {
    case BackupMergeMode::Skip:
        return false;
    case BackupMergeMode::Replace:
        return true;
    case BackupMergeMode::KeepNewer: {
        // Both are UTC in ISO form, so that the order of the texts is that of the times.
        const QString stamp = row.value("updated_at"_L1).toString();
        return !stamp.isEmpty() && stamp > storedStamp;
    }
    }
    Q_UNREACHABLE();
}

QString BackupMerge::insertText(const QStringList &columns) const
{
    return u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(m_table, columns.join(u", "_s),
                                                    marks(columns.size()));
}

QString BackupMerge::updateText(QStringList columns) const
{
    columns.removeAll(kId);
    for (QString &column : columns)
        column += u" = ?"_s;
    return u"UPDATE %1 SET %2 WHERE id = ?"_s.arg(m_table, columns.join(u", "_s));
}

BackupMerge::Outcome BackupMerge::insert(const QJsonObject &row)
{
    if (m_insert.columns != row.keys())
        m_insert = {row.keys(), insertText(row.keys())};
    QSqlQuery &query = m_insert.statement.ready(m_database, m_insert.text);
    for (const QJsonValue &value : row)
        query.addBindValue(columnValue(value));
    return m_insert.statement.run("BackupService cannot add a row:") ? Outcome::Written
                                                                     : Outcome::Refused;
}

BackupMerge::Outcome BackupMerge::update(const QJsonObject &row)
{
    if (m_update.columns != row.keys())
        m_update = {row.keys(), updateText(row.keys())};
    QSqlQuery &query = m_update.statement.ready(m_database, m_update.text);
    for (auto field = row.begin(); field != row.end(); ++field) {
        if (field.key() != kId)
            query.addBindValue(columnValue(field.value()));
    }
    query.addBindValue(row.value(kId).toString());
    return m_update.statement.run("BackupService cannot change a row:") ? Outcome::Written
                                                                        : Outcome::Refused;
}
