#include "register/AccountCreation.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/TransactionRepository.h"
#include "register/AccountFormDialog.h"

#include <utility>

namespace {

void insertOpeningBalance(const AppState &appState, const QString &accountId, QDate date,
                          qint64 amount)
{
    Transaction opening;
    opening.id = newId();
    opening.account_id = accountId;
    opening.date = date;
    opening.payee = AccountFormDialog::tr("Opening Balance");
    opening.amount = amount;
    opening.cleared = true;
    opening.reconciled = true;
    opening.created_at = currentStamp();
    opening.updated_at = opening.created_at;
    appState.transactions()->insert(opening);
}

} // namespace

QString createAccountByForm(AppState *appState, QWidget *parent)
{
    AccountFormDialog dialog(parent);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    Account account = dialog.account();
    // The opening amount becomes a transaction that can be seen, dated and reconciled.
    const qint64 opening = std::exchange(account.starting_balance, 0);
    if (account.name.isEmpty() || !appState->accounts()->insert(account))
        return {};
    if (opening != 0)
        insertOpeningBalance(*appState, account.id, dialog.startDate(), opening);
    return account.id;
}
