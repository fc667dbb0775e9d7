#include "core/Dates.h"
#include "support/SampleRecords.h"
#include "support/TestDatabase.h"
#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

// What all repositories do alike: store whole records, delete softly, keep track of what the
// server has to hear of.
class RepositoriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_database.reset(); }
    void recordsComeBack();
    void splitLinesComeBackAsInserted();
    void emptyReferencesAreNull();
    void missingStampsOfAReconciliationAreFilledIn();
    void accountGoesAndComesBack();
    void categoryGoesAlone();
    void transactionIsGoneFromTheLivingOnly();
    void accountTakesItsRowsAlong();
    void resyncTakesLiveRowsThatAreNotPending();

private:
    template <typename Repository, typename Record>
    void comesBack(Repository &repository, const Record &full, Record plain);
    template <typename Repository, typename Record>
    void goesWithItsAccount(Repository &repository, Record record, const QString &table);
    template <typename Repository>
    void becomesPendingOnce(Repository &repository, const QString &signal);

    std::unique_ptr<TestDatabase> m_database;
};

void RepositoriesTest::init()
{
    m_database = std::make_unique<TestDatabase>();
    m_database->addSampleOwners();
}

// Both are inserted; then each overwrites the other, which must keep its birth. Read through
// another repository on the same file.
template <typename Repository, typename Record>
void RepositoriesTest::comesBack(Repository &repository, const Record &full, Record plain)
{
    plain.id = u"plain"_s;
    plain.created_at = plain.updated_at = sampleStamp(99);
    QVERIFY(repository.insert(full) && repository.insert(plain));
    const Repository second(m_database->get());
    QVERIFY(second.findById(full.id) == full);
    QVERIFY(second.findById(plain.id) == plain);

    Record emptied = plain;
    Record filled = full;
    std::swap(emptied.id, filled.id);
    QVERIFY(repository.update(emptied) && repository.update(filled));
    std::swap(emptied.created_at, filled.created_at);
    QVERIFY(second.findById(full.id) == emptied);
    QVERIFY(second.findById(plain.id) == filled);
    QCOMPARE(m_database->takeSignals().size(), 4);
    QVERIFY(repository.update(Record{plain}) && m_database->takeSignals().size() == 1);
}

void RepositoriesTest::recordsComeBack()
{
    Category child = sampleCategory(u"full"_s);
    child.parent_id = u"c"_s;
    const QDate day(9999, 12, 31);
    comesBack(m_database->accounts, sampleAccount(u"full"_s),
              {.name = u""_s, .starting_balance = std::numeric_limits<qint64>::min()});
    comesBack(m_database->categories, child, {.name = u""_s});
    comesBack(m_database->transactions, sampleTransaction(),
              {.account_id = u"a"_s, .date = day, .payee = u""_s});
    comesBack(m_database->recurring, sampleRecurring(),
              {.account_id = u"a"_s, .payee = u""_s, .start_date = day, .next_due_date = day});
    comesBack(m_database->reconciliations, sampleReconciliation(),
              {.account_id = u"b"_s, .statement_date = day, .completed_at = sampleStamp()});

    Transaction moved = sampleTransaction();
    moved.account_id = u"b"_s;
    QVERIFY(m_database->transactions.update(moved));
    QCOMPARE(m_database->takeSignals(), QStringList{u"transactions b"_s}); // as the record says
    QCOMPARE(m_database->transactions.findById(moved.id)->account_id, u"a"_s);
}

void RepositoriesTest::splitLinesComeBackAsInserted()
{
    QVERIFY(m_database->transactions.insert(sampleTransaction(u"t"_s)));
    QVERIFY(m_database->transactions.insert(sampleTransaction(u"u"_s)));
    SplitLine other = sampleSplitLine(u"other"_s);
    other.transaction_id = u"u"_s;
    const QList<SplitLine> lines{sampleSplitLine(u"z"_s), sampleSplitLine(u"y"_s)};
    for (const SplitLine &line : lines + QList<SplitLine>{other})
        QVERIFY(m_database->splitLines.insert(line));
    const SplitLineRepository second(m_database->get());
    QVERIFY(second.listByTransaction(u"t"_s) == lines);
    QVERIFY(m_database->splitLines.deleteByTransaction(u"t"_s));
    QCOMPARE(second.listByTransaction(u"t"_s).size(), 0);
    QVERIFY(second.listByTransaction(u"u"_s) == QList<SplitLine>{other});
}

void RepositoriesTest::emptyReferencesAreNull()
{
    Transaction transaction = sampleTransaction();
    RecurringTransaction recurring = sampleRecurring();
    Category category = sampleCategory();
    transaction.category_id = recurring.category_id = u""_s;
    category.parent_id = category.account_id = u""_s;
    QVERIFY(m_database->transactions.insert(transaction));
    QVERIFY(m_database->recurring.insert(recurring));
    QVERIFY(m_database->categories.update(category));
    QCOMPARE(m_database->value(u"SELECT COUNT(*) FROM transactions t, recurring_transactions r, "
                               "categories c WHERE t.category_id IS NULL AND r.category_id IS NULL "
                               "AND c.parent_id IS NULL AND c.account_id IS NULL"_s),
             QVariant(1));
}

void RepositoriesTest::missingStampsOfAReconciliationAreFilledIn()
{
    const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-1);
    Reconciliation unborn = sampleReconciliation(u"unborn"_s);
    Reconciliation untouched = sampleReconciliation(u"untouched"_s);
    unborn.created_at = untouched.updated_at = {};
    QVERIFY(m_database->reconciliations.insert(unborn));
    QVERIFY(m_database->reconciliations.insert(untouched));
    unborn = m_database->reconciliations.findById(u"unborn"_s).value();
    untouched = m_database->reconciliations.findById(u"untouched"_s).value();
    QVERIFY(unborn.created_at > before && untouched.updated_at > before);
    QVERIFY(unborn.updated_at == sampleStamp(1) && untouched.created_at == sampleStamp());
}

void RepositoriesTest::accountGoesAndComesBack()
{
    AccountRepository &accounts = m_database->accounts;
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
    QCOMPARE(m_database->takeSignals(), (QStringList{u"accounts"_s, u"accounts"_s}));
}

void RepositoriesTest::categoryGoesAlone()
{
    Category child = sampleCategory(u"child"_s);
    child.parent_id = u"c"_s;
    QVERIFY(m_database->categories.insert(child));
    QVERIFY(m_database->categories.softDelete(u"c"_s));
    QCOMPARE(m_database->categories.countActive(), 1);
    QVERIFY(m_database->categories.findById(u"child"_s) == child);
    QCOMPARE(m_database->categories.findByName(child.name)->id, u"child"_s); // not its namesake
    const Category gone = m_database->categories.findById(u"c"_s).value();
    QCOMPARE(gone.updated_at, gone.deleted_at.value());
    QCOMPARE(m_database->categories.listPending().value(0).id, u"c"_s);
    QCOMPARE(m_database->takeSignals(), (QStringList{u"categories"_s, u"categories"_s}));
}

void RepositoriesTest::transactionIsGoneFromTheLivingOnly()
{
    TransactionRepository &transactions = m_database->transactions;
    Transaction transaction = sampleTransaction();
    transaction.reconciled = false;
    QVERIFY(transactions.insert(transaction));
    QCOMPARE(transactions.listUnreconciled(u"a"_s).size(), 1);
    QVERIFY(transactions.softDelete(u"t"_s));
    QCOMPARE(m_database->takeSignals(), (QStringList{u"transactions a"_s, u"transactions a"_s}));
    QCOMPARE(transactions.listByAccount(u"a"_s).size(), 0);
    QCOMPARE(transactions.listUnreconciled(u"a"_s).size(), 0);
    QCOMPARE(transactions.search(u""_s, {}).size(), 0);
    QCOMPARE(transactions.allPayees(), QStringList());
    QVERIFY(!transactions.lastForPayee(transaction.payee, u"a"_s));
    QVERIFY(transactions.findById(u"t"_s)->deleted_at.has_value());
    QCOMPARE(transactions.listPending().value(0).id, u"t"_s);
}

template <typename Repository, typename Record>
void RepositoriesTest::goesWithItsAccount(Repository &repository, Record record,
                                          const QString &table)
{
    for (const QString &id : {u"1"_s, u"2"_s, u"deleted before"_s, u"other"_s}) {
        record.id = id;
        record.account_id = id == u"other"_s ? u"b"_s : u"a"_s;
        QVERIFY(repository.insert(record));
    }
    const QDateTime now = currentStamp();
    m_database->run(u"UPDATE %1 SET deleted_at = ? WHERE id = 'deleted before'"_s.arg(table),
                    {isoStamp(now.addDays(-1))});
    m_database->takeSignals();

    const QString since = isoStamp(now.addSecs(-10));
    QCOMPARE(repository.softDeleteByAccount(u"a"_s), 2);
    QCOMPARE(repository.softDeleteByAccount(u"a"_s), 0);
    QVERIFY(!repository.findById(u"other"_s)->deleted_at);
    QVERIFY(repository.markSynced(u"1"_s, u"server"_s));
    QCOMPARE(repository.restoreByAccount(u"a"_s, since), 2);
    QCOMPARE(repository.restoreByAccount(u"a"_s, since), 0);
    QVERIFY(!repository.findById(u"1"_s)->deleted_at);
    QCOMPARE(repository.findById(u"1"_s)->sync_status, SyncStatus::Pending);
    QCOMPARE(repository.findById(u"deleted before"_s)->deleted_at.value(), now.addDays(-1));
    QCOMPARE(m_database->takeSignals().size(), 2);
}

void RepositoriesTest::accountTakesItsRowsAlong()
{
    goesWithItsAccount(m_database->transactions, sampleTransaction(), u"transactions"_s);
    goesWithItsAccount(m_database->recurring, sampleRecurring(), u"recurring_transactions"_s);
    goesWithItsAccount(m_database->reconciliations, sampleReconciliation(), u"reconciliations"_s);
}

// Of each kind there is one live row.
template <typename Repository>
void RepositoriesTest::becomesPendingOnce(Repository &repository, const QString &signal)
{
    m_database->takeSignals();
    QCOMPARE(repository.markAllPendingForResync(), 1);
    QCOMPARE(repository.markAllPendingForResync(), 0);
    QCOMPARE(m_database->takeSignals(), QStringList{signal});
    const QString id = repository.listPending().value(0).id;
    QVERIFY(repository.markSynced(id, u"new server id"_s));
    QCOMPARE(repository.findById(id)->server_id, u"new server id"_s);
    QCOMPARE(repository.listPending().size(), 0);
    QCOMPARE(m_database->takeSignals(), QStringList());
}

void RepositoriesTest::resyncTakesLiveRowsThatAreNotPending()
{
    QVERIFY(m_database->accounts.softDelete(u"b"_s));
    QVERIFY(m_database->accounts.markSynced(u"b"_s, u"server"_s));
    QVERIFY(m_database->transactions.insert(sampleTransaction()));
    QVERIFY(m_database->recurring.insert(sampleRecurring()));
    QVERIFY(m_database->reconciliations.insert(sampleReconciliation()));
    becomesPendingOnce(m_database->accounts, u"accounts"_s);
    becomesPendingOnce(m_database->categories, u"categories"_s);
    becomesPendingOnce(m_database->transactions, u"transactions "_s); // of all accounts
    becomesPendingOnce(m_database->recurring, u"recurring"_s);
    becomesPendingOnce(m_database->reconciliations, u"reconciliations"_s);
}

PURSEWELL_TEST_MAIN(RepositoriesTest)
#include "RepositoriesTest.moc"
