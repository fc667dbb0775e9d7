#include "data/RecurringRepository.h"

#include "core/Dates.h"
#include "data/DueDates.h"
#include "data/Queries.h"

#include <QDebug>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kColumns{
    "id, account_id, payee, memo, amount, category_id, frequency, start_date, end_date, "
    "next_due_date, auto_post, is_active, transfer_dest_account_id, version, sync_status, "
    "server_id, created_at, updated_at, deleted_at"};

std::optional<QDate> optionalDateAt(const QSqlQuery &query, int column)
{
    const QString text = textAt(query, column);
    return text.isEmpty() ? std::nullopt : std::optional<QDate>(dateFromIso(text));
}

RecurringTransaction readRow(const QSqlQuery &query)
{
    return {
        .id = textAt(query, 0),
        .account_id = textAt(query, 1),
        .payee = textAt(query, 2),
        .memo = textAt(query, 3),
        .amount = moneyAt(query, 4),
        .category_id = textAt(query, 5),
        .frequency = frequencyFromString(textAt(query, 6)),
        .start_date = dateAt(query, 7),
        .end_date = optionalDateAt(query, 8),
        .next_due_date = dateAt(query, 9),
        .auto_post = boolAt(query, 10),
        .is_active = boolAt(query, 11),
        .transfer_dest_account_id = textAt(query, 12),
        .version = intAt(query, 13),
        .sync_status = syncStatusFromString(textAt(query, 14)),
        .server_id = textAt(query, 15),
        .created_at = stampAt(query, 16),
        .updated_at = stampAt(query, 17),
        .deleted_at = optionalStampAt(query, 18),
    };
}

// Such a template would be due for every period since: the log tells where it came from.
void reportBrokenDueDate(const char *operation, const RecurringTransaction &recurring)
{
    if (!isBrokenDueDate(recurring.next_due_date))
        return;
    qWarning() << "RecurringRepository::" << operation
               << "saving recurring with broken nextDueDate:"
               << "id=" << recurring.id << "payee=" << recurring.payee
               << "nextDueDate=" << recurring.next_due_date << "startDate=" << recurring.start_date
               << "frequency=" << static_cast<int>(recurring.frequency);
}

// The fields that insert and update write alike, in the order of both statements.
void bindFields(QSqlQuery &query, const RecurringTransaction &recurring)
{
    query.addBindValue(recurring.payee);
    query.addBindValue(recurring.memo);
    query.addBindValue(recurring.amount);
    query.addBindValue(nullIfEmpty(recurring.category_id));
    query.addBindValue(frequencyToString(recurring.frequency));
    query.addBindValue(isoDate(recurring.start_date));
    query.addBindValue(recurring.end_date ? QVariant(isoDate(*recurring.end_date)) : QVariant());
    query.addBindValue(isoDate(recurring.next_due_date));
    query.addBindValue(recurring.auto_post ? 1 : 0);
    query.addBindValue(recurring.is_active ? 1 : 0);
    query.addBindValue(recurring.transfer_dest_account_id);
    query.addBindValue(recurring.version);
    query.addBindValue(syncStatusToString(recurring.sync_status));
    query.addBindValue(recurring.server_id);
}

} // namespace

RecurringRepository::RecurringRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{
}

QList<RecurringTransaction> RecurringRepository::listActive() const
{
    QSqlQuery query = readQuery(m_database,
                                u"SELECT %1 FROM recurring_transactions "
                                "WHERE deleted_at IS NULL ORDER BY next_due_date"_s.arg(kColumns));
    return readAll(query, readRow);
}

std::optional<RecurringTransaction> RecurringRepository::findById(const QString &id) const
{
    QSqlQuery &query = m_find.ready(
        m_database, u"SELECT %1 FROM recurring_transactions WHERE id = ?"_s.arg(kColumns));
    query.addBindValue(id);
    std::optional<RecurringTransaction> found = readFirst(query, readRow);
    query.finish();
    return found;
}

QList<RecurringTransaction> RecurringRepository::listDue() const
{
    QSqlQuery query = readQuery(
        m_database,
        u"SELECT %1 FROM recurring_transactions "
        "WHERE deleted_at IS NULL AND is_active = 1 AND next_due_date <= ?"_s.arg(kColumns),
        {isoDate(QDate::currentDate())});
    return readAll(query, readRow);
}

QList<RecurringTransaction> RecurringRepository::listPending() const
{
    QSqlQuery query = readQuery(
        m_database,
        u"SELECT %1 FROM recurring_transactions WHERE sync_status = 'pending'"_s.arg(kColumns));
    return readAll(query, readRow);
}

bool RecurringRepository::insert(const RecurringTransaction &recurring)
{
    reportBrokenDueDate("insert", recurring);
    QSqlQuery query = writeQuery(
        m_database,
        u"INSERT INTO recurring_transactions (id, account_id, payee, memo, amount, category_id, "
        "frequency, start_date, end_date, next_due_date, auto_post, is_active, "
        "transfer_dest_account_id, version, sync_status, server_id, created_at, updated_at) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"_s);
    query.addBindValue(recurring.id);
    query.addBindValue(recurring.account_id);
    bindFields(query, recurring);
    query.addBindValue(isoStamp(recurring.created_at));
    query.addBindValue(isoStamp(recurring.updated_at));
    if (!execWrite(query, "RecurringRepository::insert failed:"))
        return false;
    Q_EMIT recurringChanged();
    return true;
}

bool RecurringRepository::update(const RecurringTransaction &recurring)
{
    reportBrokenDueDate("update", recurring);
    QSqlQuery &query = m_update.ready(
        m_database,
        u"UPDATE recurring_transactions SET payee=?, memo=?, amount=?, category_id=?, "
        "frequency=?, start_date=?, end_date=?, next_due_date=?, auto_post=?, is_active=?, "
        "transfer_dest_account_id=?, version=?, sync_status=?, server_id=?, updated_at=? "
        "WHERE id=?"_s);
    bindFields(query, recurring);
    query.addBindValue(isoStamp(recurring.updated_at));
    query.addBindValue(recurring.id);
    if (!execWrite(query, "RecurringRepository::update failed:"))
        return false;
    Q_EMIT recurringChanged();
    return true;
}

bool RecurringRepository::deactivate(const QString &id)
{
    QSqlQuery query = writeQuery(m_database,
                                 u"UPDATE recurring_transactions SET is_active = 0, "
                                 "sync_status = 'pending', updated_at = ? WHERE id = ?"_s,
                                 {isoStamp(currentStamp()), id});
    if (!execWrite(query, "RecurringRepository::deactivate failed:"))
        return false;
    Q_EMIT recurringChanged();
    return true;
}

bool RecurringRepository::softDelete(const QString &id)
{
    const QString stamp = isoStamp(currentStamp());
    QSqlQuery query = writeQuery(m_database,
                                 u"UPDATE recurring_transactions SET deleted_at=?, "
                                 "sync_status='pending', updated_at=? WHERE id=?"_s,
                                 {stamp, stamp, id});
    if (!query.exec())
        return false;
    Q_EMIT recurringChanged();
    return true;
}

int RecurringRepository::softDeleteByAccount(const QString &accountId)
{
    const QString stamp = isoStamp(currentStamp());
    QSqlQuery query = writeQuery(m_database,
                                 u"UPDATE recurring_transactions SET deleted_at = ?, "
                                 "updated_at = ?, sync_status = 'pending' "
                                 "WHERE account_id = ? AND deleted_at IS NULL"_s,
                                 {stamp, stamp, accountId});
    return notified(execBulkWrite(query, "RecurringRepository::softDeleteByAccount failed:"));
}

int RecurringRepository::restoreByAccount(const QString &accountId, const QString &sinceStamp)
{
    QSqlQuery query = writeQuery(m_database,
                                 u"UPDATE recurring_transactions SET deleted_at = NULL, "
                                 "updated_at = ?, sync_status = 'pending' "
                                 "WHERE account_id = ? AND deleted_at >= ?"_s,
                                 {isoStamp(currentStamp()), accountId, sinceStamp});
    return notified(execBulkWrite(query, "RecurringRepository::restoreByAccount failed:"));
}

int RecurringRepository::markAllPendingForResync()
{
    QSqlQuery query = writeQuery(m_database,
                                 u"UPDATE recurring_transactions SET sync_status = 'pending' "
                                 "WHERE deleted_at IS NULL AND sync_status != 'pending'"_s);
    return notified(execBulkWrite(query, "RecurringRepository::markAllPendingForResync failed:"));
}

bool RecurringRepository::markSynced(const QString &id, const QString &serverId)
{
    return writeQuery(
               m_database,
               u"UPDATE recurring_transactions SET sync_status='synced', server_id=? WHERE id=?"_s,
               {serverId, id})
        .exec();
}

int RecurringRepository::notified(int rows)
{
    if (rows > 0)
        Q_EMIT recurringChanged();
    return rows;
}
