#include "data/SplitLineRepository.h"

#include "core/Dates.h"
#include "data/Queries.h"

using namespace Qt::StringLiterals;

namespace {

SplitLine readRow(const QSqlQuery &query)
{
    return {
        .id = textAt(query, 0),
        .transaction_id = textAt(query, 1),
        .category_id = textAt(query, 2),
        .amount = moneyAt(query, 3),
        .memo = textAt(query, 4),
        .created_at = stampAt(query, 5),
        .updated_at = stampAt(query, 6),
    };
}

} // namespace

SplitLineRepository::SplitLineRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{
}

QList<SplitLine> SplitLineRepository::listByTransaction(const QString &transactionId) const
{
    QSqlQuery query =
        readQuery(m_database,
                  u"SELECT id, transaction_id, category_id, amount, memo, created_at, updated_at "
                  "FROM split_lines WHERE transaction_id = ?"_s,
                  {transactionId});
    return readAll(query, readRow);
}

bool SplitLineRepository::insert(const SplitLine &line)
{
    QSqlQuery &query = m_insert.ready(m_database,
                                      u"INSERT INTO split_lines (id, transaction_id, category_id, "
                                      "amount, memo, created_at, updated_at) "
                                      "VALUES (?, ?, ?, ?, ?, ?, ?)"_s);
    query.addBindValue(line.id);
    query.addBindValue(line.transaction_id);
    query.addBindValue(line.category_id);
    query.addBindValue(line.amount);
    query.addBindValue(line.memo);
    query.addBindValue(isoStamp(line.created_at));
    query.addBindValue(isoStamp(line.updated_at));
    return m_insert.run("SplitLineRepository::insert failed:");
}

bool SplitLineRepository::deleteByTransaction(const QString &transactionId)
{
    return writeQuery(m_database, u"DELETE FROM split_lines WHERE transaction_id = ?"_s,
                      {transactionId})
        .exec();
}
