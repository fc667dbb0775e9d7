#include "services/ReportService.h"

#include "core/Dates.h"
#include "core/Money.h"
#include "data/Queries.h"
#include "data/SqlTransaction.h"

#include <QHash>
#include <QSqlError>

using namespace Qt::StringLiterals;

namespace {

struct Period
{
    QDate from{};
    QDate to{};
    QString accountId{}; // empty: all accounts
};

// The head ends in the two bounds of the date.
QSqlQuery periodQuery(Database *database, const QString &head, const Period &period,
                      const QString &tail)
{
    const QString account = period.accountId.isEmpty() ? QString() : u" AND t.account_id = ?"_s;
    QSqlQuery query = readQuery(database, head + account + tail);
    query.addBindValue(isoDate(period.from));
    query.addBindValue(isoDate(period.to));
    if (!period.accountId.isEmpty())
        query.addBindValue(period.accountId);
    return query;
}

// A sum that leaves 64 bits shows only at its own group: half a report would pass for a whole one.
template <typename Row> QList<Row> readReport(QSqlQuery &query, Row (*readRow)(const QSqlQuery &))
{
    QList<Row> rows = readAll(query, readRow);
    return query.lastError().isValid() ? QList<Row>() : rows;
}

CategorySpendingRow readCategoryTotal(const QSqlQuery &query)
{
    return {textAt(query, 0), moneyAt(query, 1)};
}

PayeeSummaryRow readPayeeSummary(const QSqlQuery &query)
{
    return {textAt(query, 0), moneyAt(query, 1), intAt(query, 2)};
}

TaxReportRow readTaxRow(const QSqlQuery &query)
{
    return {textAt(query, 0), textAt(query, 1), moneyAt(query, 2)};
}

MonthlyRow readMonth(const QSqlQuery &query)
{
    const qint64 in = moneyAt(query, 1);
    const qint64 out = moneyAt(query, 2);
    return {textAt(query, 0), in, out, addMoney(in, out)};
}

AccountSummaryRow readAccountSummary(const QSqlQuery &query)
{
    const qint64 startingBalance = moneyAt(query, 2);
    return {textAt(query, 0), textAt(query, 1), addMoney(startingBalance, moneyAt(query, 3)),
            moneyAt(query, 4), addMoney(startingBalance, moneyAt(query, 5))};
}

using Names = QHash<qint64, QString>; // by row number

Names readNames(Database *database, const QString &statement)
{
    QSqlQuery query = readQuery(database, statement);
    query.exec();
    Names names;
    while (query.next())
        names.insert(query.value(0).toLongLong(), textAt(query, 1));
    return names;
}

// Of a column cast to BLOB. With a text the driver makes SQLite turn it into UTF-16, which takes
// longer than Qt does.
QString utf8At(const QSqlQuery &query, int column)
{
    return QString::fromUtf8(query.value(column).toByteArray());
}

} // namespace

ReportService::ReportService(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{
}

QList<CategorySpendingRow> ReportService::categorySpending(QDate from, QDate to,
                                                           const QString &accountId) const
{
    QSqlQuery query =
        periodQuery(m_database,
                    u"SELECT COALESCE(c.name, 'Uncategorized'), SUM(t.amount) FROM transactions t "
                    "LEFT JOIN categories c ON t.category_id = c.id "
                    "WHERE t.deleted_at IS NULL AND t.amount < 0 AND t.date >= ? AND t.date <= ?"_s,
                    {from, to, accountId},
                    u" GROUP BY COALESCE(c.name, 'Uncategorized') ORDER BY SUM(t.amount) ASC"_s);
    return readReport(query, readCategoryTotal);
}

QList<PayeeSummaryRow> ReportService::payeeSummary(QDate from, QDate to,
                                                   const QString &accountId) const
{
    QSqlQuery query =
        periodQuery(m_database,
                    u"SELECT t.payee, SUM(t.amount), COUNT(*) FROM transactions t "
                    "WHERE t.deleted_at IS NULL AND t.date >= ? AND t.date <= ?"_s,
                    {from, to, accountId}, u" GROUP BY t.payee ORDER BY SUM(t.amount) ASC"_s);
    return readReport(query, readPayeeSummary);
}

QList<TaxReportRow> ReportService::taxReport(QDate from, QDate to) const
{
    QSqlQuery query = periodQuery(
        m_database,
        u"SELECT c.name, c.tax_category, SUM(t.amount) FROM transactions t "
        "JOIN categories c ON t.category_id = c.id "
        "WHERE t.deleted_at IS NULL AND c.is_tax_relevant = 1 "
        "AND t.date >= ? AND t.date <= ?"_s,
        {from, to, {}}, u" GROUP BY c.name, c.tax_category ORDER BY c.tax_category, c.name"_s);
    return readReport(query, readTaxRow);
}

QList<MonthlyRow> ReportService::incomeVsExpenses(QDate from, QDate to,
                                                  const QString &accountId) const
{
    QSqlQuery query =
        periodQuery(m_database,
                    u"SELECT strftime('%Y-%m', t.date) AS month, "
                    "SUM(CASE WHEN t.amount > 0 THEN t.amount ELSE 0 END) AS income, "
                    "SUM(CASE WHEN t.amount < 0 THEN t.amount ELSE 0 END) AS expenses "
                    "FROM transactions t WHERE t.deleted_at IS NULL "
                    "AND (t.transfer_link_id IS NULL OR t.transfer_link_id = '') "
                    "AND t.date >= ? AND t.date <= ?"_s,
                    {from, to, accountId}, u" GROUP BY month ORDER BY month"_s);
    return readReport(query, readMonth);
}

QList<MonthlyRow> ReportService::cashFlow(QDate from, QDate to, const QString &accountId) const
{
    QSqlQuery query =
        periodQuery(m_database,
                    u"SELECT strftime('%Y-%m', t.date) AS month, "
                    "SUM(CASE WHEN t.amount > 0 THEN t.amount ELSE 0 END) AS inflows, "
                    "SUM(CASE WHEN t.amount < 0 THEN t.amount ELSE 0 END) AS outflows "
                    "FROM transactions t WHERE t.deleted_at IS NULL "
                    "AND t.date >= ? AND t.date <= ?"_s,
                    {from, to, accountId}, u" GROUP BY month ORDER BY month"_s);
    return readReport(query, readMonth);
}

QMap<QString, qint64> ReportService::categoryTotals(QDate from, QDate to,
                                                    const QString &accountId) const
{
    QSqlQuery query =
        periodQuery(m_database,
                    u"SELECT COALESCE(c.name, 'Uncategorized'), SUM(t.amount) FROM transactions t "
                    "LEFT JOIN categories c ON t.category_id = c.id "
                    "WHERE t.deleted_at IS NULL AND t.date >= ? AND t.date <= ?"_s,
                    {from, to, accountId}, u" GROUP BY COALESCE(c.name, 'Uncategorized')"_s);
    QMap<QString, qint64> totals;
    for (const CategorySpendingRow &row : readReport(query, readCategoryTotal))
        totals.insert(row.categoryName, row.total);
    return totals;
}

QList<YearOverYearRow> ReportService::yearOverYear(QDate from1, QDate to1, QDate from2, QDate to2,
                                                   const QString &accountId) const
{
    const QMap<QString, qint64> totals1 = categoryTotals(from1, to1, accountId);
    const QMap<QString, qint64> totals2 = categoryTotals(from2, to2, accountId);
    QMap<QString, qint64> names = totals1;
    names.insert(totals2);
    QList<YearOverYearRow> rows;
    for (auto name = names.keyBegin(); name != names.keyEnd(); ++name) {
        const qint64 period1 = totals1.value(*name);
        const qint64 period2 = totals2.value(*name);
        rows.append({*name, period1, period2, addMoney(period2, negateMoney(period1))});
    }
    return rows;
}

QList<AccountSummaryRow> ReportService::accountSummary() const
{
    QSqlQuery query = readQuery(
        m_database,
        u"SELECT a.name, a.account_type, a.starting_balance, "
        "COALESCE(SUM(CASE WHEN t.cleared = 1 THEN t.amount ELSE 0 END), 0) AS cleared_sum, "
        "COALESCE(SUM(CASE WHEN t.cleared = 0 THEN t.amount ELSE 0 END), 0) AS uncleared_sum, "
        "COALESCE(SUM(t.amount), 0) AS total_sum FROM accounts a "
        "LEFT JOIN transactions t ON t.account_id = a.id AND t.deleted_at IS NULL "
        "WHERE a.deleted_at IS NULL GROUP BY a.id ORDER BY a.sort_order, a.name"_s);
    return readReport(query, readAccountSummary);
}

QList<TransactionReportRow> ReportService::transactionReport(QDate from, QDate to,
                                                             const QString &accountId,
                                                             const QString &categoryId) const
{
    // With the names in its rows the statement would take the driver up to twice as long as SQLite.
    // Row numbers stand for them, and the transaction lets all three reads see the same names.
    const SqlTransaction oneState(m_database);
    const Names accounts = readNames(m_database, u"SELECT rowid, name FROM accounts"_s);
    const Names categories = readNames(m_database, u"SELECT rowid, name FROM categories"_s);
    const QString category = categoryId.isEmpty() ? QString() : u" AND t.category_id = ?"_s;
    QSqlQuery query =
        periodQuery(m_database,
                    u"SELECT CAST(t.date AS BLOB), a.rowid, CAST(t.payee AS BLOB), c.rowid, "
                    "CAST(t.memo AS BLOB), t.amount "
                    "FROM transactions t LEFT JOIN accounts a ON t.account_id = a.id "
                    "LEFT JOIN categories c ON t.category_id = c.id "
                    "WHERE t.deleted_at IS NULL AND t.date >= ? AND t.date <= ?"_s,
                    {from, to, accountId}, category + u" ORDER BY t.date, t.payee"_s);
    if (!categoryId.isEmpty())
        query.addBindValue(categoryId);
    query.exec();
    QList<TransactionReportRow> rows;
    QByteArray dayText;
    QDate day; // read once for all rows of one day
    while (query.next()) {
        if (const QByteArray bytes = query.value(0).toByteArray(); bytes != dayText) {
            dayText = bytes;
            day = dateFromIso(QString::fromUtf8(bytes));
        }
        rows.append({day, accounts.value(query.value(1).toLongLong()), utf8At(query, 2),
                     categories.value(query.value(3).toLongLong()), utf8At(query, 4),
                     moneyAt(query, 5)});
    }
    return query.lastError().isValid() ? QList<TransactionReportRow>() : rows;
}
