#pragma once

#include <QDate>
#include <QList>
#include <QString>

// In which order a file writes day and month. Auto stands for "look into the file".
enum class QifDateOrder { Auto, MonthFirst, DayFirst };

// What the lines under the last header of a file belong to.
enum class QifSection {
    Transactions,
    Ignored, // lists that this program has no place for, such as securities
    AccountBlock, // names the account of the transactions that follow
    CategoryList,
    None, // no header yet, or an unknown one: read like transactions
};

enum class QifAccountKind { Bank, CreditCard, Investment, Cash, OtherAsset, OtherLiability };

struct QifSplit
{
    QString category{};
    QString transferAccount{}; // name of the other account; the category is empty then
    QString memo{};
    qint64 amount = 0; // cents, signed like the transaction's

    bool operator==(const QifSplit &) const = default;
};

struct QifTransaction
{
    QDate date{};
    QString payee{};
    qint64 amount = 0; // cents, negative when money leaves the account
    QString memo{};
    QString category{};
    QString transferAccount{}; // name of the other account; the category is empty then
    QString number{};
    QString security{};
    bool cleared = false;
    bool reconciled = false;
    QList<QifSplit> splits{};
    QString sourceAccount{}; // as the file names it; empty when it names none

    bool operator==(const QifTransaction &) const = default;
};

struct QifCategory
{
    QString name{};
    QString description{};
    bool isIncome = false;

    bool operator==(const QifCategory &) const = default;
};

struct QifAccount
{
    QString name{};
    QifAccountKind kind = QifAccountKind::Bank;

    bool operator==(const QifAccount &) const = default;
};

struct QifParseResult
{
    QList<QifTransaction> transactions{}; // in the order of the file
    QList<QifCategory> categories{};
    int malformedCount = 0; // records without a readable date or amount
    int skippedCount = 0; // records of lists that this program has no place for
    QList<QifAccount> accounts{}; // those with transactions, each once, in the order of the file
    QifDateOrder dateOrder = QifDateOrder::MonthFirst; // the one that was used, never Auto

    bool operator==(const QifParseResult &) const = default;
};
