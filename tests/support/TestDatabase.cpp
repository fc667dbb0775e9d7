#include "support/TestDatabase.h"

#include "support/SampleRecords.h"

#include <QSqlError>
#include <QSqlQuery>

using namespace Qt::StringLiterals;

namespace {

QSqlQuery executed(Database *database, const QString &statement, const QVariantList &values)
{
    QSqlQuery query(database->connection());
    query.prepare(statement);
    for (const QVariant &value : values)
        query.addBindValue(value);
    if (!query.exec())
        qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
    return query;
}

} // namespace

TestDatabase::TestDatabase()
    : m_database(new Database)
{
    if (!m_database->open(m_directory.filePath(u"pursewell.db"_s)) || !m_database->migrate())
        qFatal("no test database in %s", qPrintable(m_directory.path()));
    run(u"PRAGMA synchronous=OFF"_s); // no test pulls the plug
    const auto listen = [this](auto *repository, auto signal, const QString &name) {
        QObject::connect(repository, signal, m_database, [this, name] { m_signals << name; });
    };
    listen(&accounts, &AccountRepository::accountsChanged, u"accounts"_s);
    listen(&categories, &CategoryRepository::categoriesChanged, u"categories"_s);
    listen(&recurring, &RecurringRepository::recurringChanged, u"recurring"_s);
    listen(&reconciliations, &ReconciliationRepository::reconciliationsChanged,
           u"reconciliations"_s);
    QObject::connect(&transactions, &TransactionRepository::transactionsChanged, m_database,
                     [this](const QString &id) { m_signals << u"transactions "_s + id; });
}

TestDatabase::~TestDatabase()
{
    delete m_database;
    QSqlDatabase::removeDatabase(QLatin1StringView(QSqlDatabase::defaultConnection));
}

void TestDatabase::run(const QString &statement, const QVariantList &values)
{
    executed(m_database, statement, values);
}

QVariant TestDatabase::value(const QString &statement, const QVariantList &values)
{
    QSqlQuery query = executed(m_database, statement, values);
    return query.next() ? query.value(0) : QVariant();
}

void TestDatabase::refuseUpdates(const QString &table)
{
    run(u"CREATE TRIGGER refusing_%1 BEFORE UPDATE ON %1 BEGIN "
        "SELECT RAISE(ABORT, 'refused'); END"_s.arg(table));
}

void TestDatabase::addSampleOwners()
{
    accounts.insert(sampleAccount(u"a"_s));
    accounts.insert(sampleAccount(u"b"_s));
    categories.insert(sampleCategory(u"c"_s));
    m_signals.clear();
}

QStringList TestDatabase::takeSignals()
{
    return std::exchange(m_signals, {});
}
