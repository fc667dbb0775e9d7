#include "shell/Contrast.h"

#include "shell/theme/IndicatorStyle.h"
#include "shell/theme/MoneyColors.h"
#include "shell/theme/ThemePalettes.h"
#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {

QImage drawn(const QStyle &style, QStyle::PrimitiveElement element)
{
    QStyleOptionViewItem item;
    QStyleOptionButton button;
    const bool inList = element == QStyle::PE_IndicatorItemViewItemCheck;
    QStyleOption &option = inList ? static_cast<QStyleOption &>(item) : button;
    option.rect = QRect(2, 2, 14, 14);
    option.palette = QApplication::palette();
    option.state = QStyle::State_Enabled | QStyle::State_Off;
    QImage image(18, 18, QImage::Format_RGB32);
    image.fill(option.palette.color(QPalette::Window));
    QPainter painter(&image);
    style.drawPrimitive(element, &option, &painter);
    return image;
}

} // namespace

// The colours that no window shows at rest, or that the style draws with.
class ContrastTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colorsCanBeTold_data();
    void colorsCanBeTold();
    void edgesShow();

private:
    static void addPalette(const char *theme, const QPalette &palette);
};

void ContrastTest::addPalette(const char *theme, const QPalette &palette)
{
    QApplication::setPalette(palette); // the money colours follow it
    const auto add = [&](const char *what, const QColor &text, const QColor &ground,
                         double needed = kTextContrast) {
        QTest::addRow("%s, %s", theme, what) << text << ground << needed;
    };
    const auto of = [&palette](QPalette::ColorRole role) { return palette.color(role); };
    add("text on a window", of(QPalette::WindowText), of(QPalette::Window));
    add("text in a field", of(QPalette::Text), of(QPalette::Base));
    add("text in every other row", of(QPalette::Text), of(QPalette::AlternateBase));
    add("text on a button", of(QPalette::ButtonText), of(QPalette::Button));
    add("selected text", of(QPalette::HighlightedText), of(QPalette::Highlight));
    add("text of a tool tip", of(QPalette::ToolTipText), of(QPalette::ToolTipBase));
    add("placeholder", of(QPalette::PlaceholderText), of(QPalette::Base));
    add("calendar button", of(QPalette::PlaceholderText), of(QPalette::Base), kLargeContrast);
    add("focus on a window", of(QPalette::Highlight), of(QPalette::Window), kLargeContrast);
    add("focus in a field", of(QPalette::Highlight), of(QPalette::Base), kLargeContrast);
    const std::pair<const char *, QColor> grounds[] = {
        {"window", of(QPalette::Window)},
        {"row", of(QPalette::Base)},
        {"other row", of(QPalette::AlternateBase)},
        {"row under edit", isDarkPalette() ? QColor(0x1A, 0x2E, 0x28) : QColor(0xE8, 0xF5, 0xE9)}};
    for (const auto &[where, ground] : grounds) {
        add(qPrintable(u"negative on "_s + QLatin1StringView(where)), negativeColor(), ground);
        add(qPrintable(u"positive on "_s + QLatin1StringView(where)), positiveColor(), ground);
        add(qPrintable(u"muted on "_s + QLatin1StringView(where)), mutedColor(), ground);
    }
    add("selected balance", negativeColor(), of(QPalette::Highlight));
    add("focus of a primary button", of(QPalette::WindowText), u"#00897B"_s, kLargeContrast);
}

void ContrastTest::colorsCanBeTold_data()
{
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<double>("needed");
    addPalette("light", lightPalette());
    addPalette("dark", darkPalette());
}

void ContrastTest::colorsCanBeTold()
{
    QFETCH(QColor, text);
    QFETCH(QColor, ground);
    QFETCH(double, needed);
    const QString fault =
        contrastFault(QString::fromUtf8(QTest::currentDataTag()), text, ground, needed);
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
}

void ContrastTest::edgesShow()
{
    const IndicatorStyle style(u"Fusion"_s);
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(u"Fusion"_s));
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton,
                               QStyle::PE_IndicatorItemViewItemCheck}) {
        QApplication::setPalette(lightPalette());
        QCOMPARE(drawn(style, element), drawn(*fusion, element));
        QApplication::setPalette(darkPalette());
        const QImage image = drawn(style, element);
        double most = 0;
        for (int x = 0; x < image.width(); ++x)
            most = qMax(most,
                        contrast(image.pixelColor(x, image.height() / 2), image.pixelColor(0, 0)));
        QVERIFY(most >= kLargeContrast);
    }
}

PURSEWELL_TEST_MAIN(ContrastTest)
#include "ContrastTest.moc"
