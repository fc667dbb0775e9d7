#include "core/Money.h"

#include <QLocale>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kSmallest = std::numeric_limits<qint64>::min();
constexpr qint64 kLargest = std::numeric_limits<qint64>::max();

// The amount without its sign.
QString digitsOf(qint64 amount, Currency currency)
{
    const QLocale english(QLocale::English);
    const quint64 magnitude = moneyMagnitude(amount);
    if (currency == Currency::JPY)
        return english.toString(magnitude);
    return u"%1.%2"_s.arg(english.toString(magnitude / 100))
        .arg(magnitude % 100, 2, 10, QLatin1Char('0'));
}

// 2^63 as floating point is exact, the largest amount is not: it would round up to 2^63 and let
// that pass. Written so that "nan" and "inf", which QString reads as numbers, fail as well.
qint64 roundedToMinorUnits(double amount)
{
    constexpr double kLimit = 9223372036854775808.0;
    const double rounded = std::round(amount);
    return rounded >= -kLimit && rounded < kLimit ? static_cast<qint64>(rounded) : 0;
}

qint64 parseYen(const QString &digits, bool negative)
{
    const qint64 yen = digits.toLongLong();
    if (negative && yen < 0)
        return 0;
    return negative ? negateMoney(yen) : yen;
}

qint64 parseDecimals(const QString &digits, bool negative)
{
    bool readable = false;
    const double units = digits.toDouble(&readable);
    if (!readable || (negative && units < 0)) // two minus signs are a slip, not a deposit
        return 0;
    return roundedToMinorUnits((negative ? -units : units) * 100.0);
}

} // namespace

QString currencySymbol(Currency currency)
{
    switch (currency) {
    case Currency::EUR:
        return u"€"_s;
    case Currency::GBP:
        return u"£"_s;
    case Currency::JPY:
        return u"¥"_s;
    case Currency::USD:
    case Currency::CAD:
    case Currency::AUD:
        break;
    }
    return u"$"_s;
}

QString formatMoney(qint64 amount, Currency currency)
{
    const QString unsignedText = currencySymbol(currency) + digitsOf(amount, currency);
    return amount < 0 ? u'-' + unsignedText : unsignedText;
}

QString formatAmount(qint64 amount, Currency currency)
{
    const QString digits = digitsOf(amount, currency);
    return amount < 0 ? u'-' + digits : digits;
}

qint64 parseMoney(const QString &text, Currency currency)
{
    QString digits = text;
    digits.remove(currencySymbol(currency)).remove(u',');
    digits = digits.trimmed();
    const bool negative = digits.startsWith(u'-');
    if (negative)
        digits.remove(0, 1);
    return currency == Currency::JPY ? parseYen(digits, negative) : parseDecimals(digits, negative);
}

quint64 moneyMagnitude(qint64 amount)
{
    const auto bits = static_cast<quint64>(amount);
    return amount < 0 ? 0 - bits : bits; // wraps by definition, unlike -amount
}

qint64 addMoney(qint64 left, qint64 right)
{
    if (right > 0 && left > kLargest - right)
        return kLargest;
    if (right < 0 && left < kSmallest - right)
        return kSmallest;
    return left + right;
}

qint64 negateMoney(qint64 amount)
{
    return amount == kSmallest ? kLargest : -amount;
}

qint64 absoluteMoney(qint64 amount)
{
    return amount < 0 ? negateMoney(amount) : amount;
}
