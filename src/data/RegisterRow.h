#pragma once

#include "data/Transaction.h"

// A transaction as the register and the search show it.
struct RegisterRow : Transaction
{
    qint64 balance = 0; // minor units, after this row; 0 in search results
    QString category_name{}; // empty: no category

    bool operator==(const RegisterRow &) const = default;
};
Q_DECLARE_TYPEINFO(RegisterRow, Q_RELOCATABLE_TYPE);
