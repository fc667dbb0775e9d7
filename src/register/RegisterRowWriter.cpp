#include "register/RegisterRowWriter.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "core/Money.h"
#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/SqlTransaction.h"
#include "data/TransactionRepository.h"
#include "register/PayeeFill.h"

using namespace Qt::StringLiterals;

namespace {

// The fields that can be typed go from one record into the other; the rest is the record's own.
void takeTypedFields(Transaction &to, const Transaction &from)
{
    to.date = from.date;
    to.payee = from.payee;
    to.check_number = from.check_number;
    to.memo = from.memo;
    to.amount = from.amount;
    to.category_id = from.category_id;
    to.cleared = from.cleared;
    to.reconciled = from.reconciled;
}

} // namespace

RegisterRowWriter::RegisterRowWriter(const AppState &appState, const QString &accountId)
    : m_appState(appState)
    , m_accountId(accountId)
{
}

RegisterRowWriter::Outcome RegisterRowWriter::refuse(Outcome outcome, const QString &message)
{
    m_message = message;
    m_refusal = outcome;
    return outcome;
}

std::optional<RegisterRowWriter::Entry> RegisterRowWriter::read(const RegisterEditBuffers &typed)
{
    Entry entry;
    Transaction &transaction = entry.transaction;
    transaction.payee = typed.payee.trimmed();
    if (transaction.payee.isEmpty()) {
        refuse(Outcome::Refused, tr("Payee is required"));
        return std::nullopt;
    }
    if (!readAmount(typed, transaction.amount)) {
        refuse(Outcome::Refused, tr("Enter a payment or deposit amount"));
        return std::nullopt;
    }
    transaction.date = dateFromText(typed.date, u"M/d/yyyy"_s);
    if (!transaction.date.isValid())
        transaction.date = QDate::currentDate();
    transaction.category_id = categoryId(typed);
    transaction.check_number = typed.check_number.trimmed();
    transaction.memo = typed.memo.trimmed();
    const QString clr = typed.clr.trimmed().toUpper();
    transaction.reconciled = clr == u"R"_s;
    transaction.cleared = transaction.reconciled || clr == u"C"_s;
    if (!readTransfer(entry))
        return std::nullopt;
    return entry;
}

// A payment wins over a deposit: only one of the two can be meant.
bool RegisterRowWriter::readAmount(const RegisterEditBuffers &typed, qint64 &amount)
{
    const QString payment = typed.payment.trimmed();
    const QString deposit = typed.deposit.trimmed();
    if (payment.isEmpty() && deposit.isEmpty())
        return false;
    amount = payment.isEmpty() ? parseMoney(deposit) : negateMoney(parseMoney(payment));
    return true;
}

bool RegisterRowWriter::readTransfer(Entry &entry)
{
    if (!entry.transaction.payee.startsWith(transferPrefix()))
        return true;
    const QString name = entry.transaction.payee.mid(transferPrefix().size());
    const QList<Account> accounts = m_appState.accounts()->listActive();
    const auto found = std::find_if(accounts.begin(), accounts.end(),
                                    [&](const Account &account) { return account.name == name; });
    if (found == accounts.end()) {
        refuse(Outcome::Refused, tr("Transfer account not found"));
        return false;
    }
    const auto source = m_appState.accounts()->findById(m_accountId);
    if (source && source->currency != found->currency) {
        refuse(Outcome::CurrenciesDiffer,
               tr("Transfers require both accounts to use the same currency"));
        return false;
    }
    entry.transaction.payee = tr("Transfer to %1").arg(name);
    entry.transferAccountId = found->id;
    return true;
}

// No category is made here: a name that none carries leaves the row without one.
QString RegisterRowWriter::categoryId(const RegisterEditBuffers &typed) const
{
    if (!typed.category_id.isEmpty())
        return typed.category_id;
    const QString name = typed.category.trimmed();
    if (name.isEmpty())
        return {};
    if (const auto category = m_appState.categories()->findByName(name))
        return category->id;
    const qsizetype separator = name.indexOf(u" > "_s);
    if (separator < 0)
        return {};
    const auto child = m_appState.categories()->findByName(name.mid(separator + 3).trimmed());
    return child ? child->id : QString();
}

RegisterRowWriter::Outcome RegisterRowWriter::saveChanges(const RegisterRow &row,
                                                          const RegisterEditBuffers &typed)
{
    const auto entry = read(typed);
    if (!entry)
        return m_refusal;
    // Only this side of a transfer changes: the other account's holder may have cleared his.
    Transaction changed = row;
    takeTypedFields(changed, entry->transaction);
    changed.version += 1;
    changed.updated_at = currentStamp();
    changed.sync_status = SyncStatus::Pending;
    m_appState.transactions()->update(changed);
    return Outcome::Saved;
}

RegisterRowWriter::Outcome RegisterRowWriter::saveNew(const RegisterEditBuffers &typed)
{
    const auto entry = read(typed);
    if (!entry)
        return m_refusal;
    Transaction added = entry->transaction;
    added.id = newId();
    added.account_id = m_accountId;
    added.created_at = currentStamp();
    added.updated_at = added.created_at;
    if (entry->transferAccountId.isEmpty())
        m_appState.transactions()->insert(added);
    else
        insertTransfer(added, entry->transferAccountId);
    return Outcome::Saved;
}

void RegisterRowWriter::insertTransfer(Transaction near, const QString &farAccountId)
{
    const auto source = m_appState.accounts()->findById(m_accountId);
    Transaction far;
    far.id = newId();
    far.account_id = farAccountId;
    far.date = near.date;
    far.payee = tr("Transfer from %1").arg(source ? source->name : QString());
    far.amount = negateMoney(near.amount);
    far.cleared = near.cleared;
    far.reconciled = near.reconciled;
    far.transfer_link_id = near.id;
    far.transfer_dest_account_id = m_accountId;
    far.created_at = near.created_at;
    far.updated_at = near.updated_at;
    near.transfer_link_id = far.id;
    near.transfer_dest_account_id = farAccountId;

    // Half a transfer would make money out of nothing.
    SqlTransaction both(m_appState.database());
    if (m_appState.transactions()->insert(far) && m_appState.transactions()->insert(near))
        both.commit();
}
