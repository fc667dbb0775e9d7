#include "core/Dates.h"
#include "support/SampleRecords.h"
#include "support/TestDatabase.h"
#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {

// Both are inserted; then each overwrites the other, which must keep its birth. Read through
// another repository on the same file.
template <typename Repository, typename Record>
void comesBack(TestDatabase &db, Repository &repository, const Record &full, Record plain)
{
    plain.id = u"plain"_s;
    plain.created_at = plain.updated_at = sampleStamp(99);
    QVERIFY(repository.insert(full) && repository.insert(plain));
    const Repository second(db.get());
    QVERIFY(second.findById(full.id) == full);
    QVERIFY(second.findById(plain.id) == plain);

    Record emptied = plain;
    Record filled = full;
    std::swap(emptied.id, filled.id);
    QVERIFY(repository.update(emptied) && repository.update(filled));
    std::swap(emptied.created_at, filled.created_at);
    QVERIFY(second.findById(full.id) == emptied);
    QVERIFY(second.findById(plain.id) == filled);
    QCOMPARE(db.takeSignals().size(), 4);
    QVERIFY(repository.update(Record{plain}) && db.takeSignals().size() == 1);
}

template <typename Repository, typename Record>
void goesWithItsAccount(TestDatabase &db, Repository &repository, Record record,
                        const QString &table)
{
    for (const QString &id : {u"1"_s, u"2"_s, u"deleted before"_s, u"other"_s}) {
        record.id = id;
        record.account_id = id == u"other"_s ? u"b"_s : u"a"_s;
        QVERIFY(repository.insert(record));
    }
    const QDateTime now = currentStamp();
    db.run(u"UPDATE %1 SET deleted_at = ? WHERE id = 'deleted before'"_s.arg(table),
           {isoStamp(now.addDays(-1))});
    db.takeSignals();

    QCOMPARE(repository.softDeleteByAccount(u"a"_s), 2);
    QCOMPARE(repository.softDeleteByAccount(u"a"_s), 0);
    const QString since = isoStamp(repository.findById(u"1"_s)->deleted_at.value());
    QVERIFY(!repository.findById(u"other"_s)->deleted_at);
    QVERIFY(repository.markSynced(u"1"_s, u"server"_s));
    QCOMPARE(repository.restoreByAccount(u"a"_s, since), 2);
    QCOMPARE(repository.restoreByAccount(u"a"_s, since), 0);
    QVERIFY(!repository.findById(u"1"_s)->deleted_at);
    QCOMPARE(repository.findById(u"1"_s)->sync_status, SyncStatus::Pending);
    QCOMPARE(repository.findById(u"deleted before"_s)->deleted_at.value(), now.addDays(-1));
    QCOMPARE(db.takeSignals().size(), 2);
}

// Of each kind there is one live row.
template <typename Repository>
void becomesPendingOnce(TestDatabase &db, Repository &repository, const QString &signal)
{
    db.takeSignals();
    QCOMPARE(repository.markAllPendingForResync(), 1);
    QCOMPARE(repository.markAllPendingForResync(), 0);
    QCOMPARE(db.takeSignals(), QStringList{signal});
    const QString id = repository.listPending().value(0).id;
    QVERIFY(repository.markSynced(id, u"new server id"_s));
    QCOMPARE(repository.findById(id)->server_id, u"new server id"_s);
    QCOMPARE(repository.listPending().size(), 0);
    QCOMPARE(db.takeSignals(), QStringList());
}

} // namespace

// What all repositories do alike: store whole records, delete softly, keep track of what the
// server has to hear of.
class RepositoriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordsComeBack();
    void splitLinesComeBackAsInserted();
    void emptyReferencesAreNull();
    void missingStampsOfAReconciliationAreFilledIn();
    void accountGoesAndComesBack();
    void categoryGoesAlone();
    void transactionIsGoneFromTheLivingOnly();
    void accountTakesItsRowsAlong();
    void resyncTakesLiveRowsThatAreNotPending();
};

void RepositoriesTest::recordsComeBack()
{
    TestDatabase db;
    db.addSampleOwners();
    Category child = sampleCategory(u"full"_s);
    child.parent_id = u"c"_s;
    const QDate day(9999, 12, 31);
    comesBack(db, db.accounts, sampleAccount(u"full"_s),
              {.name = u""_s, .starting_balance = std::numeric_limits<qint64>::min()});
    comesBack(db, db.categories, child, {.name = u""_s});
    comesBack(db, db.transactions, sampleTransaction(),
              {.account_id = u"a"_s, .date = day, .payee = u""_s});
    comesBack(db, db.recurring, sampleRecurring(),
              {.account_id = u"a"_s, .payee = u""_s, .start_date = day, .next_due_date = day});
    comesBack(db, db.reconciliations, sampleReconciliation(),
              {.account_id = u"b"_s, .statement_date = day, .completed_at = sampleStamp()});

    Transaction moved = sampleTransaction();
    moved.account_id = u"b"_s;
    QVERIFY(db.transactions.update(moved));
    QCOMPARE(db.takeSignals(), QStringList{u"transactions b"_s}); // as the record says
    QCOMPARE(db.transactions.findById(moved.id)->account_id, u"a"_s);
}

void RepositoriesTest::splitLinesComeBackAsInserted()
{
    TestDatabase db;
    db.addSampleOwners();
    QVERIFY(db.transactions.insert(sampleTransaction(u"t"_s)));
    QVERIFY(db.transactions.insert(sampleTransaction(u"u"_s)));
    SplitLine other = sampleSplitLine(u"other"_s);
    other.transaction_id = u"u"_s;
    const QList<SplitLine> lines{sampleSplitLine(u"z"_s), sampleSplitLine(u"y"_s)};
    for (const SplitLine &line : lines + QList<SplitLine>{other})
        QVERIFY(db.splitLines.insert(line));
    const SplitLineRepository second(db.get());
    QVERIFY(second.listByTransaction(u"t"_s) == lines);
    QVERIFY(db.splitLines.deleteByTransaction(u"t"_s));
    QCOMPARE(second.listByTransaction(u"t"_s).size(), 0);
    QVERIFY(second.listByTransaction(u"u"_s) == QList<SplitLine>{other});
}

void RepositoriesTest::emptyReferencesAreNull()
{
    TestDatabase db;
    db.addSampleOwners();
    Transaction transaction = sampleTransaction();
    RecurringTransaction recurring = sampleRecurring();
    Category category = sampleCategory();
    transaction.category_id = recurring.category_id = u""_s;
    category.parent_id = category.account_id = u""_s;
    QVERIFY(db.transactions.insert(transaction));
    QVERIFY(db.recurring.insert(recurring));
    QVERIFY(db.categories.update(category));
    QCOMPARE(db.value(u"SELECT COUNT(*) FROM transactions t, recurring_transactions r, "
                      "categories c WHERE t.category_id IS NULL AND r.category_id IS NULL "
                      "AND c.parent_id IS NULL AND c.account_id IS NULL"_s),
             QVariant(1));
}

void RepositoriesTest::missingStampsOfAReconciliationAreFilledIn()
{
    TestDatabase db;
    db.addSampleOwners();
    const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-1);
    Reconciliation unborn = sampleReconciliation(u"unborn"_s);
    Reconciliation untouched = sampleReconciliation(u"untouched"_s);
    unborn.created_at = untouched.updated_at = {};
    QVERIFY(db.reconciliations.insert(unborn));
    QVERIFY(db.reconciliations.insert(untouched));
    unborn = db.reconciliations.findById(u"unborn"_s).value();
    untouched = db.reconciliations.findById(u"untouched"_s).value();
    QVERIFY(unborn.created_at > before && untouched.updated_at > before);
    QVERIFY(unborn.updated_at == sampleStamp(1) && untouched.created_at == sampleStamp());
}

void RepositoriesTest::accountGoesAndComesBack()
{
    TestDatabase db;
    db.addSampleOwners();
    AccountRepository &accounts = db.accounts;
    const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-1);
    QVERIFY(accounts.softDelete(u"a"_s));
    Account account = accounts.findById(u"a"_s).value();
    QVERIFY(account.deleted_at.value() > before);
    QCOMPARE(account.updated_at, *account.deleted_at);
    QCOMPARE(accounts.listDeleted().value(0).id, u"a"_s);
    QCOMPARE(accounts.listActive().size(), 1);
    QCOMPARE(accounts.listPending().value(0).id, u"a"_s);

    QVERIFY(accounts.markSynced(u"a"_s, u"server"_s));
    QVERIFY(accounts.restore(u"a"_s));
    account = accounts.findById(u"a"_s).value();
    QVERIFY(account.updated_at > before);
    Account expected = sampleAccount();
    expected.sync_status = SyncStatus::Pending;
    expected.server_id = u"server"_s;
    expected.updated_at = account.updated_at;
    QVERIFY(account == expected);
    QCOMPARE(db.takeSignals(), (QStringList{u"accounts"_s, u"accounts"_s}));
}

void RepositoriesTest::categoryGoesAlone()
{
    TestDatabase db;
    db.addSampleOwners();
    Category child = sampleCategory(u"child"_s);
    child.parent_id = u"c"_s;
    QVERIFY(db.categories.insert(child));
    QVERIFY(db.categories.softDelete(u"c"_s));
    QCOMPARE(db.categories.countActive(), 1);
    QVERIFY(db.categories.findById(u"child"_s) == child);
    QCOMPARE(db.categories.findByName(child.name)->id, u"child"_s); // not its namesake
    const Category gone = db.categories.findById(u"c"_s).value();
    QCOMPARE(gone.updated_at, gone.deleted_at.value());
    QCOMPARE(db.categories.listPending().value(0).id, u"c"_s);
    QCOMPARE(db.takeSignals(), (QStringList{u"categories"_s, u"categories"_s}));
}

void RepositoriesTest::transactionIsGoneFromTheLivingOnly()
{
    TestDatabase db;
    db.addSampleOwners();
    TransactionRepository &transactions = db.transactions;
    Transaction transaction = sampleTransaction();
    transaction.reconciled = false;
    QVERIFY(transactions.insert(transaction));
    QCOMPARE(transactions.listUnreconciled(u"a"_s).size(), 1);
    QVERIFY(transactions.softDelete(u"t"_s));
    QCOMPARE(db.takeSignals(), (QStringList{u"transactions a"_s, u"transactions a"_s}));
    QCOMPARE(transactions.listByAccount(u"a"_s).size(), 0);
    QCOMPARE(transactions.listUnreconciled(u"a"_s).size(), 0);
    QCOMPARE(transactions.search(u""_s, {}).size(), 0);
    QCOMPARE(transactions.allPayees(), QStringList());
    QVERIFY(!transactions.lastForPayee(transaction.payee, u"a"_s));
    QVERIFY(transactions.findById(u"t"_s)->deleted_at.has_value());
    QCOMPARE(transactions.listPending().value(0).id, u"t"_s);
}

void RepositoriesTest::accountTakesItsRowsAlong()
{
    TestDatabase db;
    db.addSampleOwners();
    goesWithItsAccount(db, db.transactions, sampleTransaction(), u"transactions"_s);
    goesWithItsAccount(db, db.recurring, sampleRecurring(), u"recurring_transactions"_s);
    goesWithItsAccount(db, db.reconciliations, sampleReconciliation(), u"reconciliations"_s);
}

void RepositoriesTest::resyncTakesLiveRowsThatAreNotPending()
{
    TestDatabase db;
    db.addSampleOwners();
    QVERIFY(db.accounts.softDelete(u"b"_s));
    QVERIFY(db.accounts.markSynced(u"b"_s, u"server"_s));
    QVERIFY(db.transactions.insert(sampleTransaction()));
    QVERIFY(db.recurring.insert(sampleRecurring()));
    QVERIFY(db.reconciliations.insert(sampleReconciliation()));
    becomesPendingOnce(db, db.accounts, u"accounts"_s);
    becomesPendingOnce(db, db.categories, u"categories"_s);
    becomesPendingOnce(db, db.transactions, u"transactions "_s); // of all accounts
    becomesPendingOnce(db, db.recurring, u"recurring"_s);
    becomesPendingOnce(db, db.reconciliations, u"reconciliations"_s);
}

PURSEWELL_TEST_MAIN(RepositoriesTest)
#include "RepositoriesTest.moc"
