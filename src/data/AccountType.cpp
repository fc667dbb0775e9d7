#include "data/AccountType.h"

#include "core/EnumWords.h"

using namespace Qt::StringLiterals;

namespace {
constexpr EnumWords<6> kAccountTypeWords{"checking"_L1, "savings"_L1,    "credit_card"_L1,
                                         "cash"_L1,     "investment"_L1, "other"_L1};
}

QString accountTypeToString(AccountType type)
{
    return enumToWord(kAccountTypeWords, type, AccountType::Other);
}

AccountType accountTypeFromString(const QString &word)
{
    return enumFromWord(kAccountTypeWords, word, AccountType::Other);
}
