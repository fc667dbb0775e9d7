#include "data/Database.h"

#include "DatabaseFile.h"
#include "support/TestSupport.h"

#include <QtSql>
#include <QtTest>
#include <QtWidgets>

#include <memory>

using namespace Qt::StringLiterals;

// Migrations that cannot be done, on files that make them fail by what they hold.
class MigrationFailureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void failedVersionLeavesNoTrace_data();
    void failedVersionLeavesNoTrace();
    void copyThatCannotBeMadeStopsTheMigration_data();
    void copyThatCannotBeMadeStopsTheMigration();
    void refusedCommitFailsAndKeepsTheCopy();
    void missingScriptIsReported();

private:
    bool migrateAnew();

    std::unique_ptr<DatabaseFile> m_file;
    std::unique_ptr<Database> m_database;
    QList<QVariantList> m_errors; // of the last migrateAnew
};

void MigrationFailureTest::init()
{
    m_file = std::make_unique<DatabaseFile>();
}

void MigrationFailureTest::cleanup()
{
    m_database.reset();
    QSqlDatabase::removeDatabase(u"qt_sql_default_connection"_s);
}

bool MigrationFailureTest::migrateAnew()
{
    cleanup();
    m_database = std::make_unique<Database>();
    QSignalSpy errors(m_database.get(), &Database::migrationError);
    const bool migrated = m_database->open(m_file->path()) && m_database->migrate();
    m_errors = errors;
    return migrated;
}

void MigrationFailureTest::failedVersionLeavesNoTrace_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<QString>("breaking");
    QTest::addColumn<QString>("mending");
    QTest::addColumn<QString>("statement"); // where it fails

    QTest::newRow("a view in the place of a table")
        << 1 << u"CREATE VIEW transactions AS SELECT 1 AS account_id"_s
        << u"DROP VIEW transactions"_s << u"CREATE INDEX IF NOT EXISTS idx_transactions_acc"_s;
    for (const char *column :
         {"version", "sync_status", "server_id", "created_at", "updated_at", "deleted_at"}) {
        const QString name = QLatin1StringView(column);
        QTest::newRow(column) << 2 << u"ALTER TABLE reconciliations ADD COLUMN %1"_s.arg(name)
                              << u"ALTER TABLE reconciliations DROP COLUMN %1"_s.arg(name)
                              << u"ALTER TABLE reconciliations ADD COLUMN %1 "_s.arg(name);
    }
    QTest::newRow("a trigger that refuses the last statement")
        << 2 << refusing(u"UPDATE ON reconciliations"_s) << u"DROP TRIGGER refusing"_s
        << u"UPDATE reconciliations SET "_s;
    QTest::newRow("a version that cannot be recorded")
        << 2 << refusing(u"INSERT ON schema_version"_s) << u"DROP TRIGGER refusing"_s << QString();
}

void MigrationFailureTest::failedVersionLeavesNoTrace()
{
    QFETCH(int, version);
    QFETCH(QString, breaking);
    QFETCH(QString, mending);
    QFETCH(QString, statement);
    if (version > 1)
        m_file->makeVersion1();
    m_file->run({u"CREATE TABLE keepsake AS SELECT 'of the person' AS words"_s, breaking});
    const QStringList content = m_file->content();
    {
        const LogCatcher log;
        QVERIFY(!migrateAnew());
        QCOMPARE(m_errors.size(), 1);
        QCOMPARE(m_errors.first().first().toInt(), version);
        QCOMPARE(LogCatcher::criticals().size(), statement.isEmpty() ? 0 : 1);
        const QString logged = LogCatcher::criticals().value(0);
        if (!statement.isEmpty()) {
            QVERIFY(logged.startsWith(u"Migration %1 failed: "_s.arg(version)));
            QVERIFY2(logged.contains(u"\nStatement: \""_s + statement), qPrintable(logged));
        }
    }
    QCOMPARE(m_file->content(), content);
    QCOMPARE(m_file->column(u"SELECT MAX(version) FROM schema_version"_s).first().toInt(),
             version - 1);
    QCOMPARE(DatabaseFile::content(m_file->copyPath()), content);

    m_file->run({mending});
    QVERIFY(migrateAnew());
    QVERIFY(!QFile::exists(m_file->copyPath()));
}

void MigrationFailureTest::copyThatCannotBeMadeStopsTheMigration_data()
{
    QTest::addColumn<QString>("inTheWay"); // a directory of this ending

    QTest::newRow("the unfinished copy cannot be written") << u".tmp"_s;
    QTest::newRow("the finished copy cannot be named") << u""_s;
}

void MigrationFailureTest::copyThatCannotBeMadeStopsTheMigration()
{
    QFETCH(QString, inTheWay);
    m_file->makeVersion1();
    const QStringList content = m_file->content();
    const QString directory = m_file->copyPath() + inTheWay;
    QVERIFY(QDir().mkpath(directory));
    {
        const LogCatcher log;
        QVERIFY(!migrateAnew());
        QCOMPARE(LogCatcher::criticals().size(), 1);
        QVERIFY(LogCatcher::criticals().first().startsWith(
            u"Cannot copy the database before its migration: "_s));
    }
    QCOMPARE(m_errors.size(), 1);
    QVERIFY(!m_errors.first().at(1).toString().isEmpty());
    QCOMPARE(m_file->content(), content);
    QCOMPARE(m_file->column(u"SELECT version FROM schema_version"_s), QStringList{u"1"_s});
    QVERIFY(!QFileInfo(m_file->copyPath() + u".tmp"_s).isFile());

    // An older copy and the rest of an interrupted one are no hindrance.
    QVERIFY(QDir().rmdir(directory));
    for (const QString &ending : {u""_s, u".tmp"_s}) {
        QFile older(m_file->copyPath() + ending);
        QVERIFY(older.open(QIODevice::WriteOnly) && older.write("older") == 5);
    }
    QVERIFY(migrateAnew());
    QVERIFY(!QFile::exists(m_file->copyPath()));
    QVERIFY(!QFile::exists(m_file->copyPath() + u".tmp"_s));
}

void MigrationFailureTest::refusedCommitFailsAndKeepsTheCopy()
{
    m_file->makeVersion1();
    // A debt that SQLite looks at only when the transaction ends.
    m_file->run({u"CREATE TABLE debts (account_id TEXT REFERENCES accounts(id) "
                 "DEFERRABLE INITIALLY DEFERRED)"_s,
                 u"CREATE TRIGGER owing AFTER UPDATE ON reconciliations BEGIN "
                 "INSERT INTO debts VALUES ('nobody'); END"_s});
    const QStringList content = m_file->content();
    QVERIFY(!migrateAnew());
    QCOMPARE(m_errors.size(), 1);
    QCOMPARE(DatabaseFile::content(m_file->copyPath()), content);
    // The copy is whole, its search index included.
    QCOMPARE(DatabaseFile::column(m_file->copyPath(),
                                  u"SELECT t.id FROM transactions t JOIN transactions_fts f "
                                  "ON f.rowid = t.rowid WHERE transactions_fts MATCH 'grocer'"_s),
             QStringList{u"t"_s});
    QCOMPARE(QFile::permissions(m_file->copyPath()), QFile::permissions(m_file->path()));
    m_database.reset(); // what was not committed is gone with the connection
    QCOMPARE(m_file->content(), content);
}

void MigrationFailureTest::missingScriptIsReported()
{
    m_file->makeVersion1();
    Q_CLEANUP_RESOURCE(migrations);
    const LogCatcher log;
    const bool migrated = migrateAnew();
    Q_INIT_RESOURCE(migrations);
    QVERIFY(!migrated);
    const QString message =
        u"Cannot read migration file: :/sql/sql/migrations/002_recon_sync.sql"_s;
    QCOMPARE(LogCatcher::criticals(), QStringList{message});
    QCOMPARE(m_errors, (QList<QVariantList>{{2, message}}));
}

PURSEWELL_TEST_MAIN(MigrationFailureTest)
#include "MigrationFailureTest.moc"
