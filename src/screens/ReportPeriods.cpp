#include "screens/ReportPeriods.h"

namespace ReportPeriods {

namespace {

QDate firstOfMonth(QDate day)
{
    return {day.year(), day.month(), 1};
}

QDate firstOfQuarter(QDate day)
{
    return {day.year(), (day.month() - 1) / 3 * 3 + 1, 1};
}

Range wholeYear(int year)
{
    return {{year, 1, 1}, {year, 12, 31}};
}

Range monthsBefore(QDate first, int months)
{
    return {first.addMonths(-months), first.addDays(-1)};
}

} // namespace

Range presetRange(int preset, QDate today)
{
    switch (preset) {
    case ThisMonth:
        return {firstOfMonth(today), today};
    case LastMonth:
        return monthsBefore(firstOfMonth(today), 1);
    case ThisQuarter:
        return {firstOfQuarter(today), today};
    case LastQuarter:
        return monthsBefore(firstOfQuarter(today), 3);
    case ThisYear:
        return {{today.year(), 1, 1}, today};
    case LastYear:
        return wholeYear(today.year() - 1);
    case Last30Days:
        return {today.addDays(-30), today};
    case Last90Days:
        return {today.addDays(-90), today};
    case Last12Months:
        return {today.addYears(-1), today};
    case AllTime:
        return {{2000, 1, 1}, today};
    default:
        return {};
    }
}

Compared comparedRanges(int comparison, QDate today)
{
    const int year = today.year();
    switch (comparison) {
    case ThisYearVsLastYear:
        return {wholeYear(year - 1), {{year, 1, 1}, today}};
    case LastYearVsYearBefore:
        return {wholeYear(year - 2), wholeYear(year - 1)};
    case ThisQuarterVsLastQuarter:
        return {monthsBefore(firstOfQuarter(today), 3), {firstOfQuarter(today), today}};
    default:
        return {};
    }
}

} // namespace ReportPeriods
