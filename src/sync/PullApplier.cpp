#include "sync/PullApplier.h"

#include "core/Ids.h"
#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/ReconciliationRepository.h"
#include "data/RecurringRepository.h"
#include "data/TransactionRepository.h"
#include "sync/PulledRecords.h"
#include "sync/ServerIds.h"

#include <QDebug>

using namespace Qt::StringLiterals;

namespace {

constexpr int kFirstYear = 2000;

// A broken date must not enter a table from outside: the schedules would stop at it.
bool isSound(QDate date)
{
    return date.isValid() && date.year() >= kFirstYear;
}

// The local row that a record stands for. The record takes that row's id, or a fresh one if there
// is no row and it has none.
template <typename Record, typename Repository>
std::optional<Record> localRow(Record &record, const Repository *repository, ServerIds &serverIds)
{
    std::optional<Record> local;
    if (!record.id.isEmpty())
        local = repository->findById(record.id);
    if (!local && !record.server_id.isEmpty()) {
        const QString localId = serverIds.localIdForServerId(record.server_id);
        if (!localId.isEmpty()) {
            local = repository->findById(localId);
            record.id = localId;
        }
    }
    if (record.id.isEmpty())
        record.id = newId();
    return local;
}

// True when something was stored.
template <typename Record, typename Repository>
bool fold(const Record &record, const std::optional<Record> &local, Repository *repository)
{
    if (!local)
        return !record.deleted_at && repository->insert(record);
    if (record.version < local->version)
        return false;
    const bool isStored = repository->update(record);
    // A finished reconciliation stays with the device that holds it, whatever another one deleted.
    if constexpr (!std::is_same_v<Record, Reconciliation>) {
        // The ordinary delete makes the row pending: it goes back to the service once.
        if (record.deleted_at && !local->deleted_at)
            repository->softDelete(record.id);
    }
    return isStored;
}

} // namespace

PullApplier::PullApplier(const SyncRepositories &repositories)
    : m_repositories(repositories)
{
}

void PullApplier::applyPage(const QJsonObject &page)
{
    const QLatin1StringView recurringKey =
        page.contains("recurring_transactions"_L1) ? "recurring_transactions"_L1 : "recurring"_L1;
    applyAccount(page.value("accounts"_L1).toArray());
    applyCategory(page.value("categories"_L1).toArray());
    applyRecurring(page.value(recurringKey).toArray());
    applyTransactionChange(page.value("transactions"_L1).toArray());
    applyReconciliation(page.value("reconciliations"_L1).toArray());
}

void PullApplier::applyAccount(const QJsonArray &records)
{
    applyEach<Account>(records, m_repositories.accounts, u"accounts"_s,
                       [](const Account &, const QJsonObject &) { return true; });
}

void PullApplier::applyCategory(const QJsonArray &records)
{
    applyEach<Category>(records, m_repositories.categories, u"categories"_s,
                        [](const Category &, const QJsonObject &) { return true; });
}

void PullApplier::applyRecurring(const QJsonArray &records)
{
    const auto isWanted = [](const RecurringTransaction &recurring, const QJsonObject &json) {
        if (isSound(recurring.next_due_date))
            return true;
        qWarning().noquote() << "applyRecurring: skipping server record with broken nextDueDate:"
                             << recurring.id << recurring.payee
                             << json.value("next_due_date"_L1).toString();
        return false;
    };
    applyEach<RecurringTransaction>(records, m_repositories.recurring, u"recurring_transactions"_s,
                                    isWanted);
}

void PullApplier::applyTransactionChange(const QJsonArray &records)
{
    const auto isWanted = [](const Transaction &transaction, const QJsonObject &json) {
        if (isSound(transaction.date))
            return true;
        qWarning().noquote() << "applyTransactionChange: skipping server record with broken date:"
                             << transaction.id << transaction.payee
                             << json.value("date"_L1).toString();
        return false;
    };
    applyEach<Transaction>(records, m_repositories.transactions, u"transactions"_s, isWanted);
}

void PullApplier::applyReconciliation(const QJsonArray &records)
{
    const auto isWanted = [](const Reconciliation &reconciliation, const QJsonObject &json) {
        if (isSound(reconciliation.statement_date))
            return true;
        qWarning().noquote()
            << "applyReconciliation: skipping server record with broken statementDate:"
            << reconciliation.id << json.value("statement_date"_L1).toString();
        return false;
    };
    applyEach<Reconciliation>(records, m_repositories.reconciliations, u"reconciliations"_s,
                              isWanted);
}

template <typename Record, typename Repository, typename IsWanted>
void PullApplier::applyEach(const QJsonArray &records, Repository *repository, const QString &table,
                            IsWanted isWanted)
{
    ServerIds serverIds(table, records);
    for (const QJsonValue &value : records) {
        const QJsonObject json = value.toObject();
        Record record;
        readPulled(json, record);
        const std::optional<Record> local = localRow(record, repository, serverIds);
        if (isWanted(record, json) && fold(record, local, repository))
            serverIds.noteStored(record.id, local ? local->server_id : QString(), record.server_id);
    }
}
