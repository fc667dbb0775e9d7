#include "DatabaseFile.h"

#include "data/StatementSplitter.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace {

class Visit
{
public:
    explicit Visit(const QString &path)
    {
        m_connection = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"visit"_s);
        m_connection.setDatabaseName(path);
        m_connection.open();
    }
    ~Visit()
    {
        m_connection = {};
        QSqlDatabase::removeDatabase(u"visit"_s);
    }
    Visit(const Visit &) = delete;
    Visit &operator=(const Visit &) = delete;

    QStringList column(const QString &statement)
    {
        QSqlQuery query(m_connection);
        if (!query.exec(statement))
            qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
        QStringList values;
        while (query.next())
            values << query.value(0).toString();
        return values;
    }

private:
    QSqlDatabase m_connection{};
};

QString script(const QString &name)
{
    QFile file(u":/sql/sql/migrations/"_s + name);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("no script %s", qPrintable(name));
    return QString::fromUtf8(file.readAll());
}

} // namespace

QString DatabaseFile::copyPath() const
{
    return path() + u".before-v2"_s;
}

void DatabaseFile::run(const QStringList &statements) const
{
    Visit visit(path());
    for (const QString &statement : statements)
        visit.column(statement);
}

void DatabaseFile::makeVersion1() const
{
    run(splitStatements(script(u"001_initial.sql"_s)));
    run({u"CREATE TABLE schema_version (version INTEGER PRIMARY KEY, name TEXT NOT NULL, "
         "applied_at TEXT NOT NULL DEFAULT (datetime('now')))"_s,
         u"INSERT INTO schema_version (version, name) VALUES (1, 'initial')"_s,
         u"INSERT INTO accounts (id, name, created_at, updated_at) VALUES ('a', 'Joint ''%1'' 🐦', "
         "'2024-02-29T12:00:00Z', '2024-02-29T12:00:00Z')"_s,
         u"INSERT INTO transactions (id, account_id, date, payee, amount, created_at, updated_at) "
         "VALUES ('t', 'a', '2024-02-29', 'Grocer', -9007199254740993, 's', 's')"_s,
         u"INSERT INTO reconciliations VALUES ('n1', 'a', '2024-02-29', 100, 100, "
         "'2024-03-01T08:00:00Z'), ('n2', 'a', '2024-03-31', 200, 200, '2024-04-01T08:00:00Z')"_s});
}

QStringList DatabaseFile::column(const QString &path, const QString &statement)
{
    return Visit(path).column(statement);
}

QStringList DatabaseFile::content(const QString &path)
{
    Visit visit(path);
    QStringList content = visit.column(
        u"SELECT name || ': ' || COALESCE(sql, '') FROM sqlite_master "
        "WHERE name != 'schema_version' AND tbl_name != 'schema_version' ORDER BY name"_s);
    for (
        const QString &table : visit.column(
            u"SELECT name FROM sqlite_master WHERE type = 'table' "
            "AND name IN ('accounts', 'transactions', 'reconciliations', 'keepsake') ORDER BY name"_s)) {
        const QStringList columns = visit.column(
            u"SELECT 'quote(' || name || ')' FROM pragma_table_info('%1')"_s.arg(table));
        content << visit.column(
            u"SELECT %1 FROM %2 ORDER BY rowid"_s.arg(columns.join(u" || ',' || "_s), table));
    }
    return content;
}
