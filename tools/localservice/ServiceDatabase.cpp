#include "ServiceDatabase.h"

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kBusyMs = 10000; // somebody else may look into the file

constexpr char kSchema[] = R"(
PRAGMA journal_mode = WAL;
CREATE TABLE IF NOT EXISTS users (
    id TEXT PRIMARY KEY, account_id TEXT NOT NULL, email TEXT NOT NULL UNIQUE,
    display_name TEXT NOT NULL, password TEXT NOT NULL, created_at TEXT NOT NULL);
CREATE TABLE IF NOT EXISTS sessions (
    id TEXT PRIMARY KEY, user_id TEXT NOT NULL, access_token TEXT NOT NULL,
    expires_at INTEGER NOT NULL, refresh_token TEXT NOT NULL, user_agent TEXT NOT NULL,
    created_at TEXT NOT NULL, last_active_at TEXT NOT NULL);
CREATE INDEX IF NOT EXISTS sessions_by_access ON sessions (access_token);
CREATE TABLE IF NOT EXISTS family_groups (id TEXT PRIMARY KEY, name TEXT NOT NULL);
CREATE TABLE IF NOT EXISTS members (
    user_id TEXT PRIMARY KEY, group_id TEXT NOT NULL, role TEXT NOT NULL, joined_at TEXT NOT NULL);
CREATE TABLE IF NOT EXISTS invitations (
    id TEXT PRIMARY KEY, group_id TEXT NOT NULL, invited_email TEXT NOT NULL,
    invite_code TEXT NOT NULL UNIQUE, status TEXT NOT NULL, expires_at TEXT NOT NULL);
CREATE TABLE IF NOT EXISTS devices (
    id TEXT PRIMARY KEY, user_id TEXT NOT NULL, device_name TEXT, platform TEXT, app_id TEXT,
    app_version TEXT, device_fingerprint TEXT, last_sync_at TEXT, created_at TEXT NOT NULL,
    UNIQUE (user_id, device_fingerprint));
CREATE TABLE IF NOT EXISTS shares (
    account_id TEXT NOT NULL, owner_id TEXT NOT NULL, user_id TEXT NOT NULL, role TEXT NOT NULL,
    created_at TEXT NOT NULL, PRIMARY KEY (account_id, user_id));
CREATE TABLE IF NOT EXISTS records (
    owner_id TEXT NOT NULL, entity_type TEXT NOT NULL, client_id TEXT NOT NULL,
    account_id TEXT NOT NULL, server_id TEXT NOT NULL UNIQUE, version INTEGER NOT NULL,
    is_deleted INTEGER NOT NULL, payload TEXT NOT NULL,
    rank INTEGER NOT NULL, -- parents before what refers to them
    changed_ms INTEGER NOT NULL UNIQUE,
    PRIMARY KEY (owner_id, entity_type, client_id));
CREATE INDEX IF NOT EXISTS records_by_change ON records (rank, changed_ms);
)";

QJsonValue columnValue(sqlite3_stmt *statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return static_cast<qint64>(sqlite3_column_int64(statement, column));
    case SQLITE_NULL:
        return {};
    default:
        return QString::fromUtf8(
            reinterpret_cast<const char *>(sqlite3_column_text(statement, column)),
            sqlite3_column_bytes(statement, column));
    }
}

void bindValue(sqlite3_stmt *statement, int place, const QVariant &value)
{
    if (value.typeId() == QMetaType::Int || value.typeId() == QMetaType::LongLong
        || value.typeId() == QMetaType::Bool) {
        sqlite3_bind_int64(statement, place, value.toLongLong());
        return;
    }
    const QByteArray text = value.toString().toUtf8();
    sqlite3_bind_text(statement, place, text.constData(), static_cast<int>(text.size()),
                      SQLITE_TRANSIENT);
}

} // namespace

ServiceDatabase::ServiceDatabase(const QString &path)
{
    if (sqlite3_open(path.toUtf8().constData(), &m_handle) != SQLITE_OK
        || sqlite3_busy_timeout(m_handle, kBusyMs) != SQLITE_OK
        || sqlite3_exec(m_handle, kSchema, nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("local service: %s", sqlite3_errmsg(m_handle));
}

ServiceDatabase::~ServiceDatabase()
{
    sqlite3_close(m_handle);
}

QList<QJsonObject> ServiceDatabase::select(const char *sql, const QVariantList &values)
{
    sqlite3_stmt *statement = prepare(sql, values);
    QList<QJsonObject> rows;
    while (step(statement)) {
        QJsonObject row;
        for (int column = 0; column < sqlite3_column_count(statement); ++column)
            row.insert(QString::fromUtf8(sqlite3_column_name(statement, column)),
                       columnValue(statement, column));
        rows.append(row);
    }
    sqlite3_finalize(statement);
    return rows;
}

QJsonObject ServiceDatabase::first(const char *sql, const QVariantList &values)
{
    const QList<QJsonObject> rows = select(sql, values);
    return rows.isEmpty() ? QJsonObject() : rows.first();
}

int ServiceDatabase::run(const char *sql, const QVariantList &values)
{
    sqlite3_stmt *statement = prepare(sql, values);
    while (step(statement)) { }
    sqlite3_finalize(statement);
    return sqlite3_changes(m_handle);
}

sqlite3_stmt *ServiceDatabase::prepare(const char *sql, const QVariantList &values)
{
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(m_handle, sql, -1, &statement, nullptr) != SQLITE_OK)
        qFatal("local service: %s in %s", sqlite3_errmsg(m_handle), sql);
    for (int index = 0; index < values.size(); ++index)
        bindValue(statement, index + 1, values.at(index));
    return statement;
}

bool ServiceDatabase::step(sqlite3_stmt *statement)
{
    const int result = sqlite3_step(statement);
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        qFatal("local service: %s", sqlite3_errmsg(m_handle));
    return result == SQLITE_ROW;
}
