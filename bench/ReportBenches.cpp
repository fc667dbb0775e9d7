#include "ReportBenches.h"

#include "PaintWatch.h"
#include "PairedBench.h"
#include "Statements.h"
#include "Workbench.h"

#include "screens/ReportsScreen.h"
#include "screens/SearchScreen.h"
#include "services/ReportService.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableView>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Shape = BenchDatabase::Shape;

const QDate kFrom(2000, 1, 1);
const QDate kMiddle(2019, 6, 30); // about half of the rows lie before it
const QDate kTo(2099, 12, 31);

QByteArray overAll(const QByteArray &columns, const QByteArray &joins, const QByteArray &narrowed,
                   const QByteArray &tail)
{
    return "SELECT " + columns + " FROM transactions t " + joins + "WHERE t.deleted_at IS NULL "
        + narrowed + "AND t.date >= ? AND t.date <= ? " + tail;
}

const QByteArray kCategories = "LEFT JOIN categories c ON t.category_id = c.id ";
const QByteArray kByName = "GROUP BY COALESCE(c.name, 'Uncategorized') ";
const QByteArray kNameAndSum = "COALESCE(c.name, 'Uncategorized'), SUM(t.amount)";
const QByteArray kMonths = "strftime('%Y-%m', t.date) AS month, "
                           "SUM(CASE WHEN t.amount > 0 THEN t.amount ELSE 0 END), "
                           "SUM(CASE WHEN t.amount < 0 THEN t.amount ELSE 0 END)";
const QByteArray kByMonth = "GROUP BY month ORDER BY month";

struct Report
{
    const char *name;
    QByteArray sql;
    QList<QList<QByteArray>> bound; // of each run of the statement
    std::function<void(const ReportService &)> run;
};

std::vector<Report> reports()
{
    const QList<QByteArray> all{"2000-01-01", "2099-12-31"};
    return {
        {"report: category spending",
         overAll(kNameAndSum, kCategories, "AND t.amount < 0 ", kByName + "ORDER BY SUM(t.amount)"),
         {all},
         [](const ReportService &service) { service.categorySpending(kFrom, kTo, {}); }},
        {"report: payee summary",
         overAll("t.payee, SUM(t.amount), COUNT(*)", {}, {},
                 "GROUP BY t.payee ORDER BY SUM(t.amount) ASC"),
         {all},
         [](const ReportService &service) { service.payeeSummary(kFrom, kTo, {}); }},
        {"report: taxes",
         overAll("c.name, c.tax_category, SUM(t.amount)",
                 "JOIN categories c ON t.category_id = c.id ", "AND c.is_tax_relevant = 1 ",
                 "GROUP BY c.name, c.tax_category ORDER BY c.tax_category, c.name"),
         {all},
         [](const ReportService &service) { service.taxReport(kFrom, kTo); }},
        {"report: income and expenses",
         overAll(kMonths, {}, "AND (t.transfer_link_id IS NULL OR t.transfer_link_id = '') ",
                 kByMonth),
         {all},
         [](const ReportService &service) { service.incomeVsExpenses(kFrom, kTo, {}); }},
        {"report: cash flow",
         overAll(kMonths, {}, {}, kByMonth),
         {all},
         [](const ReportService &service) { service.cashFlow(kFrom, kTo, {}); }},
        {"report: year over year",
         overAll(kNameAndSum, kCategories, {}, kByName),
         {{"2000-01-01", "2019-06-30"}, {"2019-07-01", "2099-12-31"}},
         [](const ReportService &service) {
             service.yearOverYear(kFrom, kMiddle, kMiddle.addDays(1), kTo, {});
         }},
        {"report: accounts",
         "SELECT a.name, a.account_type, a.starting_balance, "
         "COALESCE(SUM(CASE WHEN t.cleared = 1 THEN t.amount ELSE 0 END), 0), "
         "COALESCE(SUM(CASE WHEN t.cleared = 0 THEN t.amount ELSE 0 END), 0), "
         "COALESCE(SUM(t.amount), 0) FROM accounts a "
         "LEFT JOIN transactions t ON t.account_id = a.id AND t.deleted_at IS NULL "
         "WHERE a.deleted_at IS NULL GROUP BY a.id ORDER BY a.sort_order, a.name",
         {{}},
         [](const ReportService &service) { service.accountSummary(); }},
        {"report: transactions, all 100,000",
         overAll("t.date, a.name, t.payee, COALESCE(c.name, ''), COALESCE(t.memo, ''), t.amount",
                 "LEFT JOIN accounts a ON t.account_id = a.id " + kCategories, {},
                 "ORDER BY t.date, t.payee"),
         {all},
         [](const ReportService &service) { service.transactionReport(kFrom, kTo, {}, {}); }},
    };
}

void readPlainly(Workbench &bench, const Report &report)
{
    for (const QList<QByteArray> &bound : report.bound)
        bench.plain()->readAll(report.sql, bound);
}

void addReport(const Report &report)
{
    registerPair({report.name, 1.5}, [report] {
        Workbench &bench = workbench(Shape::TenAccounts);
        return Pair{
            .program = [&bench, report] { report.run(*bench.state()->reportService()); },
            .counterpart = [&bench, report] { readPlainly(bench, report); },
        };
    });
}

// A person changes a filter: all eight tables are filled, and the one in front is painted.
void addWindow(const char *name, const QString &firstPeriod)
{
    registerPair({name}, [firstPeriod] {
        Workbench &bench = workbench(Shape::TenAccounts);
        auto screen = std::make_shared<ReportsScreen>(bench.state());
        auto *tabs = screen->findChild<QTabWidget *>();
        tabs->setCurrentIndex(tabs->count() - 1);
        auto paints = std::make_shared<PaintWatch>(QList<QWidget *>{
            tabs->currentWidget()->findChild<QWidget *>(u"qt_scrollarea_viewport"_s)});
        paints->start();
        screen->show();
        paints->wait();
        auto *period = screen->findChild<QComboBox *>(u"periodCombo"_s);
        return Pair{
            .prepare = [period, firstPeriod] { period->setCurrentText(firstPeriod); },
            .program =
                [screen, paints, period] {
                    paints->start();
                    period->setCurrentText(u"All Time"_s);
                    paints->wait();
                },
            .counterpart =
                [&bench] {
                    for (const Report &report : reports())
                        readPlainly(bench, report);
                },
        };
    });
}

void addSearchWindow()
{
    registerPair({"search window, a common word, painted"}, [] {
        Workbench &bench = workbench(Shape::TenAccounts);
        auto screen = std::make_shared<SearchScreen>(bench.state());
        auto paints = std::make_shared<PaintWatch>(
            QList<QWidget *>{screen->findChild<QTableView *>()->viewport()});
        paints->start();
        screen->reloadFilters();
        screen->show();
        paints->wait();
        auto *field = screen->findChild<QLineEdit *>(u"searchField"_s);
        return Pair{
            .prepare = [field] { field->setText(BenchDatabase::commonWord()); },
            .program =
                [screen, paints] {
                    paints->start();
                    screen->performSearch();
                    paints->wait();
                },
            .counterpart =
                [&bench] {
                    bench.plain()->readAll(Statements::searchWord(),
                                           {BenchDatabase::commonWord().toUtf8()});
                },
        };
    });
}

} // namespace

void registerReportBenches()
{
    for (const Report &report : reports())
        addReport(report);
    addWindow("reports window, from one month to all, painted", u"This Month"_s);
    addWindow("reports window, from a year to all, painted", u"Last 12 Months"_s);
    addSearchWindow();
}
