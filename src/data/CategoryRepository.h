#pragma once

#include "data/Category.h"
#include "data/KeptStatement.h"

#include <QList>
#include <QObject>

class Database;

// The only code that reads and writes table "categories" in normal operation. A failed read is an
// empty result; a failed write logs a warning and returns false or 0.
class CategoryRepository : public QObject
{
    Q_OBJECT

public:
    explicit CategoryRepository(Database *database, QObject *parent = nullptr); // not owned

    int countActive() const;
    QList<Category> listActive() const; // by name alone, subcategories among their parents
    std::optional<Category> findById(const QString &id) const; // soft-deleted rows included
    // Any one of the live categories of that name: a name alone does not identify a subcategory.
    std::optional<Category> findByName(const QString &name) const;
    QList<Category> listPending() const; // soft-deleted rows included

    // These write what the record says: the caller sets the stamps, version and sync_status.
    bool insert(const Category &category);
    bool insertFailedOnDisk() const { return m_insert.failedOnDisk(); } // of the last insert
    bool update(const Category &category);

    bool softDelete(const QString &id); // the category alone: children and transactions keep it

    int markAllPendingForResync(); // how many rows changed
    bool markSynced(const QString &id, const QString &serverId); // emits nothing

Q_SIGNALS:
    void categoriesChanged(); // a bulk write emits only if it changed rows

private:
    QList<Category> list(const QString &statement) const;
    std::optional<Category> findBy(const QString &statement, const QString &value) const;

    Database *m_database;
    KeptStatement m_insert{};
};
