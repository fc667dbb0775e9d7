#pragma once

#include "services/QifRecords.h"

#include <QDate>
#include <QStringView>

#include <optional>

// Reads a date such as 1/2'98, 2.1.1998 or 1998-01-02. Nothing, when it is no date of the calendar.
std::optional<QDate> parseQifDate(QStringView text, QifDateOrder order);

// The order of the dates in these lines of a file: day first, if one has a day where the month
// would stand. Dates with days up to 12 alone are read as month first.
QifDateOrder detectDateOrder(const QList<QStringView> &lines);
