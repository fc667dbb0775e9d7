#pragma once

#include <QStringList>
#include <QTemporaryDir>

// A database file as the program finds it at its start: written and looked at through another
// connection than the program's, which is gone again after each call.
class DatabaseFile
{
public:
    QString path() const { return m_directory.filePath(QStringLiteral("pursewell.db")); }
    QString copyPath() const; // of the copy that stands beside it during a migration

    void run(const QStringList &statements) const; // a failing one ends the test program
    void makeVersion1() const; // with an account and two reconciliations

    // The first column of all rows.
    QStringList column(const QString &statement) const { return column(path(), statement); }
    static QStringList column(const QString &path, const QString &statement);

    // The whole schema and the rows of the tables that the tests fill, but for schema_version.
    QStringList content() const { return content(path()); }
    static QStringList content(const QString &path);

private:
    QTemporaryDir m_directory{};
};
