#pragma once

#include "core/Currency.h"

// Money is a count of minor units: cents, and whole yen for JPY. Positive is a deposit, negative a
// payment. The text forms always group with ',' and part the decimals with '.', whatever the
// language of the interface.

QString currencySymbol(Currency currency);

QString formatMoney(qint64 amount, Currency currency = Currency::USD); // "-$1,234.56"
QString formatAmount(qint64 amount, Currency currency = Currency::USD); // "-1,234.56"

// Reads what a person typed, in minor units. What cannot be read, or does not fit, gives 0.
qint64 parseMoney(const QString &text, Currency currency = Currency::USD);

// The sums and signs of amounts that came from a file or another device, where a negation or an
// addition may leave 64 bits: these stop at the smallest and the largest amount instead.
quint64 moneyMagnitude(qint64 amount);
qint64 addMoney(qint64 left, qint64 right);
qint64 negateMoney(qint64 amount);
qint64 absoluteMoney(qint64 amount);
