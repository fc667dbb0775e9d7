#include "shell/SettingsGeneralPage.h"

#include "core/Dates.h"
#include "core/Language.h"
#include "core/state/AppState.h"
#include "data/PreferencesRepository.h"
#include "shell/SettingsSections.h"
#include "shell/theme/ThemeManager.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLocale>
#include <QWheelEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kShortestText = 12; // characters; a narrow window must not cut the page

struct Choice
{
    QString text;
    QVariant data;
};

// Each choice takes effect at once, so that turning the wheel to scroll the page must not make one.
class ScrolledCombo : public QComboBox
{
protected:
    void wheelEvent(QWheelEvent *event) override { event->ignore(); }
};

QFormLayout *makeForm()
{
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    return form;
}

QComboBox *addChoices(QFormLayout *form, const QString &name, const QString &label,
                      const QList<Choice> &choices)
{
    auto *combo = new ScrolledCombo;
    combo->setObjectName(name);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(kShortestText);
    for (const Choice &choice : choices)
        combo->addItem(choice.text, choice.data);
    form->addRow(label, combo);
    return combo;
}

void selectOr(QComboBox *combo, const QVariant &data, const QVariant &otherwise)
{
    const int index = combo->findData(data);
    combo->setCurrentIndex(index >= 0 ? index : combo->findData(otherwise));
}

} // namespace

SettingsGeneralPage::SettingsGeneralPage(const AppState *appState)
    : SettingsPage(tr("General"), tr("Control how Kestrelwood Pursewell looks."))
{
    addAppearance(appState);
    column()->addWidget(makeDivider());
    addRegional();
}

void SettingsGeneralPage::addAppearance(const AppState *appState)
{
    QFormLayout *form = makeForm();
    m_theme = addChoices(
        form, u"themeCombo"_s, tr("Theme"),
        {{tr("System Default"), u"system"_s}, {tr("Light"), u"light"_s}, {tr("Dark"), u"dark"_s}});
    m_fontScale = addChoices(form, u"fontScaleCombo"_s, tr("Font size"),
                             {{tr("Small"), 85},
                              {tr("Default"), 100},
                              {tr("Medium"), 115},
                              {tr("Large"), 130},
                              {tr("Extra Large"), 150}});
    selectOr(m_theme, appState->preferences()->getOr(u"theme"_s, u"system"_s), u"system"_s);
    selectOr(m_fontScale, ThemeManager::fontScale(), 100);
    column()->addWidget(makeSection(tr("Appearance")));
    column()->addLayout(form);
}

void SettingsGeneralPage::addRegional()
{
    QFormLayout *form = makeForm();
    m_weekStart = addChoices(form, u"weekStartCombo"_s, tr("Week starts on"),
                             {{tr("Sunday"), int(Qt::Sunday)},
                              {tr("Monday"), int(Qt::Monday)},
                              {tr("Saturday"), int(Qt::Saturday)}});
    m_language = addChoices(form, u"languageCombo"_s, tr("Language"),
                            {{tr("System Default"), u"system"_s},
                             {u"English"_s, u"en"_s},
                             {u"Español"_s, u"es"_s},
                             {u"Deutsch"_s, u"de"_s},
                             {u"Français"_s, u"fr"_s},
                             {u"日本語"_s, u"ja"_s}});
    // The locale's day may be none of these. It is shown, and stays until another is picked.
    m_weekStart->setCurrentIndex(m_weekStart->findData(weekStart()));
    m_weekStart->setPlaceholderText(QLocale().standaloneDayName(weekStart()));
    selectOr(m_language, Language::current(false), u"system"_s);
    column()->addWidget(makeSection(tr("Regional"), tr("Date and calendar preferences.")));
    column()->addLayout(form);
}
