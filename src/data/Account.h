#pragma once

#include "core/Currency.h"
#include "data/AccountType.h"
#include "data/SyncStatus.h"

#include <QDateTime>
#include <QString>

#include <optional>

// One row of table "accounts"; the field names are the column names.
struct Account
{
    QString id{};
    QString name{};
    AccountType account_type = AccountType::Checking;
    Currency currency = Currency::USD;
    QString institution{};
    QString account_number_last4{}; // free text
    qint64 starting_balance = 0; // minor units, before the first transaction
    int sort_order = 0; // place in the sidebar
    bool is_shared = false;
    int version = 1;
    SyncStatus sync_status = SyncStatus::Pending;
    QString server_id{}; // empty until the first accepted push
    QDateTime created_at{};
    QDateTime updated_at{};
    std::optional<QDateTime> deleted_at{}; // present: soft-deleted

    bool operator==(const Account &) const = default;
};
