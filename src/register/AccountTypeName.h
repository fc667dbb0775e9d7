#pragma once

#include "data/AccountType.h"

#include <QCoreApplication>

// What a person reads for the type of an account.
class AccountTypeName
{
    Q_DECLARE_TR_FUNCTIONS(AccountTypeName)

public:
    static QString of(AccountType type); // an unknown value gives "Other"
};
