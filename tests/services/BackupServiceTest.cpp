#include "services/BackupService.h"
#include "services/BackupArchiveReader.h"
#include "support/SampleRecords.h"
#include "support/TestDatabase.h"
#include "support/TestSupport.h"

#include <QtTest>

#include <zip.h>

using namespace Qt::StringLiterals;

namespace {

using Mode = BackupMergeMode;

const QStringList kTables{u"accounts"_s,
                          u"categories"_s,
                          u"transactions"_s,
                          u"split_lines"_s,
                          u"recurring_transactions"_s,
                          u"reconciliations"_s};

// Paths with their bytes, in the order of the archive; the manifest is added if it is not there.
using Entries = QList<std::pair<QString, QByteArray>>;

const QString kManifest = u"manifest.json"_s;

QByteArray archiveOf(Entries entries, bool encrypted = false)
{
    const auto isManifest = [](const auto &entry) { return entry.first == kManifest; };
    if (std::none_of(entries.begin(), entries.end(), isManifest))
        entries.append({kManifest, "{\"version\": 1}"});
    zip_source_t *target = zip_source_buffer_create(nullptr, 0, 0, nullptr);
    zip_source_keep(target);
    zip_t *archive = zip_open_from_source(target, ZIP_TRUNCATE, nullptr);
    for (const auto &[path, bytes] : entries) {
        zip_source_t *source =
            zip_source_buffer(archive, bytes.constData(), zip_uint64_t(bytes.size()), 0);
        const zip_int64_t index = zip_file_add(archive, qUtf8Printable(path), source, 0);
        if (encrypted && path != kManifest)
            zip_file_set_encryption(archive, zip_uint64_t(index), ZIP_EM_AES_256, "secret");
    }
    if (zip_close(archive) != 0 || zip_source_open(target) != 0)
        qFatal("no test archive");
    zip_stat_t stat;
    zip_source_stat(target, &stat);
    QByteArray written(qsizetype(stat.size), '\0');
    zip_source_read(target, written.data(), stat.size);
    zip_source_close(target);
    zip_source_free(target);
    return written;
}

QByteArray account(const QByteArray &more)
{
    return "{\"id\": \"x\", \"name\": \"X\", \"created_at\": \"2024\", \"updated_at\": \"2024\""
        + more + '}';
}

// A good row in an entry of so many bytes; the archive may tell of it something else.
QByteArray paddedArchive(quint32 size, quint32 told)
{
    QByteArray archive =
        archiveOf({{u"accounts/z.json"_s, account({}).leftJustified(qsizetype(size))}});
    const auto bytesOf = [](const quint32 &number) {
        return QByteArray(reinterpret_cast<const char *>(&number), sizeof number);
    };
    return archive.replace(bytesOf(qToLittleEndian(size)), bytesOf(qToLittleEndian(told)));
}

struct Home : TestDatabase
{
    // Every column of every row, with its type.
    QStringList rows()
    {
        QStringList rows;
        for (const QString &table : kTables) {
            const QVariant columns =
                value(u"SELECT group_concat('quote(' || name || ')', ' || '','' || ') "
                      "FROM pragma_table_info(?)"_s,
                      {table});
            rows << value(
                        u"SELECT group_concat(x, '; ') FROM (SELECT %1 AS x FROM %2 ORDER BY id)"_s
                            .arg(columns.toString(), table))
                        .toString();
        }
        return rows;
    }
    // As a person's data may be in the end: every table filled, with what could get lost.
    void fill()
    {
        addSampleOwners();
        for (const QString &id : {u"below"_s, u"later"_s})
            categories.insert(sampleCategory(id));
        run(u"UPDATE categories SET parent_id = 'later' WHERE id = 'below'"_s);
        for (const qint64 amount : {std::numeric_limits<qint64>::max(),
                                    std::numeric_limits<qint64>::min(), kSampleAmount}) {
            Transaction transaction = sampleTransaction(QString::number(amount));
            transaction.amount = amount;
            transactions.insert(transaction);
        }
        transactions.softDelete(QString::number(kSampleAmount));
        transactions.insert(sampleTransaction());
        run(u"UPDATE transactions SET payee = '', memo = NULL, check_number = '' WHERE id = 't'"_s);
        run(u"INSERT INTO split_lines VALUES ('s', 't', 'c', -1, ?, '', '')"_s, {awkwardWords()});
        recurring.insert(sampleRecurring());
        reconciliations.insert(sampleReconciliation());
        setSyncState(u"sync_status = 'synced', server_id = 's' || id, version = 7"_s);
    }
    void setSyncState(const QString &assignments)
    {
        for (const QString &table : kTables) {
            if (table != u"split_lines"_s) // which has none
                run(u"UPDATE %1 SET %2"_s.arg(table, assignments));
        }
    }

    BackupService service{get()};
};

} // namespace

class BackupServiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void restoresEverything();
    void leavesOutATableThatCannotBeRead();
    void holdsMoreThanOldArchivesCould();
    void merges_data();
    void merges();
    void withstands_data();
    void withstands();
};

void BackupServiceTest::restoresEverything()
{
    QByteArray bytes;
    QStringList rows;
    {
        Home home;
        home.fill();
        bytes = home.service.exportBackup();
        home.setSyncState(u"sync_status = 'pending', server_id = NULL, version = 1"_s);
        rows = home.rows();
    }
    Home home;
    const QSignalSpy progress(&home.service, &BackupService::progressed);
    const BackupImportResult result = home.service.importBackup(bytes, Mode::Skip);
    QCOMPARE(result.errors, {});
    QCOMPARE(result.imported, (BackupCounts{2, 3, 4, 1, 1, 1}));
    QCOMPARE(result.skipped, BackupCounts{});
    QCOMPARE(progress.last(), (QVariantList{12, 12}));
    QCOMPARE(home.rows(), rows);

    QCOMPARE(home.service.importBackup(bytes, Mode::Skip).skipped.total(), 12);
    QCOMPARE(home.service.importBackup(bytes, Mode::KeepNewer).skipped.total(), 12);
    QCOMPARE(home.service.importBackup(bytes, Mode::Replace).imported.total(), 12);
    QCOMPARE(home.rows(), rows);
}

void BackupServiceTest::leavesOutATableThatCannotBeRead()
{
    Home home;
    home.fill();
    home.run(u"ALTER TABLE reconciliations RENAME TO lost"_s);
    const LogCatcher log;
    const QByteArray bytes = home.service.exportBackup();
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().startsWith("BackupService export query failed:"_L1));
    QCOMPARE(home.service.importBackup(bytes, Mode::Replace).imported.total(), 11);
}

void BackupServiceTest::holdsMoreThanOldArchivesCould()
{
    Home home;
    home.run(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 66000) "
             "INSERT INTO accounts (id, name, created_at, updated_at) "
             "SELECT i, i, '2024', '2024' FROM n"_s);
    const QByteArray bytes = home.service.exportBackup();
    QCOMPARE(home.service.importBackup(bytes, Mode::Skip).skipped.accounts, 66000);
}

void BackupServiceTest::merges_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<QByteArray>("more"); // of the backup's row
    QTest::addColumn<QString>("name"); // afterwards

    QTest::newRow("skip") << Mode::Skip << QByteArray(R"(, "updated_at": "2025")") << u"Old"_s;
    QTest::newRow("replace by an older one")
        << Mode::Replace << QByteArray(R"(, "updated_at": "2023")") << u"X"_s;
    QTest::newRow("newer") << Mode::KeepNewer << QByteArray(R"(, "updated_at": "2024-01-02")")
                           << u"X"_s;
    QTest::newRow("of the same time")
        << Mode::KeepNewer << QByteArray(R"(, "updated_at": "2024-01-01")") << u"Old"_s;
    QTest::newRow("lower case sorts behind")
        << Mode::KeepNewer << QByteArray(R"(, "updated_at": "a")") << u"X"_s;
    QTest::newRow("no time") << Mode::KeepNewer << QByteArray(R"(, "updated_at": 2025)")
                             << u"Old"_s;
    QTest::newRow("deleted") << Mode::Replace << QByteArray(R"(, "deleted_at": "2024")") << u""_s;
}

void BackupServiceTest::merges()
{
    QFETCH(Mode, mode);
    QFETCH(QByteArray, more);
    Home home;
    home.accounts.insert(sampleAccount(u"x"_s));
    home.run(
        u"UPDATE accounts SET name = 'Old', updated_at = '2024-01-01', sync_status = 'synced', "
        "server_id = 's', version = 7, institution = 'Kept'"_s);
    const BackupImportResult result =
        home.service.importBackup(archiveOf({{u"accounts/x.json"_s, account(more)}}), mode);
    QCOMPARE(result.imported.total() + result.skipped.total(), 1);
    QTEST(home.value(u"SELECT name FROM accounts WHERE deleted_at IS NULL"_s).toString(), "name");
    const QString state = result.imported.accounts == 1 ? u"pending 1 Kept"_s : u"s 7 Kept"_s;
    QCOMPARE(home.value(u"SELECT COALESCE(server_id, sync_status) || ' ' || version || ' ' || "
                        "institution FROM accounts"_s),
             state);
}

void BackupServiceTest::withstands_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("outcome"); // rows imported and skipped, and the errors

    const auto newRow = [](const char *name, const Entries &entries) -> QTestData & {
        return QTest::newRow(name) << archiveOf(entries);
    };
    const auto newAccount = [&](const char *name, const QByteArray &more) -> QTestData & {
        return newRow(name, {{u"accounts/x.json"_s, account(more)}});
    };
    const QByteArray whole = archiveOf({{u"accounts/x.json"_s, account({})}});
    const QString unopened = u"0, 0: Failed to open ZIP archive"_s;
    const QString noManifest = u"0, 0: Invalid backup: missing manifest.json"_s;
    QTest::newRow("whole") << whole << u"1, 0: "_s;
    QTest::newRow("nothing") << QByteArray() << unopened;
    QTest::newRow("not an archive") << QByteArray("%PDF-1.7 \"x\"").repeated(1000) << unopened;
    QTest::newRow("truncated") << whole.chopped(whole.size() / 2) << unopened;
    QTest::newRow("encrypted") << archiveOf({{u"accounts/x.json"_s, account({})}}, true)
                               << u"0, 0: accounts/x.json: invalid JSON"_s;
    newRow("empty manifest", {{kManifest, {}}}) << noManifest;
    newRow("manifest elsewhere", {{u"a/manifest.json"_s, "{\"version\": 1}"}, {kManifest, ""}})
        << noManifest;
    newRow("manifest of a later version", {{kManifest, "{\"version\": 2}"}})
        << u"0, 0: Unsupported backup version: 2"_s;
    newRow("manifest that is none", {{kManifest, "[1]"}})
        << u"0, 0: Unsupported backup version: 0"_s;
    newRow("paths that lead out",
           {{u"accounts/../../../tmp/x.json"_s, account({})},
            {u"../accounts/y.json"_s, account({})},
            {u"/accounts/y.json"_s, account({})},
            {u"accounts/y.json.txt"_s, account({})},
            {u"accountsx/y.json"_s, account({})}})
        << u"1, 0: "_s;
    newRow("no row",
           {{u"accounts/a%2.json"_s, "{}"},
            {u"accounts/b.json"_s, "[[["},
            {u"accounts/c.json"_s, account({})}})
        << u"1, 0: accounts/a%2.json: invalid JSON; accounts/b.json: invalid JSON"_s;
    newRow("an id twice",
           {{u"accounts/x.json"_s, account({})}, {u"accounts/X.json"_s, account({})}})
        << u"1, 1: "_s;
    newRow("an id that is no text", {{u"accounts/1.json"_s, "{\"id\": 1, \"name\": \"X\"}"}})
        << u"0, 1: "_s;
    newRow("missing values", {{u"accounts/x.json"_s, "{\"id\": \"x\"}"}}) << u"0, 1: "_s;
    newAccount("no column", R"(, "secret": 1)")
        << u"0, 1: accounts/x.json: unknown column \"secret\""_s;
    newAccount("a column of another case", R"(, "NAME": "Y")")
        << u"0, 1: accounts/x.json: unknown column \"NAME\""_s;
    newAccount("a statement for a column", R"(, "name) VALUES ('%1'); DROP TABLE accounts; --": 1)")
        << u"0, 1: accounts/x.json: unknown column "
           "\"name) VALUES ('%1'); DROP TABLE accounts; --\""_s;
    newAccount("an unnamed column", R"(, "": 1)")
        << u"0, 1: accounts/x.json: unknown column \"\""_s;
    newAccount("a list, an object, a truth value, a fraction, beyond 64 bits",
               R"(, "institution": [1], "currency": {"a": 1}, "is_shared": true,
                  "sort_order": 1.5, "starting_balance": 1e300)")
        << u"1, 0: "_s;
    newRow("a missing parent", {{u"categories/x.json"_s, account(R"(, "parent_id": "none")")}})
        << u"0, 1: "_s;
    const QString refused = u"0, 0: accounts/z.json: invalid JSON"_s;
    const quint32 limit = quint32(BackupArchiveReader::kLargestEntry);
    QTest::newRow("large") << paddedArchive(limit, limit) << u"1, 0: "_s;
    QTest::newRow("too large") << paddedArchive(limit + 1, limit + 1) << refused;
    QTest::newRow("larger than it says") << paddedArchive(123456789, 1000) << refused;
}

void BackupServiceTest::withstands()
{
    QFETCH(QByteArray, bytes);
    const LogCatcher log;
    Home home;
    const BackupImportResult result = home.service.importBackup(bytes, Mode::Skip);
    QTEST(u"%1, %2: %3"_s.arg(QString::number(result.imported.total()),
                              QString::number(result.skipped.total()), result.errors.join(u"; "_s)),
          "outcome");
    QCOMPARE(home.value(u"SELECT COUNT(*) FROM accounts"_s).toInt(), result.imported.accounts);
    QVERIFY(!home.value(u"SELECT 1 FROM pragma_foreign_key_check"_s).isValid());
}

PURSEWELL_TEST_MAIN(BackupServiceTest)
#include "BackupServiceTest.moc"
