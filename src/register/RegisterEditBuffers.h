#pragma once

#include <QString>

// The texts of the one row that is being typed, column by column, until they are saved or dropped.
struct RegisterEditBuffers
{
    QString date{}; // "M/d/yyyy"
    QString check_number{};
    QString payee{};
    QString memo{};
    QString category{}; // as the cell shows it
    QString payment{};
    QString deposit{};
    QString clr{};
    QString category_id{}; // picked in the editor; empty leaves the text to decide. Has no column

    // The buffer of a column, or null for one that has none.
    QString *at(int column);
    const QString *at(int column) const;

    bool operator==(const RegisterEditBuffers &) const = default;
};
