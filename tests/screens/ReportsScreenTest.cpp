#include "screens/ReportsScreen.h"

#include "core/Dates.h"
#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "services/CsvReader.h"
#include "support/DialogAnswer.h"
#include "support/SampleRecords.h"
#include "support/StateFixture.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

class ReportsScreenTest : public StateFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void showsAndExports_data();
    void showsAndExports();
    void exportsNothing();
    void eachChangeRunsOnce();
    void totalRowsComeAndGo();
    void periodsFollowTheDay();
    void accountsComeAndGo();

private:
    template <typename Widget> Widget *part(const char *name)
    {
        return m_reports->findChild<Widget *>(QString::fromLatin1(name));
    }
    void choosePeriod(const QString &name) { part<QComboBox>("periodCombo")->setCurrentText(name); }
    QTableWidget *table(int tab);
    QStringList shown(int tab); // its rows with "|" between the columns, the headers first
    QString exportTo(const QString &path); // the name offered; null when nothing is asked

    ReportsScreen *m_reports = nullptr;
    QTabWidget *m_tabs = nullptr;
    QDate m_today;
    QString m_card; // an account
};

// Two months of one account; the words are those that break a CSV file.
void ReportsScreenTest::init()
{
    StateFixture::init();
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    weekStart() = Qt::Wednesday;
    m_card = addAccount(u"\"%1\"\nCard"_s,
                        {.account_type = AccountType::CreditCard, .starting_balance = 100});
    Category category = sampleCategory();
    category.name = u"Salt, \"%2\""_s;
    state().categories()->insert(category);
    addTransaction(u"2025-02-28"_s, u"Shop"_s, -123456,
                   {.account_id = m_card, .category_id = u"c"_s, .cleared = true});
    addTransaction(u"2025-03-01"_s, awkwardWords(), 5,
                   {.account_id = m_card, .memo = u"two\nlines"_s});
    addTransaction(u"2025-03-31"_s, u"Move"_s, -1000,
                   {.account_id = m_card, .transfer_link_id = u"other"_s});
    m_today = QDate(2025, 3, 31);
    m_reports = keep<ReportsScreen>(&state(), nullptr, [this] { return m_today; });
    m_tabs = m_reports->findChild<QTabWidget *>();
    showActive(m_reports, {800, 600});
}

QTableWidget *ReportsScreenTest::table(int tab)
{
    auto *page = qobject_cast<QTableWidget *>(m_tabs->widget(tab));
    return page ? page : m_tabs->widget(tab)->findChild<QTableWidget *>(u"reportTable"_s);
}

QStringList ReportsScreenTest::shown(int tab)
{
    const QTableWidget &cells = *table(tab);
    QStringList rows(cells.rowCount() + 1);
    for (int column = 0; column < cells.columnCount(); ++column) {
        const QString separator = column == 0 ? QString() : u"|"_s;
        rows[0] += separator + cells.horizontalHeaderItem(column)->text();
        for (int row = 0; row < cells.rowCount(); ++row)
            rows[row + 1] += separator + cells.item(row, column)->text();
    }
    return rows;
}

QString ReportsScreenTest::exportTo(const QString &path)
{
    QString offered;
    const DialogAnswer answer(u"QFileDialog"_s, [&](QDialog *dialog) {
        const auto *files = qobject_cast<QFileDialog *>(dialog);
        offered = QFileInfo(files->selectedFiles().value(0)).fileName();
        chooseFile(path)(dialog);
    });
    QTest::mouseClick(part<QPushButton>("exportButton"), Qt::LeftButton);
    return offered;
}

void ReportsScreenTest::showsAndExports_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QStringList>("rows");

    const auto row = [](int tab, const char *title, const char *fileName, const QStringList &rows) {
        QTest::newRow(title) << tab << QString::fromLatin1(fileName) << rows;
    };
    row(0, "Category Spending", "category_spending.csv",
        {u"Category|Total"_s, u"Salt, \"%2\"|-$1,234.56"_s, u"Uncategorized|-$10.00"_s});
    row(1, "Payee Summary", "payee_summary.csv",
        {u"Payee|Total|Count"_s, u"Shop|-$1,234.56|1"_s, u"Move|-$10.00|1"_s,
         awkwardWords() + u"|$0.05|1"_s});
    row(2, "Tax Report", "tax_report.csv",
        {u"Category|Tax Code|Total"_s, u"Salt, \"%2\"|salt|-$1,234.56"_s});
    row(3, "Income vs Expenses", "income_vs_expenses.csv",
        {u"Month|Income|Expenses|Net"_s, u"2025-02|$0.00|-$1,234.56|-$1,234.56"_s,
         u"2025-03|$0.05|$0.00|$0.05"_s, u"Total|$0.05|-$1,234.56|-$1,234.51"_s});
    row(4, "Cash Flow", "cash_flow.csv",
        {u"Month|Inflows|Outflows|Net"_s, u"2025-02|$0.00|-$1,234.56|-$1,234.56"_s,
         u"2025-03|$0.05|-$10.00|-$9.95"_s, u"Total|$0.05|-$1,244.56|-$1,244.51"_s});
    row(5, "Year-over-Year", "year_over_year.csv",
        {u"Category|Period 1|Period 2|Difference"_s, u"Salt, \"%2\"|$0.00|-$1,234.56|-$1,234.56"_s,
         u"Uncategorized|$0.00|-$9.95|-$9.95"_s});
    row(6, "Account Summary", "account_summary.csv",
        {u"Account|Type|Cleared|Uncleared|Total"_s,
         u"\"%1\"\nCard|Credit Card|-$1,233.56|-$9.95|-$1,243.51"_s,
         u"Checking|Checking|$0.00|$0.00|$0.00"_s});
    row(7, "Transactions", "transactions.csv",
        {u"Date|Account|Payee|Category|Memo|Amount"_s,
         u"28.02.25|\"%1\"\nCard|Shop|Salt, \"%2\"||-$1,234.56"_s,
         u"01.03.25|\"%1\"\nCard|"_s + awkwardWords() + u"||two\nlines|$0.05"_s,
         u"31.03.25|\"%1\"\nCard|Move|||-$10.00"_s});
}

void ReportsScreenTest::showsAndExports()
{
    QFETCH(int, tab);
    QFETCH(QStringList, rows);
    choosePeriod(u"This Year"_s);
    m_tabs->setCurrentIndex(tab);
    QCOMPARE(m_tabs->tabText(tab), QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(shown(tab), rows);

    const QTemporaryDir directory;
    QFile file(directory.filePath(u"report %1 שלום.csv"_s));
    QTEST(exportTo(file.fileName()), "fileName");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QVERIFY(bytes.startsWith('"') && bytes.endsWith("\"\n"));
    QStringList read;
    for (const QStringList &fields : parseCsv(QString::fromUtf8(bytes)))
        read << fields.join(u'|');
    QCOMPARE(read, rows);
}

void ReportsScreenTest::exportsNothing()
{
    choosePeriod(u"Last Year"_s);
    QVERIFY(exportTo(u"empty.csv"_s).isNull());
    choosePeriod(u"This Year"_s);
    QVERIFY(!exportTo(u"/proc/pursewell/report.csv"_s).isNull());
    QVERIFY(!QApplication::activeModalWidget());
}

void ReportsScreenTest::eachChangeRunsOnce()
{
    const QSignalSpy runs(table(6)->model(), &QAbstractItemModel::dataChanged); // never empty
    choosePeriod(u"Last Month"_s);
    QCOMPARE(runs.size(), 1);
    choosePeriod(u"Custom"_s);
    QCOMPARE(runs.size(), 1);
    QCOMPARE(part<QDateEdit>("fromDate")->date(), QDate(2025, 2, 1));
    part<QDateEdit>("toDate")->setDate(QDate(2025, 3, 1));
    QCOMPARE(runs.size(), 2);
    QCOMPARE(table(7)->rowCount(), 2);

    auto *comparison = part<QComboBox>("comparisonCombo");
    comparison->setCurrentIndex(2);
    QCOMPARE(runs.size(), 3);
    QCOMPARE(part<QLabel>("comparisonLabel")->text(),
             u"P1: 01.10.24 – 31.12.24    P2: 01.01.25 – 31.03.25"_s);
    comparison->setCurrentIndex(3);
    QCOMPARE(runs.size(), 3);
    part<QDateEdit>("period1To")->setDate(QDate(2025, 2, 28));
    QCOMPARE(runs.size(), 4);
    QCOMPARE(shown(5).value(1), u"Salt, \"%2\"|-$1,234.56|-$1,234.56|$0.00"_s);

    addTransaction(u"2025-03-01"_s, u"Late"_s, 1);
    m_tabs->setCurrentIndex(6);
    QCOMPARE(runs.size(), 5);
    QCOMPARE(table(7)->rowCount(), 3);
    m_tabs->setCurrentIndex(7); // nothing is new
    QCOMPARE(runs.size(), 5);
}

// A row that was the total must not look like one when it is a month later.
void ReportsScreenTest::totalRowsComeAndGo()
{
    for (const QString &period :
         {u"Last Month"_s, u"This Year"_s, u"Last Year"_s, u"This Month"_s}) {
        choosePeriod(period);
        const int rows = table(4)->rowCount();
        QCOMPARE(rows == 0, period == u"Last Year"_s);
        for (int row = 0; row < rows; ++row) {
            const QTableWidgetItem *net = table(4)->item(row, 3);
            QCOMPARE(net->font().weight() == QFont::Bold, row == rows - 1);
            QCOMPARE(net->textAlignment(), int(Qt::AlignRight | Qt::AlignVCenter));
        }
    }
}

void ReportsScreenTest::periodsFollowTheDay()
{
    QCOMPARE(part<QLabel>("rangeLabel")->text(), u"01.03.25 – 31.03.25"_s);
    m_reports->hide();
    m_today = QDate(2025, 4, 1); // past midnight
    m_reports->show();
    QCOMPARE(part<QLabel>("rangeLabel")->text(), u"01.04.25 – 01.04.25"_s);
    QCOMPARE(table(7)->rowCount(), 0);
    m_today = QDate(2026, 1, 1);
    choosePeriod(u"Last Year"_s);
    QCOMPARE(table(7)->rowCount(), 3);
    for (const QDateEdit *edit : m_reports->findChildren<QDateEdit *>())
        QCOMPARE(edit->calendarWidget()->firstDayOfWeek(), Qt::Wednesday);
}

void ReportsScreenTest::accountsComeAndGo()
{
    auto *accounts = part<QComboBox>("accountCombo");
    accounts->setCurrentIndex(accounts->findData(m_checking));
    QCOMPARE(table(7)->rowCount(), 0);
    const QSignalSpy runs(table(6)->model(), &QAbstractItemModel::dataChanged);
    addAccount(u"A"_s);
    addAccount(u"B"_s);
    QTRY_COMPARE(runs.size(), 1);
    QCOMPARE(accounts->currentData(), m_checking);
    state().accounts()->softDelete(m_checking);
    QTRY_COMPARE(accounts->currentText(), u"All Accounts"_s);
    QCOMPARE(table(7)->rowCount(), 2);
}

PURSEWELL_TEST_MAIN(ReportsScreenTest)
#include "ReportsScreenTest.moc"
