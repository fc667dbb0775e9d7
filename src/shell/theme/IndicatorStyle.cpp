#include "shell/theme/IndicatorStyle.h"

#include "shell/theme/MoneyColors.h"

#include <QStyleOptionButton>

namespace {

constexpr int kEdgeDarkening = 150; // percent, of Fusion

QColor edgeColor(const QStyleOption &option)
{
    return option.state & QStyle::State_Enabled
        ? mutedColor()
        : option.palette.color(QPalette::Disabled, QPalette::WindowText);
}

} // namespace

// Fusion makes the edge from a darker window colour, and darker than a dark window is nothing.
// Check marks in lists and menus come here as check boxes.
void IndicatorStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                   QPainter *painter, const QWidget *widget) const
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    const bool isIndicator = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    if (!button || !isIndicator || !isDarkPalette()) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    QStyleOptionButton visible(*button);
    visible.palette.setColor(QPalette::Window, edgeColor(*button).lighter(kEdgeDarkening));
    QProxyStyle::drawPrimitive(element, &visible, painter, widget);
}
