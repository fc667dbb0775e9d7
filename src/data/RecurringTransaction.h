#pragma once

#include "data/Frequency.h"
#include "data/SyncStatus.h"

#include <QDate>
#include <QDateTime>
#include <QString>

#include <optional>

// One row of table "recurring_transactions"; the field names are the column names.
struct RecurringTransaction
{
    QString id{};
    QString account_id{};
    QString payee{};
    QString memo{};
    qint64 amount = 0; // minor units; positive is a deposit, negative a payment
    QString category_id{};
    Frequency frequency = Frequency::Monthly;
    QDate start_date{};
    std::optional<QDate> end_date{}; // absent: no end
    QDate next_due_date{};
    bool auto_post = false;
    bool is_active = true;
    QString transfer_dest_account_id{}; // set for a recurring transfer
    int version = 1;
    SyncStatus sync_status = SyncStatus::Pending;
    QString server_id{}; // empty until the first accepted push
    QDateTime created_at{};
    QDateTime updated_at{};
    std::optional<QDateTime> deleted_at{}; // present: soft-deleted

    bool operator==(const RecurringTransaction &) const = default;
};
