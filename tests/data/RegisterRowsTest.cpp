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
}

// The register with its running balances, and the balances of all accounts.
class RegisterRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_database.reset(); }
    void startingBalanceIsARow();
    void openingRowSharesTheOldestDay();
    void rowsCarryTheirRecordAndCategory();
    void sameDayGoesByCreation();
    void lastBalanceIsTheSumOfAll();
    void balancesOfLiveAccounts();
    void absurdAmounts_data();
    void absurdAmounts();

private:
    void addAccount(const QString &id, qint64 startingBalance);
    void addAmount(const QString &accountId, qint64 amount, QDate date = QDate(2024, 2, 29));
    QList<qint64> balances(const QString &accountId) const;

    std::unique_ptr<TestDatabase> m_database;
    int m_number = 0; // also the id of the last transaction
};

void RegisterRowsTest::init()
{
    m_database = std::make_unique<TestDatabase>();
    m_number = 0;
}

void RegisterRowsTest::addAccount(const QString &id, qint64 startingBalance)
{
    Account account = sampleAccount(id);
    account.starting_balance = startingBalance;
    QVERIFY(m_database->accounts.insert(account));
}

void RegisterRowsTest::addAmount(const QString &accountId, qint64 amount, QDate date)
{
    Transaction transaction = sampleTransaction(QString::number(++m_number));
    transaction.account_id = accountId;
    transaction.date = date;
    transaction.amount = amount;
    transaction.category_id.clear();
    transaction.created_at = sampleStamp(m_number);
    QVERIFY(m_database->transactions.insert(transaction));
}

QList<qint64> RegisterRowsTest::balances(const QString &accountId) const
{
    QList<qint64> balances;
    for (const RegisterRow &row : m_database->transactions.registerRows(accountId))
        balances << row.balance;
    return balances;
}

void RegisterRowsTest::startingBalanceIsARow()
{
    addAccount(u"zero"_s, 0);
    QCOMPARE(balances(u"zero"_s), QList<qint64>());
    QCOMPARE(balances(u"unknown"_s), QList<qint64>());
    addAccount(u"debt"_s, -5000);
    RegisterRow expected;
    expected.payee = u"Opening Balance"_s;
    expected.date = QDate::currentDate();
    expected.amount = expected.balance = -5000;
    expected.cleared = expected.reconciled = true;
    QVERIFY(m_database->transactions.registerRows(u"debt"_s) == QList<RegisterRow>{expected});
    QCOMPARE(m_database->value(u"SELECT COUNT(*) FROM transactions"_s).toInt(), 0);
}

void RegisterRowsTest::openingRowSharesTheOldestDay()
{
    addAccount(u"a"_s, 500);
    addAmount(u"a"_s, -100, QDate(2024, 3, 1));
    addAmount(u"a"_s, -200, QDate(2023, 3, 1));
    addAmount(u"a"_s, -400, QDate(2001, 1, 1));
    QVERIFY(m_database->transactions.softDelete(u"3"_s));
    QVERIFY(m_database->accounts.softDelete(u"a"_s)); // counts all the same
    QCOMPARE(balances(u"a"_s), (QList<qint64>{500, 300, 200}));
    QCOMPARE(m_database->transactions.registerRows(u"a"_s).first().date, QDate(2023, 3, 1));
}

void RegisterRowsTest::rowsCarryTheirRecordAndCategory()
{
    addAccount(u"a"_s, 0);
    QVERIFY(m_database->categories.insert(sampleCategory()));
    QVERIFY(m_database->transactions.insert(sampleTransaction()));
    QVERIFY(m_database->categories.softDelete(u"c"_s)); // its name still shows
    RegisterRow expected;
    static_cast<Transaction &>(expected) = sampleTransaction();
    expected.balance = expected.amount;
    expected.category_name = sampleCategory().name;
    QVERIFY(m_database->transactions.registerRows(u"a"_s) == QList<RegisterRow>{expected});
}

void RegisterRowsTest::sameDayGoesByCreation()
{
    addAccount(u"a"_s, 0);
    for (const qint64 amount : {1, 20, 300})
        addAmount(u"a"_s, amount);
    m_database->run(u"UPDATE transactions SET created_at = '2000' WHERE id = '3'"_s);
    QCOMPARE(balances(u"a"_s), (QList<qint64>{300, 301, 321}));
}

void RegisterRowsTest::lastBalanceIsTheSumOfAll()
{
    const bool holds = rc::check("last balance == starting balance + sum", [this] {
        const auto anyAmount = rc::gen::inRange<qint64>(-kLargest / 1000, kLargest / 1000);
        const qint64 startingBalance = *anyAmount;
        const auto amounts = *rc::gen::container<std::vector<qint64>>(anyAmount);
        const QString account = u"account %1"_s.arg(++m_number);
        addAccount(account, startingBalance);
        qint64 sum = startingBalance;
        for (const qint64 amount : amounts) {
            addAmount(account, amount, QDate(2024, 1, 1).addDays(*rc::gen::inRange(0, 5)));
            sum += amount;
        }
        const QList<qint64> running = balances(account);
        RC_ASSERT((running.isEmpty() ? 0 : running.last()) == sum);
        RC_ASSERT(m_database->transactions.balancesByAccount().value(account) == sum);
    });
    QVERIFY(holds);
}

void RegisterRowsTest::balancesOfLiveAccounts()
{
    addAccount(u"empty"_s, 0);
    addAccount(u"untouched"_s, -700);
    addAccount(u"used"_s, 1000);
    addAccount(u"deleted"_s, 1);
    for (const qint64 amount : {-1, -20, -500})
        addAmount(u"used"_s, amount);
    addAmount(u"deleted"_s, 1);
    QVERIFY(m_database->transactions.softDelete(u"3"_s));
    QVERIFY(m_database->accounts.softDelete(u"deleted"_s));
    QCOMPARE(m_database->transactions.balancesByAccount(),
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
    QFETCH(QVariantList, amounts);
    QFETCH(QList<qint64>, running);
    addAccount(u"absurd"_s, 0);
    addAccount(u"sound"_s, 1);
    addAmount(u"sound"_s, 2);
    for (const QVariant &amount : amounts) {
        addAmount(u"absurd"_s, 0);
        m_database->run(u"UPDATE transactions SET amount = ? WHERE id = ?"_s,
                        {amount, QString::number(m_number)});
    }
    QCOMPARE(balances(u"absurd"_s), running);
    QCOMPARE(m_database->transactions.balancesByAccount(),
             (QHash<QString, qint64>{{u"absurd"_s, running.last()}, {u"sound"_s, 3}}));
}

PURSEWELL_TEST_MAIN(RegisterRowsTest)
#include "RegisterRowsTest.moc"
