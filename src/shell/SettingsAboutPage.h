#pragma once

#include "shell/SettingsPage.h"

// What this program is, and by whose licences.
class SettingsAboutPage : public SettingsPage
{
    Q_OBJECT

public:
    SettingsAboutPage();
};
