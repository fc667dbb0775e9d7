#include "support/SampleRecords.h"
#include "support/TestDatabase.h"
#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

// SQLite stores a text in an integer column without a word. Files of other programs and versions
// hold such rows, and they must neither crash nor hide the others.
class BrokenRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void amountsReadAsNumbersOrZero_data();
    void amountsReadAsNumbersOrZero();
    void unknownWordsReadAsTheirFallback();
    void wordsAndEnumeratorsAreOneToOne();
    void brokenDatesReadAsInvalid();
    void withoutTablesEverythingReadsAsEmpty();
};

void BrokenRowsTest::amountsReadAsNumbersOrZero_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<qint64>("read");
    QTest::newRow("text") << QVariant(u"a lot"_s) << qint64(0);
    QTest::newRow("number and text") << QVariant(u"12 or so"_s) << qint64(0);
    QTest::newRow("number in a text") << QVariant(u"-12"_s) << qint64(-12);
    QTest::newRow("bytes") << QVariant(QByteArray("\xff\x00\x01", 3)) << qint64(0);
    QTest::newRow("fraction") << QVariant(-2.5) << qint64(-3);
    QTest::newRow("2^63") << QVariant(9223372036854775808.0) << qint64(0);
}

void BrokenRowsTest::amountsReadAsNumbersOrZero()
{
    TestDatabase db;
    db.addSampleOwners();
    QFETCH(QVariant, stored);
    db.run(u"UPDATE accounts SET starting_balance = ?, version = ?, sort_order = ?, "
           "is_shared = ? WHERE id = 'a'"_s,
           {stored, stored, stored, stored});
    const Account account = db.accounts.findById(u"a"_s).value();
    QTEST(account.starting_balance, "read");
    QCOMPARE(account.name, sampleAccount().name);
}

void BrokenRowsTest::unknownWordsReadAsTheirFallback()
{
    TestDatabase db;
    db.addSampleOwners();
    QVERIFY(db.recurring.insert(sampleRecurring()));
    db.run(u"UPDATE accounts SET account_type = 'Checking', currency = 'CHF', "
           "sync_status = 'queued' WHERE id = 'a'"_s);
    db.run(u"UPDATE categories SET category_type = ''"_s);
    db.run(u"UPDATE recurring_transactions SET frequency = 'MONTHLY '"_s);
    const Account account = db.accounts.findById(u"a"_s).value();
    QCOMPARE(account.account_type, AccountType::Other);
    QCOMPARE(account.currency, Currency::USD);
    QCOMPARE(account.sync_status, SyncStatus::Pending);
    QCOMPARE(db.categories.findById(u"c"_s)->category_type, CategoryType::Expense);
    QCOMPARE(db.recurring.findById(u"r"_s)->frequency, Frequency::Monthly);
}

// What the file and the server hold. A value outside the enumeration is written as a word too.
void BrokenRowsTest::wordsAndEnumeratorsAreOneToOne()
{
    const auto check = [](auto toWord, auto fromWord, const char *words, const char *fallback) {
        using Enum = decltype(fromWord(QString()));
        int value = 0;
        for (const QString &word : QString::fromLatin1(words).split(u' ')) {
            QCOMPARE(toWord(static_cast<Enum>(value)), word);
            QCOMPARE(static_cast<int>(fromWord(word)), value);
            ++value;
        }
        QCOMPARE(toWord(static_cast<Enum>(value)), QLatin1StringView(fallback));
        QCOMPARE(toWord(static_cast<Enum>(-1)), QLatin1StringView(fallback));
    };
    check(accountTypeToString, accountTypeFromString,
          "checking savings credit_card cash investment other", "other");
    check(currencyToString, currencyFromString, "USD EUR GBP CAD AUD JPY", "USD");
    check(syncStatusToString, syncStatusFromString, "pending synced conflict", "pending");
    check(categoryTypeToString, categoryTypeFromString, "income expense transfer", "expense");
    check(frequencyToString, frequencyFromString,
          "daily weekly biweekly monthly quarterly semi_annual annual", "monthly");
}

void BrokenRowsTest::brokenDatesReadAsInvalid()
{
    TestDatabase db;
    db.addSampleOwners();
    QVERIFY(db.recurring.insert(sampleRecurring()));
    QVERIFY(db.transactions.insert(sampleTransaction()));
    db.run(u"UPDATE transactions SET date = '2023-02-29', created_at = '', "
           "updated_at = 'soon'"_s);
    db.run(u"UPDATE recurring_transactions SET end_date = 'never', deleted_at = ''"_s);
    const QList<RegisterRow> rows = db.transactions.registerRows(u"a"_s);
    QCOMPARE(rows.first().date, QDate::currentDate()); // no day to share
    QVERIFY(!rows.last().date.isValid());
    QVERIFY(!rows.last().created_at.isValid());
    QVERIFY(!rows.last().updated_at.isValid());
    QCOMPARE(rows.last().payee, sampleTransaction().payee);
    const RecurringTransaction recurring = db.recurring.findById(u"r"_s).value();
    QVERIFY(!recurring.end_date.value().isValid());
    QVERIFY(!recurring.deleted_at);
}

void BrokenRowsTest::withoutTablesEverythingReadsAsEmpty()
{
    TestDatabase db;
    db.run(u"PRAGMA foreign_keys=OFF"_s);
    for (const QString &table : {u"transactions"_s, u"accounts"_s, u"categories"_s,
                                 u"recurring_transactions"_s, u"reconciliations"_s})
        db.run(u"DROP TABLE %1"_s.arg(table));
    const LogCatcher log;
    QCOMPARE(db.transactions.registerRows(u"a"_s).size(), 0);
    QCOMPARE(db.transactions.balancesByAccount().size(), 0);
    QCOMPARE(db.transactions.search(u"bread"_s, {}).size(), 0);
    QVERIFY(!db.transactions.findById(u"t"_s));
    QCOMPARE(db.accounts.listActive().size(), 0);
    QCOMPARE(db.categories.countActive(), 0);
    QCOMPARE(LogCatcher::warnings(), QStringList());
}

PURSEWELL_TEST_MAIN(BrokenRowsTest)
#include "BrokenRowsTest.moc"
