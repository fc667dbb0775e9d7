#pragma once

#include <QSqlQuery>

#include <optional>

class Database;

// A statement that is prepared once and kept for all its runs. An import runs the same insert a
// hundred thousand times, and preparing it, triggers and all, takes half as long as running it.
class KeptStatement
{
public:
    // To be bound from the first value on. The statement must be the same at every call. A read has
    // to be finished, or it keeps the file from being tidied up.
    QSqlQuery &ready(Database *database, const QString &statement);

    // Runs it. A failure leaves one warning line: the given words and the database's text.
    bool run(const char *failureLine);

    // Whether the last run failed because the disk is full or broken and not because of its values.
    // SQLite may have undone the whole transaction with it.
    bool failedOnDisk() const;

private:
    std::optional<QSqlQuery> m_query{};
};
