#pragma once

#include <QStringView>

#include <optional>

// Reads an amount, with a decimal point or comma, as cents; amounts in parentheses are negative.
// Three digits behind a lone separator are a group: 1.234 is 123400. Nothing, when it is no amount
// or does not fit 64 bits.
std::optional<qint64> parseQifAmount(QStringView text);
