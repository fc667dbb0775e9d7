#include "shell/SettingsScreen.h"

#include "core/Dates.h"
#include "core/Language.h"
#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/PreferencesRepository.h"
#include "data/ReconciliationRepository.h"
#include "data/RecurringRepository.h"
#include "data/SqlTransaction.h"
#include "data/TransactionRepository.h"
#include "shell/SettingsAboutPage.h"
#include "shell/SettingsBackupSection.h"
#include "shell/SettingsDeletedAccounts.h"
#include "shell/SettingsGeneralPage.h"
#include "shell/SettingsNavigation.h"
#include "shell/SettingsRegisterPage.h"
#include "shell/SettingsSections.h"
#include "shell/SettingsSyncSection.h"
#include "shell/theme/ThemeManager.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace {

// The rows of an account are deleted just before the account itself, each table with a stamp of its
// own.
constexpr int kCascadeSeconds = 10;

}

SettingsScreen::SettingsScreen(AppState *appState, QWidget *parent)
    : QWidget(parent)
    , m_appState(appState)
    , m_navigation(new SettingsNavigation)
    , m_pages(new QStackedWidget)
{
    setObjectName(u"settingsScreen"_s);
    setWindowTitle(tr("Preferences"));
    m_pages->setObjectName(u"pages"_s);
    m_pages->addWidget(buildGeneralPage());
    m_pages->addWidget(buildRegisterPage());
    m_pages->addWidget(buildDataPage());
    m_pages->addWidget(new SettingsAboutPage);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_navigation);
    row->addWidget(m_pages, 1);
    connect(m_navigation, &QListWidget::currentRowChanged, this,
            &SettingsScreen::onCategoryChanged);
    m_navigation->setCurrentRow(0);
    connect(m_appState->themeManager(), &ThemeManager::themeChanged, this,
            &SettingsScreen::applyTheme);
    connect(m_appState->accounts(), &AccountRepository::accountsChanged, m_deleted,
            &SettingsDeletedAccounts::reload);
    refresh();
}

// The boxes show what is stored before they are connected, so that a page that is built writes
// nothing.
SettingsPage *SettingsScreen::buildGeneralPage()
{
    m_general = new SettingsGeneralPage(m_appState);
    const auto onChoice = [this](QComboBox *combo, void (SettingsScreen::*slot)(int)) {
        connect(combo, &QComboBox::currentIndexChanged, this, slot);
    };
    onChoice(m_general->themeCombo(), &SettingsScreen::onThemeChanged);
    onChoice(m_general->fontScaleCombo(), &SettingsScreen::onFontScaleChanged);
    onChoice(m_general->weekStartCombo(), &SettingsScreen::onWeekStartChanged);
    onChoice(m_general->languageCombo(), &SettingsScreen::onLanguageChanged);
    return m_general;
}

SettingsPage *SettingsScreen::buildRegisterPage()
{
    auto *page = new SettingsRegisterPage(m_appState->preferences());
    connect(page->twoLineCheck(), &QCheckBox::toggled, this, &SettingsScreen::onTwoLineModeChanged);
    connect(page->newestFirstCheck(), &QCheckBox::toggled, this,
            &SettingsScreen::onRegisterOrderChanged);
    return page;
}

SettingsPage *SettingsScreen::buildDataPage()
{
    auto *page = new SettingsPage(tr("Data & Sync"));
    m_sync = new SettingsSyncSection(m_appState);
    auto *backup = new SettingsBackupSection(m_appState);
    m_deleted = new SettingsDeletedAccounts(m_appState->accounts());
    page->column()->addWidget(m_sync);
    page->column()->addWidget(makeDivider());
    page->column()->addWidget(backup);
    page->column()->addWidget(m_deleted); // brings its own divider, which goes with it
    connect(m_sync, &SettingsSyncSection::passEnded, this, &SettingsScreen::refresh);
    connect(backup, &SettingsBackupSection::backupImported, this, [this] {
        refresh();
        Q_EMIT deletedAccountRestored();
    });
    connect(m_deleted, &SettingsDeletedAccounts::restoreRequested, this,
            &SettingsScreen::restoreSelectedAccount);
    return page;
}

void SettingsScreen::refresh()
{
    m_deleted->reload();
    m_sync->refresh();
}

void SettingsScreen::onCategoryChanged(int row)
{
    m_pages->setCurrentIndex(row);
}

void SettingsScreen::onThemeChanged(int index)
{
    m_appState->themeManager()->setThemeByName(m_general->themeCombo()->itemData(index).toString());
}

void SettingsScreen::onFontScaleChanged(int index)
{
    const int percent = m_general->fontScaleCombo()->itemData(index).toInt();
    if (percent > 0)
        m_appState->themeManager()->setFontScale(percent);
}

// The day first: whoever hears of the preference reads it.
void SettingsScreen::onWeekStartChanged(int index)
{
    const int day = m_general->weekStartCombo()->itemData(index).toInt();
    if (day < Qt::Monday || day > Qt::Sunday)
        return;
    weekStart() = day;
    m_appState->preferences()->setInt(u"weekStartDay"_s, day);
}

void SettingsScreen::onLanguageChanged(int index)
{
    const QString word = m_general->languageCombo()->itemData(index).toString();
    if (word.isEmpty() || word == Language::current(false))
        return;
    Language::store(word);
    QMessageBox box(QMessageBox::Information, tr("Language Changed"),
                    tr("The new language will take effect the next time you start Kestrelwood "
                       "Pursewell."),
                    QMessageBox::Ok, this);
    box.setObjectName(u"languageChangedBox"_s);
    box.exec();
}

void SettingsScreen::onRegisterOrderChanged(bool checked)
{
    m_appState->preferences()->setBool(u"registerNewestFirst"_s, checked);
}

void SettingsScreen::onTwoLineModeChanged(bool checked)
{
    m_appState->preferences()->setBool(u"registerTwoLine"_s, checked);
}

void SettingsScreen::restoreSelectedAccount()
{
    const QString id = m_deleted->selectedId();
    if (id.isEmpty())
        return;
    const bool isRestored = restoreWithRows(id);
    m_deleted->reload(); // after an undone transaction too, whose first writes it has heard of
    if (isRestored)
        Q_EMIT deletedAccountRestored();
    else
        tellRestoreFailed();
}

// Nothing of it when the last write is refused.
bool SettingsScreen::restoreWithRows(const QString &accountId)
{
    SqlTransaction cascade(m_appState->database());
    restoreRowsOf(accountId);
    return m_appState->accounts()->restore(accountId) && cascade.commit();
}

// What had been deleted before the account was stays deleted.
void SettingsScreen::restoreRowsOf(const QString &accountId)
{
    const std::optional<Account> account = m_appState->accounts()->findById(accountId);
    if (!account || !account->deleted_at)
        return;
    const QString since = isoStamp(account->deleted_at->addSecs(-kCascadeSeconds));
    m_appState->transactions()->restoreByAccount(accountId, since);
    m_appState->recurring()->restoreByAccount(accountId, since);
    m_appState->reconciliations()->restoreByAccount(accountId, since);
}

void SettingsScreen::tellRestoreFailed()
{
    QMessageBox box(QMessageBox::Warning, tr("Restore Failed"),
                    tr("The account could not be restored."), QMessageBox::Ok, this);
    box.setObjectName(u"restoreFailedBox"_s);
    box.exec();
}

void SettingsScreen::applyTheme()
{
    m_navigation->applyTheme();
    restyleSections(this);
    m_sync->refresh();
}
