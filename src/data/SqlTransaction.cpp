#include "data/SqlTransaction.h"

#include "data/Database.h"

#include <QDebug>
#include <QSqlDatabase>
#include <QSqlError>

SqlTransaction::SqlTransaction(Database *database)
    : m_database(database)
    , m_open(database->connection().transaction())
{
}

SqlTransaction::~SqlTransaction()
{
    if (m_open)
        m_database->connection().rollback();
}

bool SqlTransaction::commit()
{
    // A refused commit leaves the transaction open, so that the destructor can undo it.
    m_open = m_open && !m_database->connection().commit();
    if (m_open)
        qWarning() << "Commit failed:" << m_database->connection().lastError().text();
    return !m_open;
}
