#pragma once

#include "shell/SettingsPage.h"

class PreferencesRepository;
class QCheckBox;

// The choices of the register's layout, set to what is stored. It stores nothing.
class SettingsRegisterPage : public SettingsPage
{
    Q_OBJECT

public:
    explicit SettingsRegisterPage(const PreferencesRepository *preferences);

    QCheckBox *twoLineCheck() const { return m_twoLine; }
    QCheckBox *newestFirstCheck() const { return m_newestFirst; }

private:
    QCheckBox *addCheck(const QString &name, const QString &text, const QString &help);

    QCheckBox *m_twoLine = nullptr;
    QCheckBox *m_newestFirst = nullptr;
};
