#include "screens/SearchScreen.h"

#include "core/Dates.h"
#include "data/AccountRepository.h"
#include "data/TransactionRepository.h"
#include "register/RegisterColumn.h"
#include "register/RegisterModel.h"
#include "support/SampleRecords.h"
#include "support/StateFixture.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

class SearchScreenTest : public StateFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void finds_data();
    void finds();
    void waitsForAPauseInTyping();
    void resultsAreNotEdited();
    void filtersKeepWhatIsChosen();

private:
    QString found(); // the check numbers from top to bottom
    void setFilter(const QString &name);

    SearchScreen *m_search = nullptr;
    RegisterModel *m_results = nullptr;
    QComboBox *m_accounts = nullptr;
    QString m_savings;
};

void SearchScreenTest::init()
{
    StateFixture::init();
    m_savings = addAccount(u"Savings"_s);
    const QString category = categoryId(u"Groceries"_s);
    const QDate today = QDate::currentDate();
    addTransaction(isoDate(today.addYears(-2)), u"Corner Shop"_s, -1,
                   {.check_number = u"1"_s, .cleared = true});
    addTransaction(isoDate(today.addDays(-1)), u"Corner Pub"_s, -1,
                   {.account_id = m_savings, .category_id = category, .check_number = u"2"_s});
    addTransaction(isoDate(today), awkwardWords(), -1,
                   {.category_id = category, .check_number = u"3"_s});
    m_search = keep<SearchScreen>(&state());
    m_results = m_search->findChild<RegisterModel *>();
    m_accounts = m_search->findChild<QComboBox *>(u"accountCombo"_s);
    m_search->reloadFilters();
    showActive(m_search, {800, 550});
    m_search->focusSearchField();
}

QString SearchScreenTest::found()
{
    QString numbers;
    for (const RegisterRow &row : m_results->rows())
        numbers += row.check_number;
    return numbers;
}

void SearchScreenTest::finds_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("numbers");

    QTest::newRow("everything") << u""_s << u""_s << u"123"_s;
    QTest::newRow("blanks around") << u"  corner "_s << u""_s << u"12"_s;
    QTest::newRow("quote left open") << u"corner\""_s << u""_s << u""_s;
    QTest::newRow("account") << u""_s << u"account"_s << u"2"_s;
    QTest::newRow("category") << u""_s << u"category"_s << u"23"_s;
    QTest::newRow("last month") << u""_s << u"dateRangeCheck"_s << u"23"_s;
    QTest::newRow("cleared, and words") << u"corner"_s << u"clearedCheck"_s << u"1"_s;
}

void SearchScreenTest::setFilter(const QString &name)
{
    auto *categories = m_search->findChild<QComboBox *>(u"categoryCombo"_s);
    if (auto *check = m_search->findChild<QCheckBox *>(name))
        check->click();
    else if (name == u"account"_s)
        m_accounts->setCurrentIndex(m_accounts->findData(m_savings));
    else if (name == u"category"_s)
        categories->setCurrentIndex(categories->findData(categoryId(u"Groceries"_s)));
}

void SearchScreenTest::finds()
{
    QFETCH(QString, words);
    QFETCH(QString, filter);
    QFETCH(QString, numbers);
    const LogCatcher log;
    m_search->findChild<QLineEdit *>(u"searchField"_s)->setText(words);
    setFilter(filter);
    QTRY_COMPARE(found(), numbers);
    QCOMPARE(LogCatcher::warnings(), QStringList());
    QVERIFY(!QApplication::activeModalWidget());
}

void SearchScreenTest::waitsForAPauseInTyping()
{
    const QSignalSpy searched(m_results, &QAbstractItemModel::modelReset);
    QTest::keyClicks(QApplication::focusWidget(), u"corner"_s);
    QElapsedTimer sinceLastKey;
    sinceLastKey.start();
    QCOMPARE(searched.size(), 0);
    QTRY_COMPARE(found(), u"12"_s);
    QVERIFY(sinceLastKey.elapsed() > 250);
    QCOMPARE(searched.size(), 1);

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
    setFilter(u"clearedCheck"_s); // searches at once, for the new words too
    QCOMPARE(searched.size(), 2);
    QVERIFY(!QTest::qWaitFor([&] { return searched.size() > 2; }, 400));
}

void SearchScreenTest::resultsAreNotEdited()
{
    QStringList asked;
    auto *table = m_search->findChild<QTableView *>(u"resultsView"_s);
    connect(m_search, &SearchScreen::editTransactionRequested, table,
            [&](const QString &id) { asked << id; });
    QStringList ids;
    for (int row = 0; row < m_results->rowCount(); ++row) { // the insertion row is the last
        const QPoint place =
            table->visualRect(m_results->index(row, RegisterColumn::Payee)).center();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, place);
        QTest::keyClick(table, Qt::Key_F2);
        QVERIFY(table->viewport()->findChildren<QWidget *>().isEmpty());
        if (const RegisterRow *stored = m_results->rowAt(row))
            ids << stored->id;
    }
    QCOMPARE(asked, ids);
}

void SearchScreenTest::filtersKeepWhatIsChosen()
{
    setFilter(u"account"_s);
    addAccount(u"Another"_s);
    m_search->reloadFilters();
    QCOMPARE(m_accounts->currentText(), u"Savings"_s);
    QCOMPARE(found(), u"2"_s);

    state().transactions()->softDeleteByAccount(m_savings);
    state().accounts()->softDelete(m_savings);
    m_search->performSearch(); // the account is chosen still
    QCOMPARE(found(), QString());
    m_search->reloadFilters();
    QCOMPARE(m_accounts->currentText(), u"All Accounts"_s);
    QCOMPARE(found(), u"13"_s);
}

PURSEWELL_TEST_MAIN(SearchScreenTest)
#include "SearchScreenTest.moc"
