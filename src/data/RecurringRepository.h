#pragma once

#include "data/KeptStatement.h"
#include "data/RecurringTransaction.h"

#include <QList>
#include <QObject>

class Database;

// The only code that reads and writes table "recurring_transactions" in normal operation. A failed
// read is an empty result; a failed write returns false or 0 and, but for softDelete, logs a
// warning.
class RecurringRepository : public QObject
{
    Q_OBJECT

public:
    explicit RecurringRepository(Database *database, QObject *parent = nullptr); // not owned

    QList<RecurringTransaction> listActive() const; // by due date; inactive templates included
    std::optional<RecurringTransaction> findById(const QString &id) const; // soft-deleted included
    QList<RecurringTransaction> listDue() const; // active, due today or earlier
    QList<RecurringTransaction> listPending() const; // soft-deleted rows included

    // These write what the record says: the caller sets the stamps, version and sync_status. A due
    // date that is invalid or before 2000 is reported in the log and saved all the same.
    bool insert(const RecurringTransaction &recurring);
    bool update(const RecurringTransaction &recurring); // does not move between accounts

    // Writes the switch and the stamp alone, so that it also serves a template whose dates cannot
    // be read and thus not be written back.
    bool deactivate(const QString &id);

    bool softDelete(const QString &id);

    // A pair: the second brings back what was deleted at the stamp or later. Both give the number
    // of rows.
    int softDeleteByAccount(const QString &accountId);
    int restoreByAccount(const QString &accountId, const QString &sinceStamp);

    int markAllPendingForResync(); // how many rows changed
    bool markSynced(const QString &id, const QString &serverId); // emits nothing

Q_SIGNALS:
    void recurringChanged(); // a bulk write emits only if it changed rows

private:
    int notified(int rows); // emits if any row changed

    Database *m_database;
    mutable KeptStatement m_find{};
    KeptStatement m_update{};
};
