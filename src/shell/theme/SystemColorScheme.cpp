#include "shell/theme/SystemColorScheme.h"

#include <QtGlobal>

#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
#include <QGuiApplication>
#include <QStyleHints>

bool systemPrefersDark()
{
    return QGuiApplication::styleHints()->colorScheme() == Qt::ColorScheme::Dark;
}
#else
#include "shell/theme/MoneyColors.h"

bool systemPrefersDark()
{
    static const bool dark = isDarkPalette();
    return dark;
}
#endif
