#pragma once

#include "services/QifRecords.h"

// One transaction of a QIF file on its way into the register.
struct ImportRow : QifTransaction
{
    QString targetAccountId{}; // empty: its source maps to no account
    int pairIndex = -1; // the row that is the other side of this transfer, -1: none
    QString newId{}; // known beforehand, so that two rows can name each other
};
Q_DECLARE_TYPEINFO(ImportRow, Q_RELOCATABLE_TYPE);
