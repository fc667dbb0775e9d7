#include "core/Dates.h"

#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

class DatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTextAsQtDoes_data();
    void readsTextAsQtDoes();
    void writesOneForm();
    void currentStampSurvivesBeingStored();
    void weekStartsAsInTheLocaleUntilChanged();
};

void DatesTest::readsTextAsQtDoes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isDate");
    QTest::addColumn<bool>("isStamp");

    const auto row = [](const char *name, const QString &text, bool isDate, bool isStamp) {
        QTest::newRow(name) << text << isDate << isStamp;
    };
    row("date", u"2024-03-05"_s, true, true);
    row("leap day", u"2024-02-29"_s, true, true);
    row("leap day of a common year", u"2023-02-29"_s, false, false);
    row("month 13", u"2024-13-01"_s, false, false);
    row("day 0", u"2024-01-00"_s, false, false);
    row("year 0", u"0000-01-01"_s, false, false);
    row("letters for digits", u"2O24-03-05"_s, false, false);
    row("digits of another script", u"٢٠٢٤-03-05"_s, false, false);
    row("spaces", u" 2024-03-05 "_s, false, false);
    row("empty", u""_s, false, false);
    row("stamp", u"2024-02-29T23:59:58Z"_s, true, true);
    row("second 60", u"2024-06-30T23:59:60Z"_s, true, false);
    row("midnight as 24", u"2024-02-29T24:00:00Z"_s, true, true);
    row("minute 60", u"2024-02-29T12:60:00Z"_s, true, false);
    row("another letter for the zone", u"2024-03-05T12:00:00x"_s, true, false);
    row("local", u"2024-03-05T12:00:00"_s, true, true);
    row("offset", u"2024-03-05T12:00:00+05:30"_s, true, true);
    row("milliseconds", u"2024-03-05T12:00:00.250Z"_s, true, true);
    row("small letters", u"2024-03-05t12:00:00z"_s, true, true);
    row("blank for T", u"2024-03-05 12:00:00Z"_s, true, true);
    row("bad date, good time", u"2024-02-30T12:00:00Z"_s, false, false);
}

void DatesTest::readsTextAsQtDoes()
{
    QFETCH(QString, text);
    const QDate date = dateFromIso(text);
    const QDateTime stamp = stampFromIso(text);
    QCOMPARE(date, QDate::fromString(text, Qt::ISODate));
    const QDateTime expected = QDateTime::fromString(text, Qt::ISODate);
    QCOMPARE(stamp, expected);
    QCOMPARE(stamp.timeSpec(), expected.timeSpec());
    QTEST(date.isValid(), "isDate");
    QTEST(stamp.isValid(), "isStamp");
}

void DatesTest::writesOneForm()
{
    QCOMPARE(isoDate(QDate(2024, 2, 29)), u"2024-02-29"_s);
    QCOMPARE(isoStamp(QDateTime(QDate(2024, 2, 29), QTime(1, 2, 3, 999), Qt::UTC)),
             u"2024-02-29T01:02:03Z"_s);
    QVERIFY(isoDate(QDate()).isNull()); // NULL in SQL, not the empty text
    QVERIFY(isoStamp(QDateTime()).isNull());
}

void DatesTest::currentStampSurvivesBeingStored()
{
    const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-1);
    const QDateTime stamp = currentStamp();
    QCOMPARE(stampFromIso(isoStamp(stamp)), stamp);
    QCOMPARE(stamp.timeSpec(), Qt::UTC);
    QVERIFY(stamp > before);
    QVERIFY(stamp <= QDateTime::currentDateTimeUtc());
}

void DatesTest::weekStartsAsInTheLocaleUntilChanged()
{
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    QCOMPARE(weekStart(), int(Qt::Saturday));
    weekStart() = Qt::Wednesday;
    QLocale::setDefault(QLocale(QLocale::German));
    QCOMPARE(weekStart(), int(Qt::Wednesday));
}

PURSEWELL_TEST_MAIN(DatesTest)
#include "DatesTest.moc"
