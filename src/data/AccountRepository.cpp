#include "data/AccountRepository.h"

#include "core/Dates.h"
#include "data/Queries.h"
#include "data/SqlTransaction.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kColumns{
    "id, name, account_type, currency, institution, account_number_last4, starting_balance, "
    "sort_order, is_shared, version, sync_status, server_id, created_at, updated_at, deleted_at"};

Account readRow(const QSqlQuery &query)
{
    return {
        .id = textAt(query, 0),
        .name = textAt(query, 1),
        .account_type = accountTypeFromString(textAt(query, 2)),
        .currency = currencyFromString(textAt(query, 3)),
        .institution = textAt(query, 4),
        .account_number_last4 = textAt(query, 5),
        .starting_balance = moneyAt(query, 6),
        .sort_order = intAt(query, 7),
        .is_shared = boolAt(query, 8),
        .version = intAt(query, 9),
        .sync_status = syncStatusFromString(textAt(query, 10)),
        .server_id = textAt(query, 11),
        .created_at = stampAt(query, 12),
        .updated_at = stampAt(query, 13),
        .deleted_at = optionalStampAt(query, 14),
    };
}

// The fields that insert and update write alike, in the order of both statements.
void bindFields(QSqlQuery &query, const Account &account)
{
    query.addBindValue(account.name);
    query.addBindValue(accountTypeToString(account.account_type));
    query.addBindValue(currencyToString(account.currency));
    query.addBindValue(account.institution);
    query.addBindValue(account.account_number_last4);
    query.addBindValue(account.starting_balance);
    query.addBindValue(account.sort_order);
    query.addBindValue(account.is_shared ? 1 : 0);
    query.addBindValue(account.version);
    query.addBindValue(syncStatusToString(account.sync_status));
    query.addBindValue(account.server_id);
}

} // namespace

AccountRepository::AccountRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{
}

QList<Account> AccountRepository::list(const QString &statement) const
{
    QSqlQuery query = readQuery(m_database, statement.arg(kColumns));
    return readAll(query, readRow);
}

QList<Account> AccountRepository::listActive() const
{
    return list(u"SELECT %1 FROM accounts WHERE deleted_at IS NULL ORDER BY sort_order, name"_s);
}

std::optional<Account> AccountRepository::findById(const QString &id) const
{
    QSqlQuery query =
        readQuery(m_database, u"SELECT %1 FROM accounts WHERE id = ?"_s.arg(kColumns), {id});
    return readFirst(query, readRow);
}

QList<Account> AccountRepository::listDeleted() const
{
    return list(u"SELECT %1 FROM accounts WHERE deleted_at IS NOT NULL ORDER BY name"_s);
}

QList<Account> AccountRepository::listPending() const
{
    return list(u"SELECT %1 FROM accounts WHERE sync_status = 'pending'"_s);
}

bool AccountRepository::insert(const Account &account)
{
    QSqlQuery query = writeQuery(
        m_database,
        u"INSERT INTO accounts (id, name, account_type, currency, institution, "
        "account_number_last4, starting_balance, sort_order, is_shared, version, sync_status, "
        "server_id, created_at, updated_at) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"_s);
    query.addBindValue(account.id);
    bindFields(query, account);
    query.addBindValue(isoStamp(account.created_at));
    query.addBindValue(isoStamp(account.updated_at));
    if (!execWrite(query, "AccountRepository::insert failed:"))
        return false;
    Q_EMIT accountsChanged();
    return true;
}

bool AccountRepository::update(const Account &account)
{
    QSqlQuery query = writeQuery(
        m_database,
        u"UPDATE accounts SET name=?, account_type=?, currency=?, institution=?, "
        "account_number_last4=?, starting_balance=?, sort_order=?, is_shared=?, version=?, "
        "sync_status=?, server_id=?, updated_at=? WHERE id=?"_s);
    bindFields(query, account);
    query.addBindValue(isoStamp(account.updated_at));
    query.addBindValue(account.id);
    if (!execWrite(query, "AccountRepository::update failed:"))
        return false;
    Q_EMIT accountsChanged();
    return true;
}

bool AccountRepository::softDelete(const QString &id)
{
    const QString stamp = isoStamp(currentStamp());
    QSqlQuery query = writeQuery(
        m_database,
        u"UPDATE accounts SET deleted_at=?, sync_status='pending', updated_at=? WHERE id=?"_s,
        {stamp, stamp, id});
    if (!execWrite(query, "AccountRepository::softDelete failed:"))
        return false;
    Q_EMIT accountsChanged();
    return true;
}

bool AccountRepository::restore(const QString &id)
{
    QSqlQuery query = writeQuery(
        m_database,
        u"UPDATE accounts SET deleted_at=NULL, sync_status='pending', updated_at=? WHERE id=?"_s,
        {isoStamp(currentStamp()), id});
    if (!execWrite(query, "AccountRepository::restore failed:"))
        return false;
    Q_EMIT accountsChanged();
    return true;
}

bool AccountRepository::updateSortOrders(const QList<QPair<QString, int>> &orders)
{
    SqlTransaction transaction(m_database);
    for (const auto &[id, order] : orders) {
        QSqlQuery query =
            writeQuery(m_database, u"UPDATE accounts SET sort_order=?, updated_at=? WHERE id=?"_s,
                       {order, isoStamp(currentStamp()), id});
        if (!query.exec())
            return false;
    }
    if (!transaction.commit())
        return false;
    Q_EMIT accountsChanged();
    return true;
}

int AccountRepository::markAllPendingForResync()
{
    QSqlQuery query = writeQuery(m_database,
                                 u"UPDATE accounts SET sync_status = 'pending' "
                                 "WHERE deleted_at IS NULL AND sync_status != 'pending'"_s);
    const int rows = execBulkWrite(query, "AccountRepository::markAllPendingForResync failed:");
    if (rows > 0)
        Q_EMIT accountsChanged();
    return rows;
}

bool AccountRepository::markSynced(const QString &id, const QString &serverId)
{
    return writeQuery(m_database,
                      u"UPDATE accounts SET sync_status='synced', server_id=? WHERE id=?"_s,
                      {serverId, id})
        .exec();
}
