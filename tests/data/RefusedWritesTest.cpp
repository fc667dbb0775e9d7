#include "support/SampleRecords.h"
#include "support/TestDatabase.h"
#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>

using namespace Qt::StringLiterals;

using Write = std::function<bool(TestDatabase &)>;

namespace {

void addRow(const QString &logged, const Write &write)
{
    QTest::addRow("%s", qPrintable(logged)) << write << logged;
}

// The writes that every repository has, of a record that is there already.
template <typename Repository, typename Record>
void addRows(const QString &name, Repository TestDatabase::*repository, const Record &record)
{
    addRow(name + u"::insert failed: \"UNIQUE constraint failed: "_s,
           [=](TestDatabase &database) { return (database.*repository).insert(record); });
    addRow(name + u"::update failed: \"refused "_s,
           [=](TestDatabase &database) { return (database.*repository).update(record); });
    addRow(name + u"::markAllPendingForResync failed: \"refused "_s, [=](TestDatabase &database) {
        return (database.*repository).markAllPendingForResync() != 0;
    });
}

template <typename Repository>
void addDeletionRow(const QString &name, Repository TestDatabase::*repository, const QString &id)
{
    addRow(name + u"::softDelete failed: \"refused "_s,
           [=](TestDatabase &database) { return (database.*repository).softDelete(id); });
}

template <typename Repository>
void addAccountRows(const QString &name, Repository TestDatabase::*repository)
{
    addRow(name + u"::softDeleteByAccount failed: \"refused "_s, [=](TestDatabase &database) {
        return (database.*repository).softDeleteByAccount(u"a"_s) != 0;
    });
    addRow(name + u"::restoreByAccount failed: \"refused "_s, [=](TestDatabase &database) {
        return (database.*repository).restoreByAccount(u"b"_s, u"2000"_s) != 0;
    });
}

} // namespace

// A write that the database refuses returns false, leaves its one line in the log and emits
// nothing.
class RefusedWritesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areLoggedAndSilent_data();
    void areLoggedAndSilent();
};

void RefusedWritesTest::areLoggedAndSilent_data()
{
    QTest::addColumn<Write>("write");
    QTest::addColumn<QString>("logged"); // empty: no line at all
    const QString accounts = u"AccountRepository"_s;
    const QString categories = u"CategoryRepository"_s;
    const QString transactions = u"TransactionRepository"_s;
    const QString recurring = u"RecurringRepository"_s;
    const QString reconciliations = u"ReconciliationRepository"_s;

    addRows(accounts, &TestDatabase::accounts, sampleAccount());
    addRows(categories, &TestDatabase::categories, sampleCategory());
    addRows(transactions, &TestDatabase::transactions, sampleTransaction());
    addRows(recurring, &TestDatabase::recurring, sampleRecurring());
    addRows(reconciliations, &TestDatabase::reconciliations, sampleReconciliation());
    addDeletionRow(accounts, &TestDatabase::accounts, u"a"_s);
    addDeletionRow(categories, &TestDatabase::categories, u"c"_s);
    addDeletionRow(transactions, &TestDatabase::transactions, u"t"_s);
    addAccountRows(transactions, &TestDatabase::transactions);
    addAccountRows(recurring, &TestDatabase::recurring);
    addAccountRows(reconciliations, &TestDatabase::reconciliations);

    addRow(accounts + u"::insert failed: \"NOT NULL constraint failed: accounts.name "_s,
           [](TestDatabase &database) { return database.accounts.insert({.id = u"x"_s}); });
    addRow(accounts + u"::restore failed: \"refused "_s,
           [](TestDatabase &database) { return database.accounts.restore(u"a"_s); });
    addRow(recurring + u"::deactivate failed: \"refused "_s,
           [](TestDatabase &database) { return database.recurring.deactivate(u"r"_s); });
    addRow(transactions + u"::insert failed: \"FOREIGN KEY constraint failed "_s,
           [](TestDatabase &database) {
               Transaction transaction = sampleTransaction(u"x"_s);
               transaction.category_id = u"nobody"_s;
               return database.transactions.insert(transaction);
           });
    addRow(u"SplitLineRepository::insert failed: \"FOREIGN KEY constraint failed "_s,
           [](TestDatabase &database) {
               SplitLine line = sampleSplitLine();
               line.category_id = u"nobody"_s;
               return database.splitLines.insert(line);
           });

    const auto quietRow = [](const char *name, const Write &write) {
        QTest::newRow(name) << write << QString();
    };
    quietRow("account, after a push",
             [](TestDatabase &database) { return database.accounts.markSynced(u"a"_s, u"s"_s); });
    quietRow("account, order", [](TestDatabase &database) {
        return database.accounts.updateSortOrders({{u"a"_s, 1}});
    });
    quietRow("transaction, unknown id",
             [](TestDatabase &database) { return database.transactions.softDelete(u"nobody"_s); });
    quietRow("template",
             [](TestDatabase &database) { return database.recurring.softDelete(u"r"_s); });
}

void RefusedWritesTest::areLoggedAndSilent()
{
    QFETCH(Write, write);
    QFETCH(QString, logged);
    TestDatabase database;
    database.addSampleOwners();
    QVERIFY(database.transactions.insert(sampleTransaction()));
    QVERIFY(database.recurring.insert(sampleRecurring()));
    QVERIFY(database.reconciliations.insert(sampleReconciliation()));
    for (const QString &table :
         {u"transactions"_s, u"recurring_transactions"_s, u"reconciliations"_s}) {
        database.run(u"CREATE TEMP TABLE one AS SELECT * FROM %1"_s.arg(table));
        database.run(u"UPDATE one SET id = 'gone', account_id = 'b', deleted_at = '2024'"_s);
        database.run(u"INSERT INTO %1 SELECT * FROM one"_s.arg(table)); // one to restore
        database.run(u"DROP TABLE one"_s);
        database.refuseUpdates(table);
    }
    database.refuseUpdates(u"accounts"_s);
    database.refuseUpdates(u"categories"_s);
    database.takeSignals();

    const LogCatcher log;
    QVERIFY(!write(database));
    QCOMPARE(database.takeSignals(), QStringList());
    QCOMPARE(LogCatcher::warnings().size(), logged.isEmpty() ? 0 : 1);
    QVERIFY2(LogCatcher::warnings().value(0).startsWith(logged),
             qPrintable(LogCatcher::warnings().value(0)));
}

PURSEWELL_TEST_MAIN(RefusedWritesTest)
#include "RefusedWritesTest.moc"
