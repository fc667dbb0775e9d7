#include "data/Database.h"

#include "data/MigrationCopy.h"
#include "data/StatementSplitter.h"

#include <QDebug>
#include <QFile>
#include <QSqlError>
#include <QSqlQuery>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kConnectionName{"qt_sql_default_connection"};

struct Migration
{
    int version;
    QLatin1StringView name;
    QLatin1StringView path;
};

// In ascending order. A released script never changes.
constexpr Migration kMigrations[]{
    {1, "initial"_L1, ":/sql/sql/migrations/001_initial.sql"_L1},
    {2, "recon_sync"_L1, ":/sql/sql/migrations/002_recon_sync.sql"_L1},
};

constexpr int kNewestVersion = std::end(kMigrations)[-1].version;

std::optional<QString> readScript(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return std::nullopt;
    return QString::fromUtf8(file.readAll());
}

} // namespace

Database::Database(QObject *parent)
    : QObject(parent)
{
}

Database::~Database()
{
    if (m_opened)
        m_db.close();
    m_opened = false;
}

bool Database::open(const QString &path)
{
    m_db = QSqlDatabase::addDatabase(u"QSQLITE"_s, kConnectionName);
    m_db.setDatabaseName(path);
    if (!m_db.open()) {
        qCritical() << "Failed to open database:" << m_db.lastError().text();
        return false;
    }
    QSqlQuery query(m_db);
    query.exec(u"PRAGMA journal_mode=WAL"_s);
    query.exec(u"PRAGMA foreign_keys=ON"_s);
    m_opened = true;
    return true;
}

bool Database::migrate()
{
    if (!hasFullTextSearch()) {
        qCritical() << "The SQLite driver was built without FTS5, which the search needs";
        return false;
    }
    const int current = schemaVersion();
    return current < kNewestVersion && holdsTables() ? migrateWithCopy(current)
                                                     : migrateFrom(current);
}

// A query that fails says nothing about FTS5: the file may be no database at all, which the first
// statement of the migration reports in better words.
bool Database::hasFullTextSearch() const
{
    QSqlQuery query(m_db);
    return !query.exec(u"SELECT 1 FROM pragma_module_list WHERE name = 'fts5'"_s) || query.next();
}

bool Database::holdsTables() const
{
    QSqlQuery query(m_db);
    query.exec(u"SELECT 1 FROM sqlite_master WHERE name != 'schema_version' LIMIT 1"_s);
    return query.next();
}

int Database::schemaVersion() const
{
    QSqlQuery query(m_db);
    query.exec(u"SELECT MAX(version) FROM schema_version"_s);
    return query.next() ? query.value(0).toInt() : 0;
}

bool Database::createVersionTable()
{
    QSqlQuery query(m_db);
    if (query.exec(u"CREATE TABLE IF NOT EXISTS schema_version ("
                   "  version INTEGER PRIMARY KEY,"
                   "  name    TEXT NOT NULL,"
                   "  applied_at TEXT NOT NULL DEFAULT (datetime('now')))"_s))
        return true;
    qCritical() << "Failed to create schema_version table:" << query.lastError().text();
    return false;
}

bool Database::migrateWithCopy(int current)
{
    const QString copy = migrationCopyPath(m_db.databaseName(), kNewestVersion);
    QString error;
    if (!makeMigrationCopy(m_db, copy, &error)) {
        qCritical() << "Cannot copy the database before its migration:" << error;
        Q_EMIT migrationError(kNewestVersion, error);
        return false;
    }
    const bool migrated = migrateFrom(current);
    if (migrated)
        QFile::remove(copy);
    return migrated;
}

bool Database::migrateFrom(int current)
{
    if (!createVersionTable())
        return false;
    for (const Migration &migration : kMigrations) {
        if (migration.version <= current)
            continue;
        const std::optional<QString> script = readScript(migration.path);
        if (!script) {
            const QString message = u"Cannot read migration file: %1"_s.arg(migration.path);
            qCritical().noquote() << message;
            Q_EMIT migrationError(migration.version, message);
            return false;
        }
        if (!applyMigration(migration.version, migration.name, *script))
            return false;
    }
    return true;
}

bool Database::applyMigration(int version, const QString &name, const QString &script)
{
    m_db.transaction();
    if (!runStatements(version, script) || !recordVersion(version, name))
        return false;
    // A commit that is refused leaves the transaction open, and all that is typed afterwards would
    // be lost with it when the program ends.
    if (!m_db.commit())
        return rollBack(version, m_db.lastError().text());
    qInfo() << "Applied migration" << version << name;
    Q_EMIT migrationApplied(version, name);
    return true;
}

bool Database::runStatements(int version, const QString &script)
{
    for (const QString &statement : splitStatements(script)) {
        QSqlQuery query(m_db);
        if (query.exec(statement))
            continue;
        const QString error = query.lastError().text();
        qCritical() << "Migration" << version << "failed:" << error
                    << "\nStatement:" << statement.left(200);
        return rollBack(version, error);
    }
    return true;
}

bool Database::recordVersion(int version, const QString &name)
{
    QSqlQuery query(m_db);
    query.prepare(u"INSERT INTO schema_version (version, name) VALUES (?, ?)"_s);
    query.addBindValue(version);
    query.addBindValue(name);
    const bool recorded = !query.lastError().isValid() && query.exec();
    return recorded || rollBack(version, query.lastError().text());
}

bool Database::rollBack(int version, const QString &error)
{
    m_db.rollback();
    Q_EMIT migrationError(version, error);
    return false;
}
