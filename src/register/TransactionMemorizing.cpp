#include "register/TransactionMemorizing.h"

#include "core/state/AppState.h"
#include "data/DueDates.h"
#include "data/RecurringRepository.h"
#include "register/RecurringFormDialog.h"

namespace {

RecurringTransaction seedOf(const Transaction &transaction)
{
    RecurringTransaction seed;
    seed.payee = transaction.payee;
    seed.memo = transaction.memo;
    seed.amount = transaction.amount;
    seed.category_id = transaction.category_id;
    seed.transfer_dest_account_id = transaction.transfer_dest_account_id;
    seed.frequency = Frequency::Monthly;
    seed.start_date = transaction.date;
    seed.next_due_date = transaction.date;
    return seed;
}

} // namespace

bool canBeMemorized(QDate date)
{
    return !isBrokenDueDate(date);
}

bool memorizeTransaction(AppState &appState, const QString &accountId,
                         const Transaction &transaction, QWidget *parent)
{
    RecurringTransaction seed = seedOf(transaction);
    seed.account_id = accountId; // the made-up row of an opening balance names none itself
    auto *dialog =
        new RecurringFormDialog(&appState, RecurringFormDialog::Purpose::Memorize, seed, parent);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    dialog->deleteLater();
    if (!accepted)
        return false;
    RecurringTransaction memorized = dialog->recurring();
    memorized.updated_at = memorized.created_at;
    return appState.recurring()->insert(memorized);
}
