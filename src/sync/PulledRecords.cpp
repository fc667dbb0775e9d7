#include "sync/PulledRecords.h"

#include "data/Account.h"
#include "data/Category.h"
#include "data/Reconciliation.h"
#include "data/RecurringTransaction.h"
#include "data/Transaction.h"

using namespace Qt::StringLiterals;

namespace {

QString text(const QJsonObject &json, QLatin1StringView key)
{
    return json.value(key).toString();
}

qint64 money(const QJsonObject &json, QLatin1StringView key)
{
    return json.value(key).toInteger();
}

int number(const QJsonObject &json, QLatin1StringView key)
{
    return json.value(key).toInt();
}

// Services send both forms.
bool flag(const QJsonObject &json, QLatin1StringView key)
{
    const QJsonValue value = json.value(key);
    return value.isBool() ? value.toBool() : value.toDouble() != 0.0;
}

QDate date(const QJsonObject &json, QLatin1StringView key)
{
    return parseFlexibleDate(text(json, key));
}

QDateTime stamp(const QJsonObject &json, QLatin1StringView key)
{
    return QDateTime::fromString(text(json, key), Qt::ISODate);
}

template <typename Record> void readCommon(const QJsonObject &json, Record &record)
{
    record.id = text(json, "client_id"_L1);
    record.server_id = text(json, "id"_L1);
    record.version = number(json, "version"_L1);
    record.sync_status = SyncStatus::Synced;
    record.created_at = stamp(json, "created_at"_L1);
    record.updated_at = stamp(json, "updated_at"_L1);
    if (!text(json, "deleted_at"_L1).isEmpty())
        record.deleted_at = stamp(json, "deleted_at"_L1);
}

} // namespace

void readPulled(const QJsonObject &json, Account &account)
{
    readCommon(json, account);
    account.name = text(json, "name"_L1);
    account.account_type = accountTypeFromString(text(json, "account_type"_L1));
    account.currency = currencyFromString(text(json, "currency"_L1));
    account.is_shared = flag(json, "is_shared"_L1);
    account.institution = text(json, "institution"_L1);
    account.account_number_last4 = text(json, "account_number_last4"_L1);
    account.starting_balance = money(json, "starting_balance"_L1);
    account.sort_order = number(json, "sort_order"_L1);
}

void readPulled(const QJsonObject &json, Category &category)
{
    readCommon(json, category);
    category.name = text(json, "name"_L1);
    category.category_type = categoryTypeFromString(text(json, "category_type"_L1));
    category.parent_id = text(json, "parent_id"_L1);
    category.is_tax_relevant = flag(json, "is_tax_relevant"_L1);
    category.tax_category = text(json, "tax_category"_L1);
    category.icon = text(json, "icon"_L1);
    category.color = text(json, "color"_L1);
    category.is_default = flag(json, "is_default"_L1);
    category.account_id = text(json, "account_id"_L1);
}

void readPulled(const QJsonObject &json, RecurringTransaction &recurring)
{
    readCommon(json, recurring);
    recurring.account_id = text(json, "account_id"_L1);
    recurring.payee = text(json, "payee"_L1);
    recurring.memo = text(json, "memo"_L1);
    recurring.amount = money(json, "amount"_L1);
    recurring.category_id = text(json, "category_id"_L1);
    recurring.transfer_dest_account_id = text(json, "transfer_dest_account_id"_L1);
    recurring.frequency = frequencyFromString(text(json, "frequency"_L1));
    recurring.start_date = date(json, "start_date"_L1);
    if (const QDate end = date(json, "end_date"_L1); end.isValid())
        recurring.end_date = end;
    recurring.next_due_date = date(json, "next_due_date"_L1);
    recurring.auto_post = flag(json, "auto_post"_L1);
    recurring.is_active = flag(json, "is_active"_L1);
}

void readPulled(const QJsonObject &json, Transaction &transaction)
{
    readCommon(json, transaction);
    transaction.account_id = text(json, "account_id"_L1);
    transaction.date = date(json, "date"_L1);
    transaction.payee = text(json, "payee"_L1);
    transaction.memo = text(json, "memo"_L1);
    transaction.amount = money(json, "amount"_L1);
    transaction.category_id = text(json, "category_id"_L1);
    transaction.check_number = text(json, "check_number"_L1);
    transaction.cleared = flag(json, "cleared"_L1);
    transaction.reconciled = flag(json, "reconciled"_L1);
    transaction.transfer_link_id = text(json, "transfer_link_id"_L1);
    transaction.transfer_dest_account_id = text(json, "transfer_dest_account_id"_L1);
    transaction.is_split = flag(json, "is_split"_L1);
    transaction.recurring_id = text(json, "recurring_id"_L1);
}

void readPulled(const QJsonObject &json, Reconciliation &reconciliation)
{
    readCommon(json, reconciliation);
    reconciliation.account_id = text(json, "account_id"_L1);
    reconciliation.statement_date = date(json, "statement_date"_L1);
    reconciliation.statement_balance = money(json, "statement_balance"_L1);
    reconciliation.reconciled_balance = money(json, "reconciled_balance"_L1);
    reconciliation.completed_at = stamp(json, "completed_at"_L1);
}

QDate parseFlexibleDate(const QString &text)
{
    if (text.isEmpty())
        return {};
    const QDate date = QDate::fromString(text, Qt::ISODate);
    return date.isValid() ? date : QDateTime::fromString(text, Qt::ISODate).date();
}
