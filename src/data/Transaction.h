#pragma once

#include "data/SyncStatus.h"

#include <QDate>
#include <QDateTime>
#include <QString>

#include <optional>

// One row of table "transactions"; the field names are the column names.
struct Transaction
{
    QString id{};
    QString account_id{};
    QDate date{};
    QString payee{};
    QString memo{};
    qint64 amount = 0; // minor units; positive is a deposit, negative a payment
    QString category_id{}; // empty: none, and always for a split, whose lines carry the categories
    QString check_number{};
    bool cleared = false;
    bool reconciled = false;
    QString transfer_link_id{}; // the other side of a transfer
    QString transfer_dest_account_id{}; // the account of the other side
    bool is_split = false;
    QString recurring_id{}; // the template that posted it
    int version = 1;
    SyncStatus sync_status = SyncStatus::Pending;
    QString server_id{}; // empty until the first accepted push
    QDateTime created_at{};
    QDateTime updated_at{};
    std::optional<QDateTime> deleted_at{}; // present: soft-deleted

    bool operator==(const Transaction &) const = default;
};
Q_DECLARE_TYPEINFO(Transaction, Q_RELOCATABLE_TYPE);
