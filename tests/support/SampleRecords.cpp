#include "support/SampleRecords.h"

using namespace Qt::StringLiterals;

namespace {
const QDate kLeapDay(2024, 2, 29);
}

QDateTime sampleStamp(int seconds)
{
    return QDateTime(kLeapDay, QTime(23, 59, 58), Qt::UTC).addSecs(seconds);
}

QString awkwardWords()
{
    return u"O'Brien \"%1\" & שלום\t日本 🐦 %2;--"_s;
}

// All fields in their order, several on a line.
// clang-format off

Account sampleAccount(const QString &id)
{
    return {id, u"Joint "_s + awkwardWords(), AccountType::CreditCard, Currency::JPY,
            u"First Bank"_s, u"0042"_s, kSampleAmount, -7, true, 5, SyncStatus::Conflict,
            u"server-a"_s, sampleStamp(), sampleStamp(1), {}};
}

Category sampleCategory(const QString &id)
{
    return {id, u"Café "_s + awkwardWords(), CategoryType::Transfer, {}, true, u"salt"_s,
            u"home"_s, u"#6E8A7E"_s, true, u"a"_s, 6, SyncStatus::Synced, u"server-c"_s,
            sampleStamp(), sampleStamp(1), {}};
}

Transaction sampleTransaction(const QString &id)
{
    return {id, u"a"_s, kLeapDay, u"Shop "_s + awkwardWords(), awkwardWords(), -kSampleAmount,
            u"c"_s, u"0101"_s, true, true, u"other side"_s, u"other account"_s, true,
            u"template"_s, 7, SyncStatus::Conflict, u"server-t"_s, sampleStamp(), sampleStamp(1),
            {}};
}

SplitLine sampleSplitLine(const QString &id)
{
    return {id, u"t"_s, u"c"_s, -kSampleAmount, awkwardWords(), sampleStamp(), sampleStamp(1)};
}

RecurringTransaction sampleRecurring(const QString &id)
{
    return {id, u"a"_s, u"Rent "_s + awkwardWords(), awkwardWords(), -kSampleAmount, u"c"_s,
            Frequency::SemiAnnual, kLeapDay, QDate(2028, 2, 29), QDate(2024, 8, 29), true, false,
            u"other account"_s, 8, SyncStatus::Synced, u"server-r"_s, sampleStamp(),
            sampleStamp(1), {}};
}

Reconciliation sampleReconciliation(const QString &id)
{
    return {id, u"a"_s, kLeapDay, kSampleAmount, -kSampleAmount, sampleStamp(2), 9,
            SyncStatus::Synced, u"server-n"_s, sampleStamp(), sampleStamp(1), {}};
}

// clang-format on
