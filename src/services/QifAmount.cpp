#include "services/QifAmount.h"

#include <QByteArrayView>
#include <QVarLengthArray>

#include <algorithm>
#include <cmath>

namespace {

using Characters = QVarLengthArray<QChar, 48>;
using PlainNumber = QVarLengthArray<char, 48>;

constexpr QStringView kCurrencySymbols = u"$€£¥¢";

Characters significantCharacters(QStringView text)
{
    Characters characters;
    for (const QChar character : text) {
        if (!character.isSpace() && !kCurrencySymbols.contains(character))
            characters.append(character);
    }
    return characters;
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

// Groups of three behind a first one of one to three characters.
bool isGrouped(QStringView digits, QChar separator)
{
    qsizetype length = 0;
    bool first = true;
    for (const QChar character : digits) {
        if (character != separator) {
            ++length;
            continue;
        }
        if (first ? length < 1 || length > 3 : length != 3)
            return false;
        first = false;
        length = 0;
    }
    return length == 3;
}

// A separator that occurs once, but not before a group of three digits.
bool isDecimalSeparator(QStringView digits, QChar separator)
{
    const qsizetype position = digits.indexOf(separator);
    if (digits.lastIndexOf(separator) != position)
        return false;
    const QStringView behind = digits.sliced(position + 1);
    return position == 0 || behind.size() != 3
        || !std::all_of(behind.begin(), behind.end(), isDigit);
}

// The separator of the decimals, null if there are none. Nothing, when the separators make no
// sense.
std::optional<QChar> decimalSeparator(QStringView digits)
{
    const qsizetype point = digits.lastIndexOf(u'.');
    const qsizetype comma = digits.lastIndexOf(u',');
    if (point < 0 && comma < 0)
        return QChar();
    if (point >= 0 && comma >= 0)
        return point > comma ? u'.' : u',';
    const QChar only = point >= 0 ? u'.' : u',';
    if (isDecimalSeparator(digits, only))
        return only;
    return isGrouped(digits, only) ? std::optional(QChar()) : std::nullopt;
}

// The digits in plain form, 1234.56. Empty, when there is anything but digits and separators.
PlainNumber plainNumber(QStringView digits, QChar decimalSeparator)
{
    PlainNumber number;
    for (const QChar character : digits) {
        if (isDigit(character))
            number.append(character.toLatin1());
        else if (character != u'.' && character != u',')
            return {};
        else if (character == decimalSeparator)
            number.append('.');
    }
    return number;
}

// Through floating point as the rest of the program reads amounts, so that a third decimal of 5
// rounds the same way wherever the amount came from. The limit is 2^63, which is exact as floating
// point; the largest amount is not.
std::optional<qint64> centsOf(const PlainNumber &number, bool negative)
{
    constexpr double kLimit = 9223372036854775808.0;
    bool readable = false;
    const double units = QByteArrayView(number.data(), number.size()).toDouble(&readable);
    const double cents = std::round((negative ? -units : units) * 100.0);
    if (!readable || cents < -kLimit || cents >= kLimit)
        return std::nullopt;
    return static_cast<qint64>(cents);
}

bool takeSign(QStringView &text, QChar sign)
{
    if (!text.startsWith(sign))
        return false;
    text = text.sliced(1);
    return true;
}

} // namespace

std::optional<qint64> parseQifAmount(QStringView text)
{
    text = text.trimmed();
    bool negative = text.startsWith(u'(') && text.endsWith(u')');
    if (negative)
        text = text.sliced(1, text.size() - 2);
    const Characters characters = significantCharacters(text);
    QStringView digits(characters.data(), characters.size());
    takeSign(digits, u'+');
    if (takeSign(digits, u'-'))
        negative = !negative;
    const std::optional<QChar> separator = decimalSeparator(digits);
    if (!separator)
        return std::nullopt;
    return centsOf(plainNumber(digits, *separator), negative);
}
