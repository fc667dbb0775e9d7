#include "sync/SyncPayloads.h"

#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/ReconciliationRepository.h"
#include "data/RecurringRepository.h"
#include "data/TransactionRepository.h"
#include "sync/SyncRepositories.h"

using namespace Qt::StringLiterals;

namespace {

QString wireStamp(const QDateTime &stamp)
{
    return stamp.toUTC().toString(Qt::ISODate);
}

QString wireDate(QDate date)
{
    return date.toString(Qt::ISODate);
}

int wireFlag(bool flag)
{
    return flag ? 1 : 0;
}

template <typename Record> void addIdentity(QJsonObject &payload, const Record &record)
{
    payload.insert("client_id"_L1, record.id);
    if (!record.server_id.isEmpty())
        payload.insert("server_id"_L1, record.server_id);
}

template <typename Record> void addStamps(QJsonObject &payload, const Record &record)
{
    payload.insert("created_at"_L1, wireStamp(record.created_at));
    payload.insert("updated_at"_L1, wireStamp(record.updated_at));
    if (record.deleted_at)
        payload.insert("deleted_at"_L1, wireStamp(*record.deleted_at));
}

template <typename Record>
void appendChanges(QJsonArray &changes, QLatin1StringView entityType, const QList<Record> &records)
{
    for (const Record &record : records)
        changes.append(QJsonObject{
            {"entity_type"_L1, entityType},
            {"entity_id"_L1, record.id},
            {"action"_L1, record.deleted_at ? "delete"_L1 : "upsert"_L1},
            {"version"_L1, record.version},
            {"payload"_L1, payloadOf(record)},
        });
}

} // namespace

QJsonObject payloadOf(const Account &account)
{
    QJsonObject payload{
        {"name"_L1, account.name},
        {"account_type"_L1, accountTypeToString(account.account_type)},
        {"currency"_L1, currencyToString(account.currency)},
        {"is_shared"_L1, wireFlag(account.is_shared)},
        {"institution"_L1, account.institution},
        {"account_number_last4"_L1, account.account_number_last4},
        {"starting_balance"_L1, account.starting_balance},
        {"sort_order"_L1, account.sort_order},
        {"version"_L1, account.version},
    };
    addIdentity(payload, account);
    addStamps(payload, account);
    return payload;
}

QJsonObject payloadOf(const Category &category)
{
    QJsonObject payload{
        {"name"_L1, category.name},
        {"category_type"_L1, categoryTypeToString(category.category_type)},
        {"parent_id"_L1, category.parent_id},
        {"is_tax_relevant"_L1, wireFlag(category.is_tax_relevant)},
        {"tax_category"_L1, category.tax_category},
        {"icon"_L1, category.icon},
        {"color"_L1, category.color},
        {"is_default"_L1, wireFlag(category.is_default)},
        {"account_id"_L1, category.account_id},
        {"version"_L1, category.version},
    };
    addIdentity(payload, category);
    addStamps(payload, category);
    return payload;
}

// No version here, unlike the others: the service takes that of a template from the change.
QJsonObject payloadOf(const RecurringTransaction &recurring)
{
    QJsonObject payload{
        {"account_id"_L1, recurring.account_id},
        {"payee"_L1, recurring.payee},
        {"memo"_L1, recurring.memo},
        {"amount"_L1, recurring.amount},
        {"category_id"_L1, recurring.category_id},
        {"transfer_dest_account_id"_L1, recurring.transfer_dest_account_id},
        {"frequency"_L1, frequencyToString(recurring.frequency)},
        {"start_date"_L1, wireDate(recurring.start_date)},
        {"next_due_date"_L1, wireDate(recurring.next_due_date)},
        {"auto_post"_L1, wireFlag(recurring.auto_post)},
        {"is_active"_L1, wireFlag(recurring.is_active)},
    };
    if (recurring.end_date)
        payload.insert("end_date"_L1, wireDate(*recurring.end_date));
    addIdentity(payload, recurring);
    addStamps(payload, recurring);
    return payload;
}

QJsonObject payloadOf(const Transaction &transaction)
{
    QJsonObject payload{
        {"account_id"_L1, transaction.account_id},
        {"date"_L1, wireDate(transaction.date)},
        {"payee"_L1, transaction.payee},
        {"memo"_L1, transaction.memo},
        {"amount"_L1, transaction.amount},
        {"category_id"_L1, transaction.category_id},
        {"check_number"_L1, transaction.check_number},
        {"cleared"_L1, wireFlag(transaction.cleared)},
        {"reconciled"_L1, wireFlag(transaction.reconciled)},
        {"transfer_link_id"_L1, transaction.transfer_link_id},
        {"transfer_dest_account_id"_L1, transaction.transfer_dest_account_id},
        {"is_split"_L1, wireFlag(transaction.is_split)},
        {"recurring_id"_L1, transaction.recurring_id},
        {"version"_L1, transaction.version},
    };
    addIdentity(payload, transaction);
    addStamps(payload, transaction);
    return payload;
}

QJsonObject payloadOf(const Reconciliation &reconciliation)
{
    QJsonObject payload{
        {"account_id"_L1, reconciliation.account_id},
        {"statement_date"_L1, wireDate(reconciliation.statement_date)},
        {"statement_balance"_L1, reconciliation.statement_balance},
        {"reconciled_balance"_L1, reconciliation.reconciled_balance},
        {"completed_at"_L1, wireStamp(reconciliation.completed_at)},
        {"version"_L1, reconciliation.version},
    };
    addIdentity(payload, reconciliation);
    addStamps(payload, reconciliation);
    return payload;
}

QJsonArray pendingChanges(const SyncRepositories &repositories)
{
    QJsonArray changes;
    appendChanges(changes, "account"_L1, repositories.accounts->listPending());
    appendChanges(changes, "category"_L1, repositories.categories->listPending());
    appendChanges(changes, "recurring"_L1, repositories.recurring->listPending());
    appendChanges(changes, "transaction"_L1, repositories.transactions->listPending());
    appendChanges(changes, "reconciliation"_L1, repositories.reconciliations->listPending());
    return changes;
}
