#include "services/LighterCommits.h"

#include "data/Database.h"
#include "data/Queries.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kNormal = 1; // of SQLite: with a write-ahead log, only checkpoints wait

int levelOf(Database *database)
{
    QSqlQuery query = readQuery(database, u"PRAGMA synchronous"_s);
    return query.exec() && query.next() ? intAt(query, 0) : 0;
}

} // namespace

LighterCommits::LighterCommits(Database *database)
    : m_database(database)
    , m_before(levelOf(database))
{
    if (m_before > kNormal)
        setLevel(kNormal);
}

LighterCommits::~LighterCommits()
{
    if (m_before <= kNormal)
        return;
    setLevel(m_before);
    QSqlQuery query(m_database->connection());
    query.exec(u"PRAGMA wal_checkpoint"_s);
}

void LighterCommits::setLevel(int level)
{
    QSqlQuery query(m_database->connection());
    query.exec(u"PRAGMA synchronous = %1"_s.arg(level));
}
