#pragma once

#include <QString>

enum class AccountType { Checking, Savings, CreditCard, Cash, Investment, Other };

QString accountTypeToString(AccountType type); // an unknown value gives "other"
AccountType accountTypeFromString(const QString &word); // an unknown word reads as Other
