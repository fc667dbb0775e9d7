#include "kestaccount/RelativeTime.h"

#include <QCoreApplication>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

constexpr qint64 kMinute = 60;
constexpr qint64 kHour = 60 * kMinute;
constexpr qint64 kDay = 24 * kHour;
constexpr qint64 kWeek = 7 * kDay;

struct RelativeTime
{
    Q_DECLARE_TR_FUNCTIONS(KestAccount::RelativeTime)
};

} // namespace

QString relativeTime(const QDateTime &time, const QDateTime &now)
{
    if (!time.isValid())
        return RelativeTime::tr("Unknown");
    const qint64 age = time.secsTo(now);
    if (age < kMinute)
        return RelativeTime::tr("Active now");
    if (age < kHour)
        return RelativeTime::tr("%1m ago").arg(age / kMinute);
    if (age < kDay)
        return RelativeTime::tr("%1h ago").arg(age / kHour);
    if (age < kWeek)
        return RelativeTime::tr("%1d ago").arg(age / kDay);
    return QLocale().toString(time.toLocalTime().date(), u"MMM d, yyyy"_s);
}

} // namespace KestAccount
