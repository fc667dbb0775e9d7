#include "core/state/AppState.h"
#include "data/PreferencesRepository.h"
#include "register/PayeeMemoEditor.h"
#include "register/RegisterColumn.h"
#include "register/RegisterDelegate.h"
#include "register/RegisterFixture.h"
#include "register/RegisterLineEdit.h"
#include "support/TestSupport.h"

#include <QApplication>
#include <QHeaderView>
#include <QTest>

using namespace Qt::StringLiterals;

// The register with the memo under the payee, and the editor that holds both.
class RegisterTwoLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void layoutFollowsThePreference();
    void tabWalksThroughTheMemoLine();
    void shiftTabComesBackToTheMemoLine();
    void completionByTabLandsInTheMemo_data();
    void completionByTabLandsInTheMemo();
    void knownPayeePutsItsMemoOverTheTypedOne();
    void enterSkipsTheHiddenMemoColumn();
    void leavingTheMemoLineOpensNothing_data();
    void leavingTheMemoLineOpensNothing();
    void switchingTheAccountFromTheMemoLine();
    void paintsTheMemoUnderThePayee();

private:
    QString focusedName() const { return QApplication::focusWidget()->objectName(); }

    std::unique_ptr<RegisterFixture> m_fixture;
    QString m_checking;
};

void RegisterTwoLineTest::init()
{
    m_fixture = std::make_unique<RegisterFixture>();
    m_checking = m_fixture->addAccount(u"Checking"_s);
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"City Electric"_s, -5000,
                              {.memo = u"winter"_s});
    m_fixture->state().preferences()->setBool(u"registerTwoLine"_s, true);
    m_fixture->openAccount(m_checking);
}

void RegisterTwoLineTest::cleanup()
{
    m_fixture.reset();
}

void RegisterTwoLineTest::layoutFollowsThePreference()
{
    const auto payeeHeader = [this] {
        return m_fixture->model().headerData(RegisterColumn::Payee, Qt::Horizontal).toString();
    };
    QVERIFY(m_fixture->view().isColumnHidden(RegisterColumn::Memo));
    QCOMPARE(m_fixture->view().rowHeight(0), 52);
    QCOMPARE(payeeHeader(), u"Payee / Memo"_s);
    m_fixture->state().preferences()->setBool(u"registerTwoLine"_s, false);
    m_fixture->screen().refresh();
    QVERIFY(!m_fixture->view().isColumnHidden(RegisterColumn::Memo));
    QCOMPARE(m_fixture->view().rowHeight(0), 36);
    QCOMPARE(payeeHeader(), u"Payee"_s);
}

void RegisterTwoLineTest::tabWalksThroughTheMemoLine()
{
    m_fixture->goTo(1, RegisterColumn::Payee);
    m_fixture->press(Qt::Key_F2);
    QCOMPARE(focusedName(), u"payeeEdit"_s);
    m_fixture->type(u"Zoo"_s);
    m_fixture->press(Qt::Key_Tab);
    QCOMPARE(focusedName(), u"memoEdit"_s);
    m_fixture->type(u"two tickets"_s);
    m_fixture->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(focusedName(), u"payeeEdit"_s);
    m_fixture->press(Qt::Key_Tab);
    m_fixture->press(Qt::Key_Tab);
    QCOMPARE(m_fixture->view().currentIndex().column(), RegisterColumn::Category);
    QVERIFY(m_fixture->editor());
    m_fixture->press(Qt::Key_Tab);
    QCOMPARE(m_fixture->view().currentIndex().column(), RegisterColumn::Payment);
    m_fixture->type(u"30"_s);
    m_fixture->press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(m_fixture->stored(u"payee, memo, amount"_s, u"payee = 'Zoo'"_s),
             QStringList(u"Zoo|two tickets|-3000"_s));
}

void RegisterTwoLineTest::shiftTabComesBackToTheMemoLine()
{
    m_fixture->goTo(0, RegisterColumn::Category);
    m_fixture->press(Qt::Key_F2);
    m_fixture->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(focusedName(), u"memoEdit"_s);
    QCOMPARE(m_fixture->editorText(), u"winter"_s);
    m_fixture->press(Qt::Key_Backtab, Qt::ShiftModifier);
    m_fixture->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(m_fixture->view().currentIndex().column(), RegisterColumn::CheckNumber);
    QVERIFY(m_fixture->editor());
}

void RegisterTwoLineTest::completionByTabLandsInTheMemo_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Tab") << int(Qt::Key_Tab);
    QTest::newRow("Shift+Tab") << int(Qt::Key_Backtab);
}

void RegisterTwoLineTest::completionByTabLandsInTheMemo()
{
    QFETCH(int, key);
    m_fixture->goTo(1, RegisterColumn::Payee);
    m_fixture->press(Qt::Key_F2);
    m_fixture->type(u"elec"_s);
    QTRY_VERIFY(QApplication::activePopupWidget());
    m_fixture->press(Qt::Key_Down);
    m_fixture->press(Qt::Key(key));
    QCOMPARE(focusedName(), u"memoEdit"_s);
    QCOMPARE(m_fixture->editorText(), u"winter"_s); // of the payee's last transaction, at once
    QCOMPARE(m_fixture->shown(1, RegisterColumn::Payment), u"50.00"_s);
}

void RegisterTwoLineTest::knownPayeePutsItsMemoOverTheTypedOne()
{
    m_fixture->goTo(1, RegisterColumn::Payee);
    m_fixture->press(Qt::Key_F2);
    m_fixture->type(u"City Electric"_s);
    if (QApplication::activePopupWidget())
        m_fixture->press(Qt::Key_Escape);
    m_fixture->press(Qt::Key_Tab);
    m_fixture->type(u"spring"_s);
    m_fixture->press(Qt::Key_Return);
    QCOMPARE(m_fixture->model().buffers().memo, u"winter"_s);

    m_fixture->goTo(0, RegisterColumn::Payee); // a stored row is filled from nothing
    m_fixture->press(Qt::Key_F2);
    m_fixture->press(Qt::Key_Tab);
    QTest::keyClick(m_fixture->screen().windowHandle(), Qt::Key_A, Qt::ControlModifier);
    m_fixture->type(u"spring"_s);
    m_fixture->press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(m_fixture->stored(u"memo"_s), QStringList(u"spring"_s));
}

void RegisterTwoLineTest::enterSkipsTheHiddenMemoColumn()
{
    m_fixture->goTo(1, RegisterColumn::Category);
    m_fixture->press(Qt::Key_F2);
    m_fixture->press(Qt::Key_Return);
    QCOMPARE(m_fixture->view().currentIndex().column(), RegisterColumn::Payment);
}

void RegisterTwoLineTest::leavingTheMemoLineOpensNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("endsInRow");
    QTest::newRow("Escape") << int(Qt::Key_Escape) << 1;
    QTest::newRow("Up") << int(Qt::Key_Up) << 0;
}

void RegisterTwoLineTest::leavingTheMemoLineOpensNothing()
{
    QFETCH(int, key);
    QFETCH(int, endsInRow);
    m_fixture->goTo(1, RegisterColumn::Payee);
    m_fixture->press(Qt::Key_F2);
    m_fixture->press(Qt::Key_Tab);
    m_fixture->press(Qt::Key(key));
    QCOMPARE(m_fixture->view().currentIndex(),
             m_fixture->model().index(endsInRow, RegisterColumn::Payee));
    QCOMPARE(m_fixture->editor(), nullptr);
    QVERIFY(m_fixture->view().hasFocus());
}

void RegisterTwoLineTest::switchingTheAccountFromTheMemoLine()
{
    const QString other = m_fixture->addAccount(u"Other"_s);
    m_fixture->goTo(0, RegisterColumn::Payee);
    m_fixture->press(Qt::Key_F2);
    m_fixture->press(Qt::Key_Tab);
    m_fixture->type(u"typed"_s);
    m_fixture->screen().setAccount(other);
    QCOMPARE(m_fixture->model().rowCount(), 1);
    QCOMPARE(m_fixture->editor(), nullptr);
    QCOMPARE(m_fixture->model().buffers().memo, QString());
}

void RegisterTwoLineTest::paintsTheMemoUnderThePayee()
{
    const QRect cell =
        m_fixture->view().visualRect(m_fixture->model().index(0, RegisterColumn::Payee));
    const QRect band(cell.left() + 1, cell.top() + RegisterDelegate::kRowHeight + 1,
                     cell.width() - 2, cell.height() - RegisterDelegate::kRowHeight - 2);
    const auto inkIn = [this](const QRect &place) {
        const QImage picture = m_fixture->view().viewport()->grab(place).toImage();
        int ink = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                ink += picture.pixel(x, y) != picture.pixel(0, 0) ? 1 : 0;
        }
        return ink;
    };
    QVERIFY(inkIn(band) > 0);
    m_fixture->run(u"UPDATE transactions SET memo = ''"_s);
    m_fixture->screen().refresh();
    QCOMPARE(inkIn(band), 0);
}

PURSEWELL_TEST_MAIN(RegisterTwoLineTest)
#include "RegisterTwoLineTest.moc"
