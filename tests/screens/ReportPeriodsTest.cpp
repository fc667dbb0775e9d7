#include "screens/ReportPeriods.h"

#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

using namespace ReportPeriods;
using namespace Qt::StringLiterals;

// Days at which a period worked out by hand goes wrong.
class ReportPeriodsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void awkwardDays_data();
    void awkwardDays();
};

void ReportPeriodsTest::awkwardDays_data()
{
    QTest::addColumn<Range>("range");
    QTest::addColumn<QString>("days");

    const auto row = [](const char *name, const Range &range, const char *days) {
        QTest::newRow(name) << range << QString::fromLatin1(days);
    };
    const QDate newYear(2025, 1, 1);
    const QDate leapDay(2024, 2, 29);
    const QDate march31(2025, 3, 31);
    row("this month, its first day", presetRange(ThisMonth, newYear), "2025-01-01 2025-01-01");
    row("last month, across the year", presetRange(LastMonth, newYear), "2024-12-01 2024-12-31");
    row("last month, a short one", presetRange(LastMonth, march31), "2025-02-01 2025-02-28");
    row("last month, leap", presetRange(LastMonth, {2024, 3, 31}), "2024-02-01 2024-02-29");
    row("quarter's first day", presetRange(ThisQuarter, {2025, 4, 1}), "2025-04-01 2025-04-01");
    row("quarter's last day", presetRange(ThisQuarter, march31), "2025-01-01 2025-03-31");
    row("fourth quarter", presetRange(ThisQuarter, {2023, 12, 31}), "2023-10-01 2023-12-31");
    row("last quarter, across the year", presetRange(LastQuarter, march31),
        "2024-10-01 2024-12-31");
    row("last quarter, short end", presetRange(LastQuarter, {2025, 8, 31}),
        "2025-04-01 2025-06-30");
    row("this year", presetRange(ThisYear, newYear), "2025-01-01 2025-01-01");
    row("last year", presetRange(LastYear, newYear), "2024-01-01 2024-12-31");
    row("30 days", presetRange(Last30Days, {2024, 3, 1}), "2024-01-31 2024-03-01");
    row("90 days", presetRange(Last90Days, leapDay), "2023-12-01 2024-02-29");
    row("12 months from no such day", presetRange(Last12Months, leapDay), "2023-02-28 2024-02-29");
    row("all time", presetRange(AllTime, leapDay), "2000-01-01 2024-02-29");
    row("custom", presetRange(Custom, leapDay), " ");

    const auto both = [](const char *name, const Compared &compared, const char *earlier,
                         const char *later) {
        QTest::addRow("%s, earlier", name) << compared.earlier << QString::fromLatin1(earlier);
        QTest::addRow("%s, later", name) << compared.later << QString::fromLatin1(later);
    };
    both("a year with one day", comparedRanges(ThisYearVsLastYear, newYear),
         "2024-01-01 2024-12-31", "2025-01-01 2025-01-01");
    both("two years", comparedRanges(LastYearVsYearBefore, newYear), "2023-01-01 2023-12-31",
         "2024-01-01 2024-12-31");
    both("quarters", comparedRanges(ThisQuarterVsLastQuarter, newYear), "2024-10-01 2024-12-31",
         "2025-01-01 2025-01-01");
    both("by hand", comparedRanges(CustomComparison, newYear), " ", " ");
}

void ReportPeriodsTest::awkwardDays()
{
    QFETCH(Range, range);
    QTEST(range.from.toString(Qt::ISODate) + u' ' + range.to.toString(Qt::ISODate), "days");
}

PURSEWELL_TEST_MAIN(ReportPeriodsTest)
#include "ReportPeriodsTest.moc"
