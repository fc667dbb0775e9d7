#pragma once

#include "data/SyncStatus.h"

#include <QDate>
#include <QDateTime>
#include <QString>

#include <optional>

// One row of table "reconciliations"; the field names are the column names.
struct Reconciliation
{
    QString id{};
    QString account_id{};
    QDate statement_date{};
    qint64 statement_balance = 0; // minor units
    qint64 reconciled_balance = 0; // minor units
    QDateTime completed_at{}; // when the person finished
    int version = 1;
    SyncStatus sync_status = SyncStatus::Pending;
    QString server_id{}; // empty until the first accepted push
    QDateTime created_at{};
    QDateTime updated_at{};
    std::optional<QDateTime> deleted_at{}; // present: soft-deleted

    bool operator==(const Reconciliation &) const = default;
};
