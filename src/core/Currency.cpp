#include "core/Currency.h"

#include "core/EnumWords.h"

using namespace Qt::StringLiterals;

namespace {
constexpr EnumWords<6> kCurrencyWords{"USD"_L1, "EUR"_L1, "GBP"_L1, "CAD"_L1, "AUD"_L1, "JPY"_L1};
}

QString currencyToString(Currency currency)
{
    return enumToWord(kCurrencyWords, currency, Currency::USD);
}

Currency currencyFromString(const QString &word)
{
    return enumFromWord(kCurrencyWords, word, Currency::USD);
}
