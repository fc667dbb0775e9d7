#pragma once

#include "data/Reconciliation.h"

#include <QList>
#include <QObject>

class Database;

// The only code that reads and writes table "reconciliations" in normal operation. A failed read
// is an empty result; a failed write logs a warning and returns false or 0.
class ReconciliationRepository : public QObject
{
    Q_OBJECT

public:
    explicit ReconciliationRepository(Database *database, QObject *parent = nullptr); // not owned

    QList<Reconciliation> listByAccount(const QString &accountId) const; // latest statement first
    std::optional<Reconciliation> findById(const QString &id) const; // soft-deleted rows included
    std::optional<Reconciliation> latestForAccount(const QString &accountId) const; // by statement
    QList<Reconciliation> listPending() const; // soft-deleted rows included

    bool insert(const Reconciliation &reconciliation); // fills in stamps that are not valid
    bool update(const Reconciliation &reconciliation); // may move it to another account

    // A pair: the second brings back what was deleted at the stamp or later. Both give the number
    // of rows.
    int softDeleteByAccount(const QString &accountId);
    int restoreByAccount(const QString &accountId, const QString &sinceStamp);

    int markAllPendingForResync(); // how many rows changed
    bool markSynced(const QString &id, const QString &serverId); // emits nothing

Q_SIGNALS:
    void reconciliationsChanged(); // a bulk write emits only if it changed rows

private:
    int notified(int rows); // emits if any row changed

    Database *m_database;
};
