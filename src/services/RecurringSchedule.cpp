#include "services/RecurringSchedule.h"

#include "core/Dates.h"
#include "core/Ids.h"

QDate computeNextDate(QDate date, Frequency frequency)
{
    switch (frequency) {
    case Frequency::Daily:
        return date.addDays(1);
    case Frequency::Weekly:
        return date.addDays(7);
    case Frequency::Biweekly:
        return date.addDays(14);
    case Frequency::Monthly:
        break;
    case Frequency::Quarterly:
        return date.addMonths(3);
    case Frequency::SemiAnnual:
        return date.addMonths(6);
    case Frequency::Annual:
        return date.addYears(1);
    }
    return date.addMonths(1);
}

QString occurrenceId(const QString &templateId, QDate date, const QString &suffix)
{
    QString seed = templateId + u':' + isoDate(date);
    if (!suffix.isEmpty())
        seed += u':' + suffix;
    return deterministicId(occurrenceNamespace(), seed);
}
