#include "Require.h"

#include "services/QifDate.h"

#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

QStringList partsOf(QString text)
{
    static const QRegularExpression separators(u"[-.'/]"_s);
    return text.remove(u' ').split(separators, Qt::SkipEmptyParts);
}

// -1 for what is no number, which no part of a date can be.
int numberOf(const QString &part)
{
    static const QRegularExpression digits(u"^[0-9]+\\z"_s);
    bool fits = false;
    const int number = part.toInt(&fits);
    return fits && digits.match(part).hasMatch() ? number : -1;
}

int yearOf(const QString &part, bool first)
{
    int year = numberOf(part);
    if (!first && part.size() != 4 && year <= 31)
        year += 2000;
    return year < 70 ? year + 2000 : year < 100 ? year + 1900 : year;
}

// The same reading by way of texts, slow and plain.
std::optional<QDate> slowDate(const QString &text, QifDateOrder order)
{
    const QStringList parts = partsOf(text.trimmed());
    if (parts.size() < 3)
        return std::nullopt;
    const int a = numberOf(parts.at(0));
    const int b = numberOf(parts.at(1));
    const int c = numberOf(parts.at(2));
    if (a < 0 || b < 0 || c < 0)
        return std::nullopt;
    QDate date(yearOf(parts.at(2), false), a, b);
    if (parts.at(0).size() == 4)
        date = QDate(yearOf(parts.at(0), true), b, c);
    else if (order == QifDateOrder::DayFirst || (order == QifDateOrder::Auto && a > 12))
        date = QDate(yearOf(parts.at(2), false), b, a);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

QifDateOrder slowOrder(const QString &text)
{
    const QStringList parts = partsOf(text.trimmed());
    const bool counts = parts.size() >= 3 && parts.at(0).size() != 4 && numberOf(parts.at(0)) > 12
        && numberOf(parts.at(1)) >= 0;
    return counts ? QifDateOrder::DayFirst : QifDateOrder::MonthFirst;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    for (const auto order : {QifDateOrder::Auto, QifDateOrder::MonthFirst, QifDateOrder::DayFirst})
        require(parseQifDate(text, order) == slowDate(text, order));
    const QString line = u"\uFEFF\rD"_s + text;
    require(detectDateOrder({u"Pnobody", line, u"D1/2/2024"}) == slowOrder(text));
    return 0;
}
