#pragma once

#include <QObject>
#include <QString>

class PreferencesRepository;

// Applies one of two fixed palettes to the whole application and keeps the user's choice of theme
// and font scale in the preferences.
class ThemeManager : public QObject
{
    Q_OBJECT

public:
    enum Theme {
        System = 0, // resolved whenever it is set; a later change of the desktop is not followed
        Light = 1,
        Dark = 2,
    };
    Q_ENUM(Theme)

    // Sets no palette yet. The repository is not owned.
    explicit ThemeManager(PreferencesRepository *preferences, QObject *parent = nullptr);

    Theme theme() const { return m_theme; }
    void setTheme(Theme theme);
    void setThemeByName(const QString &word); // the exact stored word; any other is System
    static QString themeName(Theme theme); // the stored word

    void setFontScale(int percent); // clamped; reaches every widget with a font role
    static int fontScale(); // percent

Q_SIGNALS:
    void themeChanged(ThemeManager::Theme theme);
    void fontScaleChanged(int percent); // after all widgets have their new font

private:
    PreferencesRepository *m_preferences;
    Theme m_theme = System;
};
