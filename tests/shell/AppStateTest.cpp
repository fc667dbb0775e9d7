#include "core/state/AppState.h"

#include "core/Dates.h"
#include "data/Database.h"
#include "data/PreferencesRepository.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/MoneyColors.h"
#include "shell/theme/ThemeManager.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

// The state, and the look that it sets.
class AppStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void preferencesTakeEffect_data();
    void preferencesTakeEffect();
    void currentAccountIsKept();
    void colorsFollowTheTheme();
    void wordsChooseTheTheme();
    void rolesGiveSizesAndWeights_data();
    void rolesGiveSizesAndWeights();
    void scaleReachesWidgetsWithARole();

private:
    void start(); // the state of a new run on the same data

    QTemporaryDir m_directory;
    std::unique_ptr<AppState> m_state;
    int m_localWeekStart = weekStart();
};

void AppStateTest::init()
{
    if (m_state) // a file of its own for each test would take long
        QSqlQuery(u"DELETE FROM preferences"_s, m_state->database()->connection());
    start();
}

void AppStateTest::start()
{
    m_state.reset();
    qputenv("PURSEWELL_DATA_DIR", m_directory.path().toUtf8());
    weekStart() = m_localWeekStart;
    QApplication::setFont(QFont(u"DejaVu Sans"_s, 10));
    m_state = std::make_unique<AppState>();
    QSignalSpy ready(m_state.get(), &AppState::databaseReady);
    QVERIFY(m_state->initialize());
    QCOMPARE(ready.size(), 1);
}

void AppStateTest::preferencesTakeEffect_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("points");
    QTest::addColumn<int>("firstDay");
    QTest::newRow("scale") << u"fontScale"_s << u"130"_s << 13 << m_localWeekStart;
    QTest::newRow("scale in words") << u"fontScale"_s << u"abc"_s << 10 << m_localWeekStart;
    QTest::newRow("scale too small") << u"fontScale"_s << u"50"_s << 7 << m_localWeekStart;
    QTest::newRow("scale too large") << u"fontScale"_s << u"500"_s << 16 << m_localWeekStart;
    QTest::newRow("week from Saturday") << u"weekStartDay"_s << u"6"_s << 10 << 6;
    QTest::newRow("day 0") << u"weekStartDay"_s << u"0"_s << 10 << m_localWeekStart;
    QTest::newRow("day 8") << u"weekStartDay"_s << u"8"_s << 10 << m_localWeekStart;
    QTest::newRow("day in words") << u"weekStartDay"_s << u"x"_s << 10 << m_localWeekStart;
    QTest::newRow("dark") << u"theme"_s << u"dark"_s << 10 << m_localWeekStart;
}

void AppStateTest::preferencesTakeEffect()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QVERIFY(m_state->preferences()->set(key, value));
    start();
    QTEST(QApplication::font().pointSize(), "points");
    QTEST(weekStart(), "firstDay");
    QCOMPARE(isDarkPalette(), value == u"dark"_s);
    m_state->themeManager()->setFontScale(120); // of the base, not of what is scaled already
    QCOMPARE(QApplication::font().pointSize(), 12);
}

void AppStateTest::currentAccountIsKept()
{
    for (const QString &id : {u"an account"_s, QString()}) { // though there is none
        QSignalSpy changed(m_state.get(), &AppState::currentAccountChanged);
        m_state->setCurrentAccountId(id);
        m_state->setCurrentAccountId(id);
        QCOMPARE(changed, QList<QVariantList>{{id}});
        start();
        QCOMPARE(m_state->currentAccountId(), id);
        QCOMPARE(m_state->preferences()->getOr(u"lastViewedAccountId"_s, u"absent"_s), id);
    }
}

void AppStateTest::colorsFollowTheTheme()
{
    const auto nameOf = [](QPalette::ColorGroup group, QPalette::ColorRole role) {
        return QApplication::palette().color(group, role).name();
    };
    for (const bool dark : {true, false}) { // and nothing of the dark one is left
        m_state->themeManager()->setTheme(dark ? ThemeManager::Dark : ThemeManager::Light);
        QCOMPARE(nameOf(QPalette::Inactive, QPalette::Base), dark ? u"#152420"_s : u"#ffffff"_s);
        QCOMPARE(nameOf(QPalette::Disabled, QPalette::Base), dark ? u"#152420"_s : u"#ffffff"_s);
        QCOMPARE(nameOf(QPalette::Disabled, QPalette::Text), dark ? u"#3a5a4a"_s : u"#a0b5a8"_s);
        QCOMPARE(negativeColor().name(), dark ? u"#ff8a80"_s : u"#c62828"_s);
    }
}

void AppStateTest::wordsChooseTheTheme()
{
    ThemeManager *themes = m_state->themeManager();
    for (const QString &word : {u"light"_s, u"dark"_s, u"system"_s, u"Dark"_s}) {
        themes->setTheme(ThemeManager::Dark); // our own palette must not pass for the desktop's
        QSignalSpy changed(themes, &ThemeManager::themeChanged);
        themes->setThemeByName(word);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(m_state->preferences()->getOr(u"theme"_s, {}),
                 word == u"Dark"_s ? u"system"_s : word);
        QCOMPARE(isDarkPalette(), word == u"dark"_s);
        themes->setFontScale(120); // which sets the palette anew
        QCOMPARE(isDarkPalette(), word == u"dark"_s);
    }
}

void AppStateTest::rolesGiveSizesAndWeights_data()
{
    QTest::addColumn<int>("basePoints"); // 0: a base font given in pixels
    QTest::addColumn<int>("scale");
    QTest::addColumn<int>("role");
    QTest::addColumn<int>("points");
    QTest::addColumn<int>("weight");
    QTest::newRow("figures") << 10 << 130 << int(FontRole::Monospace) << 13 << 400;
    QTest::newRow("unknown role") << 10 << 100 << 8 << 10 << 300;
    QTest::newRow("truncated, not rounded") << 9 << 70 << int(FontRole::Body) << 6 << 300;
    QTest::newRow("caption stays legible") << 9 << 70 << int(FontRole::Caption) << 7 << 300;
    QTest::newRow("only the body is scaled") << 10 << 160 << int(FontRole::Display) << 30 << 700;
    QTest::newRow("base in pixels") << 0 << 130 << int(FontRole::Body) << 13 << 300;
    QTest::newRow("never nothing") << 1 << 70 << int(FontRole::Body) << 1 << 300;
}

void AppStateTest::rolesGiveSizesAndWeights()
{
    QFETCH(int, basePoints);
    QFETCH(int, scale);
    QFETCH(int, role);
    baseFont().setWeight(QFont::Light);
    if (basePoints > 0)
        baseFont().setPointSize(basePoints);
    else
        baseFont().setPixelSize(40);
    fontScale() = scale;

    const QFont font = fontForRole(role);
    QTEST(font.pointSize(), "points");
    QTEST(int(font.weight()), "weight");
    QCOMPARE(font.styleHint() == QFont::Monospace, role == FontRole::Monospace);
}

void AppStateTest::scaleReachesWidgetsWithARole()
{
    QWidget window;
    QLabel heading(&window), bold(&window), italic(&window), own(&window), plain(&window);
    applyFontRole(&heading, FontRole::Heading);
    applyFontRole(&bold, FontRole::Body, QFont::Black);
    applyFontRole(&italic, FontRole::Caption);
    italic.setProperty(kFontItalicProperty, true);
    own.setFont(QFont(u"DejaVu Sans"_s, 33));
    applyFontRole(nullptr, FontRole::Heading);

    ThemeManager *themes = m_state->themeManager();
    themes->setFontScale(150);
    QCOMPARE(heading.font().pointSize(), 19);
    QCOMPARE(bold.font().weight(), QFont::Black);
    QCOMPARE(italic.font().pointSize(), 13);
    QVERIFY(italic.font().italic());
    QCOMPARE(own.font().pointSize(), 33);
    QTRY_COMPARE(plain.font().pointSize(), 15);

    QSignalSpy changed(themes, &ThemeManager::fontScaleChanged);
    for (const int used : {kMaxFontScale, kMinFontScale}) {
        themes->setFontScale(used > 100 ? 500 : 1);
        QCOMPARE(changed.takeFirst(), QVariantList{used});
        QCOMPARE(m_state->preferences()->getOr(u"fontScale"_s, {}), QString::number(used));
    }
}

PURSEWELL_TEST_MAIN(AppStateTest)
#include "AppStateTest.moc"
