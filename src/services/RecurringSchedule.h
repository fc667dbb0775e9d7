#pragma once

#include "data/Frequency.h"

#include <QDate>
#include <QString>

// The day on which the occurrence after that of the given day is due. A day that the month does
// not have becomes its last one, and stays there: after February 29 comes March 29.
QDate computeNextDate(QDate date, Frequency frequency);

// The id of the transaction that an occurrence becomes, the same on every device, so that no two
// postings of one occurrence can both be stored. The suffix tells the sides of a transfer apart.
QString occurrenceId(const QString &templateId, QDate date, const QString &suffix = {});
