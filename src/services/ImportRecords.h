#pragma once

#include "data/AccountType.h"

#include <QHash>
#include <QList>
#include <QString>

// What ImportService takes and gives.

// A source that a person maps to an account of this program.
struct QifSourceAccount
{
    QString sourceKey{}; // the account's name in the file, or the file's path if it names none
    QString displayName{};
    bool isFileFallback = false; // stands for a whole file
    AccountType suggestedType = AccountType::Checking; // for a new account

    bool operator==(const QifSourceAccount &) const = default;
};

struct QifAnalysis
{
    QList<QifSourceAccount> sources{};
    int totalTransactions = 0;

    bool operator==(const QifAnalysis &) const = default;
};

using QifAccountMapping = QHash<QString, QString>; // sourceKey to account id; empty id: skipped

struct ImportResult
{
    int imported = 0;
    int duplicates = 0; // rows dropped as already there
    int unparseable = 0; // records without a date or amount
    int metadata = 0; // records of sections that are passed over
    int unmapped = 0; // rows whose source maps to no account
    int transfersLinked = 0; // pairs
    int retroactiveLinks = 0; // those pairs whose other side was there before
    int databaseErrors = 0; // failed inserts
    bool aborted = false; // all was undone; the counts tell how far it had come

    bool operator==(const ImportResult &) const = default;
};

// Columns count from 0.
struct CsvColumnMapping
{
    int dateColumn = 0;
    int payeeColumn = 1;
    int amountColumn = 2;
    int memoColumn = -1; // -1: none
    int categoryColumn = -1; // -1: none
    bool hasHeader = true; // the first row is no data
    QString dateFormat{}; // empty: found out row by row

    bool operator==(const CsvColumnMapping &) const = default;
};
