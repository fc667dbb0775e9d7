#pragma once

#include <QString>

class QSqlDatabase;

// The copy of a database file that stands beside it while its schema changes: what a person can
// go back to should the new schema turn out unusable.
QString migrationCopyPath(const QString &databasePath, int version);

// Replaces an older copy. On failure the error is set and no new file is left behind.
bool makeMigrationCopy(QSqlDatabase &database, const QString &path, QString *error);
