#include "core/state/AppState.h"

#include "core/Dates.h"
#include "data/CategoryRepository.h"
#include "data/PreferencesRepository.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/MoneyColors.h"
#include "shell/theme/ThemeManager.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

class AppStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void preferencesTakeEffect_data();
    void preferencesTakeEffect();
    void scaledFontIsNotScaledAgain();
    void defaultsAreSeededOnce();
    void currentAccountIsKept();
    void currentAccountTellsChangesOnly();
    void readyIsToldOnce();
    void unusableDirectoryFails();

private:
    void writePreference(const QString &key, const QString &value);

    std::unique_ptr<QTemporaryDir> m_directory;
    int m_localWeekStart = weekStart();
};

void AppStateTest::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    qputenv("PURSEWELL_DATA_DIR", m_directory->path().toUtf8());
}

void AppStateTest::cleanup()
{
    weekStart() = m_localWeekStart;
    fontScale() = 100;
    QApplication::setFont(baseFont());
}

void AppStateTest::writePreference(const QString &key, const QString &value)
{
    AppState state;
    QVERIFY(state.initialize());
    QVERIFY(state.preferences()->set(key, value));
}

void AppStateTest::preferencesTakeEffect_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("scale");
    QTest::addColumn<int>("firstDay"); // 0: the locale's
    QTest::addColumn<QString>("theme");

    const auto row = [](const char *name, const QString &key, const QString &value, int scale,
                        int firstDay, const QString &theme) {
        QTest::newRow(name) << key << value << scale << firstDay << theme;
    };
    row("scale", u"fontScale"_s, u"130"_s, 130, 0, u"system"_s);
    row("scale in words", u"fontScale"_s, u"abc"_s, 100, 0, u"system"_s);
    row("scale in hex", u"fontScale"_s, u"0x82"_s, 100, 0, u"system"_s);
    row("scale empty", u"fontScale"_s, u""_s, 100, 0, u"system"_s);
    row("scale too small", u"fontScale"_s, u"50"_s, 70, 0, u"system"_s);
    row("scale too large", u"fontScale"_s, u"500"_s, 160, 0, u"system"_s);
    row("week from Monday", u"weekStartDay"_s, u"1"_s, 100, 1, u"system"_s);
    row("week from Saturday", u"weekStartDay"_s, u"6"_s, 100, 6, u"system"_s);
    row("day 0", u"weekStartDay"_s, u"0"_s, 100, 0, u"system"_s);
    row("day 8", u"weekStartDay"_s, u"8"_s, 100, 0, u"system"_s);
    row("day in words", u"weekStartDay"_s, u"x"_s, 100, 0, u"system"_s);
    row("dark", u"theme"_s, u"dark"_s, 100, 0, u"dark"_s);
    row("theme unknown", u"theme"_s, u"sepia"_s, 100, 0, u"system"_s);
}

void AppStateTest::preferencesTakeEffect()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(int, scale);
    QFETCH(int, firstDay);
    QFETCH(QString, theme);

    writePreference(key, value);
    AppState state;
    QVERIFY(state.initialize());
    QCOMPARE(ThemeManager::fontScale(), scale);
    QCOMPARE(weekStart(), firstDay == 0 ? m_localWeekStart : firstDay);
    QCOMPARE(state.preferences()->getOr(u"theme"_s, {}), theme);
    QCOMPARE(isDarkPalette(), theme == u"dark"_s);
}

void AppStateTest::scaledFontIsNotScaledAgain()
{
    QFont font = QApplication::font();
    font.setPointSize(10);
    QApplication::setFont(font);
    writePreference(u"fontScale"_s, u"150"_s);
    QApplication::setFont(font);
    AppState state;
    QVERIFY(state.initialize());
    QCOMPARE(QApplication::font().pointSize(), 15);
    QCOMPARE(baseFont().pointSize(), 10);
    state.themeManager()->setFontScale(200);
    QCOMPARE(QApplication::font().pointSize(), 16);
}

void AppStateTest::defaultsAreSeededOnce()
{
    qsizetype seeded = 0;
    {
        AppState state;
        QVERIFY(state.initialize());
        seeded = state.categories()->listActive().size();
        QVERIFY(seeded > 0);
        QCOMPARE(state.currentAccountId(), QString());
    }
    AppState again;
    QVERIFY(again.initialize());
    QCOMPARE(again.categories()->listActive().size(), seeded);
}

void AppStateTest::currentAccountIsKept()
{
    {
        AppState state;
        QVERIFY(state.initialize());
        state.setCurrentAccountId(u"an account"_s);
    }
    {
        AppState state;
        QSignalSpy changed(&state, &AppState::currentAccountChanged);
        QVERIFY(state.initialize());
        QCOMPARE(state.currentAccountId(), u"an account"_s); // though there is none
        QCOMPARE(changed.size(), 0);
        state.setCurrentAccountId({});
        QCOMPARE(state.preferences()->get(u"lastViewedAccountId"_s).value_or(u"absent"_s),
                 QString());
    }
    AppState state;
    QVERIFY(state.initialize());
    QCOMPARE(state.currentAccountId(), QString());
}

void AppStateTest::currentAccountTellsChangesOnly()
{
    AppState state;
    QVERIFY(state.initialize());
    QSignalSpy changed(&state, &AppState::currentAccountChanged);
    QSignalSpy written(state.preferences(), &PreferencesRepository::changed);
    state.setCurrentAccountId(u"one"_s);
    state.setCurrentAccountId(u"one"_s);
    QCOMPARE(changed, QList<QVariantList>{{u"one"_s}});
    QCOMPARE(written, QList<QVariantList>{{u"lastViewedAccountId"_s}});
}

void AppStateTest::readyIsToldOnce()
{
    AppState state;
    QSignalSpy ready(&state, &AppState::databaseReady);
    QVERIFY(state.initialize());
    QCOMPARE(ready.size(), 1);
}

void AppStateTest::unusableDirectoryFails()
{
    QFile file(m_directory->filePath(u"file"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    qputenv("PURSEWELL_DATA_DIR", (file.fileName() + u"/below"_s).toUtf8());
    const LogCatcher log;
    AppState state;
    QSignalSpy ready(&state, &AppState::databaseReady);
    QVERIFY(!state.initialize());
    QCOMPARE(ready.size(), 0);
    QVERIFY(!LogCatcher::warnings().isEmpty());
}

PURSEWELL_TEST_MAIN(AppStateTest)
#include "AppStateTest.moc"
