#pragma once

#include <QString>

#include <optional>

// A transaction whose other side has not come in yet says so at the start of its memo, "[→ Savings]
// the memo": no column is needed for what a person may read and change.
struct TransferHint
{
    QString accountName{}; // of the other side, as the file had it
    QString memo{}; // without the hint
};

QString memoWithHint(const QString &accountName, const QString &memo);
std::optional<TransferHint> parseTransferHint(const QString &memo);
