#include "core/Dates.h"
#include "register/DateInput.h"
#include "register/PayeeMemoEditor.h"
#include "register/RegisterColumn.h"
#include "register/RegisterFixture.h"
#include "support/DialogAnswer.h"
#include "support/TestSupport.h"

#include <QAbstractButton>
#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>

using namespace Qt::StringLiterals;

// The way of the fingers through the grid: which key leads where, and what of it is stored.
class RegisterKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void enterWalksThroughTheRowAndSavesIt();
    void tabWalksButStopsAtTheEnd();
    void shiftTabWalksBack();
    void keysThatOvertakeTheHopReachTheNextCell();
    void tabWithoutAnEditorOpensTheNextCell();
    void hiddenColumnsAreSkipped();
    void ctrlReturnSavesFromAnyCell_data();
    void ctrlReturnSavesFromAnyCell();
    void ctrlReturnSavesWhatARefusedRowKept();
    void escapeDropsTheCellAlone();
    void plainLettersOpenNothing();
    void completionByEnterAndTab_data();
    void completionByEnterAndTab();
    void payeeBringsItsLastTransaction();
    void apostropheCopiesFromAbove();
    void ctrlDClearsTheInsertionRow();
    void ctrlDDeletesAStoredRow();
    void ctrlIStartsANewRow();
    void leavingARowDropsWhatWasTyped();
    void cursorKeysStayOutOfBalance();
    void clickOpensTheCell();

private:
    std::unique_ptr<RegisterFixture> m_fixture;
    QString m_checking;
};

void RegisterKeysTest::init()
{
    m_fixture = std::make_unique<RegisterFixture>();
    m_checking = m_fixture->addAccount(u"Checking"_s);
    m_fixture->addAccount(u"Savings"_s);
}

void RegisterKeysTest::cleanup()
{
    m_fixture.reset();
}

void RegisterKeysTest::enterWalksThroughTheRowAndSavesIt()
{
    QAbstractItemModelTester tester(&m_fixture->model());
    m_fixture->openAccount(m_checking);
    QCOMPARE(m_fixture->editor(), nullptr);
    m_fixture->press(Qt::Key_Return);
    QVERIFY(m_fixture->editor());
    m_fixture->typeAndEnter(u"3/4/2024"_s);
    m_fixture->typeAndEnter(u"1041"_s);
    m_fixture->typeAndEnter(u"Corner Bakery"_s);
    m_fixture->typeAndEnter(u"Utilities > Electric"_s);
    m_fixture->typeAndEnter(u"bread 100%1"_s);
    m_fixture->typeAndEnter(u"12.5"_s);
    m_fixture->typeAndEnter(u""_s);
    QCOMPARE(m_fixture->stored(u"id"_s), QStringList());
    m_fixture->typeAndEnter(u"c"_s);

    const QString electric = m_fixture->categoryId(u"Electric"_s, u"Utilities"_s);
    QCOMPARE(m_fixture->stored(u"date, check_number, payee, category_id, memo, amount, cleared, "
                               "reconciled, version, sync_status, account_id"_s),
             QStringList(u"2024-03-04|1041|Corner Bakery|"_s + electric
                         + u"|bread 100%1|-1250|1|0|1|pending|"_s + m_checking));
    // Ready for the next one: no editor, and the date that was typed last.
    QCOMPARE(m_fixture->editor(), nullptr);
    QCOMPARE(m_fixture->view().currentIndex(), m_fixture->model().index(1, 0));
    QCOMPARE(m_fixture->shown(1, 0), u"3/4/2024"_s);
    QCOMPARE(m_fixture->shown(0, RegisterColumn::Balance), u"-12.50"_s);
}

void RegisterKeysTest::tabWalksButStopsAtTheEnd()
{
    m_fixture->openAccount(m_checking);
    m_fixture->press(Qt::Key_Return);
    m_fixture->press(Qt::Key_Tab);
    for (const QString &text :
         {u"7"_s, u"Rent"_s, u"Rent/Mortgage Payment"_s, u"May"_s, u"900"_s, u""_s}) {
        QVERIFY(m_fixture->editor());
        m_fixture->type(text);
        m_fixture->press(Qt::Key_Tab);
    }
    QCOMPARE(m_fixture->view().currentIndex().column(), RegisterColumn::Clr);
    m_fixture->press(Qt::Key_Tab);
    QCOMPARE(m_fixture->view().currentIndex().column(), RegisterColumn::Clr);
    QCOMPARE(m_fixture->stored(u"id"_s), QStringList());
    m_fixture->press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(m_fixture->stored(u"check_number, payee, memo, amount, category_id"_s),
             QStringList(u"7|Rent|May|-90000|"_s
                         + m_fixture->categoryId(u"Rent/Mortgage Payment"_s, u"Housing"_s)));
}

void RegisterKeysTest::shiftTabWalksBack()
{
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(0, RegisterColumn::Memo);
    m_fixture->press(Qt::Key_Return);
    m_fixture->type(u"kept"_s);
    m_fixture->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(m_fixture->view().currentIndex().column(), RegisterColumn::Category);
    QVERIFY(qobject_cast<QComboBox *>(m_fixture->editor()));
    m_fixture->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(m_fixture->view().currentIndex().column(), RegisterColumn::Payee);
    QVERIFY(m_fixture->editor());
    m_fixture->press(Qt::Key_Backtab, Qt::ShiftModifier);
    m_fixture->press(Qt::Key_Backtab, Qt::ShiftModifier);
    m_fixture->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(m_fixture->view().currentIndex().column(), RegisterColumn::Date);
    QCOMPARE(m_fixture->shown(0, RegisterColumn::Memo), u"kept"_s);
}

void RegisterKeysTest::keysThatOvertakeTheHopReachTheNextCell()
{
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(0, RegisterColumn::Payment);
    m_fixture->press(Qt::Key_Return);
    m_fixture->type(u"5"_s);
    QWindow *window = m_fixture->screen().windowHandle();
    // All in one turn of the event loop, as from somebody faster than a busy machine.
    QTest::keyClick(window, Qt::Key_Tab);
    QTest::keyClick(window, '7');
    QTest::keyClick(window, Qt::Key_Tab);
    QTest::keyClick(window, 'r');
    QCoreApplication::processEvents();
    QCOMPARE(m_fixture->shown(0, RegisterColumn::Payment), u"5"_s);
    QCOMPARE(m_fixture->shown(0, RegisterColumn::Deposit), u"7"_s);
    QCOMPARE(m_fixture->editorText(), u"r"_s);
}

void RegisterKeysTest::tabWithoutAnEditorOpensTheNextCell()
{
    m_fixture->openAccount(m_checking);
    m_fixture->press(Qt::Key_Tab);
    QCOMPARE(m_fixture->view().currentIndex().column(), RegisterColumn::CheckNumber);
    QVERIFY(m_fixture->editor());
}

void RegisterKeysTest::hiddenColumnsAreSkipped()
{
    m_fixture->openAccount(m_checking);
    m_fixture->view().setColumnHidden(RegisterColumn::CheckNumber, true);
    m_fixture->view().setColumnHidden(RegisterColumn::Clr, true);
    m_fixture->press(Qt::Key_Return);
    m_fixture->press(Qt::Key_Return);
    QCOMPARE(m_fixture->view().currentIndex().column(), RegisterColumn::Payee);
    m_fixture->typeAndEnter(u"Zoo"_s);
    m_fixture->goTo(0, RegisterColumn::Deposit);
    m_fixture->press(Qt::Key_F2);
    m_fixture->typeAndEnter(u"3"_s); // the last column to be seen, so this saves
    QCOMPARE(m_fixture->stored(u"payee, amount"_s), QStringList(u"Zoo|300"_s));
}

void RegisterKeysTest::ctrlReturnSavesFromAnyCell_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored");

    QTest::newRow("date") << int(RegisterColumn::Date) << u"2/29/2024"_s
                          << u"2024-02-29||Old|Old memo|-500|0"_s;
    QTest::newRow("two-digit year")
        << int(RegisterColumn::Date) << u"3/14/25"_s << u"1925-03-14||Old|Old memo|-500|0"_s;
    QTest::newRow("check number") << int(RegisterColumn::CheckNumber) << u" 12 "_s
                                  << u"2024-01-05|12|Old|Old memo|-500|0"_s;
    QTest::newRow("payee") << int(RegisterColumn::Payee) << u"New \"quoted\""_s
                           << u"2024-01-05||New \"quoted\"|Old memo|-500|0"_s;
    QTest::newRow("memo") << int(RegisterColumn::Memo) << u"%1 %2"_s
                          << u"2024-01-05||Old|%1 %2|-500|0"_s;
    QTest::newRow("payment") << int(RegisterColumn::Payment) << u"1,234.56"_s
                             << u"2024-01-05||Old|Old memo|-123456|0"_s;
    QTest::newRow("payment that is no number")
        << int(RegisterColumn::Payment) << u"abc"_s << u"2024-01-05||Old|Old memo|0|0"_s;
    QTest::newRow("clr") << int(RegisterColumn::Clr) << u"r"_s
                         << u"2024-01-05||Old|Old memo|-500|1"_s;
}

void RegisterKeysTest::ctrlReturnSavesFromAnyCell()
{
    QFETCH(int, column);
    QFETCH(QString, typed);
    QFETCH(QString, stored);

    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"Old"_s, -500, {.memo = u"Old memo"_s});
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(0, column);
    m_fixture->press(Qt::Key_F2);
    QTest::keyClick(m_fixture->screen().windowHandle(), Qt::Key_A, Qt::ControlModifier);
    m_fixture->type(typed);
    m_fixture->press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(m_fixture->stored(u"date, check_number, payee, memo, amount, reconciled"_s),
             QStringList(stored));
    QCOMPARE(m_fixture->stored(u"version, sync_status"_s), QStringList(u"2|pending"_s));
    QCOMPARE(m_fixture->view().currentIndex(), m_fixture->model().index(1, 0));
}

void RegisterKeysTest::ctrlReturnSavesWhatARefusedRowKept()
{
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(0, RegisterColumn::Payee);
    m_fixture->press(Qt::Key_Return);
    m_fixture->type(u"Baker"_s);
    m_fixture->press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(m_fixture->message(), u"Enter a payment or deposit amount"_s);
    QVERIFY(!m_fixture->view().currentIndex().isValid());
    QCOMPARE(m_fixture->shown(0, RegisterColumn::Payee), u"Baker"_s);
    m_fixture->click(0, RegisterColumn::Payment);
    m_fixture->type(u"4.20"_s);
    m_fixture->press(Qt::Key_Enter, Qt::ControlModifier);
    QCOMPARE(m_fixture->stored(u"payee, amount"_s), QStringList(u"Baker|-420"_s));
}

void RegisterKeysTest::escapeDropsTheCellAlone()
{
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(0, RegisterColumn::CheckNumber);
    m_fixture->press(Qt::Key_Return);
    m_fixture->typeAndEnter(u"55"_s);
    m_fixture->type(u"Wrong"_s);
    m_fixture->press(Qt::Key_Escape);
    QCOMPARE(m_fixture->editor(), nullptr);
    QCOMPARE(m_fixture->shown(0, RegisterColumn::CheckNumber), u"55"_s);
    QCOMPARE(m_fixture->shown(0, RegisterColumn::Payee), u"Payee"_s);
}

void RegisterKeysTest::plainLettersOpenNothing()
{
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"Old"_s, -500);
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(0, RegisterColumn::Payee);
    m_fixture->type(u"x"_s);
    QCOMPARE(m_fixture->editor(), nullptr);
    QCOMPARE(m_fixture->shown(0, RegisterColumn::Payee), u"Old"_s);
}

void RegisterKeysTest::completionByEnterAndTab_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("letters");
    QTest::addColumn<bool>("highlight");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("endsIn");

    const int payee = RegisterColumn::Payee;
    const int category = RegisterColumn::Category;
    QTest::newRow("Enter takes and stays")
        << payee << u"lectric"_s << true << int(Qt::Key_Return) << u"City Electric"_s << payee;
    QTest::newRow("Enter without a choice stays")
        << payee << u"lectric"_s << false << int(Qt::Key_Return) << u"lectric"_s << payee;
    QTest::newRow("Tab takes and moves on")
        << payee << u"lectric"_s << true << int(Qt::Key_Tab) << u"City Electric"_s << category;
    QTest::newRow("Tab without a choice moves on")
        << payee << u"lectric"_s << false << int(Qt::Key_Tab) << u"lectric"_s << category;
    QTest::newRow("Shift+Tab takes and moves back")
        << payee << u"lectric"_s << true << int(Qt::Key_Backtab) << u"City Electric"_s
        << int(RegisterColumn::CheckNumber);
    QTest::newRow("category by Tab") << category << u"elec"_s << true << int(Qt::Key_Tab)
                                     << u"Utilities > Electric"_s << int(RegisterColumn::Memo);
    QTest::newRow("category by Enter") << category << u"elec"_s << true << int(Qt::Key_Return)
                                       << u"Utilities > Electric"_s << category;
}

void RegisterKeysTest::completionByEnterAndTab()
{
    QFETCH(int, column);
    QFETCH(QString, letters);
    QFETCH(bool, highlight);
    QFETCH(int, key);
    QFETCH(QString, text);
    QFETCH(int, endsIn);

    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"City Electric"_s, -500);
    m_fixture->addTransaction(m_checking, u"2024-01-06"_s, u"Grocer"_s, -700);
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(2, column);
    m_fixture->press(Qt::Key_Return);
    m_fixture->type(letters);
    QTRY_VERIFY(QApplication::activePopupWidget());
    if (highlight)
        m_fixture->press(Qt::Key_Down);
    m_fixture->press(Qt::Key(key));
    QTRY_VERIFY(!QApplication::activePopupWidget());
    QTRY_COMPARE(m_fixture->view().currentIndex().column(), endsIn);
    QTRY_VERIFY(m_fixture->editor());
    if (endsIn == column)
        QCOMPARE(m_fixture->editorText(), text);
    else
        QCOMPARE(m_fixture->shown(2, column), text);
}

void RegisterKeysTest::payeeBringsItsLastTransaction()
{
    const QString groceries = m_fixture->categoryId(u"Groceries"_s);
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"Grocer"_s, -999);
    m_fixture->addTransaction(
        m_checking, u"2024-02-05"_s, u"Grocer"_s, -4210,
        {.memo = u"weekly"_s, .category_id = groceries, .check_number = u"9"_s, .cleared = true});
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(2, RegisterColumn::Deposit);
    m_fixture->press(Qt::Key_F2);
    m_fixture->typeAndEnter(u"1"_s);
    m_fixture->goTo(2, RegisterColumn::Payee);
    m_fixture->press(Qt::Key_F2);
    m_fixture->typeAndEnter(u"Grocer"_s);
    QCOMPARE(m_fixture->shownRow(2).mid(1),
             QStringList({u"Chk #"_s, u"Grocer"_s, u"Groceries"_s, u"weekly"_s, u"42.10"_s,
                          u"Deposit"_s, u"Clr"_s, QString()}));
    m_fixture->press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(m_fixture->stored(u"payee, memo, amount, category_id, check_number, cleared"_s,
                               u"date > '2024-02-05'"_s),
             QStringList(u"Grocer|weekly|-4210|%1||0"_s.arg(groceries)));
}

void RegisterKeysTest::apostropheCopiesFromAbove()
{
    const QString auto2 = m_fixture->categoryId(u"Maintenance"_s, u"Transportation"_s);
    const QString house = m_fixture->categoryId(u"Maintenance"_s, u"Housing"_s);
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"Garage"_s, -500,
                              {.category_id = auto2});
    m_fixture->addTransaction(m_checking, u"2024-01-06"_s, u"Other"_s, -700,
                              {.category_id = house});
    m_fixture->openAccount(m_checking);
    for (const int column :
         {RegisterColumn::Payee, RegisterColumn::Category, RegisterColumn::Payment}) {
        m_fixture->goTo(1, column);
        m_fixture->type(u"'"_s);
    }
    m_fixture->press(Qt::Key_Return, Qt::ControlModifier);
    // Two categories share the name: the copy takes the one that stands above.
    QCOMPARE(m_fixture->stored(u"payee, category_id, amount"_s),
             QStringList({u"Garage|%1|-500"_s.arg(auto2), u"Garage|%1|-500"_s.arg(auto2)}));

    m_fixture->goTo(0, RegisterColumn::Payee);
    m_fixture->type(u"'"_s); // nothing stands above the first row
    m_fixture->goTo(2, RegisterColumn::Memo);
    m_fixture->press(Qt::Key_F2);
    m_fixture->type(u"it's"_s); // typed in an editor, it is a letter
    QCOMPARE(m_fixture->editorText(), u"it's"_s);
}

void RegisterKeysTest::ctrlDClearsTheInsertionRow()
{
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(0, RegisterColumn::Payee);
    m_fixture->press(Qt::Key_Return);
    m_fixture->typeAndEnter(u"Half"_s);
    m_fixture->press(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(m_fixture->message(), u"Fields cleared"_s);
    QCOMPARE(m_fixture->shown(0, RegisterColumn::Payee), u"Payee"_s);
    QCOMPARE(m_fixture->view().currentIndex(), m_fixture->model().index(0, 0));
    QVERIFY(m_fixture->editor());
}

void RegisterKeysTest::ctrlDDeletesAStoredRow()
{
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"<b>Bold</b> & Sons"_s, -123456);
    m_fixture->addTransaction(m_checking, u"2024-01-06"_s, u"Kept"_s, -700);
    m_fixture->openAccount(m_checking);
    for (const QMessageBox::StandardButton answer : {QMessageBox::No, QMessageBox::Yes}) {
        QString asked;
        m_fixture->goTo(0, RegisterColumn::Memo);
        m_fixture->press(Qt::Key_F2);
        const DialogAnswer dialog(u"deleteTransactionQuestion"_s, [&](QDialog *question) {
            const auto *box = qobject_cast<QMessageBox *>(question);
            asked = box->text();
            box->button(answer)->click();
        });
        m_fixture->press(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(asked, u"Delete \"<b>Bold</b> & Sons\" for $1,234.56?"_s);
        QCOMPARE(m_fixture->stored(u"id"_s).size(), answer == QMessageBox::Yes ? 1 : 2);
    }
    QCOMPARE(m_fixture->shown(0, RegisterColumn::Payee), u"Kept"_s);
    QCOMPARE(m_fixture->model().rowCount(), 2);
}

void RegisterKeysTest::ctrlIStartsANewRow()
{
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"Old"_s, -500);
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(0, RegisterColumn::Payee);
    m_fixture->press(Qt::Key_I, Qt::ControlModifier);
    QCOMPARE(m_fixture->view().currentIndex(), m_fixture->model().index(1, 0));
    QVERIFY(m_fixture->editor());
    QCOMPARE(m_fixture->editorText(), DateInput::toText(QDate::currentDate()));
}

void RegisterKeysTest::leavingARowDropsWhatWasTyped()
{
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"Old"_s, -500);
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(1, RegisterColumn::Payee);
    m_fixture->press(Qt::Key_Return);
    m_fixture->type(u"New"_s);
    m_fixture->goTo(0, RegisterColumn::Payee);
    QCOMPARE(m_fixture->shown(0, RegisterColumn::Payee), u"Old"_s);
    m_fixture->press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(m_fixture->stored(u"payee, amount"_s), QStringList(u"Old|-500"_s));
    QCOMPARE(m_fixture->model().buffers().payee, QString());
}

void RegisterKeysTest::cursorKeysStayOutOfBalance()
{
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(0, RegisterColumn::Clr);
    m_fixture->press(Qt::Key_Right);
    QCOMPARE(m_fixture->view().currentIndex().column(), RegisterColumn::Clr);
    m_fixture->press(Qt::Key_End);
    QCOMPARE(m_fixture->view().currentIndex().column(), RegisterColumn::Clr);
}

void RegisterKeysTest::clickOpensTheCell()
{
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"Split"_s, -500, {.is_split = true});
    m_fixture->openAccount(m_checking);
    m_fixture->click(0, RegisterColumn::Memo);
    QVERIFY(m_fixture->editor());
    QCOMPARE(m_fixture->model().editRow(), 0);
    m_fixture->click(0, RegisterColumn::Payment); // belongs to the split lines
    QCOMPARE(m_fixture->editor(), nullptr);
    m_fixture->click(0, RegisterColumn::Balance);
    QCOMPARE(m_fixture->editor(), nullptr);
}

PURSEWELL_TEST_MAIN(RegisterKeysTest)
#include "RegisterKeysTest.moc"
