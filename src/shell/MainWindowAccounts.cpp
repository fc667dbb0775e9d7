// The account list of the main window and what a person does to whole accounts.

#include "shell/MainWindow.h"

#include "core/Money.h"
#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/ReconciliationRepository.h"
#include "data/RecurringRepository.h"
#include "data/SqlTransaction.h"
#include "data/TransactionRepository.h"
#include "register/AccountCreation.h"
#include "register/AccountFormDialog.h"
#include "register/RegisterScreen.h"
#include "services/SampleDataService.h"
#include "shell/AccountList.h"
#include "shell/StatusBar.h"
#include "shell/theme/PlainWords.h"

#include <QDebug>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QScrollBar>
#include <QShortcut>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kShortcutCount = 10;
constexpr int kNoticeMs = 3000;

}

void MainWindow::onAccountClicked(QListWidgetItem *item)
{
    const QString accountId = item->data(Qt::UserRole).toString();
    if (!accountId.isEmpty())
        selectAccount(accountId);
}

void MainWindow::onAccountsChanged()
{
    schedulePopulate();
}

// A bulk write and the move of a row by hand notify many times, the latter from inside the list's
// own handler. The list is filled once they are done and the register has been painted.
void MainWindow::schedulePopulate()
{
    if (!m_populateTimer.isActive())
        m_populateTimer.start(0);
}

void MainWindow::onPopulateTimeout()
{
    if (m_accountList->isDragging() || m_appState->transactions()->isBulkWriting())
        return; // the end of either asks again
    // The sums read the whole table; the row just saved should be seen before that.
    m_registerScreen->repaint();
    populateAccountList();
}

void MainWindow::populateAccountList()
{
    m_populateTimer.stop();
    const QList<Account> accounts = m_appState->accounts()->listActive();
    const QHash<QString, qint64> balances = m_appState->transactions()->balancesByAccount();
    const int scrollPosition = m_accountList->verticalScrollBar()->value();
    qint64 total = 0;
    m_accountList->clear();
    for (const Account &account : accounts) {
        const qint64 balance = balances.value(account.id);
        m_accountList->addAccount(account, balance);
        total = addMoney(total, balance);
    }
    m_statusBar->setAccountCount(static_cast<int>(accounts.size()));
    rebuildAccountShortcuts();
    // Currencies are added up as plain numbers: there are no rates to convert them with.
    m_totalLabel->setText(accounts.isEmpty() ? tr("No accounts")
                                             : tr("Total: %1").arg(formatMoney(total)));
    const QString currentId = m_appState->currentAccountId();
    if (!currentId.isEmpty())
        m_accountList->setCurrentRow(m_accountList->rowOf(currentId));
    m_accountList->doItemsLayout();
    m_accountList->verticalScrollBar()->setValue(scrollPosition);
}

void MainWindow::rebuildAccountShortcuts()
{
    qDeleteAll(std::exchange(m_accountShortcuts, {}));
    for (int row = 0; row < std::min(m_accountList->count(), kShortcutCount); ++row) {
        const int digit = (row + 1) % kShortcutCount; // the tenth is Alt+0
        auto *shortcut = new QShortcut(QKeySequence(u"Alt+%1"_s.arg(digit)), this);
        connect(shortcut, &QShortcut::activated, this,
                [this, accountId = m_accountList->accountIdAt(row)] { selectAccount(accountId); });
        m_accountShortcuts << shortcut;
    }
}

void MainWindow::fitListRows()
{
    m_accountList->fitRows();
}

void MainWindow::onRowsMoved()
{
    QList<QPair<QString, int>> orders;
    for (int row = 0; row < m_accountList->count(); ++row) {
        const QString accountId = m_accountList->accountIdAt(row);
        if (!accountId.isEmpty())
            orders << qMakePair(accountId, row);
    }
    m_appState->accounts()->updateSortOrders(orders);
    schedulePopulate(); // a moved row has lost its widget, also when the order was not stored
}

void MainWindow::onAccountContextMenu(QPoint pos)
{
    auto *menu = new QMenu(this);
    menu->setObjectName(u"accountContextMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("New Account..."), this, &MainWindow::showNewAccountDialog);
    // The list may be filled anew while the menu is open: it works on the id, not on the item.
    if (const QListWidgetItem *item = m_accountList->itemAt(pos))
        addAccountEntries(menu, item->data(Qt::UserRole).toString());
    menu->popup(m_accountList->viewport()->mapToGlobal(pos));
}

void MainWindow::addAccountEntries(QMenu *menu, const QString &accountId)
{
    const std::optional<Account> account = m_appState->accounts()->findById(accountId);
    if (!account)
        return;
    const QString name = menuWords(account->name);
    menu->addSeparator();
    menu->addAction(tr("Edit \"%1\"...").arg(name), this, [this, accountId] {
        selectAccount(accountId);
        showEditAccountDialog();
    });
    menu->addAction(tr("Reconcile..."), this, [this, accountId] {
        selectAccount(accountId);
        showReconciliationWindow();
    });
    menu->addAction(tr("Reconciliation History..."), this, [this, accountId] {
        selectAccount(accountId);
        showReconciliationHistoryWindow();
    });
    menu->addAction(tr("Rename Payees..."), this, [this, accountId] {
        selectAccount(accountId);
        showPayeesWindow();
    });
    menu->addSeparator();
    menu->addAction(tr("Share..."), this, [this, accountId] {
        selectAccount(accountId);
        showShareAccountDialog();
    });
    menu->addSeparator();
    menu->addAction(tr("Delete \"%1\"").arg(name), this,
                    [this, accountId] { deleteAccount(accountId); });
}

void MainWindow::showSelectAccountFirst()
{
    m_statusBar->showTimedMessage(tr("Select an account first"), kNoticeMs);
}

void MainWindow::showNewAccountDialog()
{
    const QString accountId = createAccountByForm(m_appState, this);
    if (accountId.isEmpty())
        return;
    populateAccountList();
    selectAccount(accountId);
}

void MainWindow::showEditAccountDialog()
{
    const std::optional<Account> account =
        m_appState->accounts()->findById(m_appState->currentAccountId());
    if (!account) {
        showSelectAccountFirst();
        return;
    }
    AccountFormDialog dialog(*account, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_appState->accounts()->update(dialog.account());
    m_registerScreen->refresh();
}

void MainWindow::deleteAccount(const QString &accountId)
{
    const std::optional<Account> account = m_appState->accounts()->findById(accountId);
    if (!account || !confirmDelete(*account) || !deleteWithDependents(account->id))
        return;
    if (account->id == m_appState->currentAccountId()) {
        m_appState->setCurrentAccountId({});
        showNothingOpen();
    }
    populateAccountList();
}

bool MainWindow::confirmDelete(const Account &account)
{
    QMessageBox question(QMessageBox::Warning, tr("Delete Account"),
                         tr("Delete \"%1\"?\n\nAll transactions, recurring entries, and "
                            "reconciliation history for this account will be removed. You can "
                            "restore it from Preferences → Data & Sync.")
                             .arg(account.name),
                         QMessageBox::Yes | QMessageBox::No, this);
    question.setObjectName(u"deleteAccountQuestion"_s);
    question.setTextFormat(Qt::PlainText);
    question.setDefaultButton(QMessageBox::No);
    return question.exec() == QMessageBox::Yes;
}

// The account goes last: a restore looks for the rows deleted up to ten seconds before it.
bool MainWindow::deleteWithDependents(const QString &accountId)
{
    SqlTransaction cascade(m_appState->database());
    const int transactions = m_appState->transactions()->softDeleteByAccount(accountId);
    const int recurrings = m_appState->recurring()->softDeleteByAccount(accountId);
    const int reconciliations = m_appState->reconciliations()->softDeleteByAccount(accountId);
    if (!m_appState->accounts()->softDelete(accountId) || !cascade.commit())
        return false;
    qInfo() << "Cascade delete account" << accountId << "→ transactions:" << transactions
            << "recurrings:" << recurrings << "reconciliations:" << reconciliations;
    return true;
}

void MainWindow::deleteCurrentAccount()
{
    const QString accountId = m_appState->currentAccountId();
    if (accountId.isEmpty())
        showSelectAccountFirst();
    else
        deleteAccount(accountId);
}

// The sample rows come and go without a word from the repositories.
void MainWindow::loadSampleData()
{
    SampleDataService service(m_appState->database());
    if (service.hasSampleData()) {
        showSampleDataNotice(tr("Sample data is already loaded."));
        return;
    }
    service.loadSampleData();
    populateAccountList();
    showDueCount();
    m_statusBar->showTimedMessage(tr("Sample data loaded"), kNoticeMs);
}

void MainWindow::clearSampleData()
{
    SampleDataService service(m_appState->database());
    if (!service.hasSampleData()) {
        showSampleDataNotice(tr("No sample data to clear."));
        return;
    }
    service.clearSampleData();
    if (!m_appState->accounts()->findById(m_appState->currentAccountId()))
        m_appState->setCurrentAccountId({});
    populateAccountList();
    showDueCount();
    showNothingOpen();
    m_statusBar->showTimedMessage(tr("Sample data cleared"), kNoticeMs);
}

void MainWindow::showSampleDataNotice(const QString &text)
{
    QMessageBox notice(QMessageBox::Information, tr("Sample Data"), text, QMessageBox::Ok, this);
    notice.setObjectName(u"sampleDataNotice"_s);
    notice.exec();
}
