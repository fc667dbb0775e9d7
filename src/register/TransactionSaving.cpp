#include "register/TransactionSaving.h"

#include "core/state/AppState.h"
#include "data/SplitLineRepository.h"
#include "data/SqlTransaction.h"
#include "data/TransactionRepository.h"

namespace {

bool replaceSplitLines(const AppState &appState, const QString &transactionId,
                       const QList<SplitLine> &lines)
{
    if (!appState.splitLines()->deleteByTransaction(transactionId))
        return false;
    for (const SplitLine &entered : lines) {
        SplitLine line = entered;
        line.transaction_id = transactionId;
        // The table refuses a line without a category. That is no reason to lose the others, nor
        // the transaction that was typed with them.
        if (!appState.splitLines()->insert(line) && !line.category_id.isEmpty())
            return false;
    }
    return true;
}

} // namespace

bool insertWithSplitLines(const AppState &appState, const Transaction &transaction,
                          const QList<SplitLine> &lines)
{
    SqlTransaction together(appState.database());
    return appState.transactions()->insert(transaction)
        && replaceSplitLines(appState, transaction.id, lines) && together.commit();
}

bool updateWithSplitLines(const AppState &appState, const Transaction &transaction,
                          const QList<SplitLine> &lines)
{
    SqlTransaction together(appState.database());
    return appState.transactions()->update(transaction)
        && replaceSplitLines(appState, transaction.id, lines) && together.commit();
}
