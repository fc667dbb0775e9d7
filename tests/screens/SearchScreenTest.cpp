#include "screens/SearchScreen.h"

#include "data/AccountRepository.h"
#include "data/TransactionRepository.h"
#include "register/RegisterFixture.h"
#include "support/SampleRecords.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

class SearchScreenTest : public RegisterFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void finds_data();
    void finds();
    void waitsForAPauseInTyping();
    void resultsAreNotEdited();
    void filtersKeepWhatIsChosen();

private:
    void add(const QString &number, QDate date, const QString &payee, Transaction rest = {});
    QString found(); // the check numbers from top to bottom
    void setFilter(const QString &name);

    std::unique_ptr<SearchScreen> m_search;
    RegisterModel *m_results = nullptr;
    QComboBox *m_accounts = nullptr;
    QString m_savings;
};

void SearchScreenTest::init()
{
    RegisterFixture::init();
    m_savings = addAccount(u"Savings"_s);
    const QString category = categoryId(u"Groceries"_s);
    const QDate today = QDate::currentDate();
    add(u"1"_s, today.addYears(-2), u"Corner Shop"_s, {.cleared = true});
    add(u"2"_s, today.addDays(-1), u"Corner Pub"_s,
        {.account_id = m_savings, .category_id = category});
    add(u"3"_s, today, awkwardWords(), {.category_id = category});
    m_search = std::make_unique<SearchScreen>(&state());
    m_results = m_search->findChild<RegisterModel *>();
    m_accounts = m_search->findChild<QComboBox *>(u"accountCombo"_s);
    m_search->reloadFilters();
    m_search->resize(800, 550);
    m_search->show();
    m_search->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_search.get()));
    m_search->focusSearchField();
}

void SearchScreenTest::cleanup()
{
    m_search.reset();
    RegisterFixture::cleanup();
}

void SearchScreenTest::add(const QString &number, QDate date, const QString &payee,
                           Transaction rest)
{
    rest.check_number = number;
    addTransaction(date.toString(Qt::ISODate), payee, -1, rest);
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
    QTest::addColumn<QString>("filters");
    QTest::addColumn<QString>("numbers");

    QTest::newRow("everything") << u""_s << u""_s << u"123"_s;
    QTest::newRow("blanks around") << u"  corner "_s << u""_s << u"12"_s;
    QTest::newRow("right to left") << u"שלום"_s << u""_s << u"3"_s;
    QTest::newRow("quote left open") << u"corner\""_s << u""_s << u""_s;
    QTest::newRow("placeholder") << u"%1"_s << u""_s << u""_s;
    QTest::newRow("operator alone") << u"corner AND"_s << u""_s << u""_s;
    QTest::newRow("no such column") << u"nosuch:corner"_s << u""_s << u""_s;
    QTest::newRow("account") << u""_s << u"account"_s << u"2"_s;
    QTest::newRow("category") << u""_s << u"category"_s << u"23"_s;
    QTest::newRow("last month") << u""_s << u"dateRangeCheck"_s << u"23"_s;
    QTest::newRow("cleared") << u""_s << u"clearedCheck"_s << u"1"_s;
    QTest::newRow("both") << u"corner"_s << u"account dateRangeCheck"_s << u"2"_s;
}

void SearchScreenTest::setFilter(const QString &name)
{
    auto *categories = m_search->findChild<QComboBox *>(u"categoryCombo"_s);
    if (auto *check = m_search->findChild<QCheckBox *>(name))
        check->click();
    else if (name == u"account"_s)
        m_accounts->setCurrentIndex(m_accounts->findData(m_savings));
    else
        categories->setCurrentIndex(categories->findData(categoryId(u"Groceries"_s)));
}

void SearchScreenTest::finds()
{
    QFETCH(QString, words);
    QFETCH(QString, filters);
    QFETCH(QString, numbers);
    const LogCatcher log;
    m_search->findChild<QLineEdit *>(u"searchField"_s)->setText(words);
    for (const QString &filter : filters.split(u' ', Qt::SkipEmptyParts))
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
    connect(m_search.get(), &SearchScreen::editTransactionRequested, table,
            [&](const QString &id) { asked << id; });
    QStringList ids;
    for (int row = 0; row < m_results->rowCount(); ++row) { // the insertion row is the last
        const QModelIndex payee = m_results->index(row, RegisterColumn::Payee);
        const QPoint place = table->visualRect(payee).center();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, place);
        table->setCurrentIndex(payee);
        QTest::keyClick(table, Qt::Key_F2);
        QTest::keyClick(table, Qt::Key_X);
        QVERIFY(table->viewport()->findChildren<QWidget *>().isEmpty());
        const RegisterRow *stored = m_results->rowAt(row);
        QCOMPARE(m_results->index(row, RegisterColumn::Balance).data().toString(),
                 stored ? u"0.00"_s : QString());
        if (stored)
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
