#include "shell/theme/IndicatorStyle.h"

#include "shell/Contrast.h"
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

class IndicatorStyleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void edgesShow();
};

void IndicatorStyleTest::edgesShow()
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

PURSEWELL_TEST_MAIN(IndicatorStyleTest)
#include "IndicatorStyleTest.moc"
