#pragma once

#include "data/Account.h"

#include <QList>
#include <QObject>
#include <QPair>

class Database;

// The only code that reads and writes table "accounts" in normal operation. A failed read is an
// empty result; a failed write logs a warning and returns false or 0.
class AccountRepository : public QObject
{
    Q_OBJECT

public:
    explicit AccountRepository(Database *database, QObject *parent = nullptr); // not owned

    QList<Account> listActive() const; // by sort_order, then name
    std::optional<Account> findById(const QString &id) const; // soft-deleted rows included
    QList<Account> listDeleted() const;
    QList<Account> listPending() const; // soft-deleted rows included

    // These write what the record says: the caller sets the stamps, version and sync_status.
    bool insert(const Account &account);
    bool update(const Account &account); // a row that does not exist counts as success

    bool softDelete(const QString &id);
    bool restore(const QString &id);

    // All or none. Stays local to this device: the rows do not become pending.
    bool updateSortOrders(const QList<QPair<QString, int>> &orders);

    int markAllPendingForResync(); // how many rows changed
    bool markSynced(const QString &id, const QString &serverId); // emits nothing

Q_SIGNALS:
    void accountsChanged(); // a bulk write emits only if it changed rows

private:
    QList<Account> list(const QString &statement) const;

    Database *m_database;
};
