#include "register/RegisterFixture.h"
#include "support/DialogAnswer.h"

#include <QSettings>

using namespace Qt::StringLiterals;
using namespace RegisterColumn;

class RegisterColumnLayoutTest : public RegisterFixture
{
    Q_OBJECT

private Q_SLOTS:
    void layoutComesBackInTheNextScreen();
    void storedNonsenseIsPutRight();
    void preferenceSortsAtOnceAndFirst();
    void headerMenuHidesColumnsAndResets();
    void twoLineModeGivesTheMemoColumnBack();

private:
    static std::pair<int, Qt::SortOrder> sortOf(const RegisterScreen &screen)
    {
        const auto *model = screen.findChild<RegisterModel *>();
        return {model->sortColumn(), model->sortOrder()};
    }
    QStringList chooseInHeaderMenu(const QString &text) // returns the entries that are disabled
    {
        return chooseInMenu([this] { screen().showHeaderContextMenu({5, 5}); }, text).value(false);
    }
    void setTwoLineMode(bool enabled)
    {
        setPreference(u"registerTwoLine"_s, enabled);
        screen().refresh();
    }
};

void RegisterColumnLayoutTest::layoutComesBackInTheNextScreen()
{
    view().setColumnWidth(Payee, 333);
    view().sortByColumn(Memo, Qt::DescendingOrder);
    QSettings().setValue(u"register/colHidden/1"_s, true);
    const RegisterScreen next(&state());
    const auto *nextView = next.findChild<RegisterTableView *>();
    QCOMPARE(nextView->columnWidth(Payee), 333);
    QVERIFY(nextView->isColumnHidden(CheckNumber));
    QCOMPARE(sortOf(next), std::pair(Memo, Qt::DescendingOrder));
}

void RegisterColumnLayoutTest::storedNonsenseIsPutRight()
{
    for (const auto &[key, value] : {std::pair{u"colHidden/0"_s, 1}, std::pair{u"colHidden/8"_s, 1},
                                     std::pair{u"sortColumn"_s, 9}, std::pair{u"sortOrder"_s, 1}})
        QSettings().setValue(u"register/"_s + key, value);
    const RegisterScreen next(&state());
    const auto *nextView = next.findChild<RegisterTableView *>();
    QVERIFY(!nextView->isColumnHidden(Date) && !nextView->isColumnHidden(Balance));
    QCOMPARE(sortOf(next), std::pair(Date, Qt::DescendingOrder));
}

void RegisterColumnLayoutTest::preferenceSortsAtOnceAndFirst()
{
    for (const Qt::SortOrder order : {Qt::DescendingOrder, Qt::AscendingOrder}) {
        view().sortByColumn(Payee, Qt::AscendingOrder);
        setPreference(u"registerNewestFirst"_s, order == Qt::DescendingOrder);
        QCOMPARE(sortOf(screen()), std::pair(Date, order));
        QSettings().remove(u"register"_s);
        QCOMPARE(sortOf(RegisterScreen(&state())), std::pair(Date, order));
    }
}

void RegisterColumnLayoutTest::headerMenuHidesColumnsAndResets()
{
    openAccount();
    const int width = view().columnWidth(Payee);
    QCOMPARE(chooseInHeaderMenu(u"Chk #"_s), QStringList({u"Date"_s, u"Balance"_s}));
    QVERIFY(view().isColumnHidden(CheckNumber));
    QVERIFY(QSettings().value(u"register/colHidden/1"_s).toBool());
    QVERIFY(!QSettings().contains(u"register/colWidth/1"_s)); // it comes back as wide as it was
    view().setColumnWidth(Payee, 99);
    chooseInHeaderMenu(u"Reset register layout"_s);
    QVERIFY(!view().isColumnHidden(CheckNumber));
    QCOMPARE(view().columnWidth(Payee), width);
    setTwoLineMode(true);
    QCOMPARE(chooseInHeaderMenu({}), QStringList({u"Date"_s, u"Memo"_s, u"Balance"_s}));
}

void RegisterColumnLayoutTest::twoLineModeGivesTheMemoColumnBack()
{
    openAccount();
    const int width = view().columnWidth(Memo);
    const int height = view().rowHeight(0);
    for (const bool hidden : {true, false}) {
        QSettings().setValue(u"register/colHidden/4"_s, hidden);
        setTwoLineMode(true);
        QVERIFY(view().isColumnHidden(Memo));
        QVERIFY(view().rowHeight(0) > height);
        setTwoLineMode(false);
        QCOMPARE(view().isColumnHidden(Memo), hidden);
        QCOMPARE(view().rowHeight(0), height);
    }
    QCOMPARE(view().columnWidth(Memo), width);
}

PURSEWELL_TEST_MAIN(RegisterColumnLayoutTest)
#include "RegisterColumnLayoutTest.moc"
