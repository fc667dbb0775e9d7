#include "data/RepeatedQuery.h"

#include "data/Queries.h"

#include <QSqlError>

QSqlQuery &RepeatedQuery::ready(Database *database, const QString &statement)
{
    if (!m_query || m_query->lastError().isValid())
        m_query.emplace(writeQuery(database, statement));
    return *m_query;
}
