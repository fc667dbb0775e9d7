#pragma once

#include <QString>

enum class Currency { USD, EUR, GBP, CAD, AUD, JPY };

QString currencyToString(Currency currency); // an unknown value gives "USD"
Currency currencyFromString(const QString &word); // an unknown word reads as USD
