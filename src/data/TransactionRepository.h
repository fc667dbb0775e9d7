#pragma once

#include "data/KeptStatement.h"
#include "data/RegisterRow.h"
#include "data/SearchFilters.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QStringList>

class Database;

// The only code that reads and writes table "transactions" in normal operation. A failed read is
// an empty result; a failed write logs a warning and returns false or 0.
class TransactionRepository : public QObject
{
    Q_OBJECT

public:
    explicit TransactionRepository(Database *database, QObject *parent = nullptr); // not owned

    QList<Transaction> listByAccount(const QString &accountId) const; // newest first
    std::optional<Transaction> findById(const QString &id) const; // soft-deleted rows included
    QList<Transaction> listPending() const; // soft-deleted rows included
    QList<Transaction> listUnreconciled(const QString &accountId) const; // oldest first

    // Oldest first, with running balances. An account whose starting_balance is not zero begins
    // with a row that is made up here and never stored; its id is empty.
    QList<RegisterRow> registerRows(const QString &accountId) const;

    // For every live account its starting_balance plus the sum of its live amounts.
    QHash<QString, qint64> balancesByAccount() const;

    // The 200 newest matches. The query is FTS5 syntax as typed: one that is not valid finds
    // nothing, an empty one leaves the filters alone to decide.
    QList<RegisterRow> search(const QString &query, const SearchFilters &filters) const;

    // Each once, without the empty one.
    QStringList allPayees() const;
    QStringList payeesOfAccount(const QString &accountId) const;
    std::optional<Transaction> lastForPayee(const QString &payee, const QString &accountId) const;

    // These write what the record says: the caller sets the stamps, version and sync_status.
    bool insert(const Transaction &transaction);
    bool update(const Transaction &transaction); // a transaction does not move between accounts

    bool softDelete(const QString &id); // false, without a log line, for an unknown id

    // A pair: the second brings back what was deleted at the stamp or later. Both give the number
    // of rows.
    int softDeleteByAccount(const QString &accountId);
    int restoreByAccount(const QString &accountId, const QString &sinceStamp);

    int markAllPendingForResync(); // how many rows changed
    bool markSynced(const QString &id, const QString &serverId); // emits nothing

    bool insertFailedOnDisk() const { return m_insert.failedOnDisk(); } // of the last insert

    // Around many writes whose end is not known yet; see BulkWrite. The signal fires for each write
    // as ever, but who answers it by reading a whole table waits for the end.
    void beginBulkWrite();
    void endBulkWrite();
    bool isBulkWriting() const { return m_bulkWrites > 0; }

Q_SIGNALS:
    // An empty account id stands for rows of several accounts. A bulk write emits only if it
    // changed rows.
    void transactionsChanged(const QString &accountId);

    void bulkWriteFinished(); // committed or not

private:
    qint64 startingBalanceOf(const QString &accountId) const;
    QHash<QString, qint64> balancesAddedUp() const;
    int notified(int rows, const QString &accountId); // emits if any row changed

    Database *m_database;
    KeptStatement m_insert{};
    KeptStatement m_update{};
    int m_bulkWrites = 0;
};
