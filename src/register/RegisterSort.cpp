#include "register/RegisterSort.h"

#include "core/Money.h"
#include "register/RegisterColumn.h"

#include <QHash>

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

using TextOf = QString RegisterRow::*;

// Comparing texts by the rules of a language is slow and most payees repeat, so each distinct text
// is ranked once and the rows are sorted by the ranks.
QHash<QString, qint64> textRanks(const QList<RegisterRow> &rows, TextOf text)
{
    QHash<QString, qint64> ranks;
    for (const RegisterRow &row : rows)
        ranks.insert(row.*text, 0);
    QStringList texts = ranks.keys();
    const auto before = [](const QString &left, const QString &right) {
        return QString::localeAwareCompare(left, right) < 0;
    };
    std::sort(texts.begin(), texts.end(), before);
    qint64 rank = 0;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        if (i > 0 && before(texts.at(i - 1), texts.at(i)))
            ++rank; // texts that compare alike share a rank
        ranks[texts.at(i)] = rank;
    }
    return ranks;
}

std::vector<qint64> textKeys(const QList<RegisterRow> &rows, TextOf text)
{
    const QHash<QString, qint64> ranks = textRanks(rows, text);
    std::vector<qint64> keys;
    keys.reserve(static_cast<size_t>(rows.size()));
    for (const RegisterRow &row : rows)
        keys.push_back(ranks.value(row.*text));
    return keys;
}

qint64 numberKey(const RegisterRow &row, int column)
{
    switch (column) {
    case RegisterColumn::Date:
        return row.date.toJulianDay();
    case RegisterColumn::Payment:
        return row.amount < 0 ? negateMoney(row.amount) : -1;
    case RegisterColumn::Deposit:
        return row.amount > 0 ? row.amount : -1;
    case RegisterColumn::Clr:
        return row.reconciled ? 2 : row.cleared ? 1 : 0;
    default:
        return row.balance;
    }
}

std::vector<qint64> sortKeys(const QList<RegisterRow> &rows, int column)
{
    switch (column) {
    case RegisterColumn::CheckNumber:
        return textKeys(rows, &RegisterRow::check_number);
    case RegisterColumn::Payee:
        return textKeys(rows, &RegisterRow::payee);
    case RegisterColumn::Category:
        return textKeys(rows, &RegisterRow::category_name);
    case RegisterColumn::Memo:
        return textKeys(rows, &RegisterRow::memo);
    default:
        break;
    }
    std::vector<qint64> keys;
    keys.reserve(static_cast<size_t>(rows.size()));
    for (const RegisterRow &row : rows)
        keys.push_back(numberKey(row, column));
    return keys;
}

} // namespace

void sortRegisterRows(QList<RegisterRow> &rows, int column, Qt::SortOrder order)
{
    const std::vector<qint64> keys = sortKeys(rows, column);
    const auto before = [&](size_t left, size_t right) {
        if (keys[left] != keys[right])
            return (keys[left] < keys[right]) == (order == Qt::AscendingOrder);
        return rows.at(static_cast<qsizetype>(left)).date
            > rows.at(static_cast<qsizetype>(right)).date;
    };
    std::vector<size_t> places(keys.size());
    std::iota(places.begin(), places.end(), size_t{0});
    if (std::is_sorted(places.begin(), places.end(), before))
        return; // the usual case: the list arrives oldest first
    std::stable_sort(places.begin(), places.end(), before);

    QList<RegisterRow> sorted;
    sorted.reserve(rows.size());
    for (const size_t place : places)
        sorted.append(std::move(rows[static_cast<qsizetype>(place)]));
    rows = std::move(sorted);
}
