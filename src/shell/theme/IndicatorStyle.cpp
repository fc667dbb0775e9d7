#include "shell/theme/IndicatorStyle.h"

#include "shell/theme/MoneyColors.h"

#include <QPainter>
#include <QStyleOptionButton>

namespace {

constexpr int kEdgeDarkening = 150; // percent, of Fusion
constexpr int kFocusInset = 3; // pixels

bool hasKeyboardFocus(const QStyleOption &option)
{
    constexpr QStyle::State needed = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    return (option.state & needed) == needed;
}

void drawFocusFrame(QPainter *painter, const QRect &rect, const QColor &color)
{
    painter->save();
    painter->setPen(color);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

// Fusion marks the edge alone, which a default button has marked anyway.
void drawFocusInside(QPainter *painter, const QStyleOption &option)
{
    constexpr QMargins inset(kFocusInset, kFocusInset, kFocusInset, kFocusInset);
    drawFocusFrame(painter, option.rect - inset, option.palette.color(QPalette::ButtonText));
}

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
    if (element == PE_FrameFocusRect && option->state & State_KeyboardFocusChange) {
        const bool selected = option->state & State_Selected;
        drawFocusFrame(
            painter, option->rect,
            option->palette.color(selected ? QPalette::HighlightedText : QPalette::Highlight));
        return;
    }
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

void IndicatorStyle::drawControl(ControlElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_PushButton && hasKeyboardFocus(*option))
        drawFocusInside(painter, *option);
}

void IndicatorStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                        QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    const auto *combo = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    if (combo && !combo->editable && hasKeyboardFocus(*combo))
        drawFocusInside(painter, *combo);
}
