#include "screens/ReportPeriods.h"

#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

using namespace ReportPeriods;
using namespace Qt::StringLiterals;

namespace {

QString text(const Range &range)
{
    return range.from.toString(Qt::ISODate) + u' ' + range.to.toString(Qt::ISODate);
}

QString text(const Compared &compared)
{
    return text(compared.earlier) + u" / "_s + text(compared.later);
}

} // namespace

// Days at which a period worked out by hand goes wrong.
class ReportPeriodsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void awkwardDays();
};

void ReportPeriodsTest::awkwardDays()
{
    const QDate newYear(2025, 1, 1);
    const QDate leapDay(2024, 2, 29);
    const QDate march31(2025, 3, 31);
    QCOMPARE(text(presetRange(ThisMonth, newYear)), u"2025-01-01 2025-01-01"_s);
    QCOMPARE(text(presetRange(LastMonth, newYear)), u"2024-12-01 2024-12-31"_s);
    QCOMPARE(text(presetRange(LastMonth, march31)), u"2025-02-01 2025-02-28"_s);
    QCOMPARE(text(presetRange(ThisQuarter, {2025, 4, 1})), u"2025-04-01 2025-04-01"_s);
    QCOMPARE(text(presetRange(ThisQuarter, {2023, 12, 31})), u"2023-10-01 2023-12-31"_s);
    QCOMPARE(text(presetRange(LastQuarter, march31)), u"2024-10-01 2024-12-31"_s);
    QCOMPARE(text(presetRange(LastQuarter, {2025, 8, 31})), u"2025-04-01 2025-06-30"_s);
    QCOMPARE(text(presetRange(ThisYear, march31)), u"2025-01-01 2025-03-31"_s);
    QCOMPARE(text(presetRange(LastYear, newYear)), u"2024-01-01 2024-12-31"_s);
    QCOMPARE(text(presetRange(Last30Days, {2024, 3, 1})), u"2024-01-31 2024-03-01"_s);
    QCOMPARE(text(presetRange(Last90Days, leapDay)), u"2023-12-01 2024-02-29"_s);
    QCOMPARE(text(presetRange(Last12Months, leapDay)), u"2023-02-28 2024-02-29"_s);
    QCOMPARE(text(presetRange(AllTime, leapDay)), u"2000-01-01 2024-02-29"_s);

    QCOMPARE(text(comparedRanges(ThisYearVsLastYear, newYear)),
             u"2024-01-01 2024-12-31 / 2025-01-01 2025-01-01"_s);
    QCOMPARE(text(comparedRanges(LastYearVsYearBefore, newYear)),
             u"2023-01-01 2023-12-31 / 2024-01-01 2024-12-31"_s);
    QCOMPARE(text(comparedRanges(ThisQuarterVsLastQuarter, newYear)),
             u"2024-10-01 2024-12-31 / 2025-01-01 2025-01-01"_s);
}

PURSEWELL_TEST_MAIN(ReportPeriodsTest)
#include "ReportPeriodsTest.moc"
