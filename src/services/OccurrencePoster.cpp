#include "services/OccurrencePoster.h"

#include "core/Dates.h"
#include "core/Money.h"
#include "data/AccountRepository.h"
#include "data/RecurringTransaction.h"
#include "data/TransactionRepository.h"
#include "services/RecurringSchedule.h"

#include <QDebug>

using namespace Qt::StringLiterals;

namespace {

Transaction sourceSide(const RecurringTransaction &recurring)
{
    Transaction source;
    source.id = occurrenceId(recurring.id, recurring.next_due_date);
    source.account_id = recurring.account_id;
    source.date = recurring.next_due_date;
    source.payee = recurring.payee;
    source.memo = recurring.memo;
    source.amount = recurring.amount;
    source.category_id = recurring.category_id;
    source.recurring_id = recurring.id;
    source.created_at = currentStamp();
    source.updated_at = source.created_at;
    return source;
}

Transaction destinationSide(const RecurringTransaction &recurring, const Transaction &source)
{
    Transaction destination = sourceSide(recurring);
    destination.id = occurrenceId(recurring.id, recurring.next_due_date, u"dest"_s);
    destination.account_id = recurring.transfer_dest_account_id;
    destination.amount = negateMoney(recurring.amount);
    destination.transfer_link_id = source.id;
    destination.transfer_dest_account_id = recurring.account_id;
    return destination;
}

} // namespace

OccurrencePoster::OccurrencePoster(TransactionRepository *transactions, AccountRepository *accounts)
    : m_transactions(transactions)
    , m_accounts(accounts)
{
}

bool OccurrencePoster::post(const RecurringTransaction &recurring)
{
    const Transaction source = sourceSide(recurring);
    if (!m_transactions->insert(source))
        return false;
    return recurring.transfer_dest_account_id.isEmpty() || postFarSide(recurring, source);
}

bool OccurrencePoster::postFarSide(const RecurringTransaction &recurring, Transaction source)
{
    // Asked with the source side stored: its id then keeps the occurrence from being posted again,
    // and the template stays due until a person skips or mends it.
    if (currenciesDiffer(recurring.account_id, recurring.transfer_dest_account_id)) {
        qWarning() << "RecurringService: skipping transfer post for" << recurring.id
                   << "— source and destination currencies differ";
        return false;
    }
    const Transaction destination = destinationSide(recurring, source);
    // Another device may have posted this side, or its account may have gone; neither holds up the
    // schedule.
    m_transactions->insert(destination);
    source.transfer_link_id = destination.id;
    source.transfer_dest_account_id = destination.account_id;
    m_transactions->update(source);
    return true;
}

bool OccurrencePoster::currenciesDiffer(const QString &accountId, const QString &otherId)
{
    const std::optional<Currency> currency = currencyOf(accountId);
    const std::optional<Currency> other = currencyOf(otherId);
    return currency && other && *currency != *other;
}

std::optional<Currency> OccurrencePoster::currencyOf(const QString &accountId)
{
    const auto known = m_currencies.constFind(accountId);
    if (known != m_currencies.constEnd())
        return *known;
    const std::optional<Account> account = m_accounts->findById(accountId);
    return *m_currencies.insert(accountId,
                                account ? std::optional(account->currency) : std::nullopt);
}
