// The Kestrelwood account, and sharing one of the register's accounts with the family.

#include "shell/MainWindow.h"

#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "kestaccount/AuthClient.h"
#include "kestaccount/Client.h"
#include "kestaccount/ShareMembersDialog.h"
#include "sync/AccountSharingService.h"
#include "sync/SyncEngine.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

using namespace Qt::StringLiterals;
using KestAccount::AccountScreen;
using KestAccount::ShareMembersDialog;

void MainWindow::showKestrelwoodAccountScreen(AccountScreen::Tab tab)
{
    if (!m_appState->accountClient()->isAuthenticated()) {
        showWelcomeScreen();
        return;
    }
    static QPointer<AccountScreen> screen; // goes with the main window that presented it
    if (!screen) {
        screen = new AccountScreen(m_appState->accountClient());
        screen->setObjectName(u"accountScreen"_s);
        connect(screen, &AccountScreen::logoutRequested, m_appState->accountClient()->authClient(),
                &KestAccount::AuthClient::logout);
    }
    screen->showTab(tab);
    screen->refresh();
    presentWindow(screen, tr("Kestrelwood Account"), {600, 550});
}

void MainWindow::showKestrelwoodAccountScreen()
{
    showKestrelwoodAccountScreen(AccountScreen::Tab::Profile);
}

void MainWindow::showShareAccountDialog()
{
    const std::optional<Account> account =
        m_appState->accounts()->findById(m_appState->currentAccountId());
    if (!account)
        showSelectAccountFirst();
    else if (m_appState->accountClient()->isAuthenticated())
        shareAccount(*account);
    else
        explainSharing();
}

void MainWindow::shareAccount(const Account &account)
{
    const KestAccount::ShareWords words{
        .windowTitle = tr("Share Account"),
        .heading = tr("Sharing: %1").arg(account.name),
        .description =
            tr("Share this account with members of your Kestrelwood family group. They'll see the "
               "same register, balances, and reconciliation history on their devices."),
        .sharedWithTitle = tr("Shared with"),
        .emptySharedText = tr("Not shared with anyone yet."),
        .noGroupText = tr("You don't have a family group yet."),
        .shareButtonText = tr("Share"),
        .removeButtonText = tr("Remove access"),
        .closeButtonText = tr("Close"),
        .role = u"member"_s,
        .removeConfirmTitle = tr("Remove Share"),
        .removeConfirmText = tr("Remove %1's access to this account?"),
    };
    ShareMembersDialog dialog(m_appState->accountClient(), m_appState->sharingService(), account.id,
                              words, this);
    connect(&dialog, &ShareMembersDialog::sharingChanged, m_appState->syncEngine(),
            &SyncEngine::scheduleSync);
    dialog.exec();
    if (dialog.isBusy())
        m_appState->syncEngine()->scheduleSync(); // the answer will find nobody
}

void MainWindow::explainSharing()
{
    QMessageBox box(QMessageBox::Information, tr("Sign In Required"),
                    tr("Sharing requires a Kestrelwood account."), QMessageBox::Cancel, this);
    box.setObjectName(u"signInRequiredBox"_s);
    QPushButton *learnMore = box.addButton(tr("Learn More"), QMessageBox::AcceptRole);
    learnMore->setObjectName(u"learnMoreButton"_s);
    box.setDefaultButton(learnMore);
    box.exec();
    if (box.clickedButton() == learnMore)
        showKestrelwoodAccountScreen();
}
