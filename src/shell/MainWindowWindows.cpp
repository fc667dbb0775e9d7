// The secondary windows of the main window: made on first use, then reused.

#include "shell/MainWindow.h"

#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/RecurringRepository.h"
#include "register/RegisterScreen.h"
#include "screens/CategoriesScreen.h"
#include "screens/ImportScreen.h"
#include "screens/PayeeScreen.h"
#include "screens/ReconciliationHistoryScreen.h"
#include "screens/ReconciliationScreen.h"
#include "screens/RecurringScreen.h"
#include "screens/ReportsScreen.h"
#include "screens/SearchScreen.h"
#include "shell/SettingsScreen.h"
#include "shell/theme/FontRoles.h"

#include <QPointer>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

// A window goes with the main window that presented it; a later main window makes its own.
template <typename Screen> QPointer<Screen> &screenOf()
{
    static QPointer<Screen> screen;
    return screen;
}

template <typename Screen> void reloadIfOpen(void (Screen::*reload)())
{
    if (const QPointer<Screen> &screen = screenOf<Screen>(); screen && screen->isVisible())
        (screen->*reload)();
}

// The sizes are meant for a text of the usual height; a larger one needs more room in both ways.
QSize sizeForFont(QSize size, QSize screen)
{
    return (size * fontScale() / 100).boundedTo(screen).expandedTo(size);
}

} // namespace

// The first showing makes it a window of this one, so that it stays in front of it and closes with
// it. A window that was resized by hand keeps its size until the program ends.
void MainWindow::presentWindow(QWidget *window, const QString &title, QSize size)
{
    window->setWindowTitle(title);
    if (!window->parentWidget()) {
        window->setParent(this, Qt::Window);
        window->resize(sizeForFont(size, screen()->availableSize()));
    }
    if (window->isMinimized())
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    if (window->isHidden())
        window->show();
    window->raise();
    window->activateWindow();
}

// Each run has a window of its own: what was ticked and not finished goes with it.
void MainWindow::showReconciliationWindow()
{
    const std::optional<Account> account =
        m_appState->accounts()->findById(m_appState->currentAccountId());
    if (!account) {
        showSelectAccountFirst();
        return;
    }
    auto *screen = new ReconciliationScreen(m_appState);
    screen->setObjectName(u"reconciliationScreen"_s);
    screen->setAttribute(Qt::WA_DeleteOnClose);
    connect(screen, &ReconciliationScreen::reconciliationCompleted, this, [this, screen] {
        m_registerScreen->refresh();
        populateAccountList();
        screen->close();
    });
    connect(screen, &ReconciliationScreen::cancelled, screen, &QWidget::close);
    // What was added, edited or deleted during a run stays, even if the run was given up.
    connect(screen, &QObject::destroyed, m_registerScreen, &RegisterScreen::refresh);
    screen->startForAccount(account->id);
    presentWindow(screen, tr("Reconcile — %1").arg(account->name), {1100, 720});
}

void MainWindow::showReconciliationHistoryWindow()
{
    const QString accountId = m_appState->currentAccountId();
    if (accountId.isEmpty()) {
        showSelectAccountFirst();
        return;
    }
    QPointer<ReconciliationHistoryScreen> &screen = screenOf<ReconciliationHistoryScreen>();
    if (!screen) {
        screen = new ReconciliationHistoryScreen(m_appState);
        screen->setObjectName(u"reconciliationHistoryScreen"_s);
    }
    screen->setAccount(accountId);
    presentWindow(screen, tr("Reconciliation History"), {750, 500});
}

void MainWindow::showRecurringWindow()
{
    QPointer<RecurringScreen> &screen = screenOf<RecurringScreen>();
    if (!screen) {
        screen = new RecurringScreen(m_appState);
        connect(screen, &RecurringScreen::transactionsChanged, this, [this] {
            m_registerScreen->refresh();
            populateAccountList();
        });
        connect(m_appState->recurring(), &RecurringRepository::recurringChanged, screen,
                [window = screen.data()] {
                    if (window->isVisible())
                        window->scheduleRefresh();
                });
    }
    screen->refresh();
    presentWindow(screen, tr("Recurring Transactions"), {700, 500});
}

void MainWindow::showReportsWindow()
{
    QPointer<ReportsScreen> &screen = screenOf<ReportsScreen>();
    if (!screen)
        screen = new ReportsScreen(m_appState);
    screen->refresh();
    presentWindow(screen, tr("Reports"), {800, 600});
}

// A double click on a result leads nowhere yet: no screen hears of it.
void MainWindow::showSearchWindow()
{
    QPointer<SearchScreen> &screen = screenOf<SearchScreen>();
    if (!screen)
        screen = new SearchScreen(m_appState);
    screen->reloadFilters();
    presentWindow(screen, tr("Search Transactions"), {800, 550});
    screen->focusSearchField();
}

// Being shown, the screen clears itself and reads the accounts anew; one that is open keeps what a
// person has chosen in it.
void MainWindow::showImportWindow()
{
    QPointer<ImportScreen> &screen = screenOf<ImportScreen>();
    if (!screen) {
        screen = new ImportScreen(m_appState);
        connect(screen, &ImportScreen::importCompleted, this, &MainWindow::reloadEverything);
    }
    presentWindow(screen, tr("Import Transactions"), {650, 600});
}

// After work that may have touched every table without telling row by row.
void MainWindow::reloadEverything()
{
    // It may have brought the first accounts.
    if (m_appState->currentAccountId().isEmpty())
        restoreInitialView();
    else
        m_registerScreen->refresh();
    populateAccountList();
    showDueCount();
    reloadOpenWindows();
}

void MainWindow::reloadOpenWindows()
{
    reloadIfOpen(&CategoriesScreen::reloadTree);
    reloadIfOpen(&RecurringScreen::refresh);
    reloadIfOpen(&PayeeScreen::refresh);
    reloadIfOpen(&ReportsScreen::refresh);
    reloadIfOpen(&SearchScreen::reloadFilters);
    reloadIfOpen(&ReconciliationHistoryScreen::refresh);
    reloadIfOpen(&ImportScreen::reloadAccounts);
    reloadReconciliations();
}

// A run would write what it read at its start over what has come since.
void MainWindow::reloadReconciliations()
{
    const QList<ReconciliationScreen *> screens = findChildren<ReconciliationScreen *>();
    for (ReconciliationScreen *screen : screens)
        screen->reload();
}

void MainWindow::showCategoriesWindow()
{
    QPointer<CategoriesScreen> &screen = screenOf<CategoriesScreen>();
    if (!screen)
        screen = new CategoriesScreen(m_appState);
    screen->reloadTree();
    presentWindow(screen, tr("Categories"), {600, 500});
}

void MainWindow::showSettingsWindow()
{
    QPointer<SettingsScreen> &screen = screenOf<SettingsScreen>();
    if (!screen) {
        screen = new SettingsScreen(m_appState);
        connect(screen, &SettingsScreen::deletedAccountRestored, this,
                &MainWindow::reloadEverything);
    }
    screen->refresh();
    presentWindow(screen, tr("Preferences"), {500, 550});
}

void MainWindow::showPayeesWindow()
{
    QPointer<PayeeScreen> &screen = screenOf<PayeeScreen>();
    if (!screen) {
        screen = new PayeeScreen(m_appState);
        connect(screen, &PayeeScreen::payeesChanged, m_registerScreen, &RegisterScreen::refresh);
    }
    screen->refresh();
    presentWindow(screen, tr("Payee Management"), {550, 500});
}
