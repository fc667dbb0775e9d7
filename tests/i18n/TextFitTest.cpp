#include "core/Language.h"
#include "i18n/AccessKeys.h"
#include "i18n/CutTexts.h"
#include "i18n/LanguageChange.h"
#include "shell/EveryWindow.h"
#include "shell/theme/IndicatorStyle.h"
#include "shell/theme/ThemeManager.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

// Every window, at the size at which the program shows it, has room for its texts, and one field or
// button to an access key.
class TextFitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsFit_data();
    void textsFit();
};

namespace {

QStringList textsWithKeys(const QWidget *window)
{
    QStringList texts;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        if (!widget->isVisible() || widget->window() != window)
            continue;
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            texts << button->text();
        const auto *label = qobject_cast<const QLabel *>(widget);
        if (label && label->buddy())
            texts << label->text();
    }
    return texts;
}

QStringList faultsOf(const QWidget *window, const QString &language)
{
    QStringList texts = textsWithKeys(window);
    // In English two fields of the account form share a key: pressed again, it goes on to the
    // other.
    if (language == u"en"_s)
        texts.removeAll(u"Account &Number:"_s);
    return cutTexts(window) + accessKeyClashes(texts);
}

} // namespace

void TextFitTest::textsFit_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("percent");
    for (const QString &language : Language::supported()) {
        for (const int percent : {100, 150})
            QTest::addRow("%s, %d %%", qPrintable(language), percent) << language << percent;
    }
}

void TextFitTest::textsFit()
{
    QFETCH(QString, language);
    QFETCH(int, percent);
    int faults = 0;
    const LanguageChange change(language);
    EveryWindow windows([&](const QString &name, const QWidget *window) {
        for (const QString &fault : faultsOf(window, language)) {
            qWarning("%s: %s", qPrintable(name), qPrintable(fault)); // QVERIFY2 cuts a long message
            ++faults;
        }
    });
    ThemeManager *theme = windows.shell().state()->themeManager();
    theme->setFontScale(percent);
    windows.visitAll();
    theme->setFontScale(100); // the next state takes the font it finds for the usual one
    QCOMPARE(faults, 0);
}

// A screen as large as that of a small notebook; the platform's own is smaller than most windows.
int main(int argc, char *argv[])
{
    const TestEnvironment environment;
    const QString screen = environment.path(u"screen.json"_s);
    QFile file(screen);
    if (!file.open(QIODevice::WriteOnly))
        return 1;
    file.write(R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": 1600, "height": 1000,
                                "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    file.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.toUtf8());
    QApplication application(argc, argv);
    QApplication::setOrganizationName(u"Kestrelwood"_s);
    QApplication::setApplicationName(u"Pursewell"_s);
    QApplication::setStyle(new IndicatorStyle);
    TextFitTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "TextFitTest.moc"
