#include "support/SampleRecords.h"
#include "support/TestDatabase.h"
#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

using Text = std::optional<QString>;

class PreferencesRepositoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesComeBack_data();
    void valuesComeBack();
    void signalsEveryWriteAndNoRemoval();
    void refusedWritesAreQuiet();
};

void PreferencesRepositoryTest::valuesComeBack_data()
{
    QTest::addColumn<QVariant>("stored"); // invalid: nothing is
    QTest::addColumn<QString>("text"); // with the default "default"
    QTest::addColumn<bool>("isOn"); // with the default true
    QTest::newRow("nothing") << QVariant() << u"default"_s << true;
    QTest::newRow("empty") << QVariant(u""_s) << u""_s << false;
    QTest::newRow("NULL") << QVariant(QString()) << u""_s << false;
    QTest::newRow("1") << QVariant(u"1"_s) << u"1"_s << true;
    QTest::newRow("true") << QVariant(u"true"_s) << u"true"_s << true;
    QTest::newRow("TRUE") << QVariant(u"TRUE"_s) << u"TRUE"_s << false;
    QTest::newRow("0") << QVariant(u"0"_s) << u"0"_s << false;
    QTest::newRow("awkward") << QVariant(awkwardWords()) << awkwardWords() << false;
}

void PreferencesRepositoryTest::valuesComeBack()
{
    QFETCH(QVariant, stored);
    TestDatabase database;
    const QString key = awkwardWords();
    if (stored.isValid()) {
        QVERIFY(database.preferences.set(key, u"before"_s));
        QVERIFY(database.preferences.set(key, stored.toString()));
    }
    const PreferencesRepository second(database.get());
    QCOMPARE(second.get(key).has_value(), stored.isValid());
    QTEST(second.getOr(key, u"default"_s), "text");
    QTEST(second.getBool(key, true), "isOn");
    QCOMPARE(second.getBool(key, false), stored.isValid() && second.getBool(key, true));
}

void PreferencesRepositoryTest::signalsEveryWriteAndNoRemoval()
{
    TestDatabase database;
    QSignalSpy changes(&database.preferences, &PreferencesRepository::changed);
    database.preferences.setInt(u"size"_s, -125);
    database.preferences.setBool(u"flag"_s, true);
    database.preferences.setBool(u"flag"_s, true);
    QCOMPARE(database.preferences.get(u"flag"_s), Text(u"1"_s));
    database.preferences.setBool(u"flag"_s, false);
    QCOMPARE(database.preferences.get(u"flag"_s), Text(u"0"_s));
    QVERIFY(database.preferences.remove(u"flag"_s));
    QVERIFY(!database.preferences.get(u"flag"_s));
    QCOMPARE(database.preferences.get(u"size"_s), Text(u"-125"_s));
    QCOMPARE(changes, (QList<QVariantList>{{u"size"_s}, {u"flag"_s}, {u"flag"_s}, {u"flag"_s}}));
}

void PreferencesRepositoryTest::refusedWritesAreQuiet()
{
    TestDatabase database;
    QSignalSpy changes(&database.preferences, &PreferencesRepository::changed);
    database.run(u"DROP TABLE preferences"_s);
    const LogCatcher log;
    QVERIFY(!database.preferences.set(u"key"_s, u"value"_s));
    QVERIFY(!database.preferences.remove(u"key"_s));
    QVERIFY(!database.preferences.get(u"key"_s));
    QCOMPARE(changes.size(), 0);
    QCOMPARE(LogCatcher::warnings(), QStringList());
}

PURSEWELL_TEST_MAIN(PreferencesRepositoryTest)
#include "PreferencesRepositoryTest.moc"
