#include "support/SampleRecords.h"
#include "support/TestDatabase.h"
#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {

void add(TestDatabase &db, const QString &id, const QString &accountId, QDate date,
         const QString &words, bool cleared, const QString &categoryId = {})
{
    Transaction transaction = sampleTransaction(id);
    transaction.account_id = accountId;
    transaction.date = date;
    transaction.payee = words.section(u'/', 0, 0);
    transaction.memo = words.section(u'/', 1);
    transaction.check_number = u"check"_s + id;
    transaction.category_id = categoryId;
    transaction.cleared = cleared;
    QVERIFY(db.transactions.insert(transaction));
}

void fill(TestDatabase &db)
{
    db.addSampleOwners();
    add(db, u"1"_s, u"a"_s, QDate(2024, 1, 1), u"Corner Shop/bread"_s, true, u"c"_s);
    add(db, u"2"_s, u"a"_s, QDate(2024, 2, 29), u"Baker/bread and rolls"_s, false);
    add(db, u"3"_s, u"b"_s, QDate(2024, 3, 1), u"corner pub/"_s + awkwardWords(), false, u"c"_s);
    add(db, u"gone"_s, u"a"_s, QDate(2024, 2, 1), u"Corner Shop/bread"_s, true);
    QVERIFY(db.transactions.softDelete(u"gone"_s));
}

} // namespace

class SearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
    void foundRowsAreWholeAndUpToDate();
    void givesTheNewest200();
};

void SearchTest::finds_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<SearchFilters>("filters");
    QTest::addColumn<QString>("found"); // the ids in the order of the result

    const auto row = [](const char *name, const QString &query, const SearchFilters &filters,
                        const QString &found) { QTest::newRow(name) << query << filters << found; };
    row("everything", u""_s, {}, u"3 2 1"_s);
    row("payee, case ignored", u"corner"_s, {}, u"3 1"_s);
    row("memo", u"bread"_s, {}, u"2 1"_s);
    row("check number", u"check2"_s, {}, u"2"_s);
    row("two words", u"bread rolls"_s, {}, u"2"_s);
    row("a part of a word", u"corn"_s, {}, u""_s);
    row("query syntax", u"corn* OR rolls"_s, {}, u"3 2 1"_s);
    row("right to left", u"שלום"_s, {}, u"3"_s);
    row("invalid in the query syntax", u"foo\""_s, {}, u""_s);
    row("a placeholder", u"%1"_s, {}, u""_s);
    row("from that day on", u""_s, {.date_from = QDate(2024, 2, 29)}, u"3 2"_s);
    row("up to that day", u""_s, {.date_to = QDate(2024, 2, 29)}, u"2 1"_s);
    row("not cleared", u""_s, {.cleared = false}, u"3 2"_s);
    const QDate day(2024, 1, 1);
    row("words and every filter", u"corner"_s, {u"a"_s, u"c"_s, day, day, true}, u"1"_s);
}

void SearchTest::finds()
{
    TestDatabase db;
    fill(db);
    QFETCH(QString, query);
    QFETCH(SearchFilters, filters);
    const LogCatcher log;
    QStringList ids;
    for (const RegisterRow &row : db.transactions.search(query, filters))
        ids << row.id;
    QTEST(ids.join(u' '), "found");
    QCOMPARE(LogCatcher::warnings(), QStringList());
}

void SearchTest::foundRowsAreWholeAndUpToDate()
{
    TestDatabase db;
    fill(db);
    Transaction edited = db.transactions.findById(u"3"_s).value();
    edited.payee = u"Florist"_s;
    QVERIFY(db.transactions.update(edited));
    const RegisterRow row = db.transactions.search(u"florist"_s, {}).value(0);
    QVERIFY(static_cast<const Transaction &>(row) == edited);
    QCOMPARE(row.category_name, sampleCategory().name);
    QCOMPARE(row.balance, 0);
    QCOMPARE(db.transactions.search(u"pub"_s, {}).size(), 0);
}

void SearchTest::givesTheNewest200()
{
    TestDatabase db;
    db.addSampleOwners();
    for (int day = 0; day < 205; ++day)
        add(db, u"many%1"_s.arg(day), u"b"_s, QDate(2025, 1, 1).addDays(day), u"Many"_s, true);
    const QList<RegisterRow> rows = db.transactions.search(u""_s, {});
    QCOMPARE(rows.size(), 200);
    QCOMPARE(rows.first().id, u"many204"_s);
    QCOMPARE(rows.last().id, u"many5"_s);
}

PURSEWELL_TEST_MAIN(SearchTest)
#include "SearchTest.moc"
