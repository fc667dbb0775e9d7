#include "screens/ReportsScreen.h"

#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/TransactionRepository.h"
#include "register/FieldLabel.h"
#include "screens/ComparisonBar.h"
#include "screens/ReportFill.h"
#include "screens/ReportPeriods.h"
#include "screens/ReportTable.h"
#include "screens/ReportTabs.h"
#include "screens/ScreenDates.h"
#include "services/ReportService.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/MoneyColors.h"

#include <QComboBox>
#include <QDateEdit>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QShowEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kHeadingGap = 12;
constexpr int kFilterGap = 8;
constexpr int kPeriodGap = 12;
constexpr int kAccountChars = 16; // a long name must not widen the window

} // namespace

ReportsScreen::ReportsScreen(AppState *appState, QWidget *parent, Clock today)
    : QWidget(parent)
    , m_appState(appState)
    , m_today(std::move(today))
{
    setObjectName(u"reportsScreen"_s);
    build();
    reloadAccounts();
    applyPreset(ReportPeriods::ThisMonth);
    listen();
}

void ReportsScreen::build()
{
    auto *heading = new QLabel(tr("Reports"), this);
    applyFontRole(heading, FontRole::Heading);
    QHBoxLayout *filters = buildFilters();
    buildTabs();

    auto *column = new QVBoxLayout(this);
    column->addWidget(heading);
    column->addSpacing(kHeadingGap);
    column->addLayout(filters);
    column->addSpacing(kFilterGap);
    column->addWidget(m_tabs, 1);
}

QHBoxLayout *ReportsScreen::buildFilters()
{
    m_accountCombo = new QComboBox(this);
    m_accountCombo->setObjectName(u"accountCombo"_s);
    m_accountCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_accountCombo->setMinimumContentsLength(kAccountChars);
    QLabel *accountLabel = makeFieldLabel(tr("Account:"), m_accountCombo);
    m_periodCombo = new QComboBox(this);
    m_periodCombo->setObjectName(u"periodCombo"_s);
    m_periodCombo->addItems({tr("This Month"), tr("Last Month"), tr("This Quarter"),
                             tr("Last Quarter"), tr("This Year"), tr("Last Year"),
                             tr("Last 30 Days"), tr("Last 90 Days"), tr("Last 12 Months"),
                             tr("All Time"), tr("Custom")});
    QLabel *periodLabel = makeFieldLabel(tr("Period:"), m_periodCombo);
    m_rangeLabel = new QLabel(this);
    m_rangeLabel->setObjectName(u"rangeLabel"_s);
    m_rangeLabel->setStyleSheet(u"color: %1;"_s.arg(mutedColor().name()));
    m_fromDate = makeDateEdit(u"fromDate"_s, tr("From"));
    m_toDate = makeDateEdit(u"toDate"_s, tr("To"));
    m_exportButton = new QPushButton(tr("Export CSV"), this);
    m_exportButton->setObjectName(u"exportButton"_s);

    auto *row = new QHBoxLayout;
    row->addWidget(accountLabel);
    row->addWidget(m_accountCombo);
    row->addSpacing(kPeriodGap);
    row->addWidget(periodLabel);
    row->addWidget(m_periodCombo);
    row->addWidget(m_rangeLabel);
    row->addWidget(m_fromDate);
    row->addWidget(m_toDate);
    row->addStretch();
    row->addWidget(m_exportButton);
    return row;
}

QDateEdit *ReportsScreen::makeDateEdit(const QString &name, const QString &spokenName)
{
    auto *edit = new QDateEdit(this);
    edit->setObjectName(name);
    edit->setAccessibleName(spokenName);
    setUpShortDateEdit(edit);
    edit->setKeyboardTracking(false); // eight reports for each digit of a year would be in the way
    edit->hide();
    return edit;
}

void ReportsScreen::buildTabs()
{
    m_tabs = new ReportTabs(this);
    m_tabs->setObjectName(u"reportTabs"_s);
    m_comparison = new ComparisonBar(m_today, this);
    addTab(tr("Category Spending"), new ReportTable({tr("Category"), tr("Total")}, 1));
    addTab(tr("Payee Summary"), new ReportTable({tr("Payee"), tr("Total"), tr("Count")}, 1));
    addTab(tr("Tax Report"), new ReportTable({tr("Category"), tr("Tax Code"), tr("Total")}, 2));
    addTab(tr("Income vs Expenses"),
           new ReportTable({tr("Month"), tr("Income"), tr("Expenses"), tr("Net")}, 1));
    addTab(tr("Cash Flow"),
           new ReportTable({tr("Month"), tr("Inflows"), tr("Outflows"), tr("Net")}, 1));
    addTab(tr("Year-over-Year"),
           new ReportTable({tr("Category"), tr("Period 1"), tr("Period 2"), tr("Difference")}, 1),
           m_comparison);
    addTab(tr("Account Summary"),
           new ReportTable({tr("Account"), tr("Type"), tr("Cleared"), tr("Uncleared"), tr("Total")},
                           2));
    addTab(
        tr("Transactions"),
        new ReportTable(
            {tr("Date"), tr("Account"), tr("Payee"), tr("Category"), tr("Memo"), tr("Amount")}, 5));
}

void ReportsScreen::addTab(const QString &title, ReportTable *table, QWidget *above)
{
    table->setAccessibleName(title);
    m_tables << table;
    if (!above) {
        m_tabs->addTab(table, title);
        return;
    }
    auto *page = new QWidget;
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(0, kFilterGap, 0, 0);
    column->addWidget(above);
    column->addWidget(table, 1);
    m_tabs->addTab(page, title);
}

void ReportsScreen::listen()
{
    connect(m_accountCombo, &QComboBox::currentIndexChanged, this, &ReportsScreen::onFilterChanged);
    connect(m_periodCombo, &QComboBox::currentIndexChanged, this,
            &ReportsScreen::onDatePresetChanged);
    connect(m_fromDate, &QDateEdit::dateChanged, this, &ReportsScreen::onFilterChanged);
    connect(m_toDate, &QDateEdit::dateChanged, this, &ReportsScreen::onFilterChanged);
    connect(m_comparison, &ComparisonBar::periodsChanged, this, &ReportsScreen::onFilterChanged);
    connect(m_tabs, &QTabWidget::currentChanged, this, &ReportsScreen::onTabChanged);
    connect(m_exportButton, &QPushButton::clicked, this, &ReportsScreen::exportCurrentTab);

    const auto becomeStale = [this] { m_stale = true; };
    connect(m_appState->transactions(), &TransactionRepository::transactionsChanged, this,
            becomeStale);
    connect(m_appState->categories(), &CategoryRepository::categoriesChanged, this, becomeStale);
    m_accountsTimer.setSingleShot(true);
    m_accountsTimer.setInterval(0); // once for all accounts that change together
    connect(&m_accountsTimer, &QTimer::timeout, this, &ReportsScreen::refresh);
    connect(m_appState->accounts(), &AccountRepository::accountsChanged, this,
            [this] { m_accountsTimer.start(); });
}

void ReportsScreen::refresh()
{
    if (!isVisible())
        return;
    reloadAccounts();
    applyPreset(m_periodCombo->currentIndex()); // another day may have come since
    m_comparison->refresh();
    runReport();
}

void ReportsScreen::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())
        refresh();
}

void ReportsScreen::reloadAccounts()
{
    const QScopedValueRollback updating(m_updating, true);
    const QString chosen = accountId();
    m_accountCombo->clear();
    m_accountCombo->addItem(tr("All Accounts"), QString());
    for (const Account &account : m_appState->accounts()->listActive())
        m_accountCombo->addItem(account.name, account.id);
    m_accountCombo->setCurrentIndex(qMax(0, m_accountCombo->findData(chosen)));
}

QString ReportsScreen::accountId() const
{
    return m_accountCombo->currentData().toString();
}

void ReportsScreen::applyPreset(int index)
{
    const bool custom = index == ReportPeriods::Custom;
    m_fromDate->setVisible(custom);
    m_toDate->setVisible(custom);
    m_rangeLabel->setVisible(!custom);
    if (custom)
        return; // the dates stand as they stood
    const QScopedValueRollback updating(m_updating, true);
    const ReportPeriods::Range range = ReportPeriods::presetRange(index, m_today());
    m_fromDate->setDate(range.from);
    m_toDate->setDate(range.to);
    m_rangeLabel->setText(tr("%1 – %2").arg(shortDate(range.from), shortDate(range.to)));
}

void ReportsScreen::onDatePresetChanged(int index)
{
    applyPreset(index);
    if (index != ReportPeriods::Custom)
        onFilterChanged();
}

void ReportsScreen::onFilterChanged()
{
    if (!m_updating)
        runReport();
}

void ReportsScreen::onTabChanged()
{
    if (m_stale)
        onFilterChanged();
}

void ReportsScreen::runReport()
{
    m_stale = false;
    const ReportService &reports = *m_appState->reportService();
    const QString account = accountId();
    const QDate from = m_fromDate->date();
    const QDate to = m_toDate->date();
    ReportFill::show(m_tables.at(CategorySpending), reports.categorySpending(from, to, account));
    ReportFill::show(m_tables.at(PayeeSummary), reports.payeeSummary(from, to, account));
    ReportFill::show(m_tables.at(TaxReport), reports.taxReport(from, to));
    ReportFill::show(m_tables.at(IncomeVsExpenses), reports.incomeVsExpenses(from, to, account));
    ReportFill::show(m_tables.at(CashFlow), reports.cashFlow(from, to, account));
    const auto [earlier, later] = m_comparison->periods();
    ReportFill::show(m_tables.at(YearOverYear),
                     reports.yearOverYear(earlier.from, earlier.to, later.from, later.to, account));
    ReportFill::show(m_tables.at(AccountSummary), reports.accountSummary());
    ReportFill::show(m_tables.at(Transactions), reports.transactionReport(from, to, account, {}));
}

QString ReportsScreen::exportName() const
{
    switch (m_tabs->currentIndex()) {
    case CategorySpending:
        return u"category_spending.csv"_s;
    case PayeeSummary:
        return u"payee_summary.csv"_s;
    case TaxReport:
        return u"tax_report.csv"_s;
    case IncomeVsExpenses:
        return u"income_vs_expenses.csv"_s;
    case CashFlow:
        return u"cash_flow.csv"_s;
    case YearOverYear:
        return u"year_over_year.csv"_s;
    case AccountSummary:
        return u"account_summary.csv"_s;
    default:
        return u"transactions.csv"_s;
    }
}

void ReportsScreen::exportCurrentTab()
{
    const ReportTable *table = m_tables.value(m_tabs->currentIndex());
    if (!table || table->rowCount() == 0)
        return;
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Export CSV"), exportName(), tr("CSV Files (*.csv)"));
    if (path.isEmpty())
        return;
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Text))
        file.write(table->toCsv().toUtf8());
}
