#include "services/DuplicateKey.h"

namespace {

// The text form of a date ends with the year 9999; beyond that all dates are alike when stored.
QDate storable(QDate date)
{
    return date.year() > 0 && date.year() <= 9999 ? date : QDate();
}

} // namespace

DuplicateKey::DuplicateKey(QDate day, qint64 minorUnits, const QString &name)
    : date(storable(day))
    , amount(minorUnits)
    , payee(name)
{
}
