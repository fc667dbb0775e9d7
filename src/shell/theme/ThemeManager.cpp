#include "shell/theme/ThemeManager.h"

#include "data/PreferencesRepository.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/SystemColorScheme.h"
#include "shell/theme/ThemePalettes.h"

#include <QApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

ThemeManager::ThemeManager(PreferencesRepository *preferences, QObject *parent)
    : QObject(parent)
    , m_preferences(preferences)
{
    systemPrefersDark(); // asked while the desktop's own palette is still in force
}

void ThemeManager::setTheme(Theme theme)
{
    m_theme = theme;
    const bool dark = theme == Dark || (theme == System && systemPrefersDark());
    QApplication::setPalette(dark ? darkPalette() : lightPalette());
    QApplication::setFont(scaledFont());
    m_preferences->set(u"theme"_s, themeName(theme));
    Q_EMIT themeChanged(theme);
}

void ThemeManager::setThemeByName(const QString &word)
{
    if (word == themeName(Light))
        setTheme(Light);
    else if (word == themeName(Dark))
        setTheme(Dark);
    else
        setTheme(System);
}

QString ThemeManager::themeName(Theme theme)
{
    switch (theme) {
    case Light:
        return u"light"_s;
    case Dark:
        return u"dark"_s;
    case System:
        break;
    }
    return u"system"_s;
}

void ThemeManager::setFontScale(int percent)
{
    ::fontScale() = std::clamp(percent, kMinFontScale, kMaxFontScale);
    m_preferences->set(u"fontScale"_s, QString::number(::fontScale()));
    setTheme(m_theme); // the application's own font follows the scale
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets)
        reapplyFontRole(widget);
    Q_EMIT fontScaleChanged(::fontScale());
}

int ThemeManager::fontScale()
{
    return ::fontScale();
}
