// The menu bar of the main window and its two help boxes.

#include "shell/MainWindow.h"

#include "core/Deployment.h"
#include "core/Feedback.h"
#include "core/state/AppState.h"
#include "core/state/UpdateConfig.h"
#include "kestaccount/AuthClient.h"
#include "kestaccount/Client.h"
#include "kestupdate/UpdateFlows.h"
#include "register/RegisterScreen.h"
#include "shell/FeedbackPage.h"
#include "shell/StatusBar.h"
#include "shell/theme/MoneyColors.h"

#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace {

QString keyText(const QString &keys)
{
    return QKeySequence(keys).toString();
}

// Near the accent colour: the platform's own blue is unreadable on the dark palette, the accent
// itself too pale on the light one.
QString linkTo(const QString &address)
{
    return u"<a href=\"%1\" style=\"color: %2\">%1</a>"_s.arg(
        address, isDarkPalette() ? u"#4DB6AC"_s : u"#00796B"_s);
}

KestUpdate::ProgressCallbacks progressOn(QPointer<StatusBar> statusBar)
{
    return {
        .showProgress =
            [statusBar](const QString &text) {
                if (statusBar)
                    statusBar->showProgress(text);
            },
        .clearProgress =
            [statusBar] {
                if (statusBar)
                    statusBar->clearProgress();
            },
        .showMessage =
            [statusBar](const QString &text, int timeoutMs) {
                if (statusBar)
                    statusBar->showTimedMessage(text, timeoutMs);
            },
    };
}

} // namespace

void MainWindow::buildMenus()
{
    buildFileMenu();
    buildEditMenu();
    buildAccountMenu();
    buildViewMenu();
    buildHelpMenu();
}

QAction *MainWindow::addMenuAction(QMenu *menu, const QString &name, const QString &text)
{
    QAction *action = menu->addAction(text);
    action->setObjectName(name);
    return action;
}

void MainWindow::buildFileMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&File"));
    menu->setObjectName(u"fileMenu"_s);
    QAction *newTransaction =
        addMenuAction(menu, u"newTransactionAction"_s, tr("&New Transaction"));
    newTransaction->setShortcut(QKeySequence(u"Ctrl+N"_s));
    connect(newTransaction, &QAction::triggered, this,
            [this] { m_registerScreen->newTransactionDialog(); });
    QAction *newAccount = addMenuAction(menu, u"newAccountAction"_s, tr("New &Account"));
    newAccount->setShortcut(QKeySequence(u"Ctrl+Shift+N"_s));
    connect(newAccount, &QAction::triggered, this, &MainWindow::showNewAccountDialog);
    menu->addSeparator();
    QAction *import = addMenuAction(menu, u"importAction"_s, tr("&Import..."));
    import->setShortcut(QKeySequence(u"Ctrl+I"_s)); // the register's grid takes it for a new row
    connect(import, &QAction::triggered, this, &MainWindow::showImportWindow);
    menu->addSeparator();
    m_accountAction = addMenuAction(menu, u"accountAction"_s, tr("Kestrelwood &Account..."));
    m_accountAction->setStatusTip(tr("Sign in or sign up"));
    connect(m_accountAction, &QAction::triggered, this, [this] { showKestrelwoodAccountScreen(); });
    menu->addSeparator();
    m_signOutAction = addMenuAction(menu, u"signOutAction"_s, tr("Sign &Out"));
    connect(m_signOutAction, &QAction::triggered, m_appState->accountClient()->authClient(),
            &KestAccount::AuthClient::logout);
    menu->addSeparator();
    QAction *quit = addMenuAction(menu, u"quitAction"_s, tr("&Quit"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, qApp, &QApplication::quit);
}

void MainWindow::buildEditMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Edit"));
    menu->setObjectName(u"editMenu"_s);
    QAction *find = addMenuAction(menu, u"findAction"_s, tr("&Find..."));
    find->setShortcut(QKeySequence::Find);
    connect(find, &QAction::triggered, this, &MainWindow::showSearchWindow);
    menu->addSeparator();
    connect(addMenuAction(menu, u"preferencesAction"_s, tr("&Preferences...")), &QAction::triggered,
            this, &MainWindow::showSettingsWindow);
}

void MainWindow::buildAccountMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Account"));
    menu->setObjectName(u"accountMenu"_s);
    connect(addMenuAction(menu, u"editAccountAction"_s, tr("&Edit...")), &QAction::triggered, this,
            &MainWindow::showEditAccountDialog);
    QAction *reconcile = addMenuAction(menu, u"reconcileAction"_s, tr("&Reconcile..."));
    reconcile->setShortcut(QKeySequence(u"Ctrl+R"_s));
    connect(reconcile, &QAction::triggered, this, &MainWindow::showReconciliationWindow);
    connect(addMenuAction(menu, u"reconciliationHistoryAction"_s, tr("Reconciliation &History...")),
            &QAction::triggered, this, &MainWindow::showReconciliationHistoryWindow);
    connect(addMenuAction(menu, u"payeesAction"_s, tr("Rename &Payees...")), &QAction::triggered,
            this, &MainWindow::showPayeesWindow);
    menu->addSeparator();
    connect(addMenuAction(menu, u"shareAccountAction"_s, tr("&Share...")), &QAction::triggered,
            this, &MainWindow::showShareAccountDialog);
    menu->addSeparator();
    connect(addMenuAction(menu, u"deleteAccountAction"_s, tr("&Delete")), &QAction::triggered, this,
            &MainWindow::deleteCurrentAccount);
}

void MainWindow::buildViewMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&View"));
    menu->setObjectName(u"viewMenu"_s);
    QAction *reports = addMenuAction(menu, u"reportsAction"_s, tr("&Reports"));
    reports->setShortcut(QKeySequence(u"Ctrl+2"_s));
    connect(reports, &QAction::triggered, this, &MainWindow::showReportsWindow);
    QAction *recurring = addMenuAction(menu, u"recurringAction"_s, tr("Re&curring Transactions"));
    recurring->setShortcut(QKeySequence(u"Ctrl+3"_s));
    connect(recurring, &QAction::triggered, this, &MainWindow::showRecurringWindow);
    QAction *categories = addMenuAction(menu, u"categoriesAction"_s, tr("C&ategories"));
    categories->setShortcut(QKeySequence(u"Ctrl+4"_s));
    connect(categories, &QAction::triggered, this, &MainWindow::showCategoriesWindow);
}

void MainWindow::buildHelpMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Help"));
    menu->setObjectName(u"helpMenu"_s);
    connect(addMenuAction(menu, u"aboutAction"_s, tr("&About Kestrelwood Pursewell")),
            &QAction::triggered, this, &MainWindow::showAboutBox);
    connect(addMenuAction(menu, u"whatsNewAction"_s, tr("What's &New...")), &QAction::triggered,
            this, &MainWindow::showWhatsNew);
    connect(addMenuAction(menu, u"checkForUpdatesAction"_s, tr("Check for &Updates...")),
            &QAction::triggered, this, &MainWindow::checkForUpdates);
    connect(addMenuAction(menu, u"feedbackAction"_s, tr("Send &Feedback...")), &QAction::triggered,
            this, [] { openFeedbackPage(feedbackConfig()); });
    menu->addSeparator();
    connect(addMenuAction(menu, u"shortcutsAction"_s, tr("&Keyboard Shortcuts")),
            &QAction::triggered, this, &MainWindow::showShortcutsBox);
    if (!qEnvironmentVariableIsEmpty("PURSEWELL_DEV"))
        addSampleDataEntries(menu);
}

void MainWindow::addSampleDataEntries(QMenu *menu)
{
    menu->addSeparator();
    connect(addMenuAction(menu, u"loadSampleDataAction"_s, tr("Load &Sample Data")),
            &QAction::triggered, this, &MainWindow::loadSampleData);
    connect(addMenuAction(menu, u"clearSampleDataAction"_s, tr("&Clear Sample Data")),
            &QAction::triggered, this, &MainWindow::clearSampleData);
}

// Both ask the network at a person's word, and so both always answer.
void MainWindow::showWhatsNew()
{
    KestUpdate::showReleaseNotes(updateClientConfig(), kDisplayName, this, progressOn(m_statusBar));
}

void MainWindow::checkForUpdates()
{
    KestUpdate::runUpdateCheck(updateClientConfig(), kDisplayName, this, progressOn(m_statusBar));
}

void MainWindow::showAboutBox()
{
    const QStringList paragraphs{
        u"<h3>%1</h3>"_s.arg(tr("Kestrelwood Pursewell")),
        u"<p>%1</p>"_s.arg(tr("Version %1").arg(QCoreApplication::applicationVersion())),
        u"<p>%1</p>"_s.arg(tr("A digital pursewell register for tracking household finances.")),
        u"<p>%1<br>%2</p>"_s.arg(tr("Made and owned by Kestrelwood."), linkTo(kProductUrl)),
        u"<p><small>%1<br>%2</small></p>"_s.arg(
            tr("This application uses the Qt framework under the LGPL v3 license."),
            tr("Its source code is available at %1").arg(linkTo(kSourceUrl))),
    };
    QMessageBox box(QMessageBox::NoIcon, tr("About Kestrelwood Pursewell"), paragraphs.join(u""_s),
                    QMessageBox::Ok, this);
    box.setObjectName(u"aboutBox"_s);
    box.setTextFormat(Qt::RichText);
    box.setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    box.setDefaultButton(QMessageBox::Ok); // or the first link would have the focus
    box.setIconPixmap(windowIcon().pixmap(64, 64));
    box.exec();
}

void MainWindow::showShortcutsBox()
{
    const QString text =
        tr("<h3>Register</h3>"
           "<table cellspacing='6'>"
           "<tr><td><b>%1</b></td><td>Save transaction</td></tr>"
           "<tr><td><b>%2</b></td><td>Insert new transaction</td></tr>"
           "<tr><td><b>%3</b></td><td>Delete current transaction</td></tr>"
           "<tr><td><b>Tab / Shift+Tab</b></td><td>Next / previous field</td></tr>"
           "<tr><td><b>' (apostrophe)</b></td><td>Copy value from field above</td></tr>"
           "</table>"
           "<h3>Date Field</h3>"
           "<table cellspacing='6'>"
           "<tr><td><b>t</b></td><td>Today</td></tr>"
           "<tr><td><b>+ / -</b></td><td>Next / previous day</td></tr>"
           "<tr><td><b>m / h</b></td><td>First / last day of month</td></tr>"
           "<tr><td><b>y / r</b></td><td>First / last day of year</td></tr>"
           "<tr><td><b>w / k</b></td><td>First / last day of week</td></tr>"
           "</table>"
           "<h3>General</h3>"
           "<table cellspacing='6'>"
           "<tr><td><b>%4</b></td><td>New transaction</td></tr>"
           "<tr><td><b>%5</b></td><td>New account</td></tr>"
           "<tr><td><b>%6</b></td><td>Reconcile account</td></tr>"
           "<tr><td><b>%7</b></td><td>Search transactions</td></tr>"
           "<tr><td><b>%8</b></td><td>Import</td></tr>"
           "<tr><td><b>%9</b></td><td>Reports</td></tr>"
           "<tr><td><b>%10</b></td><td>Recurring transactions</td></tr>"
           "<tr><td><b>%11</b></td><td>Categories</td></tr>"
           "</table>"
           "<h3>Accounts</h3>"
           "<table cellspacing='6'>"
           "<tr><td><b>%12 &ndash; %13</b></td><td>Switch to account 1&ndash;9</td></tr>"
           "<tr><td><b>%14</b></td><td>Switch to account 10</td></tr>"
           "</table>")
            .arg(keyText(u"Ctrl+Return"_s), keyText(u"Ctrl+N"_s), keyText(u"Ctrl+D"_s),
                 keyText(u"Ctrl+N"_s), keyText(u"Ctrl+Shift+N"_s), keyText(u"Ctrl+R"_s),
                 keyText(u"Ctrl+F"_s), keyText(u"Ctrl+I"_s), keyText(u"Ctrl+2"_s),
                 keyText(u"Ctrl+3"_s), keyText(u"Ctrl+4"_s), keyText(u"Alt+1"_s),
                 keyText(u"Alt+9"_s), keyText(u"Alt+0"_s));
    QMessageBox box(QMessageBox::Information, tr("Keyboard Shortcuts"), text, QMessageBox::Ok,
                    this);
    box.setObjectName(u"shortcutsBox"_s);
    box.setTextFormat(Qt::RichText);
    box.exec();
}
