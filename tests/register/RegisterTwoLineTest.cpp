#include "register/RegisterDelegate.h"
#include "register/RegisterFixture.h"

using namespace Qt::StringLiterals;
using namespace RegisterColumn;

// The register with the memo under the payee, and the editor that holds both.
class RegisterTwoLineTest : public RegisterFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shiftTabComesBackToTheMemoLine();
    void completionByTabLandsInTheMemo();
    void memoOfAKnownPayeeFillsNewRowsOnly();
    void leavingTheMemoLineOpensNothing();
    void switchingTheAccountFromTheMemoLine();
    void paintsTheMemoUnderThePayee();

private:
    QString focusedName() const { return QApplication::focusWidget()->objectName(); }
    void editMemoLine(int row, const QString &payee, const QString &memo = {})
    {
        edit(row, Payee, payee);
        if (QApplication::activePopupWidget())
            press(Qt::Key_Escape);
        press(Qt::Key_Tab);
        press(Qt::Key_A, Qt::ControlModifier);
        type(memo);
    }
};

void RegisterTwoLineTest::init()
{
    RegisterFixture::init();
    addTransaction(u"2024-01-05"_s, u"City Electric"_s, -5000, {.memo = u"winter"_s});
    setPreference(u"registerTwoLine"_s, true);
    openAccount();
}

void RegisterTwoLineTest::shiftTabComesBackToTheMemoLine()
{
    edit(0, Category);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(focusedName(), u"memoEdit"_s);
    QCOMPARE(editorText(), u"winter"_s);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(focusedName(), u"payeeEdit"_s);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(currentColumn(), CheckNumber);
    QVERIFY(editor());
}

void RegisterTwoLineTest::completionByTabLandsInTheMemo()
{
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        screen().setAccount(m_checking); // empties the row
        edit(1, Payee);
        press(Qt::Key_Tab); // and back: the payee's line has lost the focus once
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        type(u"elec"_s);
        QTRY_VERIFY(QApplication::activePopupWidget());
        press(Qt::Key_Down);
        press(key);
        QCOMPARE(focusedName(), u"memoEdit"_s);
        QCOMPARE(editorText(), u"winter"_s); // of the payee's last transaction, at once
        QCOMPARE(shown(1, Payment), u"50.00"_s);
    }
}

void RegisterTwoLineTest::memoOfAKnownPayeeFillsNewRowsOnly()
{
    editMemoLine(1, u"City Electric"_s, u"spring"_s);
    press(Qt::Key_Return);
    QCOMPARE(model().buffers().memo, u"winter"_s);
    editMemoLine(0, u"City Electric"_s, u"spring"_s);
    save();
    QCOMPARE(stored(u"memo"_s), u"spring"_s);
}

void RegisterTwoLineTest::leavingTheMemoLineOpensNothing()
{
    for (const auto &[key, endsInRow] : {std::pair{Qt::Key_Escape, 1}, std::pair{Qt::Key_Up, 0}}) {
        editMemoLine(1, u"Zoo"_s);
        press(key);
        QCOMPARE(view().currentIndex(), model().index(endsInRow, Payee));
        QCOMPARE(editor(), nullptr);
        QVERIFY(view().hasFocus());
    }
}

void RegisterTwoLineTest::switchingTheAccountFromTheMemoLine()
{
    editMemoLine(0, u"Zoo"_s, u"typed"_s);
    screen().setAccount(addAccount(u"Other"_s));
    QCOMPARE(model().rowCount(), 1);
    QCOMPARE(editor(), nullptr);
    QCOMPARE(model().buffers().memo, QString());
}

void RegisterTwoLineTest::paintsTheMemoUnderThePayee()
{
    const QRect secondLine = view()
                                 .visualRect(model().index(0, Payee))
                                 .adjusted(1, RegisterDelegate::kRowHeight + 1, -1, -1);
    const auto picture = [&] { return view().viewport()->grab(secondLine).toImage(); };
    const QImage withMemo = picture();
    run(u"UPDATE transactions SET memo = ''"_s);
    screen().refresh();
    QVERIFY(withMemo != picture());
}

PURSEWELL_TEST_MAIN(RegisterTwoLineTest)
#include "RegisterTwoLineTest.moc"
