#pragma once

#include <QDate>

// Nothing in the program is older: an earlier date is one that went wrong on its way.
inline const QDate kEarliestValidDate(2000, 1, 1);

inline bool isBrokenDueDate(QDate date) // also true for a null date
{
    return !date.isValid() || date < kEarliestValidDate;
}
