#pragma once

#include "services/ReportRows.h"

#include <QList>
#include <QMap>
#include <QObject>

class Database;

// The figures of the reports, each by one statement over the live transactions. Both days of a
// period belong to it; an empty account id stands for all accounts. Split lines are not looked at:
// a split transaction counts as one without a category. A statement that fails gives an empty list.
class ReportService : public QObject
{
    Q_OBJECT

public:
    explicit ReportService(Database *database, QObject *parent = nullptr); // not owned

    // Money out alone, the most first. What has no category is under "Uncategorized".
    QList<CategorySpendingRow> categorySpending(QDate from, QDate to,
                                                const QString &accountId) const;
    QList<PayeeSummaryRow> payeeSummary(QDate from, QDate to,
                                        const QString &accountId) const; // the most out first
    QList<TaxReportRow> taxReport(QDate from, QDate to) const;

    // By month, oldest first; a month without transactions has no row. Transfers between one's own
    // accounts are neither income nor expense, but they do flow.
    QList<MonthlyRow> incomeVsExpenses(QDate from, QDate to, const QString &accountId) const;
    QList<MonthlyRow> cashFlow(QDate from, QDate to, const QString &accountId) const;

    // Money in and out together, by category name.
    QMap<QString, qint64> categoryTotals(QDate from, QDate to, const QString &accountId) const;
    QList<YearOverYearRow> yearOverYear(QDate from1, QDate to1, QDate from2, QDate to2,
                                        const QString &accountId) const; // by category name

    QList<AccountSummaryRow> accountSummary() const; // every live account, in sidebar order

    // Oldest first. An empty category id stands for all.
    QList<TransactionReportRow> transactionReport(QDate from, QDate to, const QString &accountId,
                                                  const QString &categoryId) const;

private:
    Database *m_database;
};
