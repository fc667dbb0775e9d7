#pragma once

#include <QObject>
#include <QSqlDatabase>

// The one connection to the one database file, for the main thread only. Open it once, then
// migrate it, then hand it to the repositories.
class Database : public QObject
{
    Q_OBJECT

public:
    explicit Database(QObject *parent = nullptr);
    ~Database() override; // closes the connection

    bool open(const QString &path);

    // Brings the schema up to date. A version that fails leaves the file as it was before that
    // version; a file of a newer program passes as it stands. A file that held tables before is
    // first copied to "<file>.before-v<version>", which stays if anything went wrong.
    bool migrate();

    QSqlDatabase &connection() { return m_db; }

Q_SIGNALS:
    void migrationApplied(int version, const QString &name);
    void migrationError(int version, const QString &error);

private:
    bool hasFullTextSearch() const;
    bool holdsTables() const;
    int schemaVersion() const;
    bool createVersionTable();
    bool migrateFrom(int current);
    bool migrateWithCopy(int current);
    bool applyMigration(int version, const QString &name, const QString &script);
    bool runStatements(int version, const QString &script);
    bool recordVersion(int version, const QString &name);
    bool rollBack(int version, const QString &error);

    QSqlDatabase m_db{};
    bool m_opened = false;
};
