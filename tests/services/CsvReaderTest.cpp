#include "services/CsvReader.h"

#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

using Rows = QList<QStringList>;

class CsvReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsRows_data();
    void readsRows();
    void readsHugeFiles();
    void readsDates_data();
    void readsDates();
};

void CsvReaderTest::readsRows_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Rows>("rows");

    QTest::newRow("empty") << QString() << Rows();
    QTest::newRow("comma in quotes") << u"a,\"b,c\"\r\n"_s << Rows{{u"a"_s, u"b,c"_s}};
    QTest::newRow("doubled quote mark") << u"\"say \"\"no\"\"\""_s << Rows{{u"say \"no\""_s}};
    QTest::newRow("line breaks in quotes") << u"\"a\r\nb\",c"_s << Rows{{u"a\r\nb"_s, u"c"_s}};
    QTest::newRow("quotes within a field") << u"a\"b,\"c,d"_s << Rows{{u"ab,c"_s, u"d"_s}};
    QTest::newRow("doubled quote mark outside of quotes") << u"a\"\"b"_s << Rows{{u"ab"_s}};
    QTest::newRow("quotes left open") << u"a,\"b\nc,"_s << Rows{{u"a"_s, u"b\nc,"_s}};
    QTest::newRow("trimmed, also in quotes") << u" a ,\" b \"\n"_s << Rows{{u"a"_s, u"b"_s}};
    QTest::newRow("blank lines") << u"\n \n\"\"\na\n\n"_s << Rows{{u"a"_s}};
    QTest::newRow("line of one comma") << u",\n"_s << Rows{{QString(), QString()}};
    QTest::newRow("comma at the end of the text") << u"a,"_s << Rows{{u"a"_s, QString()}};
    QTest::newRow("spaces at the end of the text") << u"a\n "_s << Rows{{u"a"_s}, {QString()}};
    QTest::newRow("CR within a field") << u"a\rb,c\r"_s << Rows{{u"ab"_s, u"c"_s}};
    QTest::newRow("rows of different lengths")
        << u"a\nb,c,d\n"_s << Rows{{u"a"_s}, {u"b"_s, u"c"_s, u"d"_s}};
}

void CsvReaderTest::readsRows()
{
    QFETCH(QString, text);
    QTEST(parseCsv(text), "rows");
}

void CsvReaderTest::readsHugeFiles()
{
    for (const QString &piece : {u"\""_s, u","_s, u"x"_s, u"y\n"_s}) {
        const Rows rows =
            parseCsv(QString(100'000, u',') + u"\n"_s + piece.repeated(1'000'000) + u"\nz"_s);
        QCOMPARE(rows.front().size(), 100'001);
        QCOMPARE(rows.back(), QStringList{u"z"_s});
    }
}

void CsvReaderTest::readsDates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");

    QTest::newRow("ISO") << u"2024-03-04"_s << QDate(2024, 3, 4);
    QTest::newRow("month first") << u"03/04/2024"_s << QDate(2024, 3, 4);
    QTest::newRow("day first where nothing else fits") << u"13/01/2024"_s << QDate(2024, 1, 13);
    QTest::newRow("year of two digits") << u"3/4/24"_s << QDate(1924, 3, 4);
    QTest::newRow("two digits are month first alone") << u"13/1/24"_s << QDate();
    QTest::newRow("no such day") << u"02/30/2024"_s << QDate();
    QTest::newRow("ISO without zeros") << u"2024-3-4"_s << QDate();
    QTest::newRow("year of five digits") << u"3/4/12024"_s << QDate();
    QTest::newRow("time behind") << u"2024-03-04 10:00"_s << QDate();
    QTest::newRow("empty") << QString() << QDate();
}

void CsvReaderTest::readsDates()
{
    QFETCH(QString, text);
    QTEST(parseCsvDate(text), "date");
}

PURSEWELL_TEST_MAIN(CsvReaderTest)
#include "CsvReaderTest.moc"
