#include "support/SampleRecords.h"
#include "support/TestDatabase.h"
#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

#include <rapidcheck.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kLargest = std::numeric_limits<qint64>::max();

void addAccount(TestDatabase &db, const QString &id, qint64 startingBalance)
{
    Account account = sampleAccount(id);
    account.starting_balance = startingBalance;
    QVERIFY(db.accounts.insert(account));
}

// Their numbers are their ids and the order of their creation.
void addAmount(TestDatabase &db, int number, const QString &accountId, qint64 amount,
               QDate date = QDate(2024, 2, 29))
{
    Transaction transaction = sampleTransaction(QString::number(number));
    transaction.account_id = accountId;
    transaction.date = date;
    transaction.amount = amount;
    transaction.category_id.clear();
    transaction.created_at = sampleStamp(number);
    QVERIFY(db.transactions.insert(transaction));
}

QList<qint64> balances(TestDatabase &db, const QString &accountId)
{
    QList<qint64> balances;
    for (const RegisterRow &row : db.transactions.registerRows(accountId))
        balances << row.balance;
    return balances;
}

} // namespace

// The register with its running balances, and the balances of all accounts.
class RegisterRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startingBalanceIsARow();
    void openingRowSharesTheOldestDay();
    void rowsCarryTheirRecordAndCategory();
    void sameDayGoesByCreation();
    void lastBalanceIsTheSumOfAll();
    void balancesOfLiveAccounts();
    void absurdAmounts_data();
    void absurdAmounts();
};

void RegisterRowsTest::startingBalanceIsARow()
{
    TestDatabase db;
    addAccount(db, u"zero"_s, 0);
    QCOMPARE(balances(db, u"zero"_s), QList<qint64>());
    QCOMPARE(balances(db, u"unknown"_s), QList<qint64>());
    addAccount(db, u"debt"_s, -5000);
    RegisterRow expected;
    expected.payee = u"Opening Balance"_s;
    expected.date = QDate::currentDate();
    expected.amount = expected.balance = -5000;
    expected.cleared = expected.reconciled = true;
    QVERIFY(db.transactions.registerRows(u"debt"_s) == QList<RegisterRow>{expected});
    QCOMPARE(db.value(u"SELECT COUNT(*) FROM transactions"_s).toInt(), 0);
}

void RegisterRowsTest::openingRowSharesTheOldestDay()
{
    TestDatabase db;
    addAccount(db, u"a"_s, 500);
    addAmount(db, 1, u"a"_s, -100, QDate(2024, 3, 1));
    addAmount(db, 2, u"a"_s, -200, QDate(2023, 3, 1));
    addAmount(db, 3, u"a"_s, -400, QDate(2001, 1, 1));
    QVERIFY(db.transactions.softDelete(u"3"_s));
    QVERIFY(db.accounts.softDelete(u"a"_s)); // counts all the same
    QCOMPARE(balances(db, u"a"_s), (QList<qint64>{500, 300, 200}));
    QCOMPARE(db.transactions.registerRows(u"a"_s).first().date, QDate(2023, 3, 1));
}

void RegisterRowsTest::rowsCarryTheirRecordAndCategory()
{
    TestDatabase db;
    addAccount(db, u"a"_s, 0);
    QVERIFY(db.categories.insert(sampleCategory()));
    QVERIFY(db.transactions.insert(sampleTransaction()));
    QVERIFY(db.categories.softDelete(u"c"_s)); // its name still shows
    RegisterRow expected;
    static_cast<Transaction &>(expected) = sampleTransaction();
    expected.balance = expected.amount;
    expected.category_name = sampleCategory().name;
    QVERIFY(db.transactions.registerRows(u"a"_s) == QList<RegisterRow>{expected});
}

void RegisterRowsTest::sameDayGoesByCreation()
{
    TestDatabase db;
    addAccount(db, u"a"_s, 0);
    addAmount(db, 9, u"a"_s, 1);
    addAmount(db, 1, u"a"_s, 20);
    addAmount(db, 5, u"a"_s, 300);
    QCOMPARE(balances(db, u"a"_s), (QList<qint64>{20, 320, 321}));
}

void RegisterRowsTest::lastBalanceIsTheSumOfAll()
{
    TestDatabase db;
    int number = 0;
    const bool holds = rc::check("last balance == starting balance + sum", [&] {
        const auto anyAmount = rc::gen::inRange<qint64>(-kLargest / 1000, kLargest / 1000);
        const qint64 startingBalance = *anyAmount;
        const auto amounts = *rc::gen::container<std::vector<qint64>>(anyAmount);
        const QString account = u"account %1"_s.arg(++number);
        addAccount(db, account, startingBalance);
        qint64 sum = startingBalance;
        for (const qint64 amount : amounts) {
            const QDate day = QDate(2024, 1, 1).addDays(*rc::gen::inRange(0, 5));
            addAmount(db, ++number, account, amount, day);
            sum += amount;
        }
        const QList<qint64> running = balances(db, account);
        RC_ASSERT((running.isEmpty() ? 0 : running.last()) == sum);
        RC_ASSERT(db.transactions.balancesByAccount().value(account) == sum);
    });
    QVERIFY(holds);
}

void RegisterRowsTest::balancesOfLiveAccounts()
{
    TestDatabase db;
    addAccount(db, u"empty"_s, 0);
    addAccount(db, u"untouched"_s, -700);
    addAccount(db, u"used"_s, 1000);
    addAccount(db, u"deleted"_s, 1);
    addAmount(db, 1, u"used"_s, -1);
    addAmount(db, 2, u"used"_s, -20);
    addAmount(db, 3, u"used"_s, -500);
    addAmount(db, 4, u"deleted"_s, 1);
    QVERIFY(db.transactions.softDelete(u"3"_s));
    QVERIFY(db.accounts.softDelete(u"deleted"_s));
    QCOMPARE(db.transactions.balancesByAccount(),
             (QHash<QString, qint64>{{u"empty"_s, 0}, {u"untouched"_s, -700}, {u"used"_s, 979}}));
}

// SQLite stores them without a word, and its own sum gives up on some of them.
void RegisterRowsTest::absurdAmounts_data()
{
    QTest::addColumn<QVariantList>("amounts");
    QTest::addColumn<QList<qint64>>("running");
    QTest::newRow("beyond 64 bits, and back")
        << QVariantList{kLargest, 1, -10} << QList<qint64>{kLargest, kLargest, kLargest - 10};
    QTest::newRow("text") << QVariantList{kLargest - 5, u"a lot"_s}
                          << QList<qint64>{kLargest - 5, kLargest - 5};
    QTest::newRow("a fraction") << QVariantList{7, 0.5} << QList<qint64>{7, 8};
    QTest::newRow("no 64 bits hold it") << QVariantList{7, 1e300} << QList<qint64>{7, 7};
}

void RegisterRowsTest::absurdAmounts()
{
    TestDatabase db;
    QFETCH(QVariantList, amounts);
    QFETCH(QList<qint64>, running);
    addAccount(db, u"absurd"_s, 0);
    addAccount(db, u"sound"_s, 1);
    addAmount(db, 99, u"sound"_s, 2);
    for (int number = 0; number < amounts.size(); ++number) {
        addAmount(db, number, u"absurd"_s, 0);
        db.run(u"UPDATE transactions SET amount = ? WHERE id = ?"_s,
               {amounts.at(number), QString::number(number)});
    }
    QCOMPARE(balances(db, u"absurd"_s), running);
    QCOMPARE(db.transactions.balancesByAccount(),
             (QHash<QString, qint64>{{u"absurd"_s, running.last()}, {u"sound"_s, 3}}));
}

PURSEWELL_TEST_MAIN(RegisterRowsTest)
#include "RegisterRowsTest.moc"
