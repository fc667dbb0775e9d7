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

// A write that is prepared once and run with other values each time.
class PlainWrite
{
public:
    PlainWrite(PlainSqlite &plain, const QByteArray &sql);
    ~PlainWrite();
    PlainWrite(const PlainWrite &) = delete;
    PlainWrite &operator=(const PlainWrite &) = delete;

    void run(const QList<QByteArray> &bound); // a column of numbers makes them of the texts

private:
    sqlite3_stmt *m_statement;
};
