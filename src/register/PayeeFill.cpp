#include "register/PayeeFill.h"

#include "core/Money.h"
#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/TransactionRepository.h"

using namespace Qt::StringLiterals;

QString transferPrefix()
{
    return u"[Transfer] "_s;
}

QStringList payeeSuggestions(const AppState &appState, const QString &accountId)
{
    QStringList payees = appState.transactions()->allPayees();
    QStringList transfers;
    const QList<Account> accounts = appState.accounts()->listActive();
    for (const Account &account : accounts) {
        const QString entry = transferPrefix() + account.name;
        if (account.id != accountId && !transfers.contains(entry) && !payees.contains(entry))
            transfers.prepend(entry);
    }
    return transfers + payees;
}

void fillFromLastTransaction(const AppState &appState, const QString &accountId,
                             const QString &payee, RegisterEditBuffers &buffers)
{
    const auto last = appState.transactions()->lastForPayee(payee, accountId);
    if (!last)
        return;
    const bool payment = last->amount < 0;
    buffers.payment = payment ? formatAmount(negateMoney(last->amount)) : QString();
    buffers.deposit = payment ? QString() : formatAmount(last->amount);
    if (!last->category_id.isEmpty()) {
        if (const auto category = appState.categories()->findById(last->category_id)) {
            buffers.category = category->name;
            buffers.category_id = category->id;
        }
    }
    if (!last->memo.isEmpty())
        buffers.memo = last->memo;
}
