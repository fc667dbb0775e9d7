#include "data/KeptStatement.h"

#include "data/Queries.h"

#include <QSqlError>

namespace {

// SQLite's primary result codes. Qt reports extended ones, which hold these in their low byte.
constexpr int kPrimaryCode = 0xff;
constexpr int kOutOfMemory = 7;
constexpr int kInputOutputError = 10;
constexpr int kDiskFull = 13;

} // namespace

QSqlQuery &KeptStatement::ready(Database *database, const QString &statement)
{
    // After a failure anew, since the failure may have been that of the statement.
    if (!m_query || m_query->lastError().isValid())
        m_query.emplace(writeQuery(database, statement));
    return *m_query;
}

bool KeptStatement::run(const char *failureLine)
{
    return execWrite(*m_query, failureLine);
}

bool KeptStatement::failedOnDisk() const
{
    if (!m_query || !m_query->lastError().isValid())
        return false;
    const int code = m_query->lastError().nativeErrorCode().toInt() & kPrimaryCode;
    return code == kDiskFull || code == kInputOutputError || code == kOutOfMemory;
}
