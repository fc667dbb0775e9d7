#include "data/TransactionRepository.h"

#include "core/Dates.h"
#include "core/Money.h"
#include "data/Queries.h"

#include <QSqlError>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kColumns{
    "t.id, t.account_id, t.date, t.payee, t.memo, t.amount, t.category_id, t.check_number, "
    "t.cleared, t.reconciled, t.transfer_link_id, t.transfer_dest_account_id, t.is_split, "
    "t.recurring_id, t.version, t.sync_status, t.server_id, t.created_at, t.updated_at, "
    "t.deleted_at"};
constexpr int kCategoryName = 20; // the column after kColumns, in a statement that joins categories

Transaction readRow(const QSqlQuery &query)
{
    return {
        .id = textAt(query, 0),
        .account_id = textAt(query, 1),
        .date = dateAt(query, 2),
        .payee = textAt(query, 3),
        .memo = textAt(query, 4),
        .amount = moneyAt(query, 5),
        .category_id = textAt(query, 6),
        .check_number = textAt(query, 7),
        .cleared = boolAt(query, 8),
        .reconciled = boolAt(query, 9),
        .transfer_link_id = textAt(query, 10),
        .transfer_dest_account_id = textAt(query, 11),
        .is_split = boolAt(query, 12),
        .recurring_id = textAt(query, 13),
        .version = intAt(query, 14),
        .sync_status = syncStatusFromString(textAt(query, 15)),
        .server_id = textAt(query, 16),
        .created_at = stampAt(query, 17),
        .updated_at = stampAt(query, 18),
        .deleted_at = optionalStampAt(query, 19),
    };
}

RegisterRow readRegisterRow(const QSqlQuery &query)
{
    return {readRow(query), 0, textAt(query, kCategoryName)};
}

// The starting balance as a row, for the person to see. Having no id it is no row of the database:
// an edit or a deletion of it changes nothing.
RegisterRow openingBalanceRow(qint64 startingBalance)
{
    RegisterRow row;
    row.payee = u"Opening Balance"_s;
    row.amount = startingBalance;
    row.balance = startingBalance;
    row.date = QDate::currentDate();
    row.cleared = true;
    row.reconciled = true;
    return row;
}

// The fields that insert and update write alike, in the order of both statements.
void bindFields(QSqlQuery &query, const Transaction &transaction)
{
    query.addBindValue(isoDate(transaction.date));
    query.addBindValue(transaction.payee);
    query.addBindValue(transaction.memo);
    query.addBindValue(transaction.amount);
    query.addBindValue(nullIfEmpty(transaction.category_id));
    query.addBindValue(transaction.check_number);
    query.addBindValue(transaction.cleared ? 1 : 0);
    query.addBindValue(transaction.reconciled ? 1 : 0);
    query.addBindValue(transaction.transfer_link_id);
    query.addBindValue(transaction.transfer_dest_account_id);
    query.addBindValue(transaction.is_split ? 1 : 0);
    query.addBindValue(transaction.recurring_id);
    query.addBindValue(transaction.version);
    query.addBindValue(syncStatusToString(transaction.sync_status));
    query.addBindValue(transaction.server_id);
}

QStringList readPayees(QSqlQuery &query)
{
    query.exec();
    QStringList payees;
    while (query.next())
        payees << textAt(query, 0);
    return payees;
}

// A search as it grows by one condition per filter that is set.
struct SearchStatement
{
    QString text{};
    QVariantList values{};

    void narrow(bool wanted, const QString &condition, const QVariant &value)
    {
        if (!wanted)
            return;
        text += condition;
        values << value;
    }
};

SearchStatement baseStatement(const QString &words)
{
    if (words.isEmpty())
        return {u"SELECT %1, c.name AS category_name FROM transactions t "
                "LEFT JOIN categories c ON t.category_id = c.id WHERE t.deleted_at IS NULL"_s.arg(
                    kColumns),
                {}};
    return {u"SELECT %1, c.name AS category_name FROM transactions t "
            "JOIN transactions_fts fts ON fts.rowid = t.rowid "
            "LEFT JOIN categories c ON t.category_id = c.id "
            "WHERE t.deleted_at IS NULL AND transactions_fts MATCH ?"_s.arg(kColumns),
            {words}};
}

SearchStatement searchStatement(const QString &words, const SearchFilters &filters)
{
    SearchStatement search = baseStatement(words);
    search.narrow(!filters.account_id.isEmpty(), u" AND t.account_id = ?"_s, filters.account_id);
    search.narrow(!filters.category_id.isEmpty(), u" AND t.category_id = ?"_s, filters.category_id);
    search.narrow(filters.date_from.isValid(), u" AND t.date >= ?"_s, isoDate(filters.date_from));
    search.narrow(filters.date_to.isValid(), u" AND t.date <= ?"_s, isoDate(filters.date_to));
    search.narrow(filters.cleared.has_value(), u" AND t.cleared = ?"_s,
                  filters.cleared.value_or(false) ? 1 : 0);
    search.text += u" ORDER BY t.date DESC, t.created_at DESC LIMIT 200"_s;
    return search;
}

} // namespace

TransactionRepository::TransactionRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{
}

QList<Transaction> TransactionRepository::listByAccount(const QString &accountId) const
{
    QSqlQuery query =
        readQuery(m_database,
                  u"SELECT %1 FROM transactions t WHERE t.account_id = ? AND t.deleted_at IS NULL "
                  "ORDER BY t.date DESC, t.created_at DESC"_s.arg(kColumns),
                  {accountId});
    return readAll(query, readRow);
}

std::optional<Transaction> TransactionRepository::findById(const QString &id) const
{
    QSqlQuery query = readQuery(
        m_database, u"SELECT %1 FROM transactions t WHERE t.id = ?"_s.arg(kColumns), {id});
    return readFirst(query, readRow);
}

QList<Transaction> TransactionRepository::listPending() const
{
    QSqlQuery query =
        readQuery(m_database,
                  u"SELECT %1 FROM transactions t WHERE t.sync_status = 'pending'"_s.arg(kColumns));
    return readAll(query, readRow);
}

QList<Transaction> TransactionRepository::listUnreconciled(const QString &accountId) const
{
    QSqlQuery query =
        readQuery(m_database,
                  u"SELECT %1 FROM transactions t WHERE t.account_id = ? AND t.deleted_at IS NULL "
                  "AND t.reconciled = 0 ORDER BY t.date ASC, t.created_at ASC"_s.arg(kColumns),
                  {accountId});
    return readAll(query, readRow);
}

QList<RegisterRow> TransactionRepository::registerRows(const QString &accountId) const
{
    QSqlQuery query = readQuery(m_database,
                                u"SELECT %1, c.name AS category_name FROM transactions t "
                                "LEFT JOIN categories c ON t.category_id = c.id "
                                "WHERE t.account_id = ? AND t.deleted_at IS NULL "
                                "ORDER BY t.date ASC, t.created_at ASC"_s.arg(kColumns),
                                {accountId});
    query.exec();

    QList<RegisterRow> rows;
    const qint64 startingBalance = startingBalanceOf(accountId);
    if (startingBalance != 0)
        rows.append(openingBalanceRow(startingBalance));
    qint64 running = startingBalance;
    while (query.next()) {
        RegisterRow &row = rows.emplaceBack(readRegisterRow(query));
        running = addMoney(running, row.amount);
        row.balance = running;
    }
    // The rows come oldest first, so the second has the day that the made-up row shares.
    if (startingBalance != 0 && rows.value(1).date.isValid())
        rows.first().date = rows.at(1).date;
    return rows;
}

qint64 TransactionRepository::startingBalanceOf(const QString &accountId) const
{
    QSqlQuery query =
        readQuery(m_database, u"SELECT starting_balance FROM accounts WHERE id = ?"_s, {accountId});
    query.exec();
    return query.next() ? moneyAt(query, 0) : 0;
}

QHash<QString, qint64> TransactionRepository::balancesByAccount() const
{
    // The '+' keeps SQLite from walking the account index: for accounts whose rows lie among each
    // other, as typed day by day, that reads the table in random order and takes twice as long.
    QSqlQuery query = readQuery(
        m_database,
        u"SELECT a.id, a.starting_balance, s.total FROM accounts a LEFT JOIN "
        "(SELECT account_id, SUM(amount) AS total FROM transactions WHERE deleted_at IS NULL "
        "GROUP BY +account_id) s ON s.account_id = a.id WHERE a.deleted_at IS NULL"_s);
    query.exec();
    QHash<QString, qint64> balances;
    while (query.next()) {
        // One amount that is no integer turns the whole sum into floating point.
        if (query.value(2).typeId() == QMetaType::Double)
            return balancesAddedUp();
        balances.insert(textAt(query, 0), addMoney(moneyAt(query, 1), moneyAt(query, 2)));
    }
    // SQL gives up on a sum beyond 64 bits, and with it on the balances of all other accounts.
    return query.lastError().isValid() ? balancesAddedUp() : balances;
}

QHash<QString, qint64> TransactionRepository::balancesAddedUp() const
{
    QHash<QString, qint64> balances;
    QSqlQuery accounts = readQuery(
        m_database, u"SELECT id, starting_balance FROM accounts WHERE deleted_at IS NULL"_s);
    accounts.exec();
    while (accounts.next())
        balances.insert(textAt(accounts, 0), moneyAt(accounts, 1));

    QSqlQuery amounts = readQuery(
        m_database,
        u"SELECT account_id, amount FROM transactions WHERE deleted_at IS NULL "
        "ORDER BY date ASC, created_at ASC"_s); // as the register adds, should a sum leave 64 bits
    amounts.exec();
    while (amounts.next()) {
        const auto balance = balances.find(textAt(amounts, 0));
        if (balance != balances.end())
            *balance = addMoney(*balance, moneyAt(amounts, 1));
    }
    return balances;
}

QList<RegisterRow> TransactionRepository::search(const QString &query,
                                                 const SearchFilters &filters) const
{
    const SearchStatement statement = searchStatement(query, filters);
    QSqlQuery select = readQuery(m_database, statement.text, statement.values);
    return readAll(select, readRegisterRow);
}

QStringList TransactionRepository::allPayees() const
{
    QSqlQuery query = readQuery(m_database,
                                u"SELECT DISTINCT payee FROM transactions "
                                "WHERE deleted_at IS NULL AND payee != '' ORDER BY payee"_s);
    return readPayees(query);
}

QStringList TransactionRepository::payeesOfAccount(const QString &accountId) const
{
    QSqlQuery query = readQuery(m_database,
                                u"SELECT DISTINCT payee FROM transactions WHERE account_id = ? "
                                "AND deleted_at IS NULL AND payee != '' ORDER BY payee"_s,
                                {accountId});
    return readPayees(query);
}

std::optional<Transaction> TransactionRepository::lastForPayee(const QString &payee,
                                                               const QString &accountId) const
{
    QSqlQuery query = readQuery(
        m_database,
        u"SELECT %1 FROM transactions t WHERE t.payee = ? AND t.account_id = ? "
        "AND t.deleted_at IS NULL ORDER BY t.date DESC, t.created_at DESC LIMIT 1"_s.arg(kColumns),
        {payee, accountId});
    return readFirst(query, readRow);
}

bool TransactionRepository::insert(const Transaction &transaction)
{
    QSqlQuery &query = m_insert.ready(
        m_database,
        u"INSERT INTO transactions (id, account_id, date, payee, memo, amount, category_id, "
        "check_number, cleared, reconciled, transfer_link_id, transfer_dest_account_id, is_split, "
        "recurring_id, version, sync_status, server_id, created_at, updated_at) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"_s);
    query.addBindValue(transaction.id);
    query.addBindValue(transaction.account_id);
    bindFields(query, transaction);
    query.addBindValue(isoStamp(transaction.created_at));
    query.addBindValue(isoStamp(transaction.updated_at));
    if (!m_insert.run("TransactionRepository::insert failed:"))
        return false;
    Q_EMIT transactionsChanged(transaction.account_id);
    return true;
}

bool TransactionRepository::update(const Transaction &transaction)
{
    QSqlQuery &query = m_update.ready(
        m_database,
        u"UPDATE transactions SET date=?, payee=?, memo=?, amount=?, category_id=?, "
        "check_number=?, cleared=?, reconciled=?, transfer_link_id=?, "
        "transfer_dest_account_id=?, is_split=?, recurring_id=?, version=?, sync_status=?, "
        "server_id=?, updated_at=? WHERE id=?"_s);
    bindFields(query, transaction);
    query.addBindValue(isoStamp(transaction.updated_at));
    query.addBindValue(transaction.id);
    if (!m_update.run("TransactionRepository::update failed:"))
        return false;
    Q_EMIT transactionsChanged(transaction.account_id);
    return true;
}

bool TransactionRepository::softDelete(const QString &id)
{
    const std::optional<Transaction> found = findById(id);
    if (!found)
        return false;
    const QString stamp = isoStamp(currentStamp());
    QSqlQuery query = writeQuery(
        m_database,
        u"UPDATE transactions SET deleted_at=?, sync_status='pending', updated_at=? WHERE id=?"_s,
        {stamp, stamp, id});
    if (!execWrite(query, "TransactionRepository::softDelete failed:"))
        return false;
    Q_EMIT transactionsChanged(found->account_id);
    return true;
}

int TransactionRepository::softDeleteByAccount(const QString &accountId)
{
    const QString stamp = isoStamp(currentStamp());
    QSqlQuery query = writeQuery(
        m_database,
        u"UPDATE transactions SET deleted_at = ?, updated_at = ?, sync_status = 'pending' "
        "WHERE account_id = ? AND deleted_at IS NULL"_s,
        {stamp, stamp, accountId});
    return notified(execBulkWrite(query, "TransactionRepository::softDeleteByAccount failed:"),
                    accountId);
}

int TransactionRepository::restoreByAccount(const QString &accountId, const QString &sinceStamp)
{
    QSqlQuery query = writeQuery(
        m_database,
        u"UPDATE transactions SET deleted_at = NULL, updated_at = ?, sync_status = 'pending' "
        "WHERE account_id = ? AND deleted_at >= ?"_s,
        {isoStamp(currentStamp()), accountId, sinceStamp});
    return notified(execBulkWrite(query, "TransactionRepository::restoreByAccount failed:"),
                    accountId);
}

int TransactionRepository::markAllPendingForResync()
{
    QSqlQuery query = writeQuery(m_database,
                                 u"UPDATE transactions SET sync_status = 'pending' "
                                 "WHERE deleted_at IS NULL AND sync_status != 'pending'"_s);
    return notified(execBulkWrite(query, "TransactionRepository::markAllPendingForResync failed:"),
                    QString());
}

bool TransactionRepository::markSynced(const QString &id, const QString &serverId)
{
    return writeQuery(m_database,
                      u"UPDATE transactions SET sync_status='synced', server_id=? WHERE id=?"_s,
                      {serverId, id})
        .exec();
}

int TransactionRepository::notified(int rows, const QString &accountId)
{
    if (rows > 0)
        Q_EMIT transactionsChanged(accountId);
    return rows;
}

void TransactionRepository::beginBulkWrite()
{
    ++m_bulkWrites;
}

void TransactionRepository::endBulkWrite()
{
    if (--m_bulkWrites == 0)
        Q_EMIT bulkWriteFinished();
}
