#include "data/CategoryRepository.h"

#include "core/Dates.h"
#include "data/Queries.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kColumns{
    "id, name, category_type, parent_id, is_tax_relevant, tax_category, icon, color, is_default, "
    "account_id, version, sync_status, server_id, created_at, updated_at, deleted_at"};

Category readRow(const QSqlQuery &query)
{
    return {
        .id = textAt(query, 0),
        .name = textAt(query, 1),
        .category_type = categoryTypeFromString(textAt(query, 2)),
        .parent_id = textAt(query, 3),
        .is_tax_relevant = boolAt(query, 4),
        .tax_category = textAt(query, 5),
        .icon = textAt(query, 6),
        .color = textAt(query, 7),
        .is_default = boolAt(query, 8),
        .account_id = textAt(query, 9),
        .version = intAt(query, 10),
        .sync_status = syncStatusFromString(textAt(query, 11)),
        .server_id = textAt(query, 12),
        .created_at = stampAt(query, 13),
        .updated_at = stampAt(query, 14),
        .deleted_at = optionalStampAt(query, 15),
    };
}

// The fields that insert and update write alike, in the order of both statements.
void bindFields(QSqlQuery &query, const Category &category)
{
    query.addBindValue(category.name);
    query.addBindValue(categoryTypeToString(category.category_type));
    query.addBindValue(nullIfEmpty(category.parent_id));
    query.addBindValue(category.is_tax_relevant ? 1 : 0);
    query.addBindValue(category.tax_category);
    query.addBindValue(category.icon);
    query.addBindValue(category.color);
    query.addBindValue(category.is_default ? 1 : 0);
    query.addBindValue(nullIfEmpty(category.account_id));
    query.addBindValue(category.version);
    query.addBindValue(syncStatusToString(category.sync_status));
    query.addBindValue(category.server_id);
}

} // namespace

CategoryRepository::CategoryRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{
}

QList<Category> CategoryRepository::list(const QString &statement) const
{
    QSqlQuery query = readQuery(m_database, statement.arg(kColumns));
    return readAll(query, readRow);
}

std::optional<Category> CategoryRepository::findBy(const QString &statement,
                                                   const QString &value) const
{
    QSqlQuery query = readQuery(m_database, statement.arg(kColumns), {value});
    return readFirst(query, readRow);
}

int CategoryRepository::countActive() const
{
    QSqlQuery query =
        readQuery(m_database, u"SELECT COUNT(*) FROM categories WHERE deleted_at IS NULL"_s);
    query.exec();
    return query.next() ? query.value(0).toInt() : 0;
}

QList<Category> CategoryRepository::listActive() const
{
    return list(u"SELECT %1 FROM categories WHERE deleted_at IS NULL ORDER BY name"_s);
}

std::optional<Category> CategoryRepository::findById(const QString &id) const
{
    return findBy(u"SELECT %1 FROM categories WHERE id = ?"_s, id);
}

std::optional<Category> CategoryRepository::findByName(const QString &name) const
{
    return findBy(u"SELECT %1 FROM categories WHERE name = ? AND deleted_at IS NULL"_s, name);
}

QList<Category> CategoryRepository::listPending() const
{
    return list(u"SELECT %1 FROM categories WHERE sync_status = 'pending'"_s);
}

bool CategoryRepository::insert(const Category &category)
{
    QSqlQuery &query = m_insert.ready(
        m_database,
        u"INSERT INTO categories (id, name, category_type, parent_id, is_tax_relevant, "
        "tax_category, icon, color, is_default, account_id, version, sync_status, server_id, "
        "created_at, updated_at) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"_s);
    query.addBindValue(category.id);
    bindFields(query, category);
    query.addBindValue(isoStamp(category.created_at));
    query.addBindValue(isoStamp(category.updated_at));
    if (!m_insert.run("CategoryRepository::insert failed:"))
        return false;
    Q_EMIT categoriesChanged();
    return true;
}

bool CategoryRepository::update(const Category &category)
{
    QSqlQuery query = writeQuery(
        m_database,
        u"UPDATE categories SET name=?, category_type=?, parent_id=?, is_tax_relevant=?, "
        "tax_category=?, icon=?, color=?, is_default=?, account_id=?, version=?, sync_status=?, "
        "server_id=?, updated_at=? WHERE id=?"_s);
    bindFields(query, category);
    query.addBindValue(isoStamp(category.updated_at));
    query.addBindValue(category.id);
    if (!execWrite(query, "CategoryRepository::update failed:"))
        return false;
    Q_EMIT categoriesChanged();
    return true;
}

bool CategoryRepository::softDelete(const QString &id)
{
    const QString stamp = isoStamp(currentStamp());
    QSqlQuery query = writeQuery(
        m_database,
        u"UPDATE categories SET deleted_at=?, sync_status='pending', updated_at=? WHERE id=?"_s,
        {stamp, stamp, id});
    if (!execWrite(query, "CategoryRepository::softDelete failed:"))
        return false;
    Q_EMIT categoriesChanged();
    return true;
}

int CategoryRepository::markAllPendingForResync()
{
    QSqlQuery query = writeQuery(m_database,
                                 u"UPDATE categories SET sync_status = 'pending' "
                                 "WHERE deleted_at IS NULL AND sync_status != 'pending'"_s);
    const int rows = execBulkWrite(query, "CategoryRepository::markAllPendingForResync failed:");
    if (rows > 0)
        Q_EMIT categoriesChanged();
    return rows;
}

bool CategoryRepository::markSynced(const QString &id, const QString &serverId)
{
    return writeQuery(m_database,
                      u"UPDATE categories SET sync_status='synced', server_id=? WHERE id=?"_s,
                      {serverId, id})
        .exec();
}
