#include "data/MigrationCopy.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

// SQLite writes into an empty file that exists; made here, it is never readable by more people
// than the database is, and what an interrupted try left behind is emptied.
bool makeEmptyFile(const QString &path, const QString &databasePath, QString *error)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::permissions(databasePath)))
        return true;
    *error = file.errorString();
    return false;
}

bool copyInto(QSqlDatabase &database, const QString &path, QString *error)
{
    QSqlQuery query(database);
    query.prepare(u"VACUUM INTO ?"_s);
    query.addBindValue(path);
    if (query.exec())
        return true;
    *error = query.lastError().text();
    return false;
}

// QFile::rename refuses to replace a file, and removing the older copy first would leave a moment
// without any.
bool renameOver(const QString &from, const QString &to, QString *error)
{
    std::error_code failure;
    std::filesystem::rename(from.toStdU16String(), to.toStdU16String(), failure);
    if (!failure)
        return true;
    *error = QString::fromStdString(failure.message());
    return false;
}

} // namespace

QString migrationCopyPath(const QString &databasePath, int version)
{
    return databasePath + u".before-v"_s + QString::number(version);
}

bool makeMigrationCopy(QSqlDatabase &database, const QString &path, QString *error)
{
    // A program that is stopped here leaves no half copy under the name of a whole one.
    const QString unfinished = path + u".tmp"_s;
    if (makeEmptyFile(unfinished, database.databaseName(), error)
        && copyInto(database, unfinished, error) && renameOver(unfinished, path, error))
        return true;
    QFile::remove(unfinished);
    return false;
}
