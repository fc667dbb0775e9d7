#pragma once

#include <QByteArray>

// The statements that the counterparts run, which are those of the program.
namespace Statements {

inline QByteArray rowColumns()
{
    return "t.id, t.account_id, t.date, t.payee, t.memo, t.amount, t.category_id, t.check_number, "
           "t.cleared, t.reconciled, t.transfer_link_id, t.transfer_dest_account_id, t.is_split, "
           "t.recurring_id, t.version, t.sync_status, t.server_id, t.created_at, t.updated_at, "
           "t.deleted_at, c.name AS category_name";
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
