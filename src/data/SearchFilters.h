#pragma once

#include <QDate>
#include <QString>

#include <optional>

// What narrows a search; every field at its default lets all rows pass.
struct SearchFilters
{
    QString account_id{};
    QString category_id{};
    QDate date_from{}; // the day itself included
    QDate date_to{}; // the day itself included
    std::optional<bool> cleared{};

    bool operator==(const SearchFilters &) const = default;
};
