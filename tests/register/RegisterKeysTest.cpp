#include "register/DateInput.h"
#include "register/RegisterFixture.h"

#include <QAbstractItemModelTester>

using namespace Qt::StringLiterals;
using namespace RegisterColumn;

// The way of the fingers through the grid: which key leads where, and what of it is stored.
class RegisterKeysTest : public RegisterFixture
{
    Q_OBJECT

private Q_SLOTS:
    void shiftTabWalksBack();
    void keysThatOvertakeTheHopReachTheNextCell();
    void keysWithoutAnEditor();
    void hiddenColumnsAreSkipped();
    void ctrlReturnSavesFromAnyCell_data();
    void ctrlReturnSavesFromAnyCell();
    void ctrlReturnSavesWhatARefusedRowKept();
    void escapeDropsTheCellAlone();
    void completionByEnterAndTab_data();
    void completionByEnterAndTab();
    void lateListLeavesTheEditorOpen();
    void payeeBringsItsLastTransaction();
    void apostropheCopiesFromAbove();
    void ctrlDDeletesAStoredRow();
    void ctrlDAndCtrlIStartTheInsertionRowAnew();
    void leavingARowDropsWhatWasTyped();
    void clickOpensTheCell();
};

void RegisterKeysTest::shiftTabWalksBack()
{
    openAccount();
    edit(0, Memo, u"kept"_s);
    for (const int column : {Category, Payee, CheckNumber, Date, Date}) {
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(currentColumn(), column);
        QVERIFY(editor() || column == Date);
    }
    QCOMPARE(shown(0, Memo), u"kept"_s);
    edit(0, CheckNumber);
    screen().moveToNextField(); // the editor left behind must not end the editing
    QVERIFY(editor());
    QCOMPARE(QApplication::focusWidget(), editor());
}

void RegisterKeysTest::keysThatOvertakeTheHopReachTheNextCell()
{
    openAccount();
    edit(0, Payment, u"5"_s);
    // Faster than a busy machine: sent so, the event loop does not run between the keys.
    for (const auto &[key, text] :
         {std::pair{Qt::Key_Tab, u"\t"_s}, std::pair{Qt::Key_7, u"7"_s},
          std::pair{Qt::Key_Tab, u"\t"_s}, std::pair{Qt::Key_R, u"r"_s}}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(screen().windowHandle(), &event);
        screen().refresh(); // as at the end of a sync, which must not take the row away
    }
    QCoreApplication::processEvents();
    QCOMPARE(shown(0, Payment), u"5"_s);
    QCOMPARE(shown(0, Deposit), u"7"_s);
    QCOMPARE(editorText(), u"r"_s);
}

void RegisterKeysTest::keysWithoutAnEditor()
{
    addTransaction(u"2024-01-05"_s, u"1 elsewhere"_s, -500);
    openAccount();
    type(u"1"_s); // opens nothing, and does not search
    QCOMPARE(editor(), nullptr);
    QCOMPARE(view().currentIndex(), model().index(1, Date));
    press(Qt::Key_End);
    QCOMPARE(currentColumn(), Clr);
    press(Qt::Key_Right); // nothing is typed into the balance
    QCOMPARE(currentColumn(), Clr);
    press(Qt::Key_Left);
    press(Qt::Key_Tab);
    QCOMPARE(currentColumn(), Clr);
    QVERIFY(editor());
    press(Qt::Key_Tab); // stops at the end
    QCOMPARE(currentColumn(), Clr);
}

void RegisterKeysTest::hiddenColumnsAreSkipped()
{
    openAccount();
    view().setColumnHidden(CheckNumber, true);
    view().setColumnHidden(Clr, true);
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    QCOMPARE(currentColumn(), Payee);
    enter(u"Zoo"_s);
    press(Qt::Key_Escape);
    press(Qt::Key_End);
    press(Qt::Key_F2);
    enter(u"3"_s); // the last column to be seen, so this saves
    QCOMPARE(stored(u"payee, amount"_s), u"Zoo|300"_s);
}

void RegisterKeysTest::ctrlReturnSavesFromAnyCell_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("row");
    const auto add = [](const char *name, int column, const QString &typed, const QString &row) {
        QTest::newRow(name) << column << typed << row;
    };
    add("date", Date, u"2/29/2024"_s, u"2024-02-29||Old|Old memo|-500|0"_s);
    add("two-digit year", Date, u"3/14/25"_s, u"1925-03-14||Old|Old memo|-500|0"_s);
    add("check number", CheckNumber, u" 12 "_s, u"2024-01-05|12|Old|Old memo|-500|0"_s);
    add("payee", Payee, u"New \"one\""_s, u"2024-01-05||New \"one\"|Old memo|-500|0"_s);
    add("memo", Memo, u"%1 %2"_s, u"2024-01-05||Old|%1 %2|-500|0"_s);
    add("payment", Payment, u"1,234.56"_s, u"2024-01-05||Old|Old memo|-123456|0"_s);
    add("no number", Payment, u"abc"_s, u"2024-01-05||Old|Old memo|0|0"_s);
    add("clr", Clr, u"r"_s, u"2024-01-05||Old|Old memo|-500|1"_s);
}

void RegisterKeysTest::ctrlReturnSavesFromAnyCell()
{
    QFETCH(int, column);
    QFETCH(QString, typed);
    QFETCH(QString, row);
    QAbstractItemModelTester tester(&model());
    addTransaction(u"2024-01-05"_s, u"Old"_s, -500, {.memo = u"Old memo"_s});
    openAccount();
    edit(0, column, typed);
    save();
    QCOMPARE(stored(u"date, check_number, payee, memo, amount, reconciled"_s), row);
    QCOMPARE(stored(u"version, sync_status"_s), u"2|pending"_s);
    QCOMPARE(view().currentIndex(), model().index(1, Date));
}

void RegisterKeysTest::ctrlReturnSavesWhatARefusedRowKept()
{
    openAccount();
    edit(0, Payee, u"Baker"_s);
    save();
    QCOMPARE(message(), u"Enter a payment or deposit amount"_s);
    click(0, Payment);
    type(u"4.20"_s);
    press(Qt::Key_Enter, Qt::ControlModifier);
    QCOMPARE(stored(u"payee, amount"_s), u"Baker|-420"_s);
}

void RegisterKeysTest::escapeDropsTheCellAlone()
{
    openAccount();
    edit(0, CheckNumber);
    enter(u"55"_s);
    type(u"Wrong"_s);
    press(Qt::Key_Escape);
    QCOMPARE(editor(), nullptr);
    QCOMPARE(shown(0, CheckNumber), u"55"_s);
    QCOMPARE(shown(0, Payee), u"Payee"_s);
}

void RegisterKeysTest::completionByEnterAndTab_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("picks");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("endsIn");
    const auto add = [](const char *name, int column, bool picks, Qt::Key key, int endsIn) {
        QTest::newRow(name) << column << picks << key << endsIn;
    };
    add("Enter takes and stays", Payee, true, Qt::Key_Return, Payee);
    add("Enter without a choice stays", Payee, false, Qt::Key_Return, Payee);
    add("Tab takes and moves on", Payee, true, Qt::Key_Tab, Category);
    add("Tab without a choice moves on", Payee, false, Qt::Key_Tab, Category);
    add("Shift+Tab takes and moves back", Payee, true, Qt::Key_Backtab, CheckNumber);
    add("category by Tab", Category, true, Qt::Key_Tab, Memo);
    add("category by Enter", Category, true, Qt::Key_Return, Category);
}

void RegisterKeysTest::completionByEnterAndTab()
{
    QFETCH(int, column);
    QFETCH(bool, picks);
    QFETCH(Qt::Key, key);
    QFETCH(int, endsIn);
    addTransaction(u"2024-01-05"_s, u"City Electric"_s, -500);
    addTransaction(u"2024-01-06"_s, u"Grocer"_s, -700);
    openAccount();
    edit(2, column);
    // As from a list that goes late on X11. A line that hears of it drops its completer's word.
    QFocusEvent lost(QEvent::FocusOut, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(editor(), &lost);
    type(u"lectric"_s);
    QTRY_VERIFY(QApplication::activePopupWidget());
    if (picks)
        press(Qt::Key_Down);
    press(key);
    QTRY_VERIFY(!QApplication::activePopupWidget());
    QTRY_COMPARE(currentColumn(), endsIn);
    QTRY_VERIFY(editor());
    const QString picked = column == Payee ? u"City Electric"_s : u"Utilities > Electric"_s;
    QCOMPARE(endsIn == column ? editorText() : shown(2, column), picks ? picked : u"lectric"_s);
}

// The activation of a completion list may be told after the list was hidden.
void RegisterKeysTest::lateListLeavesTheEditorOpen()
{
    openAccount();
    edit(0, Payee, u"half"_s);
    for (const Qt::WindowType kind : {Qt::Popup, Qt::Window}) {
        QWidget hidden(nullptr, kind);
        QApplication::setActiveWindow(&hidden);
        QVERIFY(!QApplication::focusWidget());
        QApplication::setActiveWindow(&screen());
        type(u" typed"_s);
        QCOMPARE(editorText(), kind == Qt::Popup ? u"half typed"_s : QString());
    }
}

void RegisterKeysTest::payeeBringsItsLastTransaction()
{
    const QString groceries = categoryId(u"Groceries"_s);
    addTransaction(u"2024-01-05"_s, u"Grocer"_s, -999);
    addTransaction(
        u"2024-02-05"_s, u"Grocer"_s, -4210,
        {.memo = u"weekly"_s, .category_id = groceries, .check_number = u"9"_s, .cleared = true});
    openAccount();
    model().buffers().deposit = u"1"_s;
    edit(2, Payee);
    enter(u"Grocer"_s);
    QCOMPARE(shown(2, Deposit), u"Deposit"_s);
    save();
    QCOMPARE(stored(u"payee, memo, amount, check_number, cleared, category_id"_s,
                    u"date > '2024-02-05'"_s),
             u"Grocer|weekly|-4210||0|"_s + groceries);
}

void RegisterKeysTest::apostropheCopiesFromAbove()
{
    const QString car = categoryId(u"Maintenance"_s, u"Transportation"_s);
    const QString house = categoryId(u"Maintenance"_s, u"Housing"_s);
    addTransaction(u"2024-01-05"_s, u"Garage"_s, -500, {.category_id = car});
    addTransaction(u"2024-01-06"_s, u"Other"_s, -700, {.category_id = house});
    addTransaction(u"2024-01-07"_s, u"Split"_s, -900, {.is_split = true});
    openAccount();
    for (const int column : {Payee, Category, Payment}) {
        goTo(1, column);
        type(u"'"_s);
    }
    save();
    goTo(2, Payment); // belongs to the split lines
    type(u"'"_s);
    save();
    // Two categories share the name: the copy takes the one that stands above.
    QCOMPARE(stored(u"payee, category_id, amount"_s),
             u"Garage|%1|-500; Garage|%1|-500; Split||-900"_s.arg(car));

    goTo(0, Payee);
    type(u"'"_s); // nothing stands above the first row
    edit(3, Memo, u"it's"_s); // typed in an editor, it is a letter
    QCOMPARE(editorText(), u"it's"_s);
    press(Qt::Key_Escape);
    setPreference(u"registerNewestFirst"_s, true);
    goTo(1, Payee); // the insertion row above it lends its texts to this one
    type(u"'"_s);
    QCOMPARE(shown(1, Payee), u"Split"_s);
}

void RegisterKeysTest::ctrlDDeletesAStoredRow()
{
    addTransaction(u"2024-01-05"_s, u"<b>Bold</b> & Sons"_s, -123456);
    addTransaction(u"2024-01-06"_s, u"Kept"_s, -700);
    openAccount();
    for (const QMessageBox::StandardButton answer : {QMessageBox::No, QMessageBox::Yes}) {
        edit(0, Memo);
        QCOMPARE(answering(answer, [this] { press(Qt::Key_D, Qt::ControlModifier); }),
                 u"Delete \"<b>Bold</b> & Sons\" for $1,234.56?"_s);
        QCOMPARE(stored(u"count(*)"_s), answer == QMessageBox::Yes ? u"1"_s : u"2"_s);
    }
    QCOMPARE(shown(0, Payee), u"Kept"_s);
}

void RegisterKeysTest::ctrlDAndCtrlIStartTheInsertionRowAnew()
{
    addTransaction(u"2024-01-05"_s, u"Old"_s, -500);
    openAccount();
    edit(1, Payee);
    enter(u"Half"_s);
    for (const Qt::Key key : {Qt::Key_D, Qt::Key_I}) {
        press(key, Qt::ControlModifier);
        QCOMPARE(shown(1, Payee), u"Payee"_s);
        QCOMPARE(view().currentIndex(), model().index(1, Date));
        QCOMPARE(editorText(), DateInput::toText(QDate::currentDate()));
        goTo(0, Payee);
    }
    QCOMPARE(message(), u"Fields cleared"_s);
}

void RegisterKeysTest::leavingARowDropsWhatWasTyped()
{
    addTransaction(u"2024-01-05"_s, u"Old"_s, -500);
    openAccount();
    edit(1, Payee, u"New"_s);
    goTo(0, Payee);
    QCOMPARE(shown(0, Payee), u"Old"_s);
    save();
    QCOMPARE(stored(u"payee, amount"_s), u"Old|-500"_s);
    edit(0, Payee, u"Late"_s);
    screen().startEditingRow(1);
    goTo(1, Memo); // only now the editor hands over its text
    QCOMPARE(shown(1, Payee), u"Payee"_s);
}

void RegisterKeysTest::clickOpensTheCell()
{
    addTransaction(u"2024-01-05"_s, u"Split"_s, -500, {.is_split = true});
    openAccount();
    click(0, Memo);
    QVERIFY(editor());
    for (const int column : {Payment, Balance}) { // a payment belongs to the split lines
        click(0, column);
        QCOMPARE(editor(), nullptr);
    }
}

PURSEWELL_TEST_MAIN(RegisterKeysTest)
#include "RegisterKeysTest.moc"
