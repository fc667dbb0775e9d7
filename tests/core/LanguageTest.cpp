#include "core/Language.h"

#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

class LanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesLanguage_data();
    void choosesLanguage();
};

void LanguageTest::choosesLanguage_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("resolved");

    QTest::newRow("nothing") << QString() << u"fr_CA"_s << u"fr"_s;
    QTest::newRow("system, supported") << u"system"_s << u"de_AT"_s << u"de"_s;
    QTest::newRow("system, unsupported") << u"system"_s << u"pt_BR"_s << u"en"_s;
    QTest::newRow("chosen") << u"ja"_s << u"de_DE"_s << u"ja"_s;
    QTest::newRow("chosen, unsupported") << u"pt"_s << u"de_DE"_s << u"pt"_s;
    QTest::newRow("another case is no system") << u"System"_s << u"de_DE"_s << u"System"_s;
}

void LanguageTest::choosesLanguage()
{
    QFETCH(QString, stored);
    QFETCH(QString, system);
    QLocale::setDefault(QLocale(system));
    QSettings().clear();
    if (!stored.isNull())
        Language::store(stored);
    QCOMPARE(Language::current(false), stored.isNull() ? u"system"_s : stored);
    QTEST(Language::current(true), "resolved");
}

PURSEWELL_TEST_MAIN(LanguageTest)
#include "LanguageTest.moc"
