#pragma once

#include "kestaccount/AccountScreen.h"

#include <QList>
#include <QMainWindow>
#include <QTimer>

class AccountList;
class AppState;
class EmptyPage;
class QLabel;
class QListWidgetItem;
class QMenu;
class QShortcut;
class QSplitter;
class QStackedWidget;
class RegisterScreen;
class StatusBar;
class WelcomeScreen;
struct Account;

// The one main window: the sidebar with the accounts beside a stack of pages, of which the register
// is the main one. It turns requests into navigation and owns what happens to whole accounts.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(AppState *appState, QWidget *parent = nullptr);

public Q_SLOTS:
    void onAccountClicked(QListWidgetItem *item);
    void onAccountsChanged();
    void selectAccount(const QString &accountId);
    void showNewAccountDialog();
    void showEditAccountDialog();
    void showReportsWindow();
    void showRecurringWindow();
    void showSearchWindow();
    void showCategoriesWindow();
    void showSettingsWindow();
    void showReconciliationWindow();
    void showReconciliationHistoryWindow();
    void showImportWindow();
    void showPayeesWindow();
    void showShareAccountDialog();
    void onAccountContextMenu(QPoint pos); // in the list's viewport
    void deleteAccount(const QString &accountId);
    void deleteCurrentAccount();
    void showKestrelwoodAccountScreen(KestAccount::AccountScreen::Tab tab);
    void showKestrelwoodAccountScreen(); // its first page

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildPages();
    void buildSidebar();
    void buildSplitter();
    void connectChanges();
    void restoreWindowGeometry();
    void postDueRecurring();
    void watchDueCount();
    void showDueCount();

    void connectSignIn();
    void connectSync();
    void openAccountAfterFirstSync();
    void updateAuthUI();
    void showWelcomeScreen();

    void buildMenus();
    void buildFileMenu();
    void buildEditMenu();
    void buildAccountMenu();
    void buildViewMenu();
    void buildHelpMenu();
    void addSampleDataEntries(QMenu *menu);
    QAction *addMenuAction(QMenu *menu, const QString &name, const QString &text);
    void showWhatsNew();
    void checkForUpdates();
    void showAboutBox();
    void showShortcutsBox();

    void populateAccountList();
    void schedulePopulate();
    void onPopulateTimeout();
    void rebuildAccountShortcuts();
    void fitListRows();
    void onRowsMoved();
    void applyTheme();
    void addAccountEntries(QMenu *menu, const QString &accountId);

    void presentWindow(QWidget *window, const QString &title, QSize size);
    void restoreInitialView();
    void reloadEverything();
    void reloadOpenWindows();
    void reloadReconciliations();
    void showNothingOpen();
    void showSelectAccountFirst();
    bool confirmDelete(const Account &account);
    bool deleteWithDependents(const QString &accountId);
    void loadSampleData();
    void clearSampleData();
    void shareAccount(const Account &account);
    void explainSharing();
    void showSampleDataNotice(const QString &text);

    AppState *m_appState;
    AccountList *m_accountList = nullptr;
    QSplitter *m_splitter = nullptr;
    QLabel *m_totalLabel = nullptr;
    QList<QShortcut *> m_accountShortcuts{};
    WelcomeScreen *m_welcomeScreen = nullptr;
    RegisterScreen *m_registerScreen = nullptr;
    EmptyPage *m_emptyPage = nullptr;
    QStackedWidget *m_stack = nullptr;
    StatusBar *m_statusBar = nullptr;
    QAction *m_signOutAction = nullptr; // visible while signed in
    QAction *m_accountAction = nullptr;
    QTimer m_populateTimer{}; // gathers the notifications of a bulk write
    QTimer m_dueCountTimer{}; // likewise
};
