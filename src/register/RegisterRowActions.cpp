#include "register/RegisterRowActions.h"

#include "core/Dates.h"
#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/TransactionRepository.h"
#include "register/RegisterModel.h"
#include "register/TransactionDeletion.h"
#include "register/TransactionDetailsDialog.h"
#include "register/TransactionFormDialog.h"
#include "register/TransactionSaving.h"

RegisterRowActions::RegisterRowActions(AppState *appState, const RegisterModel *model,
                                       QWidget *parent)
    : QObject(parent)
    , m_appState(appState)
    , m_model(model)
    , m_parent(parent)
{
}

// The bound takes the insertion row for the last one. With newest first it stands on top, so the
// oldest transaction is spared there and reached only after a change of sort; the row actions share
// the bound, so that they agree on what they reach.
bool RegisterRowActions::isWithinReach(int row) const
{
    return row >= 0 && row < m_model->rowCount() - 1 && m_model->rowAt(row);
}

bool RegisterRowActions::addInDialog(const QString &accountId)
{
    // The register keeps the account that it showed last, which may have been deleted since.
    const auto account = m_appState->accounts()->findById(accountId);
    if (!account || account->deleted_at)
        return false;
    TransactionFormDialog dialog(m_appState, accountId, m_parent);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    insertWithSplitLines(*m_appState, dialog.transaction(), dialog.splitLines());
    Q_EMIT stored();
    return true;
}

void RegisterRowActions::editInDialog(int row)
{
    if (!isWithinReach(row))
        return;
    const Transaction transaction = *m_model->rowAt(row);
    TransactionFormDialog dialog(m_appState, transaction, m_parent);
    if (dialog.exec() != QDialog::Accepted)
        return;
    updateWithSplitLines(*m_appState, dialog.transaction(), dialog.splitLines());
    Q_EMIT stored();
}

void RegisterRowActions::showDetails(int row)
{
    if (!isWithinReach(row))
        return;
    const Transaction transaction = *m_model->rowAt(row);
    TransactionDetailsDialog dialog(m_appState, transaction, m_parent);
    dialog.exec();
    Q_EMIT stored();
    if (dialog.isEditRequested() && !dialog.isDeleted())
        editTransaction(transaction.id);
}

// By id: a mark set in the details moves the row when the grid is sorted by it.
void RegisterRowActions::editTransaction(const QString &transactionId)
{
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const RegisterRow *shown = m_model->rowAt(row);
        if (shown && shown->id == transactionId) {
            editInDialog(row);
            return;
        }
    }
}

void RegisterRowActions::deleteRow(int row)
{
    if (!isWithinReach(row))
        return;
    const Transaction transaction = *m_model->rowAt(row);
    if (confirmAndDeleteTransaction(*m_appState, transaction, m_parent))
        Q_EMIT stored();
}

void RegisterRowActions::toggleCleared(int row)
{
    const RegisterRow *shown = m_model->rowAt(row);
    if (!shown)
        return;
    Transaction changed = *shown;
    changed.cleared = !changed.cleared;
    changed.updated_at = currentStamp();
    changed.sync_status = SyncStatus::Pending;
    m_appState->transactions()->update(changed);
    Q_EMIT stored();
}
