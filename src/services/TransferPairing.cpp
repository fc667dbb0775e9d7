#include "services/TransferPairing.h"

#include "services/ImportRow.h"
#include "services/NameFolding.h"

#include <QHash>

#include <limits>

namespace {

// What the other side must show. The names are folded.
struct Side
{
    QDate date{};
    qint64 amount = 0;
    QString source{};
    QString other{};

    bool operator==(const Side &) const = default;
};

size_t qHash(const Side &side, size_t seed = 0) noexcept
{
    return qHashMulti(seed, side.date, side.amount, side.source, side.other);
}

Side sideOf(const ImportRow &row)
{
    return {row.date, row.amount, foldedName(row.sourceAccount), foldedName(row.transferAccount)};
}

std::optional<Side> counterpartOf(const ImportRow &row)
{
    if (row.amount == std::numeric_limits<qint64>::min())
        return std::nullopt; // has no opposite
    return Side{row.date, -row.amount, foldedName(row.transferAccount),
                foldedName(row.sourceAccount)};
}

bool takesPart(const ImportRow &row)
{
    return row.pairIndex < 0 && !row.transferAccount.isEmpty() && !row.sourceAccount.isEmpty()
        && !row.targetAccountId.isEmpty() && !isSelfTransfer(row);
}

// Rows of one target account that look alike, in the order of the list, as far as they are not used
// up.
struct Queue
{
    QString targetAccountId{};
    QList<int> rows{};
    qsizetype next = 0;

    void passOver(int row)
    {
        while (next < rows.size() && rows.at(next) <= row)
            ++next;
    }
    bool isEmpty() const { return next == rows.size(); }
    int front() const { return rows.at(next); }
};

// Names of one key can differ in what toLower() makes of them, so that they may map to several
// accounts; nearly always there is one.
using Queues = QList<Queue>;

void append(Queues &queues, const QString &targetAccountId, int row)
{
    for (Queue &queue : queues) {
        if (queue.targetAccountId == targetAccountId) {
            queue.rows << row;
            return;
        }
    }
    queues << Queue{targetAccountId, {row}};
}

QHash<Side, Queues> queuesOf(const QList<ImportRow> &rows)
{
    QHash<Side, Queues> queues;
    for (int i = 0; i < rows.size(); ++i) {
        if (takesPart(rows.at(i)))
            append(queues[sideOf(rows.at(i))], rows.at(i).targetAccountId, i);
    }
    return queues;
}

// Takes the first row behind this one that has another target account; -1 when there is none.
int takeFirst(Queues &queues, int row, const QString &targetAccountId)
{
    Queue *first = nullptr;
    for (Queue &queue : queues) {
        queue.passOver(row);
        if (queue.isEmpty() || queue.targetAccountId == targetAccountId)
            continue;
        if (!first || queue.front() < first->front())
            first = &queue;
    }
    return first ? first->rows.at(first->next++) : -1;
}

int partnerOf(const QList<ImportRow> &rows, int row, QHash<Side, Queues> &queues)
{
    const std::optional<Side> side = counterpartOf(rows.at(row));
    if (!side)
        return -1;
    const auto found = queues.find(*side);
    return found == queues.end() ? -1 : takeFirst(*found, row, rows.at(row).targetAccountId);
}

} // namespace

int pairRows(QList<ImportRow> &rows)
{
    QHash<Side, Queues> queues = queuesOf(rows);
    int pairs = 0;
    for (int i = 0; i < rows.size(); ++i) {
        if (!takesPart(rows.at(i)))
            continue;
        const int partner = partnerOf(rows, i, queues);
        if (partner < 0)
            continue;
        rows[i].pairIndex = partner;
        rows[partner].pairIndex = i;
        ++pairs;
    }
    return pairs;
}

bool isSelfTransfer(const ImportRow &row)
{
    return row.transferAccount.compare(row.sourceAccount, Qt::CaseInsensitive) == 0;
}
