#include "Records.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QUuid>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct EntityType
{
    QLatin1StringView word;
    QLatin1StringView pulledAs;
};

// In the order of their rank: a row refers only to rows of its own or an earlier type.
constexpr EntityType kEntityTypes[]{
    {"account"_L1, "accounts"_L1},
    {"category"_L1, "categories"_L1},
    {"recurring"_L1, "recurring_transactions"_L1},
    {"transaction"_L1, "transactions"_L1},
    {"reconciliation"_L1, "reconciliations"_L1},
};
constexpr int kRanks = static_cast<int>(std::size(kEntityTypes));
constexpr int kCategoryRank = 1;

int rankOf(const QString &entityType)
{
    for (int rank = 0; rank < kRanks; ++rank) {
        if (kEntityTypes[rank].word == entityType)
            return rank;
    }
    return -1;
}

QString now()
{
    return QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
}

QString timeText(qint64 ms)
{
    return QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC).toString(Qt::ISODateWithMs);
}

qint64 timeOf(QStringView text)
{
    const QDateTime time = QDateTime::fromString(text.toString(), Qt::ISODateWithMs);
    return time.isValid() ? time.toMSecsSinceEpoch() : 0;
}

QJsonObject payloadOf(const QJsonObject &row)
{
    QJsonObject payload =
        QJsonDocument::fromJson(row.value("payload"_L1).toString().toUtf8()).object();
    payload.insert("id"_L1, row.value("server_id"_L1));
    payload.insert("client_id"_L1, row.value("client_id"_L1));
    payload.insert("version"_L1, row.value("version"_L1));
    return payload;
}

// A category may stand before its parent in a push; pulled so, a device could not store it.
QList<QJsonObject> parentsFirst(const QJsonArray &changes)
{
    QList<QJsonObject> ordered;
    for (const QJsonValue &change : changes)
        ordered.append(change.toObject());
    std::stable_partition(ordered.begin(), ordered.end(), [](const QJsonObject &change) {
        return change.value("payload"_L1).toObject().value("parent_id"_L1).toString().isEmpty();
    });
    return ordered;
}

} // namespace

// A walk through all that changed after `since`, up to `until`, ordered by rank: whoever starts
// from nothing gets the accounts before their transactions, even if they were renamed later. While
// it is under way its place is the "server_time"; at its end that is a plain time.
struct Records::Walk
{
    qint64 since = 0;
    qint64 until = 0; // 0: a new walk
    int rank = 0;
    qint64 place = 0; // the last row of that rank that was handed out

    static Walk from(const QString &cursor)
    {
        const QStringList parts = cursor.split(u'~');
        if (parts.size() != 4)
            return {.since = timeOf(cursor)};
        return {.since = timeOf(parts.at(0)),
                .until = timeOf(parts.at(1)),
                .rank = parts.at(2).toInt(),
                .place = parts.at(3).toLongLong()};
    }

    QString cursor() const
    {
        return u"%1~%2~%3~%4"_s.arg(timeText(since), timeText(until), QString::number(rank),
                                    QString::number(place));
    }
};

Records::Records(ServiceDatabase &database)
    : m_database(database)
{
}

QJsonArray Records::push(const QString &userId, const QJsonArray &changes)
{
    QJsonArray results;
    m_database.run("BEGIN");
    for (const QJsonObject &change : parentsFirst(changes))
        results.append(store(userId, change));
    m_database.run("COMMIT");
    return results;
}

QJsonObject Records::store(const QString &userId, const QJsonObject &change)
{
    const QString entityType = change.value("entity_type"_L1).toString();
    const QString entityId = change.value("entity_id"_L1).toString();
    const bool isDelete = change.value("action"_L1) == "delete"_L1;
    QJsonObject payload = change.value("payload"_L1).toObject();
    if (isDelete && payload.value("deleted_at"_L1).toString().isEmpty())
        payload.insert("deleted_at"_L1, now()); // by it the other devices know
    QJsonObject result{{"entity_type"_L1, entityType}, {"entity_id"_L1, entityId}};
    const auto refused = [&result](QLatin1StringView status, QLatin1StringView message) {
        result.insert("status"_L1, status);
        result.insert("message"_L1, message);
        return result;
    };
    const int rank = rankOf(entityType);
    if (rank < 0 || entityId.isEmpty())
        return refused("error"_L1, "no such entity"_L1);

    const QString accountId = rank == 0 ? entityId : payload.value("account_id"_L1).toString();
    const QString ownerId = ownerOf(userId, entityType, entityId, accountId);
    const QJsonObject present =
        m_database.first("SELECT server_id, version FROM records WHERE owner_id = ? AND "
                         "entity_type = ? AND client_id = ?",
                         {ownerId, entityType, entityId});
    const int version = change.value("version"_L1).toInt();
    if (version < present.value("version"_L1).toInt())
        return refused("conflict"_L1, "a later version is stored"_L1);

    const QString serverId = present.isEmpty() ? QUuid::createUuid().toString(QUuid::WithoutBraces)
                                               : present.value("server_id"_L1).toString();
    m_database.run("INSERT OR REPLACE INTO records VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
                   {ownerId, entityType, entityId, accountId, serverId, version, isDelete,
                    QString::fromUtf8(QJsonDocument(payload).toJson(QJsonDocument::Compact)), rank,
                    nextChange()});
    result.insert("status"_L1, "ok"_L1);
    result.insert("server_id"_L1, serverId);
    return result;
}

// A row of an account that another user shares stays that user's row.
QString Records::ownerOf(const QString &userId, const QString &entityType, const QString &entityId,
                         const QString &accountId)
{
    const bool isOwn = !m_database
                            .first("SELECT 1 FROM records WHERE owner_id = ? AND entity_type = ? "
                                   "AND client_id = ?",
                                   {userId, entityType, entityId})
                            .isEmpty();
    const QString sharer =
        m_database
            .first("SELECT owner_id FROM shares WHERE account_id = ? AND user_id = ?",
                   {accountId, userId})
            .value("owner_id"_L1)
            .toString();
    return isOwn || sharer.isEmpty() ? userId : sharer;
}

QJsonObject Records::pull(const QString &userId, const QString &since, int limit)
{
    Walk walk = Walk::from(since);
    if (walk.until == 0)
        walk.until = lastChange();
    // Beside the user's own rows: the shared accounts with what is in them, and the categories of
    // those who share, but for those that the user has as well.
    const QList<QJsonObject> rows = m_database.select(
        "SELECT * FROM records r WHERE changed_ms > ?2 AND changed_ms <= ?3 "
        "AND (rank > ?4 OR (rank = ?4 AND changed_ms > ?5)) AND (owner_id = ?1 "
        "OR account_id IN (SELECT account_id FROM shares WHERE user_id = ?1) "
        "OR (rank = ?7 AND owner_id IN (SELECT owner_id FROM shares WHERE user_id = ?1) "
        "AND NOT EXISTS (SELECT 1 FROM records o WHERE o.owner_id = ?1 "
        "AND o.entity_type = r.entity_type AND o.client_id = r.client_id))) "
        "ORDER BY rank, changed_ms LIMIT ?6",
        {userId, walk.since, walk.until, walk.rank, walk.place, limit + 1, kCategoryRank});
    const qsizetype count = std::min<qsizetype>(rows.size(), limit);
    const bool hasMore = rows.size() > count;

    QJsonObject page;
    QList<QJsonArray> arrays(kRanks);
    for (qsizetype index = 0; index < count; ++index) {
        const QJsonObject &row = rows.at(index);
        walk.rank = row.value("rank"_L1).toInt();
        walk.place = row.value("changed_ms"_L1).toInteger();
        arrays[walk.rank].append(payloadOf(row));
    }
    for (int rank = 0; rank < kRanks; ++rank)
        page.insert(kEntityTypes[rank].pulledAs, arrays.at(rank));
    page.insert("has_more"_L1, hasMore);
    page.insert("server_time"_L1,
                hasMore ? walk.cursor() : timeText(std::max(walk.since, walk.until)));
    if (!hasMore) // before, the device still lacks rows
        page.insert("integrity"_L1, integrity(userId));
    return page;
}

QJsonObject Records::integrity(const QString &userId)
{
    QJsonObject accounts;
    for (const QJsonObject &row : m_database.select(
             "SELECT account_id, COUNT(*) AS count FROM records WHERE owner_id = ? AND "
             "entity_type = 'transaction' AND is_deleted = 0 GROUP BY account_id",
             {userId}))
        accounts.insert(row.value("account_id"_L1).toString(),
                        QJsonObject{{"count"_L1, row.value("count"_L1)}});
    const QJsonObject categories =
        m_database.first("SELECT COUNT(*) AS count FROM records WHERE owner_id = ? AND "
                         "entity_type = 'category' AND is_deleted = 0",
                         {userId});
    return {{"category_count"_L1, categories.value("count"_L1)}, {"accounts"_L1, accounts}};
}

bool Records::owns(const QString &userId, const QString &accountId)
{
    return !m_database
                .first("SELECT 1 FROM records WHERE owner_id = ? AND entity_type = 'account' AND "
                       "client_id = ?",
                       {userId, accountId})
                .isEmpty();
}

bool Records::mayRead(const QString &userId, const QString &accountId)
{
    return owns(userId, accountId)
        || !m_database
                .first("SELECT 1 FROM shares WHERE account_id = ? AND user_id = ?",
                       {accountId, userId})
                .isEmpty();
}

// Everybody goes by the account id, as in the family group.
QJsonArray Records::sharedWith(const QString &accountId)
{
    QJsonArray members;
    for (const QJsonObject &row : m_database.select(
             "SELECT s.account_id || ':' || u.account_id AS id, u.account_id AS user_id, u.email, "
             "u.display_name, s.role, s.created_at FROM (SELECT account_id, user_id, role, "
             "created_at FROM shares WHERE account_id = ?1 UNION ALL SELECT DISTINCT account_id, "
             "owner_id, 'owner', '' FROM shares WHERE account_id = ?1) s "
             "JOIN users u ON u.id = s.user_id ORDER BY s.role = 'owner', u.email",
             {accountId}))
        members.append(row);
    return members;
}

void Records::share(const QString &ownerId, const QString &accountId, const QString &userId,
                    const QString &role)
{
    m_database.run("INSERT OR REPLACE INTO shares VALUES (?, ?, ?, ?, ?)",
                   {accountId, ownerId, userId, role.isEmpty() ? u"member"_s : role, now()});
    setShared(ownerId, accountId);
    touchAccount(ownerId, accountId);
}

bool Records::unshare(const QString &ownerId, const QString &accountId, const QString &memberId)
{
    const int removed =
        m_database.run("DELETE FROM shares WHERE account_id = ? AND owner_id = ? AND user_id = "
                       "(SELECT id FROM users WHERE account_id = ?)",
                       {accountId, ownerId, memberId});
    setShared(ownerId, accountId);
    return removed == 1;
}

void Records::setShared(const QString &ownerId, const QString &accountId)
{
    m_database.run("UPDATE records SET changed_ms = ?3, payload = json_set(payload, '$.is_shared', "
                   "EXISTS (SELECT 1 FROM shares WHERE account_id = ?2)) "
                   "WHERE owner_id = ?1 AND entity_type = 'account' AND client_id = ?2",
                   {ownerId, accountId, nextChange()});
}

// Whoever gets an account has a cursor behind its rows: they change places, and so are pulled.
void Records::touchAccount(const QString &ownerId, const QString &accountId)
{
    for (const QJsonObject &row :
         m_database.select("SELECT entity_type, client_id FROM records WHERE owner_id = ? AND "
                           "(account_id = ? OR entity_type = 'category') ORDER BY rank, changed_ms",
                           {ownerId, accountId}))
        m_database.run("UPDATE records SET changed_ms = ? WHERE owner_id = ? AND entity_type = ? "
                       "AND client_id = ?",
                       {nextChange(), ownerId, row.value("entity_type"_L1).toString(),
                        row.value("client_id"_L1).toString()});
}

qint64 Records::nextChange()
{
    return std::max(QDateTime::currentMSecsSinceEpoch(), lastChange() + 1);
}

qint64 Records::lastChange()
{
    return m_database.first("SELECT MAX(changed_ms) AS last FROM records")
        .value("last"_L1)
        .toInteger();
}
