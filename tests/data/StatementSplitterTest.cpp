#include "data/StatementSplitter.h"

#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

class StatementSplitterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void splits_data();
    void splits();
};

void StatementSplitterTest::splits_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QStringList>("statements");

    QTest::newRow("nothing") << u""_s << QStringList();
    QTest::newRow("comments alone") << u"-- a;\n  -- b\n"_s << QStringList();
    QTest::newRow("a semicolon alone") << u";"_s << QStringList();
    QTest::newRow("the last one without a semicolon") << u"A;\nB"_s << QStringList{u"A"_s, u"B"_s};
    QTest::newRow("several lines, a comment between")
        << u"A (\n  -- in it;\n  b\n);\n"_s << QStringList{u"A (\n  b\n)"_s};
    QTest::newRow("two on one line stay together") << u"A; B;"_s << QStringList{u"A; B"_s};
    QTest::newRow("a comment behind code does not end it")
        << u"A; -- b\nC;"_s << QStringList{u"A; -- b\nC"_s};
    QTest::newRow("a trigger keeps its statements")
        << u"CREATE TRIGGER t begin\n  A;\n  B;\nEnd;\nC;"_s
        << QStringList{u"CREATE TRIGGER t begin\n  A;\n  B;\nEnd"_s, u"C"_s};
    QTest::newRow("end outside a trigger means nothing")
        << u"T (\nend_date TEXT\n);\nB;"_s << QStringList{u"T (\nend_date TEXT\n)"_s, u"B"_s};
    QTest::newRow("a trigger that never ends")
        << u"T BEGIN\nA;\nB;\n"_s << QStringList{u"T BEGIN\nA;\nB"_s};
}

void StatementSplitterTest::splits()
{
    QFETCH(QString, script);
    QTEST(splitStatements(script), "statements");
}

PURSEWELL_TEST_MAIN(StatementSplitterTest)
#include "StatementSplitterTest.moc"
