#include "services/ReportService.h"

#include "core/Ids.h"
#include "support/SampleRecords.h"
#include "support/TestDatabase.h"
#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

#include <rapidcheck.h>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

using Sums = QMap<QString, qint64>;

const QDate kFirstDay(2023, 11, 28);
constexpr int kDays = 100; // with New Year and a leap day among them

// Accounts "a", "b" (deleted, its transactions not) and "empty"; the categories "c" (deleted) and
// "d", of one name and for the tax, and "rent". The transactions are drawn anew for each run.
struct Household
{
    TestDatabase db{};
    ReportService reports{db.get()};
    QList<Transaction> transactions{}; // the live ones
    QDate from{};
    QDate to{};
    QString accountId{};

    Household();
    void draw();
    QList<Transaction> rows(QDate first, QDate last, const QString &account) const;
};

Household::Household()
{
    for (const QString &id : {u"a"_s, u"b"_s, u"empty"_s}) {
        Account account = sampleAccount(id);
        account.starting_balance = id == u"empty"_s ? -5000 : 12345;
        account.sort_order = id == u"empty"_s ? 0 : 1;
        db.accounts.insert(account);
    }
    db.accounts.softDelete(u"b"_s);
    for (const QString &id : {u"c"_s, u"d"_s})
        db.categories.insert(sampleCategory(id));
    db.categories.softDelete(u"c"_s);
    Category rent = sampleCategory(u"rent"_s);
    rent.name = u"rent"_s;
    rent.is_tax_relevant = false;
    db.categories.insert(rent);
}

void Household::draw()
{
    db.run(u"DELETE FROM transactions"_s);
    transactions.clear();
    for (int number = *rc::gen::inRange(0, 40); number > 0; --number) {
        Transaction drawn = sampleTransaction(QString::number(number));
        drawn.account_id = *rc::gen::element(u"a"_s, u"b"_s);
        drawn.date = kFirstDay.addDays(*rc::gen::inRange(0, kDays));
        drawn.payee = *rc::gen::element(u"Shop"_s, u"shop"_s, u""_s, awkwardWords());
        drawn.amount = *rc::gen::inRange(-5, 6) * 1000;
        drawn.category_id = *rc::gen::element(u""_s, u"c"_s, u"d"_s, u"rent"_s);
        drawn.transfer_link_id = *rc::gen::element(QString(), u""_s, u"other side"_s);
        drawn.cleared = *rc::gen::arbitrary<bool>();
        db.transactions.insert(drawn);
        if (*rc::gen::inRange(0, 6) == 0)
            db.transactions.softDelete(drawn.id);
        else
            transactions << drawn;
    }
    from = kFirstDay.addDays(*rc::gen::inRange(0, kDays));
    to = from.addDays(*rc::gen::inRange(-1, kDays));
    accountId = *rc::gen::element(u""_s, u"a"_s, u"b"_s);
}

QList<Transaction> Household::rows(QDate first, QDate last, const QString &account) const
{
    QList<Transaction> rows;
    for (const Transaction &row : transactions) {
        if (row.date >= first && row.date <= last
            && (account.isEmpty() || row.account_id == account))
            rows << row;
    }
    return rows;
}

QString categoryOf(const Transaction &row)
{
    if (row.category_id.isEmpty())
        return u"Uncategorized"_s;
    return row.category_id == u"rent"_s ? u"rent"_s : sampleCategory().name;
}

// A row without a group (null) is left out.
template <typename Row, typename Group, typename Figure>
Sums sums(const QList<Row> &rows, Group group, Figure figure)
{
    Sums sums;
    for (const Row &row : rows) {
        if (const QString name = std::invoke(group, row); !name.isNull())
            sums[name] += std::invoke(figure, row);
    }
    return sums;
}

template <typename Row, typename Number>
void check(const QList<Row> &report, QString Row::*group, Number Row::*figure, const Sums &wanted)
{
    RC_ASSERT(report.size() == wanted.size()); // each group once
    RC_ASSERT(sums(report, group, figure) == wanted);
}

QList<MonthlyRow> months(const QList<Transaction> &rows, bool withTransfers)
{
    const auto month = [&](const Transaction &row) {
        const bool counts = withTransfers || row.transfer_link_id.isEmpty();
        return counts ? row.date.toString(u"yyyy-MM"_s) : QString();
    };
    const Sums net = sums(rows, month, &Transaction::amount);
    const Sums in = sums(rows, month, [](const auto &row) { return qMax(row.amount, 0); });
    QList<MonthlyRow> result;
    for (auto sum = net.begin(); sum != net.end(); ++sum)
        result.append({sum.key(), in[sum.key()], *sum - in[sum.key()], *sum});
    return result;
}

void checkTotals(const Household &home, const QList<Transaction> &rows)
{
    const auto spending = home.reports.categorySpending(home.from, home.to, home.accountId);
    const auto spentOn = [](const Transaction &row) {
        return row.amount < 0 ? categoryOf(row) : QString();
    };
    RC_ASSERT(std::ranges::is_sorted(spending, {}, &CategorySpendingRow::total));
    check(spending, &CategorySpendingRow::categoryName, &CategorySpendingRow::total,
          sums(rows, spentOn, &Transaction::amount));
    const auto payees = home.reports.payeeSummary(home.from, home.to, home.accountId);
    RC_ASSERT(std::ranges::is_sorted(payees, {}, &PayeeSummaryRow::total));
    check(payees, &PayeeSummaryRow::payee, &PayeeSummaryRow::total,
          sums(rows, &Transaction::payee, &Transaction::amount));
    check(payees, &PayeeSummaryRow::payee, &PayeeSummaryRow::count,
          sums(rows, &Transaction::payee, [](const auto &) { return 1; }));
    // The account that is chosen has no say in the taxes.
    const auto taxed = [](const Transaction &row) {
        return categoryOf(row) == sampleCategory().name ? categoryOf(row) : QString();
    };
    check(home.reports.taxReport(home.from, home.to), &TaxReportRow::categoryName,
          &TaxReportRow::total,
          sums(home.rows(home.from, home.to, {}), taxed, &Transaction::amount));
}

void checkYears(const Household &home)
{
    const QDate middle = kFirstDay.addDays(kDays / 2);
    const QDate before = middle.addDays(-1);
    const auto totals = [&](QDate from, QDate to) {
        return sums(home.rows(from, to, home.accountId), categoryOf, &Transaction::amount);
    };
    const Sums first = totals(kFirstDay, before);
    const Sums second = totals(middle, home.to);
    Sums both = first;
    both.insert(second);
    QList<YearOverYearRow> wanted;
    for (const QString &name : both.keys())
        wanted.append({name, first[name], second[name], second[name] - first[name]});
    RC_ASSERT(home.reports.yearOverYear(kFirstDay, before, middle, home.to, home.accountId)
              == wanted);
}

void checkAccounts(const Household &home)
{
    const auto rows = home.rows(kFirstDay, kFirstDay.addDays(kDays), u"a"_s);
    const auto state = [](const Transaction &row) { return row.cleared ? u"C"_s : u"-"_s; };
    const Sums states = sums(rows, state, &Transaction::amount);
    const qint64 cleared = 12345 + states[u"C"_s];
    const qint64 uncleared = states[u"-"_s];
    const QString name = sampleAccount().name;
    const QList<AccountSummaryRow> wanted{
        {name, u"credit_card"_s, -5000, 0, -5000},
        {name, u"credit_card"_s, cleared, uncleared, cleared + uncleared}};
    RC_ASSERT(home.reports.accountSummary() == wanted);
}

void checkTransactions(const Household &home, const QList<Transaction> &rows,
                       const QString &categoryId)
{
    using Row = TransactionReportRow;
    const auto place = [](const Row &row) { return std::tuple(row.date, row.payee.toUtf8()); };
    QList<Row> listed =
        home.reports.transactionReport(home.from, home.to, home.accountId, categoryId);
    RC_ASSERT(std::ranges::is_sorted(listed, {}, place));
    for (const Transaction &row : rows) {
        const QString category = row.category_id.isEmpty() ? QString() : categoryOf(row);
        if (categoryId.isEmpty() || row.category_id == categoryId)
            RC_ASSERT(listed.removeOne(
                Row{row.date, sampleAccount().name, row.payee, category, row.memo, row.amount}));
    }
    RC_ASSERT(listed.isEmpty());
}

} // namespace

class ReportServiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void figuresAreThoseOfALoop();
    void sumBeyond64BitsGivesNothing();
};

void ReportServiceTest::figuresAreThoseOfALoop()
{
    Household home;
    QVERIFY(rc::check([&] {
        home.draw();
        const QList<Transaction> rows = home.rows(home.from, home.to, home.accountId);
        checkTotals(home, rows);
        RC_ASSERT(home.reports.incomeVsExpenses(home.from, home.to, home.accountId)
                  == months(rows, false));
        RC_ASSERT(home.reports.cashFlow(home.from, home.to, home.accountId) == months(rows, true));
        checkYears(home);
        checkAccounts(home);
        checkTransactions(home, rows, {});
        checkTransactions(home, rows, u"rent"_s);
    }));
}

// What SQLite cannot add up must not leave the months before it, as if they were all.
void ReportServiceTest::sumBeyond64BitsGivesNothing()
{
    TestDatabase db;
    db.addSampleOwners();
    for (const int month : {1, 2, 2}) {
        Transaction transaction = sampleTransaction(newId());
        transaction.date = QDate(2024, month, 28);
        transaction.amount = std::numeric_limits<qint64>::max() - 1;
        QVERIFY(db.transactions.insert(transaction));
    }
    const ReportService reports(db.get());
    const QDate newYear(2024, 1, 1);
    QCOMPARE(reports.cashFlow(newYear, QDate(2024, 1, 31), {}).size(), 1);
    QCOMPARE(reports.cashFlow(newYear, QDate(2024, 2, 29), {}).size(), 0);
}

PURSEWELL_TEST_MAIN(ReportServiceTest)
#include "ReportServiceTest.moc"
