#include "services/CsvReader.h"

#include "core/Dates.h"
#include "services/CsvParser.h"

#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

// Month first before day first, so that 03/04/2024 is in March, and day first is left for the dates
// that have no other reading.
const QStringList &dateForms()
{
    static const QStringList forms{
        u"yyyy-MM-dd"_s, u"MM/dd/yyyy"_s, u"M/d/yyyy"_s, u"M/dd/yyyy"_s,
        u"MM/d/yyyy"_s,  u"dd/MM/yyyy"_s, u"d/M/yyyy"_s, u"d/MM/yyyy"_s,
        u"dd/M/yyyy"_s,  u"MM/dd/yy"_s,   u"M/d/yy"_s,   u"yyyy/MM/dd"_s,
    };
    return forms;
}

struct DateNumbers
{
    std::array<int, 3> numbers{};
    std::array<int, 3> lengths{}; // in digits

    bool hasLengths(int first, int second, int third) const
    {
        return lengths == std::array{first, second, third};
    }
    bool startsShort() const { return lengths[0] <= 2 && lengths[1] <= 2; }
};

// Three numbers of one to four digits and nothing else but this separator between them.
std::optional<DateNumbers> dateNumbers(QStringView text, QChar separator)
{
    DateNumbers parts;
    size_t current = 0;
    for (const QChar character : text) {
        if (character >= u'0' && character <= u'9' && parts.lengths[current] < 4) {
            parts.numbers[current] = parts.numbers[current] * 10 + (character.unicode() - u'0');
            ++parts.lengths[current];
        } else if (character != separator || parts.lengths[current] == 0 || ++current == 3) {
            return std::nullopt;
        }
    }
    return parts.lengths[2] > 0 ? std::optional(parts) : std::nullopt;
}

// Qt's parser takes several microseconds per form, which is most of the time of reading a bank's
// file. This gives what the forms would give for texts of digits and separators alone, and nothing
// for the others.
std::optional<QDate> plainDate(QStringView text)
{
    if (const std::optional<DateNumbers> iso = dateNumbers(text, u'-'))
        return iso->hasLengths(4, 2, 2) ? QDate(iso->numbers[0], iso->numbers[1], iso->numbers[2])
                                        : QDate();
    const std::optional<DateNumbers> parts = dateNumbers(text, u'/');
    if (!parts)
        return std::nullopt;
    const auto &[a, b, c] = parts->numbers;
    if (parts->hasLengths(4, 2, 2))
        return QDate(a, b, c);
    if (parts->startsShort() && parts->lengths[2] == 2)
        return QDate(1900 + c, a, b);
    if (!parts->startsShort() || parts->lengths[2] != 4)
        return QDate();
    return QDate::isValid(c, a, b) ? QDate(c, a, b) : QDate(c, b, a);
}

} // namespace

QList<QStringList> parseCsv(const QString &text)
{
    return CsvParser(text).rows();
}

QDate parseCsvDate(const QString &text)
{
    if (const std::optional<QDate> plain = plainDate(text))
        return *plain;
    for (const QString &form : dateForms()) {
        const QDate date = dateFromText(text, form);
        if (date.isValid())
            return date;
    }
    return {};
}
