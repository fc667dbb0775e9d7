#pragma once

#include "data/Transaction.h"
#include "services/DuplicateKey.h"

#include <QHash>
#include <QSet>

// What an import has to know of the transactions that an account held before, found by hash.
class AccountImportCache
{
public:
    AccountImportCache() = default;
    explicit AccountImportCache(const QList<Transaction> &live); // as listByAccount() gives them

    bool holds(const DuplicateKey &key) const { return m_keys.contains(key); }
    void add(const DuplicateKey &key) { m_keys.insert(key); }

    // The row that waits for this other side of its transfer; of several the one that comes first
    // in the list. Null when there is none.
    const Transaction *waitingFor(QDate date, qint64 amount, const QString &accountName) const;
    void takeWaitingFor(QDate date, qint64 amount, const QString &accountName);

private:
    struct Hint
    {
        QDate date{};
        qint64 amount = 0; // of the row that waits
        QString name{}; // of the account it names, folded

        bool operator==(const Hint &) const = default;
    };
    friend size_t qHash(const Hint &hint, size_t seed) noexcept
    {
        return qHashMulti(seed, hint.date, hint.amount, hint.name);
    }
    static std::optional<Hint> hintFor(QDate date, qint64 amount, const QString &accountName);

    QSet<DuplicateKey> m_keys{};
    QHash<Hint, QList<Transaction>> m_waiting{}; // the first of the list stands last
};
