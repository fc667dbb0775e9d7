#include "shell/theme/ThemeManager.h"

#include "data/Database.h"
#include "data/PreferencesRepository.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/MoneyColors.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

class ThemeManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void palettesHoldTheirColors_data();
    void palettesHoldTheirColors();
    void wordsChooseTheTheme_data();
    void wordsChooseTheTheme();
    void moneyColorsFollowThePalette();
    void rolesGiveSizesAndWeights_data();
    void rolesGiveSizesAndWeights();
    void scaleIsClampedAndStored_data();
    void scaleIsClampedAndStored();
    void scaleReachesWidgetsWithARole();
    void scaleKeepsTheTheme();

private:
    QTemporaryDir m_directory;
    std::unique_ptr<Database> m_database;
    std::unique_ptr<PreferencesRepository> m_preferences;
    std::unique_ptr<ThemeManager> m_themes;
};

void ThemeManagerTest::init()
{
    m_database = std::make_unique<Database>();
    QVERIFY(m_database->open(m_directory.filePath(u"theme.db"_s)) && m_database->migrate());
    m_preferences = std::make_unique<PreferencesRepository>(m_database.get());
    m_themes = std::make_unique<ThemeManager>(m_preferences.get());
    baseFont() = QFont(u"DejaVu Sans"_s, 10);
    fontScale() = 100;
}

void ThemeManagerTest::cleanup()
{
    m_themes.reset();
    m_preferences.reset();
    m_database.reset();
}

void ThemeManagerTest::palettesHoldTheirColors_data()
{
    QTest::addColumn<QPalette::ColorGroup>("group");
    QTest::addColumn<QPalette::ColorRole>("role");
    QTest::addColumn<QString>("dark");
    QTest::addColumn<QString>("light");

    const auto row = [](const char *name, QPalette::ColorGroup group, QPalette::ColorRole role,
                        const QString &dark, const QString &light) {
        QTest::newRow(name) << group << role << dark << light;
    };
    row("window", QPalette::Active, QPalette::Window, u"#0f1e19"_s, u"#fafbfa"_s);
    row("window, inactive", QPalette::Inactive, QPalette::Window, u"#0f1e19"_s, u"#fafbfa"_s);
    row("base", QPalette::Active, QPalette::Base, u"#152420"_s, u"#ffffff"_s);
    row("stripes", QPalette::Active, QPalette::AlternateBase, u"#1a2e28"_s, u"#f2f7f4"_s);
    row("text", QPalette::Active, QPalette::Text, u"#d8e8df"_s, u"#1b2d26"_s);
    row("selection, inactive", QPalette::Inactive, QPalette::Highlight, u"#4db6ac"_s, u"#00897b"_s);
    row("selected text", QPalette::Active, QPalette::HighlightedText, u"#0f1e19"_s, u"#ffffff"_s);
    row("placeholder", QPalette::Active, QPalette::PlaceholderText, u"#8faf9f"_s, u"#6e8a7e"_s);
    row("bevel", QPalette::Active, QPalette::Mid, u"#2a4038"_s, u"#d8e0db"_s);
    row("disabled text", QPalette::Disabled, QPalette::Text, u"#3a5a4a"_s, u"#a0b5a8"_s);
    row("disabled label", QPalette::Disabled, QPalette::WindowText, u"#3a5a4a"_s, u"#a0b5a8"_s);
    row("disabled button", QPalette::Disabled, QPalette::ButtonText, u"#3a5a4a"_s, u"#a0b5a8"_s);
    row("disabled ground", QPalette::Disabled, QPalette::Base, u"#152420"_s, u"#ffffff"_s);
}

void ThemeManagerTest::palettesHoldTheirColors()
{
    QFETCH(QPalette::ColorGroup, group);
    QFETCH(QPalette::ColorRole, role);
    QFETCH(QString, dark);
    QFETCH(QString, light);

    m_themes->setTheme(ThemeManager::Dark);
    QCOMPARE(QApplication::palette().color(group, role).name(), dark);
    m_themes->setTheme(ThemeManager::Light); // and nothing of the dark one is left
    QCOMPARE(QApplication::palette().color(group, role).name(), light);
}

void ThemeManagerTest::wordsChooseTheTheme_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<ThemeManager::Theme>("theme");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("dark");

    QTest::newRow("dark") << u"dark"_s << ThemeManager::Dark << u"dark"_s << true;
    QTest::newRow("light") << u"light"_s << ThemeManager::Light << u"light"_s << false;
    QTest::newRow("system, on a light desktop")
        << u"system"_s << ThemeManager::System << u"system"_s << false;
    QTest::newRow("another case") << u"Dark"_s << ThemeManager::System << u"system"_s << false;
    QTest::newRow("empty") << QString() << ThemeManager::System << u"system"_s << false;
}

void ThemeManagerTest::wordsChooseTheTheme()
{
    QFETCH(QString, word);
    QFETCH(ThemeManager::Theme, theme);
    QFETCH(QString, stored);
    QFETCH(bool, dark);

    m_themes->setTheme(ThemeManager::Dark); // our own palette must not pass for the desktop's
    QSignalSpy changed(m_themes.get(), &ThemeManager::themeChanged);
    m_themes->setThemeByName(word);
    QCOMPARE(m_themes->theme(), theme);
    QCOMPARE(m_preferences->getOr(u"theme"_s, {}), stored);
    QCOMPARE(isDarkPalette(), dark);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().first().value<ThemeManager::Theme>(), theme);
}

void ThemeManagerTest::moneyColorsFollowThePalette()
{
    m_themes->setTheme(ThemeManager::Dark);
    QCOMPARE(negativeColor().name(), u"#ff8a80"_s);
    QCOMPARE(positiveColor().name(), u"#66bb6a"_s);
    m_themes->setTheme(ThemeManager::Light);
    QCOMPARE(negativeColor().name(), u"#c62828"_s);
    QCOMPARE(positiveColor().name(), u"#2e7d32"_s);
}

void ThemeManagerTest::rolesGiveSizesAndWeights_data()
{
    QTest::addColumn<int>("basePoints"); // 0: a base font given in pixels
    QTest::addColumn<int>("scale");
    QTest::addColumn<int>("role");
    QTest::addColumn<int>("points");
    QTest::addColumn<int>("weight");

    QTest::newRow("body") << 10 << 100 << int(FontRole::Body) << 10 << 300;
    QTest::newRow("medium") << 10 << 100 << int(FontRole::BodyMedium) << 10 << 500;
    QTest::newRow("caption") << 10 << 100 << int(FontRole::Caption) << 8 << 300;
    QTest::newRow("subheading") << 10 << 100 << int(FontRole::Subheading) << 11 << 500;
    QTest::newRow("heading") << 10 << 100 << int(FontRole::Heading) << 14 << 600;
    QTest::newRow("title") << 10 << 100 << int(FontRole::Title) << 18 << 600;
    QTest::newRow("display") << 10 << 100 << int(FontRole::Display) << 24 << 700;
    QTest::newRow("figures") << 10 << 100 << int(FontRole::Monospace) << 10 << 400;
    QTest::newRow("unknown role") << 10 << 100 << 8 << 10 << 300;
    QTest::newRow("negative role") << 10 << 100 << -1 << 10 << 300;
    QTest::newRow("truncated, not rounded") << 9 << 70 << int(FontRole::Body) << 6 << 300;
    QTest::newRow("caption stays legible") << 9 << 70 << int(FontRole::Caption) << 7 << 300;
    QTest::newRow("only the body is scaled") << 10 << 160 << int(FontRole::Display) << 30 << 700;
    QTest::newRow("base in pixels") << 0 << 130 << int(FontRole::Body) << 13 << 300;
    QTest::newRow("never nothing") << 1 << 70 << int(FontRole::Body) << 1 << 300;
}

void ThemeManagerTest::rolesGiveSizesAndWeights()
{
    QFETCH(int, basePoints);
    QFETCH(int, scale);
    QFETCH(int, role);
    QFETCH(int, points);
    QFETCH(int, weight);

    baseFont() = QFont(u"DejaVu Sans"_s);
    baseFont().setWeight(QFont::Light);
    if (basePoints > 0)
        baseFont().setPointSize(basePoints);
    else
        baseFont().setPixelSize(40);
    fontScale() = scale;

    const QFont font = fontForRole(role);
    QCOMPARE(font.pointSize(), points);
    QCOMPARE(int(font.weight()), weight);
    const bool figures = role == FontRole::Monospace;
    QCOMPARE(font.family(), figures ? u"monospace"_s : u"DejaVu Sans"_s);
    QCOMPARE(font.styleHint() == QFont::Monospace, figures);
}

void ThemeManagerTest::scaleIsClampedAndStored_data()
{
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("stored");

    QTest::newRow("too small") << 50 << 70;
    QTest::newRow("smallest") << 70 << 70;
    QTest::newRow("between") << 115 << 115;
    QTest::newRow("largest") << 160 << 160;
    QTest::newRow("too large") << 200 << 160;
}

void ThemeManagerTest::scaleIsClampedAndStored()
{
    QFETCH(int, wanted);
    QFETCH(int, stored);

    QSignalSpy changed(m_themes.get(), &ThemeManager::fontScaleChanged);
    m_themes->setFontScale(wanted);
    QCOMPARE(ThemeManager::fontScale(), stored);
    QCOMPARE(m_preferences->getOr(u"fontScale"_s, {}), QString::number(stored));
    QCOMPARE(QApplication::font().pointSize(), stored / 10);
    QCOMPARE(changed, QList<QVariantList>{{stored}});
}

void ThemeManagerTest::scaleReachesWidgetsWithARole()
{
    QWidget window;
    QLabel heading(&window), bold(&window), italic(&window), own(&window), plain(&window);
    applyFontRole(&heading, FontRole::Heading);
    applyFontRole(&bold, FontRole::Body, QFont::Black);
    applyFontRole(&italic, FontRole::Caption);
    italic.setProperty(kFontItalicProperty, true);
    own.setFont(QFont(u"DejaVu Sans"_s, 33));
    applyFontRole(nullptr, FontRole::Heading);

    m_themes->setFontScale(150);
    QCOMPARE(heading.font().pointSize(), 19);
    QCOMPARE(bold.font().pointSize(), 15);
    QCOMPARE(bold.font().weight(), QFont::Black);
    QCOMPARE(italic.font().pointSize(), 13);
    QVERIFY(italic.font().italic());
    QCOMPARE(own.font().pointSize(), 33);
    QTRY_COMPARE(plain.font().pointSize(), 15);
}

void ThemeManagerTest::scaleKeepsTheTheme()
{
    m_themes->setTheme(ThemeManager::Dark);
    QSignalSpy themeChanged(m_themes.get(), &ThemeManager::themeChanged);
    m_themes->setFontScale(120);
    QVERIFY(isDarkPalette());
    QCOMPARE(themeChanged.size(), 1);
}

PURSEWELL_TEST_MAIN(ThemeManagerTest)
#include "ThemeManagerTest.moc"
