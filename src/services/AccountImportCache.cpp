#include "services/AccountImportCache.h"

#include "services/NameFolding.h"
#include "services/TransferHint.h"

#include <limits>

AccountImportCache::AccountImportCache(const QList<Transaction> &live)
{
    m_keys.reserve(live.size());
    for (qsizetype i = live.size() - 1; i >= 0; --i) {
        const Transaction &transaction = live.at(i);
        add({transaction.date, transaction.amount, transaction.payee});
        if (!transaction.transfer_link_id.isEmpty())
            continue;
        if (const std::optional<TransferHint> hint = parseTransferHint(transaction.memo))
            m_waiting[{transaction.date, transaction.amount, foldedName(hint->accountName)}]
                << transaction;
    }
}

std::optional<AccountImportCache::Hint> AccountImportCache::hintFor(QDate date, qint64 amount,
                                                                    const QString &accountName)
{
    // The least amount has no opposite.
    if (accountName.isEmpty() || amount == std::numeric_limits<qint64>::min())
        return std::nullopt;
    return Hint{date, -amount, foldedName(accountName)};
}

const Transaction *AccountImportCache::waitingFor(QDate date, qint64 amount,
                                                  const QString &accountName) const
{
    const std::optional<Hint> hint = hintFor(date, amount, accountName);
    const auto found = hint ? m_waiting.constFind(*hint) : m_waiting.constEnd();
    return found == m_waiting.constEnd() || found->isEmpty() ? nullptr : &found->last();
}

void AccountImportCache::takeWaitingFor(QDate date, qint64 amount, const QString &accountName)
{
    if (const std::optional<Hint> hint = hintFor(date, amount, accountName))
        m_waiting[*hint].removeLast();
}
