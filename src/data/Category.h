#pragma once

#include "data/CategoryType.h"
#include "data/SyncStatus.h"

#include <QDateTime>
#include <QString>

#include <optional>

// One row of table "categories"; the field names are the column names.
struct Category
{
    QString id{};
    QString name{};
    CategoryType category_type = CategoryType::Expense;
    QString parent_id{}; // empty: a top-level category
    bool is_tax_relevant = false;
    QString tax_category{}; // tax code
    QString icon{};
    QString color{};
    bool is_default = false; // from the table that seeds an empty database
    QString account_id{}; // empty: a category of all accounts
    int version = 1;
    SyncStatus sync_status = SyncStatus::Pending;
    QString server_id{}; // empty until the first accepted push
    QDateTime created_at{};
    QDateTime updated_at{};
    std::optional<QDateTime> deleted_at{}; // present: soft-deleted

    bool operator==(const Category &) const = default;
};
