#include "services/ImportHome.h"
#include "support/TestSupport.h"

namespace {

CsvColumnMapping inOrder(bool hasHeader = false, const QString &dateFormat = {})
{
    return {0, 1, 2, 3, 4, hasHeader, dateFormat};
}

} // namespace

class CsvImportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void imports_data();
    void imports();
    void tellsTheRowsOfData();
    void survivesAFullDisk();
};

void CsvImportTest::imports_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<CsvColumnMapping>("mapping");
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<QString>("rows");

    QTest::newRow("empty file with a header") << u""_s << inOrder(true) << u""_s << u""_s;
    QTest::newRow("header taken for data")
        << u"Date,Payee,Amount\n2024-01-02,X,1"_s << inOrder() << u"1 imported, 1 unparseable"_s
        << u"a 2024-01-02 X 100"_s;
    QTest::newRow("memo and category, short rows")
        << u"2024-01-02,\"%1 \"\"x\"\"\n🦆\",\"-1,234.5\",M\n2024-01-03,X,1,,New\n2024-01-05,X\n"_s
        << inOrder() << u"2 imported, 1 unparseable"_s
        << u"a 2024-01-02 %1 \"x\"\n🦆 -123450 \"M\"; a 2024-01-03 X 100 New:expense"_s;
    QTest::newRow("the same twice, and in another case")
        << u"2024-01-02,X,1\n01/02/2024,X,1.00\n2024-01-02,x,1"_s << inOrder()
        << u"2 imported, 1 duplicates"_s << u"a 2024-01-02 X 100; a 2024-01-02 x 100"_s;
    QTest::newRow("own date form first, then the usual ones")
        << u"03/04/2024,A,1\n2024-01-02,B,1\n13/13/2024,C,1"_s << inOrder(false, u"dd/MM/yyyy"_s)
        << u"2 imported, 1 unparseable"_s << u"a 2024-04-03 A 100; a 2024-01-02 B 100"_s;
    QTest::newRow("amounts that cannot be read are 0, and a payee may be empty")
        << u"2024-01-02,X,(12.34)\n2024-01-03,,1"_s << inOrder() << u"2 imported"_s
        << u"a 2024-01-02 X 0; a 2024-01-03  100"_s;
    QTest::newRow("columns that are nowhere")
        << u"2024-01-02,X,1"_s << CsvColumnMapping{0, -1, 2, 7, -1, false, {}} << u"1 unparseable"_s
        << u""_s;
}

void CsvImportTest::imports()
{
    QFETCH(QString, text);
    QFETCH(CsvColumnMapping, mapping);
    ImportHome home;
    const QString path = home.file(text);
    QTEST(counts(home.service.importCsv(path, u"a"_s, mapping)), "outcome");
    QTEST(home.rows(), "rows");
    QCOMPARE(home.service.importCsv(path, u"a"_s, mapping).imported, 0);
}

void CsvImportTest::tellsTheRowsOfData()
{
    ImportHome home;
    QSignalSpy started(&home.service, &ImportService::importStarted);
    const QString path = home.file(u"Date,Payee,Amount\n2024-01-02,X,1\n"_s);
    home.service.importCsv(path, u"a"_s, inOrder(true));
    QCOMPARE(started.value(0), QVariantList{1});
    QFile::remove(path);
    QCOMPARE(counts(home.service.importCsv(path, u"a"_s, inOrder())), u""_s);
    QCOMPARE(started.size(), 1); // not a word
}

void CsvImportTest::survivesAFullDisk()
{
    ImportHome home;
    QString text;
    for (int i = 0; i < 60; ++i)
        text += u"2024-01-02,X%1,%1,%2,C%1\n"_s.arg(QString::number(i), QString(300, u'x'));
    const QString path = home.file(text);
    const LogCatcher log;
    const int failures = home.untilThereIsRoom([&] {
        const bool aborted = home.service.importCsv(path, u"a"_s, inOrder()).aborted;
        return home.count(u"transactions"_s) == (aborted ? 0 : 60)
            && home.count(u"categories"_s) == (aborted ? 1 : 61);
    });
    QVERIFY(failures > 5);
}

PURSEWELL_TEST_MAIN(CsvImportTest)
#include "CsvImportTest.moc"
