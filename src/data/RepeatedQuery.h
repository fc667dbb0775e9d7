#pragma once

#include <QSqlQuery>

#include <optional>

class Database;

// A statement that a bulk of work runs thousands of times, where preparing it anew costs more than
// running it. It stays prepared while it succeeds.
class RepeatedQuery
{
public:
    // Always with the same database and statement. What the last run bound has to be bound again; a
    // read has to be finished, or it keeps the file from being tidied up.
    QSqlQuery &ready(Database *database, const QString &statement);

private:
    std::optional<QSqlQuery> m_query{};
};
