#pragma once

#include "data/Account.h"
#include "data/Category.h"
#include "data/Reconciliation.h"
#include "data/RecurringTransaction.h"
#include "data/SplitLine.h"
#include "data/Transaction.h"

// Records with every field set to something other than its default, so that a column that is
// forgotten, or taken for its neighbour, shows. They name each other: account "a", category "c",
// transaction "t". None is deleted.
Account sampleAccount(const QString &id = QStringLiteral("a"));
Category sampleCategory(const QString &id = QStringLiteral("c"));
Transaction sampleTransaction(const QString &id = QStringLiteral("t"));
SplitLine sampleSplitLine(const QString &id = QStringLiteral("s"));
RecurringTransaction sampleRecurring(const QString &id = QStringLiteral("r"));
Reconciliation sampleReconciliation(const QString &id = QStringLiteral("n"));

QDateTime sampleStamp(int seconds = 0); // that many seconds after 29 February 2024, 23:59:58

// Words that have broken programs: quotes, placeholders, two scripts, an emoji, a tab.
QString awkwardWords();

inline constexpr qint64 kSampleAmount = 9'007'199'254'740'993; // no floating point holds it
