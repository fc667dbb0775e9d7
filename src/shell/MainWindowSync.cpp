// What the main window shows of the sign-in and of the sync.

#include "shell/MainWindow.h"

#include "core/state/AppState.h"
#include "kestaccount/AuthClient.h"
#include "kestaccount/Client.h"
#include "register/RegisterScreen.h"
#include "shell/EmptyPage.h"
#include "shell/StatusBar.h"
#include "shell/WelcomeScreen.h"
#include "sync/SyncEngine.h"

#include <QAction>
#include <QSettings>
#include <QStackedWidget>

using namespace Qt::StringLiterals;
using KestAccount::AuthClient;

void MainWindow::connectSignIn()
{
    KestAccount::Client *client = m_appState->accountClient();
    connect(m_welcomeScreen, &WelcomeScreen::signInRequested, client->authClient(),
            &AuthClient::login);
    connect(client, &KestAccount::Client::authStateChanged, this, &MainWindow::updateAuthUI);
    connect(client->authClient(), &AuthClient::loginSucceeded, this,
            [this] { m_statusBar->showTimedMessage(tr("Signed in successfully"), 3000); });
    connect(client->authClient(), &AuthClient::loginFailed, this, [this](const QString &error) {
        m_statusBar->showTimedMessage(tr("Sign-in failed: %1").arg(error), 5000);
    });
    updateAuthUI();
}

void MainWindow::connectSync()
{
    const SyncEngine *engine = m_appState->syncEngine();
    connect(engine, &SyncEngine::stateChanged, this, [this](SyncEngine::SyncState state) {
        if (m_appState->accountClient()->isAuthenticated())
            m_statusBar->setSyncStatus(SyncEngine::stateText(state));
    });
    connect(engine, &SyncEngine::syncCompleted, this,
            [this] { m_statusBar->showTimedMessage(tr("Sync complete"), 2000); });
    connect(engine, &SyncEngine::syncFailed, this, [this](const QString &error) {
        m_statusBar->showTimedMessage(tr("Sync failed: %1").arg(error), 5000);
    });
    connect(engine, &SyncEngine::dataChanged, this, [this] {
        populateAccountList();
        m_registerScreen->refresh();
        reloadReconciliations();
    });
}

// The first sync on a new device brings the accounts: one of them opens.
void MainWindow::openAccountAfterFirstSync()
{
    connect(m_appState->syncEngine(), &SyncEngine::syncCompleted, this, [this] {
        if (m_appState->currentAccountId().isEmpty())
            restoreInitialView();
    });
}

void MainWindow::updateAuthUI()
{
    const bool isSignedIn = m_appState->accountClient()->isAuthenticated();
    m_signOutAction->setVisible(isSignedIn);
    m_accountAction->setStatusTip(isSignedIn ? tr("Manage your account")
                                             : tr("Sign in or sign up"));
    if (!isSignedIn) {
        m_statusBar->setSyncStatus(tr("Not signed in"));
        // It belongs to the one who was signed in: the next one is not to see these addresses.
        if (auto *screen = findChild<KestAccount::AccountScreen *>()) {
            screen->close();
            screen->deleteLater();
        }
        showWelcomeScreen();
        return;
    }
    m_statusBar->setSyncStatus(SyncEngine::stateText(m_appState->syncEngine()->state()));
    m_welcomeScreen->setReturningUser(false);
    if (m_stack->currentWidget() == m_registerScreen || m_stack->currentWidget() == m_emptyPage)
        return;
    if (m_appState->currentAccountId().isEmpty())
        m_stack->setCurrentWidget(m_emptyPage);
    else
        selectAccount(m_appState->currentAccountId());
}

void MainWindow::showNothingOpen()
{
    if (m_appState->accountClient()->isAuthenticated())
        m_stack->setCurrentWidget(m_emptyPage);
    else
        showWelcomeScreen();
}

void MainWindow::showWelcomeScreen()
{
    m_welcomeScreen->setReturningUser(
        QSettings().value(u"auth/hasSignedInBefore"_s, false).toBool());
    m_stack->setCurrentWidget(m_welcomeScreen);
}
