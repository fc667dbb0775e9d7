#include "shell/theme/MoneyColors.h"

#include <QGuiApplication>
#include <QPalette>

bool isDarkPalette()
{
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

QColor negativeColor()
{
    return isDarkPalette() ? QColor(0xFF, 0x8A, 0x80) : QColor(0xC6, 0x28, 0x28);
}

QColor positiveColor()
{
    return isDarkPalette() ? QColor(0x66, 0xBB, 0x6A) : QColor(0x2E, 0x7D, 0x32);
}

QColor mutedColor()
{
    return QColor(0x6E, 0x8A, 0x7E);
}
