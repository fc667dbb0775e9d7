#include "data/ReconciliationRepository.h"

#include "core/Dates.h"
#include "data/Queries.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kColumns{
    "id, account_id, statement_date, statement_balance, reconciled_balance, completed_at, version, "
    "sync_status, server_id, created_at, updated_at, deleted_at"};

Reconciliation readRow(const QSqlQuery &query)
{
    return {
        .id = textAt(query, 0),
        .account_id = textAt(query, 1),
        .statement_date = dateAt(query, 2),
        .statement_balance = moneyAt(query, 3),
        .reconciled_balance = moneyAt(query, 4),
        .completed_at = stampAt(query, 5),
        .version = intAt(query, 6),
        .sync_status = syncStatusFromString(textAt(query, 7)),
        .server_id = textAt(query, 8),
        .created_at = stampAt(query, 9),
        .updated_at = stampAt(query, 10),
        .deleted_at = optionalStampAt(query, 11),
    };
}

// The fields that insert and update write alike, in the order of both statements.
void bindFields(QSqlQuery &query, const Reconciliation &reconciliation)
{
    query.addBindValue(reconciliation.account_id);
    query.addBindValue(isoDate(reconciliation.statement_date));
    query.addBindValue(reconciliation.statement_balance);
    query.addBindValue(reconciliation.reconciled_balance);
    query.addBindValue(isoStamp(reconciliation.completed_at));
    query.addBindValue(reconciliation.version);
    query.addBindValue(syncStatusToString(reconciliation.sync_status));
    query.addBindValue(reconciliation.server_id);
}

QString stampOrNow(const QDateTime &stamp)
{
    return isoStamp(stamp.isValid() ? stamp : currentStamp());
}

} // namespace

ReconciliationRepository::ReconciliationRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{
}

QList<Reconciliation> ReconciliationRepository::listByAccount(const QString &accountId) const
{
    QSqlQuery query =
        readQuery(m_database,
                  u"SELECT %1 FROM reconciliations WHERE account_id = ? AND deleted_at IS NULL "
                  "ORDER BY statement_date DESC"_s.arg(kColumns),
                  {accountId});
    return readAll(query, readRow);
}

std::optional<Reconciliation> ReconciliationRepository::findById(const QString &id) const
{
    QSqlQuery query =
        readQuery(m_database, u"SELECT %1 FROM reconciliations WHERE id = ?"_s.arg(kColumns), {id});
    return readFirst(query, readRow);
}

std::optional<Reconciliation>
ReconciliationRepository::latestForAccount(const QString &accountId) const
{
    QSqlQuery query =
        readQuery(m_database,
                  u"SELECT %1 FROM reconciliations WHERE account_id = ? AND deleted_at IS NULL "
                  "ORDER BY statement_date DESC LIMIT 1"_s.arg(kColumns),
                  {accountId});
    return readFirst(query, readRow);
}

QList<Reconciliation> ReconciliationRepository::listPending() const
{
    QSqlQuery query =
        readQuery(m_database,
                  u"SELECT %1 FROM reconciliations WHERE sync_status = 'pending'"_s.arg(kColumns));
    return readAll(query, readRow);
}

bool ReconciliationRepository::insert(const Reconciliation &reconciliation)
{
    QSqlQuery query = writeQuery(
        m_database,
        u"INSERT INTO reconciliations (id, account_id, statement_date, statement_balance, "
        "reconciled_balance, completed_at, version, sync_status, server_id, created_at, "
        "updated_at) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"_s);
    query.addBindValue(reconciliation.id);
    bindFields(query, reconciliation);
    query.addBindValue(stampOrNow(reconciliation.created_at));
    query.addBindValue(stampOrNow(reconciliation.updated_at));
    if (!execWrite(query, "ReconciliationRepository::insert failed:"))
        return false;
    Q_EMIT reconciliationsChanged();
    return true;
}

bool ReconciliationRepository::update(const Reconciliation &reconciliation)
{
    QSqlQuery query = writeQuery(
        m_database,
        u"UPDATE reconciliations SET account_id=?, statement_date=?, statement_balance=?, "
        "reconciled_balance=?, completed_at=?, version=?, sync_status=?, server_id=?, "
        "updated_at=? WHERE id=?"_s);
    bindFields(query, reconciliation);
    query.addBindValue(isoStamp(reconciliation.updated_at));
    query.addBindValue(reconciliation.id);
    if (!execWrite(query, "ReconciliationRepository::update failed:"))
        return false;
    Q_EMIT reconciliationsChanged();
    return true;
}

int ReconciliationRepository::softDeleteByAccount(const QString &accountId)
{
    const QString stamp = isoStamp(currentStamp());
    QSqlQuery query = writeQuery(m_database,
                                 u"UPDATE reconciliations SET deleted_at = ?, updated_at = ?, "
                                 "sync_status = 'pending' "
                                 "WHERE account_id = ? AND deleted_at IS NULL"_s,
                                 {stamp, stamp, accountId});
    return notified(execBulkWrite(query, "ReconciliationRepository::softDeleteByAccount failed:"));
}

int ReconciliationRepository::restoreByAccount(const QString &accountId, const QString &sinceStamp)
{
    QSqlQuery query = writeQuery(m_database,
                                 u"UPDATE reconciliations SET deleted_at = NULL, updated_at = ?, "
                                 "sync_status = 'pending' "
                                 "WHERE account_id = ? AND deleted_at >= ?"_s,
                                 {isoStamp(currentStamp()), accountId, sinceStamp});
    return notified(execBulkWrite(query, "ReconciliationRepository::restoreByAccount failed:"));
}

int ReconciliationRepository::markAllPendingForResync()
{
    QSqlQuery query = writeQuery(m_database,
                                 u"UPDATE reconciliations SET sync_status = 'pending' "
                                 "WHERE deleted_at IS NULL AND sync_status != 'pending'"_s);
    return notified(
        execBulkWrite(query, "ReconciliationRepository::markAllPendingForResync failed:"));
}

bool ReconciliationRepository::markSynced(const QString &id, const QString &serverId)
{
    return writeQuery(m_database,
                      u"UPDATE reconciliations SET sync_status='synced', server_id=? WHERE id=?"_s,
                      {serverId, id})
        .exec();
}

int ReconciliationRepository::notified(int rows)
{
    if (rows > 0)
        Q_EMIT reconciliationsChanged();
    return rows;
}
