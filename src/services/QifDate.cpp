#include "services/QifDate.h"

#include "services/QifLines.h"

#include <array>
#include <limits>

namespace {

struct DatePart
{
    int number = 0;
    qsizetype length = 0; // as written: a first part of four characters is the year
    bool whole = true; // digits alone, and not too many of them
};

// The first three parts of a date, or nothing if there are fewer. Spaces count for nothing, also
// between digits: some programs pad, as in 1/ 2/98.
using DateParts = std::array<DatePart, 3>;

bool separatesParts(QChar character)
{
    return character == u'/' || character == u'-' || character == u'.' || character == u'\'';
}

void addCharacter(DatePart &part, QChar character)
{
    ++part.length;
    const int digit = character.unicode() - u'0';
    if (digit < 0 || digit > 9 || part.number > (std::numeric_limits<int>::max() - digit) / 10)
        part.whole = false;
    else
        part.number = part.number * 10 + digit;
}

std::optional<DateParts> partsOf(QStringView text)
{
    DateParts parts;
    size_t current = 0;
    for (const QChar character : text) {
        if (!separatesParts(character)) {
            if (character != u' ')
                addCharacter(parts[current], character);
        } else if (parts[current].length > 0 && ++current == parts.size()) {
            return parts;
        }
    }
    if (current + 1 < parts.size() || parts.back().length == 0)
        return std::nullopt;
    return parts;
}

// A last part that could also be a day is a year all the same: 5/6/24 is in 2024.
int fullYear(int year)
{
    if (year >= 100)
        return year;
    return year < 70 ? year + 2000 : year + 1900;
}

QDate dateOf(const DateParts &parts, QifDateOrder order)
{
    const auto &[a, b, c] = parts;
    if (a.length == 4)
        return QDate(fullYear(a.number), b.number, c.number);
    const int year = fullYear(c.number);
    if (order == QifDateOrder::DayFirst || (order == QifDateOrder::Auto && a.number >= 13))
        return QDate(year, b.number, a.number);
    return QDate(year, a.number, b.number);
}

} // namespace

std::optional<QDate> parseQifDate(QStringView text, QifDateOrder order)
{
    const std::optional<DateParts> parts = partsOf(text.trimmed());
    if (!parts || !parts->at(0).whole || !parts->at(1).whole || !parts->at(2).whole)
        return std::nullopt;
    const QDate date = dateOf(*parts, order);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

QifDateOrder detectDateOrder(const QList<QStringView> &lines)
{
    for (const QStringView rawLine : lines) {
        const QStringView line = cleanQifLine(rawLine);
        if (line.size() < 2 || line.front() != u'D')
            continue;
        const std::optional<DateParts> parts = partsOf(line.sliced(1).trimmed());
        if (!parts || !parts->at(0).whole || !parts->at(1).whole || parts->at(0).length == 4)
            continue;
        if (parts->at(0).number > 12)
            return QifDateOrder::DayFirst;
    }
    return QifDateOrder::MonthFirst;
}
