#include "services/SampleDataService.h"

#include "services/CategoryService.h"
#include "support/LanguageRows.h"
#include "support/SampleRecords.h"
#include "support/TestDatabase.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

namespace {

// Of each row in turn: which of the seeded categories it has.
QString categoriesOfRows()
{
    TestDatabase database;
    CategoryService(&database.categories).seedDefaults();
    SampleDataService(database.get()).loadSampleData();
    return database
        .value(
            u"SELECT group_concat(ifnull((SELECT rowid FROM categories WHERE id = category_id), "
            "'-')) FROM (SELECT category_id, 1 AS kind, rowid AS row FROM transactions UNION ALL "
            "SELECT category_id, 2, rowid FROM recurring_transactions ORDER BY kind, row)"_s)
        .toString();
}

} // namespace

class SampleDataServiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsFindTheirCategories_data() { addLanguageRows(); }
    void rowsFindTheirCategories();
    void householdLooksRecent();
    void clearingLeavesTheRest();
};

void SampleDataServiceTest::rowsFindTheirCategories()
{
    QFETCH(QString, language);
    const QString inSourceLanguage = categoriesOfRows();
    QTranslator catalogue;
    QVERIFY(catalogue.load(u":/i18n/pursewell_%1.qm"_s.arg(language), u""_s, u""_s, u""_s));
    QCoreApplication::installTranslator(&catalogue);
    QCOMPARE(categoriesOfRows(), inSourceLanguage);
}

void SampleDataServiceTest::householdLooksRecent()
{
    TestDatabase database;
    SampleDataService service(database.get(), nullptr, [] { return QDate(2024, 3, 1); });
    CategoryService(&database.categories).seedDefaults();
    service.loadSampleData();
    const auto text = [&](const QString &statement) {
        return database.value(statement).toString();
    };
    QCOMPARE(text(u"SELECT group_concat(row, '; ') FROM (SELECT memo || ' ' || amount || ' ' || "
                  "frequency || ' ' || start_date || ' ' || next_due_date AS row "
                  "FROM recurring_transactions ORDER BY memo)"_s),
             u"Biweekly paycheck 285000 biweekly 2024-01-01 2024-03-09; "
             "Monthly rent -145000 monthly 2024-01-01 2024-03-02; "
             "Monthly savings -50000 monthly 2024-01-01 2024-03-02"_s);
    QCOMPARE(text(u"SELECT t.memo FROM transactions t JOIN categories c ON c.id = t.category_id "
                  "JOIN categories p ON p.id = c.parent_id "
                  "WHERE p.name = 'Insurance' AND c.name = 'Auto'"_s),
             u"Auto insurance"_s);
    // Two pairs, with the accounts crosswise.
    QCOMPARE(text(u"SELECT COUNT(*) FROM transactions a JOIN transactions b ON "
                  "a.transfer_link_id = b.transfer_link_id AND a.date = b.date "
                  "AND a.transfer_dest_account_id = b.account_id AND a.amount = -b.amount "
                  "WHERE b.transfer_dest_account_id = a.account_id"_s),
             u"4"_s);
}

void SampleDataServiceTest::clearingLeavesTheRest()
{
    TestDatabase database;
    database.addSampleOwners();
    SampleDataService service(database.get());
    service.loadSampleData();
    Transaction own = sampleTransaction();
    database.transactions.insert(own);
    own.id = u"added"_s;
    own.account_id = u"sample-acct-visa"_s;
    database.transactions.insert(own);

    service.clearSampleData();
    QCOMPARE(database.value(u"SELECT COUNT(*) FROM transactions"_s).toInt(), 2);
    QVERIFY(service.hasSampleData()); // for the sake of the row that was added
    database.run(u"DELETE FROM transactions WHERE id = 'added'"_s);
    service.clearSampleData();
    QCOMPARE(database.accounts.listActive().size(), 2);
    QCOMPARE(database.recurring.listActive().size(), 0);
}

PURSEWELL_TEST_MAIN(SampleDataServiceTest)
#include "SampleDataServiceTest.moc"
