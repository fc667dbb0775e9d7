#pragma once

#include <QDateTime>
#include <QString>

// One row of table "split_lines"; the field names are the column names. It travels with its
// transaction, so it has no sync state and no soft delete of its own.
struct SplitLine
{
    QString id{};
    QString transaction_id{};
    QString category_id{};
    qint64 amount = 0; // minor units, signed as the transaction's amount
    QString memo{};
    QDateTime created_at{};
    QDateTime updated_at{};

    bool operator==(const SplitLine &) const = default;
};
