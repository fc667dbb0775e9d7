#include "support/SampleRecords.h"
#include "support/TestDatabase.h"
#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {

template <typename Record> QStringList idsOf(const QList<Record> &records)
{
    QStringList ids;
    for (const Record &record : records)
        ids << record.id;
    return ids;
}

void addTransaction(TestDatabase &db, const QString &id, QDate date, int seconds,
                    const QString &payee)
{
    Transaction transaction = sampleTransaction(id);
    transaction.date = date;
    transaction.payee = payee;
    transaction.reconciled = false;
    transaction.created_at = sampleStamp(seconds);
    QVERIFY(db.transactions.insert(transaction));
}

} // namespace

// What the lists hold and how they are sorted.
class ListsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesSortInBinaryOrder();
    void sortOrdersStayOnThisDevice();
    void sortOrdersAreWrittenTogetherOrNotAtAll();
    void transactionsGoByDayThenByCreation();
    void payees();
    void templatesGoByDueDate();
    void brokenDueDateIsReported_data();
    void brokenDueDateIsReported();
    void reconciliationsGoByStatement();
};

void ListsTest::namesSortInBinaryOrder()
{
    TestDatabase db;
    db.addSampleOwners();
    for (const QString &name : {u"apple"_s, u"Zebra"_s}) {
        Account account = sampleAccount(name);
        account.name = name;
        account.sort_order = -9;
        Category category = sampleCategory(name);
        category.name = name;
        QVERIFY(db.accounts.insert(account) && db.categories.insert(category));
    }
    QCOMPARE(idsOf(db.accounts.listActive()).first(2), (QStringList{u"Zebra"_s, u"apple"_s}));
    QCOMPARE(idsOf(db.categories.listActive()), (QStringList{u"c"_s, u"Zebra"_s, u"apple"_s}));
}

void ListsTest::sortOrdersStayOnThisDevice()
{
    TestDatabase db;
    db.addSampleOwners();
    QVERIFY(db.accounts.updateSortOrders({{u"a"_s, 2}, {u"b"_s, 1}}));
    QCOMPARE(db.takeSignals(), QStringList{u"accounts"_s});
    QCOMPARE(idsOf(db.accounts.listActive()), (QStringList{u"b"_s, u"a"_s}));
    Account expected = sampleAccount();
    expected.sort_order = 2;
    const Account account = db.accounts.findById(u"a"_s).value();
    QVERIFY(account.updated_at > expected.updated_at);
    expected.updated_at = account.updated_at;
    QVERIFY(account == expected); // its sync state included
}

void ListsTest::sortOrdersAreWrittenTogetherOrNotAtAll()
{
    TestDatabase db;
    db.addSampleOwners();
    const QList<Account> before = db.accounts.listActive();
    db.run(refusing(u"UPDATE ON accounts WHEN old.id = 'b'"_s));
    QVERIFY(!db.accounts.updateSortOrders({{u"a"_s, 7}, {u"b"_s, 8}}));
    QVERIFY(db.accounts.listActive() == before);
    QCOMPARE(db.takeSignals(), QStringList());
    QVERIFY(db.accounts.updateSortOrders({{u"a"_s, 7}})); // no transaction stayed open
}

void ListsTest::transactionsGoByDayThenByCreation()
{
    TestDatabase db;
    db.addSampleOwners();
    addTransaction(db, u"later"_s, QDate(2024, 2, 29), 9, u"Shop"_s);
    addTransaction(db, u"first"_s, QDate(2024, 2, 28), 99, u"Shop"_s);
    addTransaction(db, u"sooner"_s, QDate(2024, 2, 29), 1, u"Shop"_s);
    const TransactionRepository &transactions = db.transactions;
    QCOMPARE(idsOf(transactions.listByAccount(u"a"_s)),
             (QStringList{u"later"_s, u"sooner"_s, u"first"_s}));
    QCOMPARE(idsOf(transactions.listUnreconciled(u"a"_s)),
             (QStringList{u"first"_s, u"sooner"_s, u"later"_s}));
    QCOMPARE(transactions.listByAccount(u"b"_s).size(), 0);
    QCOMPARE(transactions.lastForPayee(u"Shop"_s, u"a"_s)->id, u"later"_s);
    QVERIFY(!transactions.lastForPayee(u"shop"_s, u"a"_s));
    QVERIFY(!transactions.lastForPayee(u"Shop"_s, u"b"_s));
}

void ListsTest::payees()
{
    TestDatabase db;
    db.addSampleOwners();
    for (const QString &payee : {u"bank"_s, u"Zoo"_s, u""_s, awkwardWords()}) {
        addTransaction(db, payee, QDate(2024, 2, 29), 1, payee);
        addTransaction(db, payee + u" again"_s, QDate(2024, 2, 29), 1, payee);
    }
    QCOMPARE(db.transactions.allPayees(), (QStringList{awkwardWords(), u"Zoo"_s, u"bank"_s}));
    db.run(u"UPDATE transactions SET account_id = 'b' WHERE id = 'Zoo'"_s);
    QCOMPARE(db.transactions.payeesOfAccount(u"b"_s), QStringList{u"Zoo"_s});
}

void ListsTest::templatesGoByDueDate()
{
    TestDatabase db;
    db.addSampleOwners();
    const auto add = [&db](const QString &id, int days, bool active) {
        RecurringTransaction recurring = sampleRecurring(id);
        recurring.next_due_date = QDate::currentDate().addDays(days);
        recurring.is_active = active;
        QVERIFY(db.recurring.insert(recurring));
    };
    add(u"tomorrow"_s, 1, true);
    add(u"today"_s, 0, true);
    add(u"inactive"_s, -1, false);
    add(u"gone"_s, -1, true);
    QVERIFY(db.recurring.softDelete(u"gone"_s));
    QCOMPARE(db.takeSignals().size(), 5);
    QCOMPARE(idsOf(db.recurring.listActive()),
             (QStringList{u"inactive"_s, u"today"_s, u"tomorrow"_s}));
    QCOMPARE(idsOf(db.recurring.listDue()), QStringList{u"today"_s});
    QCOMPARE(idsOf(db.recurring.listPending()), QStringList{u"gone"_s});
}

void ListsTest::brokenDueDateIsReported_data()
{
    QTest::addColumn<QDate>("due");
    QTest::addColumn<int>("warnings"); // of a write
    QTest::addColumn<bool>("stored");
    QTest::newRow("first day") << QDate(2000, 1, 1) << 0 << true;
    QTest::newRow("a day too early") << QDate(1999, 12, 31) << 1 << true;
    QTest::newRow("none") << QDate() << 2 << false;
}

void ListsTest::brokenDueDateIsReported()
{
    TestDatabase db;
    db.addSampleOwners();
    QFETCH(QDate, due);
    QFETCH(int, warnings);
    QFETCH(bool, stored);
    RecurringTransaction recurring = sampleRecurring();
    QVERIFY(db.recurring.insert(recurring));
    recurring.next_due_date = due;
    const LogCatcher log;
    QCOMPARE(db.recurring.update(recurring), stored);
    recurring.id = u"new"_s;
    QCOMPARE(db.recurring.insert(recurring), stored);
    QCOMPARE(LogCatcher::warnings().size(), 2 * warnings);
    const QString logged = u"RecurringRepository:: %1 saving recurring with broken nextDueDate: "
                           "id= \"%2\" payee= \"Rent "_s;
    if (warnings > 0) {
        QVERIFY(LogCatcher::warnings().first().startsWith(logged.arg(u"update"_s, u"r"_s)));
        QVERIFY(LogCatcher::warnings().first().endsWith(u"frequency= 5"_s));
        QVERIFY(LogCatcher::warnings().at(warnings).startsWith(logged.arg(u"insert"_s, u"new"_s)));
    }
}

void ListsTest::reconciliationsGoByStatement()
{
    TestDatabase db;
    db.addSampleOwners();
    Reconciliation older = sampleReconciliation(u"older"_s);
    older.statement_date = QDate(2023, 1, 31);
    older.completed_at = sampleStamp(99999); // later than the other
    QVERIFY(db.reconciliations.insert(older));
    QVERIFY(db.reconciliations.insert(sampleReconciliation(u"newer"_s)));
    QCOMPARE(idsOf(db.reconciliations.listByAccount(u"a"_s)),
             (QStringList{u"newer"_s, u"older"_s}));
    QCOMPARE(db.reconciliations.latestForAccount(u"a"_s)->id, u"newer"_s);
    QVERIFY(!db.reconciliations.latestForAccount(u"b"_s));
}

PURSEWELL_TEST_MAIN(ListsTest)
#include "ListsTest.moc"
