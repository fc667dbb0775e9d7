#include "services/ImportHome.h"
#include "support/TestSupport.h"

namespace {

// What a mapping is in most cases: Bank is account "a", Visa account "b", Cash is skipped.
const QifAccountMapping kMapping{{u"Bank"_s, u"a"_s}, {u"VISA"_s, u"b"_s}, {u"Cash"_s, u""_s}};

// Records parted by "|", each of fields parted by ";".
QString inAccount(const QString &name, const QString &records)
{
    QString text = u"!Account\nN%1\n^\n!Type:Bank\n"_s.arg(name);
    for (const QString &record : records.split(u'|', Qt::SkipEmptyParts))
        text += QString(record).replace(u';', u'\n') + u"\n^\n"_s;
    return text;
}

struct Home : ImportHome
{
    ImportResult import(const QStringList &texts, const QifAccountMapping &mapping = kMapping)
    {
        QStringList paths;
        for (const QString &text : texts)
            paths << file(text, u"%1.qif"_s.arg(paths.size()));
        return service.importQifFiles(paths, mapping);
    }
};

} // namespace

class ImportServiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void analysis();
    void imports_data();
    void imports();
    void tellsFilesApartByCase();
    void joinsEarlierRows_data();
    void joinsEarlierRows();
    void splitsGoWithTheirTransaction();
    void tellsHowFarItIs();
    void undoesAll_data();
    void undoesAll();
    void survivesAFullDisk();
    void survivesHugeRecords();
};

void ImportServiceTest::analysis()
{
    Home home;
    const QString record = u"D1/2/24;T1"_s;
    const QStringList paths{
        home.file(inAccount(u"My SAVINGS"_s, record)
                      + u"!Account\nNCard\n^\n!Type:CCard\n"
                        "D1/2/24\nT1\n^\n!Account\nNHouse\n^\n!Type:Oth A\nD1/2/24\nT1\n^\n"_s,
                  u"a.qif"_s),
        home.file(inAccount(u"my savings"_s, record), u"b.qif"_s),
        home.folder.filePath(u"missing.qif"_s),
        home.file(u"D1/2/24\nT1\n^\n"_s, u"no %1 name.qif"_s),
    };
    const QifAnalysis analysis = home.service.analyzeQifFiles(paths);
    QCOMPARE(analysis.totalTransactions, 5);
    const QList<QifSourceAccount> expected{
        {u"My SAVINGS"_s, u"My SAVINGS"_s, false, AccountType::Savings},
        {u"Card"_s, u"Card"_s, false, AccountType::CreditCard},
        {u"House"_s, u"House"_s, false, AccountType::Other},
        {paths.last(), u"no %1 name.qif (no account header)"_s, true, AccountType::Checking},
    };
    QVERIFY(analysis.sources == expected);
    // Between the two steps the files have gone.
    home.folder.remove();
    QCOMPARE(home.service.importQifFiles(paths, kMapping), ImportResult{});
}

void ImportServiceTest::imports_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<QString>("rows");

    const QString bankSide = inAccount(u"Bank"_s, u"D1/2/24;T-5;PTo;L[Visa]"_s);
    const QString visaSide = inAccount(u"Visa"_s, u"D1/2/24;T5;PFrom;L[bank]"_s);
    QTest::newRow("nothing") << QStringList{u""_s} << u""_s << u""_s;
    QTest::newRow("the same twice in a file")
        << QStringList{inAccount(u"BANK"_s, u"D1/2/24;T1;PX;MA|D1/2/24;T1;PX;MB|D1/2/24;T1;Px"_s)}
        << u"2 imported, 1 duplicates"_s << u"a 2024-01-02 X 100 \"A\"; a 2024-01-02 x 100"_s;
    QTest::newRow("two sides, two files")
        << QStringList{bankSide, visaSide} << u"2 imported, 1 linked"_s
        << u"a 2024-01-02 To -500 -> b From; b 2024-01-02 From 500 -> a To"_s;
    QTest::newRow("one side a duplicate, the other keeps its link")
        << QStringList{inAccount(u"Bank"_s, u"D1/2/24;T-5;PTo"_s), bankSide, visaSide}
        << u"2 imported, 1 duplicates, 1 linked"_s
        << u"a 2024-01-02 To -500; b 2024-01-02 From 500 -> a none"_s;
    QTest::newRow("a day apart")
        << QStringList{bankSide, inAccount(u"Visa"_s, u"D1/3/24;T5;PFrom;MM;L[Bank]"_s)}
        << u"2 imported"_s
        << u"a 2024-01-02 To -500 \"[→ Visa]\"; b 2024-01-03 From 500 \"[→ Bank] M\""_s;
    QTest::newRow("into its own account, by name and by mapping")
        << QStringList{inAccount(u"Bank"_s, u"D1/2/24;T1;PX;L[BANK]"_s),
                       inAccount(u"Same"_s, u"D1/2/24;T2;PX;L[Bank]"_s)}
        << u"2 imported"_s << u"a 2024-01-02 X 100; a 2024-01-02 X 200 \"[→ Bank]\""_s;
    QTest::newRow("skipped, and not mapped at all")
        << QStringList{inAccount(u"Cash"_s, u"D1/2/24;T1"_s) + inAccount(u"?"_s, u"D1/2/24;T1"_s)}
        << u"2 unmapped"_s << u""_s;
    QTest::newRow("payees")
        << QStringList{inAccount(u"Bank"_s,
                                 u"D1/2/24;T1;NBuy;YIBM|D1/2/24;T2;YIBM|D1/2/24;T3;N%2|"
                                 "D1/2/24;T4;L[Cash]|D1/2/24;T5|D1/2/24;T6;N%2;Y%1"_s)}
        << u"6 imported"_s
        << u"a 2024-01-02 Buy: IBM 100 #Buy; a 2024-01-02 IBM 200; a 2024-01-02 %2 300 #%2; "
           "a 2024-01-02 Cash 400 \"[→ Cash]\"; a 2024-01-02 Imported transaction 500; "
           "a 2024-01-02 %2: %1 600 #%2"_s;
    QTest::newRow("categories")
        << QStringList{u"!Type:Cat\nNPay\nI\n^\nNPay\nE\n^\nNfood\n^\n"_s
                       + inAccount(u"Bank"_s,
                                   u"D1/2/24;T1;PX;LPay|D1/2/24;T2;PX;LA:B|D1/2/24;T3;PX;LFood"_s)}
        << u"3 imported"_s
        << u"a 2024-01-02 X 100 Pay:income; a 2024-01-02 X 200 A:B:expense; "
           "a 2024-01-02 X 300 Food:%1"_s.arg(categoryTypeToString(sampleCategory().category_type));
    QTest::newRow("unreadable, and of other lists")
        << QStringList{inAccount(u"Bank"_s, u"T1|D13/13/24;T1"_s) + u"!Type:Class\nNx\n^\n"_s}
        << u"2 unparseable, 1 metadata"_s << u""_s;
    QTest::newRow("a date that cannot be stored, and one that can")
        << QStringList{inAccount(u"Bank"_s, u"D1/2/12024;T1;PX|D1/2/24;T1;PX"_s)}
        << u"1 imported, 1 errors"_s << u"a 2024-01-02 X 100"_s;
    QTest::newRow("awkward words")
        << QStringList{inAccount(u"Bank"_s,
                                 u"D1/2/24;T1;P%1 'x' \"y\" 🦆;Mשלום %2;L[%3 🦆]"_s)}
        << u"1 imported"_s << u"a 2024-01-02 %1 'x' \"y\" 🦆 100 \"[→ %3 🦆] שלום %2\""_s;
}

void ImportServiceTest::imports()
{
    QFETCH(QStringList, files);
    Home home;
    QifAccountMapping mapping = kMapping;
    mapping.insert(u"same"_s, u"a"_s);
    QTEST(counts(home.import(files, mapping)), "outcome");
    QTEST(home.rows(), "rows");
    const int stored = home.count(u"transactions"_s);
    QCOMPARE(home.import(files, mapping).imported, 0); // the same once more adds nothing
    QCOMPARE(home.count(u"transactions"_s), stored);
}

void ImportServiceTest::tellsFilesApartByCase()
{
    Home home;
    const QString lower = home.file(u"D1/2/24\nT1\nPX"_s, u"x.qif"_s);
    const QString upper = home.file(u"D1/2/24\nT2\nPX"_s, u"X.qif"_s);
    home.service.importQifFiles({lower, upper}, {{lower, u"a"_s}, {upper, u"b"_s}});
    QCOMPARE(home.rows(), u"a 2024-01-02 X 100; b 2024-01-02 X 200"_s);
}

void ImportServiceTest::joinsEarlierRows_data()
{
    QTest::addColumn<QString>("earlier"); // in Bank
    QTest::addColumn<QString>("change"); // made meanwhile
    QTest::addColumn<QString>("later"); // in Visa
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<QString>("rows");

    const QString earlier = u"D1/2/24;T-5;PTo;MM;L[Visa]"_s;
    const QString later = u"D1/2/24;T5;PFrom;L[bank]"_s;
    const QString linked = u"a 2024-01-02 To -500 \"M\" -> b From; b 2024-01-02 From 500 -> a To"_s;
    const QString apart = u"a 2024-01-02 To -500 \"%1\"; b 2024-01-02 From 500 \"[→ bank]\""_s;
    const QString one = u"1 imported, 1 linked, 1 earlier"_s;
    QTest::newRow("found") << earlier << u""_s << later << one << linked;
    QTest::newRow("hint in another case")
        << earlier << u"UPDATE transactions SET memo = '[→ VISA] M'"_s << later << one << linked;
    QTest::newRow("hint edited away") << earlier << u"UPDATE transactions SET memo = 'M'"_s << later
                                      << u"1 imported"_s << apart.arg(u"M"_s);
    QTest::newRow("linked by hand")
        << earlier << u"UPDATE transactions SET transfer_link_id = 'x'"_s << later
        << u"1 imported"_s
        << u"a 2024-01-02 To -500 \"[→ Visa] M\" ->  none; b 2024-01-02 From 500 \"[→ bank]\""_s;
    QTest::newRow("deleted meanwhile")
        << earlier << u"UPDATE transactions SET deleted_at = '2024-02-01T00:00:00Z'"_s << later
        << u"1 imported"_s << apart.arg(u"[→ Visa] M"_s);
    QTest::newRow("the one created last comes first, each once")
        << u"D1/2/24;T-5;PA;L[Visa]|D1/2/24;T-5;PB;L[Visa]"_s
        << u"UPDATE transactions SET created_at = '2030-01-01T00:00:00Z' WHERE payee = 'A'"_s
        << u"D1/2/24;T5;P1;L[Bank]|D1/2/24;T5;P2;L[Bank]|D1/2/24;T5;P3;L[Bank]"_s
        << u"3 imported, 2 linked, 2 earlier"_s
        << u"a 2024-01-02 A -500 -> b 1; a 2024-01-02 B -500 -> b 2; b 2024-01-02 1 500 -> a A; "
           "b 2024-01-02 2 500 -> a B; b 2024-01-02 3 500 \"[→ Bank]\""_s;
}

void ImportServiceTest::joinsEarlierRows()
{
    QFETCH(QString, earlier);
    QFETCH(QString, change);
    QFETCH(QString, later);
    Home home;
    home.import({inAccount(u"Bank"_s, earlier)});
    home.run(u"UPDATE transactions SET sync_status = 'synced'"_s);
    if (!change.isEmpty())
        home.run(change);
    const ImportResult result = home.import({inAccount(u"Visa"_s, later)});
    QTEST(counts(result), "outcome");
    QTEST(home.rows(), "rows");
    const QString told = u"SELECT COUNT(*) FROM transactions WHERE account_id = 'a' "
                         "AND version = 2 AND sync_status = 'pending'"_s;
    QCOMPARE(home.value(told).toInt(), result.retroactiveLinks);
}

void ImportServiceTest::splitsGoWithTheirTransaction()
{
    Home home;
    const QString record = u"D1/2/24;T6;PX;LFood;SFood;Eone;$1;SNew;$2;S[Visa];Eout;$3"_s;
    QCOMPARE(counts(home.import({inAccount(u"Bank"_s, record)})), u"1 imported"_s);
    QCOMPARE(home.value(u"SELECT group_concat(c.name || ' ' || s.amount || ' ' || COALESCE(s.memo, "
                        u"''), '; ') "
                        "FROM split_lines s JOIN transactions t ON t.id = s.transaction_id "
                        "JOIN categories c ON c.id = s.category_id WHERE t.is_split = 1 "
                        "AND s.created_at = t.created_at"_s)
                 .toString(),
             u"Food 100 one; New 200 "_s);
}

void ImportServiceTest::tellsHowFarItIs()
{
    Home home;
    QString records;
    for (int i = 0; i < 250; ++i)
        records += u"D1/2/24;T%1;PX|"_s.arg(i);
    QStringList told;
    QObject::connect(&home.service, &ImportService::importStarted, &home.service,
                     [&](int total) { told << u"started %1"_s.arg(total); });
    QObject::connect(&home.service, &ImportService::importProgress, &home.service,
                     [&](int current, int total) { told << u"%1/%2"_s.arg(current).arg(total); });
    // What waits for the event loop runs after each hundred and sees the writing go on.
    QTimer::singleShot(0, &home.service, [&] {
        told << u"event, %1 stored"_s.arg(home.count(u"transactions"_s));
        QVERIFY(home.transactions.isBulkWriting());
    });
    QSignalSpy finished(&home.transactions, &TransactionRepository::bulkWriteFinished);
    home.import({inAccount(u"Bank"_s, records)});
    QCOMPARE(told.join(u", "_s), u"started 250, 100/250, event, 99 stored, 200/250, 250/250"_s);
    QCOMPARE(home.takeSignals().count(u"transactions a"_s), 250);
    QCOMPARE(finished.size(), 1);
    QVERIFY(!home.transactions.isBulkWriting());
}

void ImportServiceTest::undoesAll_data()
{
    QTest::addColumn<QString>("harm");
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<QString>("warning");

    QTest::newRow("partner refused")
        << refusing(u"UPDATE ON transactions"_s) << u"1 imported, 1 aborted"_s
        << u"QIF import aborted: failed to update retroactive partner"_s;
    QTest::newRow("commit refused")
        << u"CREATE TRIGGER refusing AFTER INSERT ON transactions BEGIN "
           "INSERT INTO guard VALUES ('nobody'); END"_s
        << u"3 imported, 1 linked, 1 earlier"_s << u"QIF import: commit failed: \"FOREIGN KEY"_s;
    QTest::newRow("one row refused")
        << refusing(u"INSERT ON transactions WHEN new.payee = 'From'"_s)
        << u"2 imported, 1 errors"_s
        << u"QIF import: insert failed for \"2024-01-02\" \"From\" amount 500 account \"b\""_s;
}

void ImportServiceTest::undoesAll()
{
    QFETCH(QString, harm);
    QFETCH(QString, warning);
    Home home;
    home.import({inAccount(u"Bank"_s, u"D1/2/24;T-5;PTo;L[Visa]"_s)});
    const QString before = home.rows();
    home.run(u"CREATE TABLE guard (id REFERENCES accounts(id) DEFERRABLE INITIALLY DEFERRED)"_s);
    home.run(harm);
    const LogCatcher log;
    const ImportResult result = home.import(
        {inAccount(u"Visa"_s, u"D1/2/24;T1;LNew|D1/2/24;T5;PFrom;L[Bank]|D1/2/24;T2"_s)});
    QTEST(counts(result), "outcome");
    QVERIFY(LogCatcher::warnings().join(u'\n').contains(warning));
    const bool kept = result.databaseErrors > 0;
    QCOMPARE(home.rows() == before, !kept);
    QCOMPARE(home.count(u"categories"_s), kept ? 2 : 1);
    home.run(u"DROP TRIGGER refusing"_s); // and nothing is left open
    QCOMPARE(home.import({inAccount(u"Visa"_s, u"D1/2/24;T5;PFrom;L[Bank]"_s)}).retroactiveLinks,
             1);
}

void ImportServiceTest::survivesAFullDisk()
{
    Home home;
    home.import({inAccount(u"Bank"_s, u"D1/1/24;T-5;PTo;L[Visa]"_s)});
    QString records = u"D1/1/24;T5;PFrom;L[Bank]|"_s;
    for (int i = 0; i < 60; ++i)
        records += u"D1/2/24;T1;P%1;M%2;LC%1;SD%1;E%1;$1;SE%1;$2|"_s.arg(QString::number(i),
                                                                         QString(200, u'x'));
    const LogCatcher log;
    const int failures = home.untilThereIsRoom([&] {
        const bool aborted = home.import({inAccount(u"Visa"_s, records)}).aborted;
        return home.count(u"transactions"_s) == (aborted ? 1 : 62)
            && home.count(u"categories"_s) == (aborted ? 1 : 181)
            && home.count(u"split_lines"_s) == (aborted ? 0 : 120);
    });
    QVERIFY(failures > 10);
    home.run(u"INSERT INTO transactions_fts(transactions_fts) VALUES ('integrity-check')"_s);
}

void ImportServiceTest::survivesHugeRecords()
{
    Home home;
    QString record = u"D1/2/24;T1;P"_s + QString(10'000'000, u'p');
    for (int i = 0; i < 100'000; ++i)
        record += u";SFood;$%1"_s.arg(i);
    QCOMPARE(counts(home.import({inAccount(u"Bank"_s, record)})), u"1 imported"_s);
    QCOMPARE(home.count(u"split_lines"_s), 100'000);
    QCOMPARE(home.value(u"SELECT length(payee) FROM transactions"_s).toInt(), 10'000'000);
}

PURSEWELL_TEST_MAIN(ImportServiceTest)
#include "ImportServiceTest.moc"
