#pragma once

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QSqlQuery>
#include <QVariant>

#include <optional>

class Database;

// What all repositories do alike with a statement.

// Prepared, with the values bound in their order; more can be added. To be read once from the first
// row to the last: Qt then keeps no row it has passed.
QSqlQuery readQuery(Database *database, const QString &statement, const QVariantList &values = {});
QSqlQuery writeQuery(Database *database, const QString &statement, const QVariantList &values = {});

// Runs a write. A failure leaves one warning line: the given words and the database's text.
bool execWrite(QSqlQuery &query, const char *failureLine);
int execBulkWrite(QSqlQuery &query, const char *failureLine); // how many rows changed

// For a column with a foreign key, where the empty text would have to name a row.
QVariant nullIfEmpty(const QString &text);

// One column of the current row; NULL reads as empty, 0, false or invalid.
QString textAt(const QSqlQuery &query, int column);
qint64 moneyAt(const QSqlQuery &query, int column); // minor units; 0 for what is no number
int intAt(const QSqlQuery &query, int column); // 0 also for what does not fit
bool boolAt(const QSqlQuery &query, int column);
QDate dateAt(const QSqlQuery &query, int column);
QDateTime stampAt(const QSqlQuery &query, int column);
std::optional<QDateTime> optionalStampAt(const QSqlQuery &query, int column); // empty: absent

// Runs a read; a failure gives an empty list.
template <typename Record>
QList<Record> readAll(QSqlQuery &query, Record (*readRow)(const QSqlQuery &))
{
    QList<Record> records;
    query.exec();
    while (query.next())
        records.append(readRow(query));
    return records;
}

template <typename Record>
std::optional<Record> readFirst(QSqlQuery &query, Record (*readRow)(const QSqlQuery &))
{
    query.exec();
    return query.next() ? std::optional<Record>(readRow(query)) : std::nullopt;
}
