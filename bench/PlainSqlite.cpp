#include "PlainSqlite.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace {

[[noreturn]] void giveUp(sqlite3 *handle)
{
    qFatal("bench database: %s", sqlite3_errmsg(handle));
}

qint64 touchColumn(sqlite3_stmt *statement, int column)
{
    if (sqlite3_column_type(statement, column) == SQLITE_INTEGER)
        return sqlite3_column_int64(statement, column);
    benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
    return sqlite3_column_bytes(statement, column);
}

void bindTexts(sqlite3_stmt *statement, const QList<QByteArray> &bound)
{
    for (int i = 0; i < bound.size(); ++i) {
        sqlite3_bind_text(statement, i + 1, bound.at(i).constData(), int(bound.at(i).size()),
                          SQLITE_TRANSIENT);
    }
}

} // namespace

PlainSqlite::PlainSqlite(const QString &path)
{
    if (sqlite3_open(path.toUtf8().constData(), &m_handle) != SQLITE_OK)
        giveUp(m_handle);
    sqlite3_busy_timeout(m_handle, 5000);
}

PlainSqlite::~PlainSqlite()
{
    sqlite3_close(m_handle);
}

qint64 PlainSqlite::readAll(const QByteArray &sql, const QList<QByteArray> &bound)
{
    sqlite3_stmt *statement = prepare(sql);
    bindTexts(statement, bound);
    const int columns = sqlite3_column_count(statement);
    qint64 rows = 0;
    qint64 touched = 0;
    for (; sqlite3_step(statement) == SQLITE_ROW; ++rows) {
        for (int column = 0; column < columns; ++column)
            touched += touchColumn(statement, column);
    }
    benchmark::DoNotOptimize(touched);
    sqlite3_finalize(statement);
    return rows;
}

QList<QByteArray> PlainSqlite::firstColumn(const QByteArray &sql)
{
    sqlite3_stmt *statement = prepare(sql);
    QList<QByteArray> values;
    while (sqlite3_step(statement) == SQLITE_ROW)
        values << QByteArray(reinterpret_cast<const char *>(sqlite3_column_text(statement, 0)));
    sqlite3_finalize(statement);
    return values;
}

void PlainSqlite::execute(const QByteArray &sql)
{
    if (sqlite3_exec(m_handle, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        giveUp(m_handle);
}

sqlite3_stmt *PlainSqlite::prepare(const QByteArray &sql)
{
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(m_handle, sql.constData(), int(sql.size()), &statement, nullptr)
        != SQLITE_OK)
        giveUp(m_handle);
    return statement;
}

PlainWrite::PlainWrite(PlainSqlite &plain, const QByteArray &sql)
    : m_statement(plain.prepare(sql))
{
}

PlainWrite::~PlainWrite()
{
    sqlite3_finalize(m_statement);
}

void PlainWrite::run(const QList<QByteArray> &bound)
{
    bindTexts(m_statement, bound);
    if (sqlite3_step(m_statement) != SQLITE_DONE)
        giveUp(sqlite3_db_handle(m_statement));
    sqlite3_reset(m_statement);
}
