#include "data/Queries.h"

#include "core/Dates.h"
#include "data/Database.h"

#include <QDebug>
#include <QSqlError>

namespace {

// Text and fractions get into an integer column only from outside. A fraction beyond 64 bits has
// no integer to become.
qint64 integerFrom(const QVariant &value)
{
    if (value.typeId() != QMetaType::Double)
        return value.toLongLong();
    const double amount = value.toDouble();
    return qAbs(amount) < 9.2e18 ? qRound64(amount) : 0;
}

void prepare(QSqlQuery &query, const QString &statement, const QVariantList &values)
{
    query.prepare(statement);
    for (const QVariant &value : values)
        query.addBindValue(value);
}

} // namespace

QSqlQuery readQuery(Database *database, const QString &statement, const QVariantList &values)
{
    QSqlQuery query(database->connection());
    query.setForwardOnly(true);
    prepare(query, statement, values);
    return query;
}

QSqlQuery writeQuery(Database *database, const QString &statement, const QVariantList &values)
{
    QSqlQuery query(database->connection());
    prepare(query, statement, values);
    return query;
}

bool execWrite(QSqlQuery &query, const char *failureLine)
{
    // A statement that could not be prepared has its reason already; exec() would write over it.
    if (!query.lastError().isValid() && query.exec())
        return true;
    qWarning() << failureLine << query.lastError().text();
    return false;
}

int execBulkWrite(QSqlQuery &query, const char *failureLine)
{
    return execWrite(query, failureLine) ? query.numRowsAffected() : 0;
}

QVariant nullIfEmpty(const QString &text)
{
    return text.isEmpty() ? QVariant() : QVariant(text);
}

QString textAt(const QSqlQuery &query, int column)
{
    return query.value(column).toString();
}

qint64 moneyAt(const QSqlQuery &query, int column)
{
    return integerFrom(query.value(column));
}

int intAt(const QSqlQuery &query, int column)
{
    const qint64 number = integerFrom(query.value(column));
    return number == static_cast<int>(number) ? static_cast<int>(number) : 0;
}

bool boolAt(const QSqlQuery &query, int column)
{
    return query.value(column).toBool();
}

QDate dateAt(const QSqlQuery &query, int column)
{
    return dateFromIso(textAt(query, column));
}

QDateTime stampAt(const QSqlQuery &query, int column)
{
    return stampFromIso(textAt(query, column));
}

std::optional<QDateTime> optionalStampAt(const QSqlQuery &query, int column)
{
    const QString text = textAt(query, column);
    return text.isEmpty() ? std::nullopt : std::optional<QDateTime>(stampFromIso(text));
}
