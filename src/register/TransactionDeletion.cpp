#include "register/TransactionDeletion.h"

#include "core/Money.h"
#include "core/state/AppState.h"
#include "data/SqlTransaction.h"
#include "data/TransactionRepository.h"

#include <QCoreApplication>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace {

struct DeletionTexts
{
    Q_DECLARE_TR_FUNCTIONS(RegisterScreen)

public:
    static QString title() { return tr("Delete Transaction"); }
    static QString question(const Transaction &transaction)
    {
        const QString amount = formatMoney(absoluteMoney(transaction.amount));
        if (transaction.transfer_link_id.isEmpty())
            return tr("Delete \"%1\" for %2?").arg(transaction.payee, amount);
        return tr("Delete transfer \"%1\" for %2?\n\nBoth sides of the transfer will be deleted.")
            .arg(transaction.payee, amount);
    }
};

// A row that is not stored, or no longer, is no reason to keep its other side.
bool deleteIfThere(TransactionRepository &transactions, const QString &id)
{
    return id.isEmpty() || transactions.softDelete(id) || !transactions.findById(id);
}

} // namespace

bool confirmAndDeleteTransaction(const AppState &appState, const Transaction &transaction,
                                 QWidget *parent)
{
    QMessageBox question(QMessageBox::Question, DeletionTexts::title(),
                         DeletionTexts::question(transaction), QMessageBox::Yes | QMessageBox::No,
                         parent);
    question.setObjectName(u"deleteTransactionQuestion"_s);
    question.setTextFormat(Qt::PlainText); // a payee is a person's words
    question.setDefaultButton(QMessageBox::No); // a stray Enter deletes nothing
    if (question.exec() != QMessageBox::Yes)
        return false;

    SqlTransaction bothSides(appState.database());
    return deleteIfThere(*appState.transactions(), transaction.transfer_link_id)
        && deleteIfThere(*appState.transactions(), transaction.id) && bothSides.commit();
}
