#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

struct sqlite3;
struct sqlite3_stmt;

// A second connection to a bench database, through SQLite's C API and nothing else: what a read
// costs when nobody makes records, texts or rows of a view out of it.
class PlainSqlite
{
public:
    explicit PlainSqlite(const QString &path); // ends the process when the file does not open
    ~PlainSqlite();
    PlainSqlite(const PlainSqlite &) = delete;
    PlainSqlite &operator=(const PlainSqlite &) = delete;

    // Steps through the whole result and touches the bytes of every column; the number of rows.
    qint64 readAll(const QByteArray &sql, const QList<QByteArray> &bound = {});
    QList<QByteArray> firstColumn(const QByteArray &sql);
    void execute(const QByteArray &sql);
    sqlite3_stmt *prepare(const QByteArray &sql); // the caller finalizes it

private:
    sqlite3 *m_handle = nullptr;
};
