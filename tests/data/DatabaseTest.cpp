#include "data/Database.h"

#include "DatabaseFile.h"
#include "data/DataDirectory.h"
#include "support/TestSupport.h"

#include <QtSql>
#include <QtTest>
#include <QtWidgets>

#include <memory>

using namespace Qt::StringLiterals;

class DatabaseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void newFileGetsTheWholeSchema();
    void nothingIsLeftToApply_data();
    void nothingIsLeftToApply();
    void version1KeepsItsRowsAndGetsSyncColumns();
    void whatIsNoDatabaseIsRefusedAndKept_data();
    void whatIsNoDatabaseIsRefusedAndKept();
    void directoryIsMade_data();
    void directoryIsMade();

private:
    std::unique_ptr<DatabaseFile> m_file;
    std::unique_ptr<Database> m_database;
};

void DatabaseTest::init()
{
    m_file = std::make_unique<DatabaseFile>();
    m_database = std::make_unique<Database>();
}

void DatabaseTest::cleanup()
{
    m_database.reset();
    QSqlDatabase::removeDatabase(u"qt_sql_default_connection"_s);
}

void DatabaseTest::newFileGetsTheWholeSchema()
{
    const LogCatcher log;
    QSignalSpy applied(m_database.get(), &Database::migrationApplied);
    QVERIFY(m_database->open(m_file->path()));
    QVERIFY(m_database->migrate());

    QCOMPARE(applied.size(), 2);
    QCOMPARE(applied.at(0), (QVariantList{1, u"initial"_s}));
    QCOMPARE(applied.at(1), (QVariantList{2, u"recon_sync"_s}));
    QCOMPARE(m_file->column(u"SELECT version || ' ' || name FROM schema_version ORDER BY 1"_s),
             (QStringList{u"1 initial"_s, u"2 recon_sync"_s}));
    QCOMPARE(m_file->column(u"PRAGMA journal_mode"_s), QStringList{u"wal"_s});
    QCOMPARE(m_file->column(u"SELECT name FROM sqlite_master WHERE name NOT LIKE 'sqlite_%' "
                            "AND name NOT LIKE 'transactions_fts_%' ORDER BY name"_s),
             u"accounts categories idx_split_lines_transaction_id idx_transactions_account_id "
             "idx_transactions_category_id idx_transactions_date idx_transactions_sync_status "
             "idx_transactions_transfer_link_id preferences reconciliations "
             "recurring_transactions schema_version split_lines sync_queue "
             "transaction_templates transactions transactions_ad transactions_ai "
             "transactions_au transactions_fts"_s.split(u' '));
    QVERIFY(!QFile::exists(m_file->copyPath()));
    QVERIFY(LogCatcher::infos().first().startsWith(u"Applied migration 1 "_s));
    QCOMPARE(LogCatcher::criticals(), QStringList());
}

void DatabaseTest::nothingIsLeftToApply_data()
{
    QTest::addColumn<bool>("isNewer");
    QTest::newRow("second start") << false;
    QTest::newRow("newer version") << true;
}

void DatabaseTest::nothingIsLeftToApply()
{
    QFETCH(bool, isNewer);
    if (isNewer) {
        m_file->makeVersion1();
        m_file->run({u"INSERT INTO schema_version (version, name) VALUES (99, 'later')"_s});
    } else {
        QVERIFY(m_database->open(m_file->path()) && m_database->migrate());
        cleanup();
        m_database = std::make_unique<Database>();
    }
    QVERIFY(QDir().mkpath(m_file->copyPath() + u".tmp"_s)); // a copy could not even begin
    const QStringList content = m_file->content();
    QSignalSpy applied(m_database.get(), &Database::migrationApplied);
    QVERIFY(m_database->open(m_file->path()) && m_database->migrate());
    QCOMPARE(applied.size(), 0);
    QCOMPARE(m_file->content(), content);
}

void DatabaseTest::version1KeepsItsRowsAndGetsSyncColumns()
{
    m_file->makeVersion1();
    bool copyStood = false;
    connect(m_database.get(), &Database::migrationApplied, this,
            [this, &copyStood] { copyStood = QFile::exists(m_file->copyPath()); });
    QVERIFY(m_database->open(m_file->path()));
    QVERIFY(m_database->migrate());

    QCOMPARE(m_file->column(u"SELECT id || ' ' || statement_balance || ' ' || version || ' ' || "
                            "sync_status || ' ' || created_at || ' ' || updated_at "
                            "FROM reconciliations ORDER BY id"_s),
             (QStringList{u"n1 100 1 pending 2024-03-01T08:00:00Z 2024-03-01T08:00:00Z"_s,
                          u"n2 200 1 pending 2024-04-01T08:00:00Z 2024-04-01T08:00:00Z"_s}));
    QCOMPARE(m_file->column(u"SELECT amount FROM transactions"_s),
             QStringList{u"-9007199254740993"_s});
    QVERIFY(copyStood);
    QVERIFY(!QFile::exists(m_file->copyPath())); // no longer needed
}

void DatabaseTest::whatIsNoDatabaseIsRefusedAndKept_data()
{
    QTest::addColumn<QByteArray>("bytes"); // empty: a directory
    QTest::addColumn<QString>("logged");

    QByteArray random(8192, Qt::Uninitialized);
    QRandomGenerator(7).fillRange(reinterpret_cast<quint32 *>(random.data()), random.size() / 4);
    const QString notMigrated = u"Failed to create schema_version table: "_s;
    QTest::newRow("directory") << QByteArray() << u"Failed to open database: "_s;
    QTest::newRow("random bytes") << random << notMigrated;
    QTest::newRow("a text") << QByteArray("Dear diary,\n").repeated(100) << notMigrated;
    QTest::newRow("a header and no more")
        << QByteArray("SQLite format 3\0", 16) + random.first(4080) << notMigrated;
}

void DatabaseTest::whatIsNoDatabaseIsRefusedAndKept()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, logged);
    QFile file(m_file->path());
    if (bytes.isEmpty()) {
        QVERIFY(QDir().mkpath(file.fileName()));
    } else {
        QVERIFY(file.open(QIODevice::ReadWrite));
        file.write(bytes);
        file.flush();
    }

    const LogCatcher log;
    QVERIFY(!(m_database->open(m_file->path()) && m_database->migrate()));
    QCOMPARE(LogCatcher::criticals().size(), 1);
    QVERIFY2(LogCatcher::criticals().first().startsWith(logged),
             qPrintable(LogCatcher::criticals().first()));
    m_database.reset();
    if (!bytes.isEmpty()) {
        file.seek(0);
        QCOMPARE(file.readAll(), bytes);
    }
}

void DatabaseTest::directoryIsMade_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("directory"); // below the data of the person
    QTest::newRow("where the environment says") << u"/מסמכים/🐦"_s << u"/מסמכים/🐦"_s;
    QTest::newRow("among the data of the person") << u""_s << u"/Kestrelwood/Pursewell"_s;
}

void DatabaseTest::directoryIsMade()
{
    QFETCH(QString, variable);
    QFETCH(QString, directory);
    const QString root = qEnvironmentVariable("XDG_DATA_HOME");
    qputenv("PURSEWELL_DATA_DIR", variable.isEmpty() ? QByteArray() : (root + variable).toUtf8());
    QCOMPARE(dataDirectory(), root + directory);
    QVERIFY(QDir(root + directory).removeRecursively());
    QCOMPARE(databasePath(), root + directory + u"/pursewell.db"_s);
    QVERIFY(QFileInfo(root + directory).isDir()); // again, after it had gone
}

PURSEWELL_TEST_MAIN(DatabaseTest)
#include "DatabaseTest.moc"
