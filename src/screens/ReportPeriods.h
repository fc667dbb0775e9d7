#pragma once

#include <QDate>

// The periods that reports are offered for, as of a given day. The numbers are the places in the
// lists a person chooses from.
namespace ReportPeriods {

struct Range // both days belong to it
{
    QDate from{};
    QDate to{};

    bool operator==(const Range &) const = default;
};

enum Preset {
    ThisMonth,
    LastMonth,
    ThisQuarter,
    LastQuarter,
    ThisYear,
    LastYear,
    Last30Days,
    Last90Days,
    Last12Months,
    AllTime, // since the year 2000
    Custom,
};

struct Compared
{
    Range earlier{};
    Range later{};

    bool operator==(const Compared &) const = default;
};

enum Comparison {
    ThisYearVsLastYear, // the whole of last year against what has passed of this one
    LastYearVsYearBefore,
    ThisQuarterVsLastQuarter,
    CustomComparison,
};

Range presetRange(int preset, QDate today); // Custom has none: both dates are invalid
Compared comparedRanges(int comparison, QDate today); // nor has CustomComparison

} // namespace ReportPeriods
