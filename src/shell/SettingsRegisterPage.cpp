#include "shell/SettingsRegisterPage.h"

#include "data/PreferencesRepository.h"
#include "shell/SettingsSections.h"

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

SettingsRegisterPage::SettingsRegisterPage(const PreferencesRepository *preferences)
    : SettingsPage(tr("Register"))
{
    column()->addWidget(makeSection(tr("Display"), tr("How transactions appear in the register.")));
    m_twoLine = addCheck(u"twoLineCheck"_s, tr("Two-line rows"),
                         tr("Show memo on a second line below the payee."));
    column()->addWidget(makeDivider());
    column()->addWidget(
        makeSection(tr("Sorting"), tr("Control the order of transactions in the register.")));
    m_newestFirst = addCheck(u"newestFirstCheck"_s, tr("Show newest transactions first"),
                             tr("When enabled, the most recent transactions appear at the top."));
    m_twoLine->setChecked(preferences->getBool(u"registerTwoLine"_s, false));
    m_newestFirst->setChecked(preferences->getBool(u"registerNewestFirst"_s, false));
}

QCheckBox *SettingsRegisterPage::addCheck(const QString &name, const QString &text,
                                          const QString &help)
{
    auto *check = new QCheckBox(text);
    check->setObjectName(name);
    check->setAccessibleDescription(help);
    column()->addWidget(check);
    column()->addWidget(makeHelpText(help));
    return check;
}
