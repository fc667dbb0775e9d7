#pragma once

#include <QDate>
#include <QString>

// The rows of the reports. Amounts are minor units as stored: money in is positive, money out is
// negative. Amounts of accounts in different currencies are added as they stand.

struct CategorySpendingRow
{
    QString categoryName{};
    qint64 total = 0; // below zero

    bool operator==(const CategorySpendingRow &) const = default;
};

struct PayeeSummaryRow
{
    QString payee{};
    qint64 total = 0;
    int count = 0; // transactions

    bool operator==(const PayeeSummaryRow &) const = default;
};

struct TaxReportRow
{
    QString categoryName{};
    QString taxCategory{};
    qint64 total = 0;

    bool operator==(const TaxReportRow &) const = default;
};

struct MonthlyRow
{
    QString month{}; // "yyyy-MM"
    qint64 in = 0;
    qint64 out = 0; // zero or below
    qint64 net = 0; // in + out

    bool operator==(const MonthlyRow &) const = default;
};

struct YearOverYearRow
{
    QString categoryName{};
    qint64 period1 = 0;
    qint64 period2 = 0;
    qint64 difference = 0; // period2 - period1

    bool operator==(const YearOverYearRow &) const = default;
};

struct AccountSummaryRow
{
    QString accountName{};
    QString accountType{}; // the stored word
    qint64 cleared = 0; // the starting balance included
    qint64 uncleared = 0;
    qint64 total = 0;

    bool operator==(const AccountSummaryRow &) const = default;
};

struct TransactionReportRow
{
    QDate date{};
    QString accountName{};
    QString payee{};
    QString categoryName{}; // empty: no category
    QString memo{};
    qint64 amount = 0;

    bool operator==(const TransactionReportRow &) const = default;
};
Q_DECLARE_TYPEINFO(TransactionReportRow, Q_RELOCATABLE_TYPE);
