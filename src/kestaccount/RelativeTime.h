#pragma once

#include <QDateTime>

namespace KestAccount {

// How long ago a time was, in words; a local date when that is a week or more. A time that is still
// to come, by a clock that goes ahead of ours, counts as now.
QString relativeTime(const QDateTime &time, const QDateTime &now = QDateTime::currentDateTimeUtc());

} // namespace KestAccount
