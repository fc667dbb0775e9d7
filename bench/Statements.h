#pragma once

#include <QByteArray>
#include <QString>

// The statements that the counterparts run. The reads are those of the program; the writes leave
// out the columns that are empty or stay as they are.
namespace Statements {

inline QByteArray ownColumns()
{
    return "t.id, t.account_id, t.date, t.payee, t.memo, t.amount, t.category_id, t.check_number, "
           "t.cleared, t.reconciled, t.transfer_link_id, t.transfer_dest_account_id, t.is_split, "
           "t.recurring_id, t.version, t.sync_status, t.server_id, t.created_at, t.updated_at, "
           "t.deleted_at";
}

inline QByteArray rowColumns()
{
    return ownColumns() + ", c.name AS category_name";
}

inline QByteArray registerRows()
{
    return "SELECT " + rowColumns()
        + " FROM transactions t LEFT JOIN categories c ON t.category_id = c.id "
          "WHERE t.account_id = ? AND t.deleted_at IS NULL ORDER BY t.date ASC, t.created_at ASC";
}

inline QByteArray searchWord()
{
    return "SELECT " + rowColumns()
        + " FROM transactions t JOIN transactions_fts fts ON fts.rowid = t.rowid "
          "LEFT JOIN categories c ON t.category_id = c.id "
          "WHERE t.deleted_at IS NULL AND transactions_fts MATCH ? "
          "ORDER BY t.date DESC, t.created_at DESC LIMIT 200";
}

inline QByteArray searchFilters()
{
    return "SELECT " + rowColumns()
        + " FROM transactions t LEFT JOIN categories c ON t.category_id = c.id "
          "WHERE t.deleted_at IS NULL AND t.account_id = ? AND t.date >= ? AND t.date <= ? "
          "ORDER BY t.date DESC, t.created_at DESC LIMIT 200";
}

inline QByteArray accountRows()
{
    return "SELECT " + ownColumns()
        + " FROM transactions t WHERE t.account_id = ? AND t.deleted_at IS NULL "
          "ORDER BY t.date DESC, t.created_at DESC";
}

inline QByteArray unreconciled()
{
    return "SELECT " + ownColumns()
        + " FROM transactions t WHERE t.account_id = ? AND t.deleted_at IS NULL "
          "AND t.reconciled = 0 ORDER BY t.date ASC, t.created_at ASC";
}

inline QByteArray dueTemplates()
{
    return "SELECT * FROM recurring_transactions "
           "WHERE deleted_at IS NULL AND is_active = 1 AND next_due_date <= ?";
}

inline QByteArray insertOccurrence()
{
    return "INSERT INTO transactions (id, account_id, date, payee, amount, cleared, "
           "reconciled, is_split, recurring_id, version, sync_status, created_at, updated_at) "
           "VALUES (?, ?, ?, ?, ?, 0, 0, 0, ?, 1, 'pending', ?, ?)";
}

inline QByteArray moveTemplateOn()
{
    return "UPDATE recurring_transactions SET next_due_date = ?, sync_status = 'pending', "
           "updated_at = ? WHERE id = ?";
}

inline QString newPayee()
{
    return QStringLiteral("Kiosk");
}

// The names in quotes, with commas between them; one walk through the table for all.
inline QByteArray renamePayees(const QByteArray &names)
{
    return "UPDATE transactions SET payee = '" + newPayee().toUtf8()
        + "', updated_at = datetime('now'), sync_status = 'pending' "
          "WHERE deleted_at IS NULL AND payee IN ("
        + names + ")";
}

inline QByteArray payees()
{
    return "SELECT DISTINCT payee FROM transactions WHERE deleted_at IS NULL AND payee != '' "
           "ORDER BY payee";
}

inline QByteArray balances()
{
    return "SELECT a.id, a.starting_balance, s.total FROM accounts a LEFT JOIN "
           "(SELECT account_id, SUM(amount) AS total FROM transactions WHERE deleted_at IS NULL "
           "GROUP BY +account_id) s ON s.account_id = a.id WHERE a.deleted_at IS NULL";
}

} // namespace Statements
