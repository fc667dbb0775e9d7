#include "core/Dates.h"

#include <QLocale>
#include <QTimeZone>

#include <optional>

namespace {

constexpr qsizetype kDateLength = 10; // yyyy-MM-dd
constexpr qsizetype kStampLength = 20; // yyyy-MM-ddTHH:mm:ssZ

// The number in the digits of [begin, begin + length), or -1.
int numberAt(QStringView text, qsizetype begin, qsizetype length)
{
    int number = 0;
    for (const QChar character : text.sliced(begin, length)) {
        if (character < u'0' || character > u'9')
            return -1;
        number = number * 10 + (character.unicode() - u'0');
    }
    return number;
}

// A register of 100,000 rows holds 300,000 dates and stamps, all in our own form, and Qt's parser
// takes most of the time of reading them. These two read that form alone; the caller turns to Qt's
// parser for whatever they leave, so that the result is the same for every text.
QDate plainDate(QStringView text)
{
    if (text.size() != kDateLength || text[4] != u'-' || text[7] != u'-')
        return {};
    const int year = numberAt(text, 0, 4);
    const int month = numberAt(text, 5, 2);
    const int day = numberAt(text, 8, 2);
    return year < 0 || month < 0 || day < 0 ? QDate() : QDate(year, month, day);
}

QTime plainTime(QStringView text)
{
    if (text[2] != u':' || text[5] != u':')
        return {};
    return QTime(numberAt(text, 0, 2), numberAt(text, 3, 2), numberAt(text, 6, 2));
}

QDateTime inUtc(QDate date, QTime time)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    return QDateTime(date, time, QTimeZone(QTimeZone::UTC));
#else
    return QDateTime(date, time, Qt::UTC);
#endif
}

std::optional<QDateTime> plainStamp(QStringView text)
{
    if (text.size() != kStampLength || text[kDateLength] != u'T' || text[19] != u'Z')
        return std::nullopt;
    const QDate date = plainDate(text.first(kDateLength));
    const QTime time = plainTime(text.sliced(kDateLength + 1, 8));
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    return inUtc(date, time);
}

} // namespace

int &weekStart()
{
    static int day = QLocale().firstDayOfWeek();
    return day;
}

QString isoDate(QDate date)
{
    return date.toString(Qt::ISODate);
}

QDate dateFromIso(const QString &text)
{
    const QDate date = plainDate(text);
    return date.isValid() ? date : QDate::fromString(text, Qt::ISODate);
}

QString isoStamp(const QDateTime &stamp)
{
    return stamp.toString(Qt::ISODate);
}

QDateTime stampFromIso(const QString &text)
{
    const std::optional<QDateTime> stamp = plainStamp(text);
    return stamp ? *stamp : QDateTime::fromString(text, Qt::ISODate);
}

QDateTime currentStamp()
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    return now.addMSecs(-now.time().msec());
}

QDate dateFromText(const QString &text, const QString &format)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
    return QDate::fromString(text, format, 1900);
#else
    return QDate::fromString(text, format);
#endif
}
