#include "shell/theme/FontRoles.h"

#include <QApplication>
#include <QVariant>
#include <QWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kFallbackPointSize = 10; // a base font given in pixels has no point size
constexpr int kMinCaptionSize = 7;

QFont fontOf(int pointSize)
{
    QFont font = baseFont();
    font.setPointSize(pointSize);
    return font;
}

QFont fontOf(int pointSize, QFont::Weight weight)
{
    QFont font = fontOf(pointSize);
    font.setWeight(weight);
    return font;
}

} // namespace

int &fontScale()
{
    static int percent = 100;
    return percent;
}

QFont &baseFont()
{
    static QFont font = QApplication::font();
    return font;
}

int scaledPointSize()
{
    const int points = baseFont().pointSize() < 1 ? kFallbackPointSize : baseFont().pointSize();
    return std::max(1, points * fontScale() / 100);
}

QFont scaledFont()
{
    return fontOf(scaledPointSize());
}

QFont fontForRole(int role)
{
    const int scaled = scaledPointSize();
    switch (role) {
    case FontRole::BodyMedium:
        return fontOf(scaled, QFont::Medium);
    case FontRole::Caption:
        return fontOf(std::max(kMinCaptionSize, scaled - 2));
    case FontRole::Subheading:
        return fontOf(scaled + 1, QFont::Medium);
    case FontRole::Heading:
        return fontOf(scaled + 4, QFont::DemiBold);
    case FontRole::Title:
        return fontOf(scaled + 8, QFont::DemiBold);
    case FontRole::Display:
        return fontOf(scaled + 14, QFont::Bold);
    case FontRole::Monospace:
        return monoFont();
    default:
        return scaledFont();
    }
}

QFont monoFont()
{
    QFont font(u"monospace"_s, scaledPointSize());
    font.setStyleHint(QFont::Monospace);
    return font;
}

void applyFontRole(QWidget *widget, int role)
{
    if (!widget)
        return;
    widget->setProperty(kFontRoleProperty, role);
    widget->setFont(fontForRole(role));
}

void applyFontRole(QWidget *widget, int role, int weight)
{
    if (!widget)
        return;
    widget->setProperty(kFontRoleProperty, role);
    widget->setProperty(kFontWeightProperty, weight);
    QFont font = fontForRole(role);
    font.setWeight(static_cast<QFont::Weight>(weight));
    widget->setFont(font);
}

void reapplyFontRole(QWidget *widget)
{
    const QVariant role = widget->property(kFontRoleProperty);
    if (!role.isValid())
        return;
    QFont font = fontForRole(role.toInt());
    if (widget->property(kFontItalicProperty).toBool())
        font.setItalic(true);
    const QVariant weight = widget->property(kFontWeightProperty);
    if (weight.isValid())
        font.setWeight(static_cast<QFont::Weight>(weight.toInt()));
    widget->setFont(font);
}
