#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QVariantList>

struct sqlite3;
struct sqlite3_stmt;

// The service's own SQLite file, through the C API: the handlers run on several threads, one at a
// time. A statement that does not run is a mistake in this tool and ends it.
class ServiceDatabase
{
public:
    explicit ServiceDatabase(const QString &path); // made if missing, with its tables
    ~ServiceDatabase();
    ServiceDatabase(const ServiceDatabase &) = delete;
    ServiceDatabase &operator=(const ServiceDatabase &) = delete;

    QList<QJsonObject> select(const char *sql, const QVariantList &values = {});
    QJsonObject first(const char *sql, const QVariantList &values = {}); // empty: no row
    int run(const char *sql, const QVariantList &values = {}); // the number of changed rows

private:
    sqlite3_stmt *prepare(const char *sql, const QVariantList &values);
    bool step(sqlite3_stmt *statement);

    sqlite3 *m_handle = nullptr;
};
