#pragma once

#include "shell/SettingsPage.h"

class AppState;
class QComboBox;

// The choices of look, week and language, set to what is in force. It stores nothing.
class SettingsGeneralPage : public SettingsPage
{
    Q_OBJECT

public:
    explicit SettingsGeneralPage(const AppState *appState);

    // The data of an item is the word or number to store.
    QComboBox *themeCombo() const { return m_theme; }
    QComboBox *fontScaleCombo() const { return m_fontScale; }
    QComboBox *weekStartCombo() const { return m_weekStart; } // no item on any other day
    QComboBox *languageCombo() const { return m_language; }

private:
    void addAppearance(const AppState *appState);
    void addRegional();

    QComboBox *m_theme = nullptr;
    QComboBox *m_fontScale = nullptr;
    QComboBox *m_weekStart = nullptr;
    QComboBox *m_language = nullptr;
};
