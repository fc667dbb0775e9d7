#include "register/RegisterFixture.h"

#include <QAccessible>

using namespace Qt::StringLiterals;

namespace {

QString spokenName(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object)->text(QAccessible::Name);
}

} // namespace

// What a screen reader says of the grid.
class RegisterSpeechTest : public RegisterFixture
{
    Q_OBJECT

private Q_SLOTS:
    void cellsSpeak_data();
    void cellsSpeak();
    void editorsNameTheirColumn_data();
    void editorsNameTheirColumn();

private:
    void openThreeRows();
};

void RegisterSpeechTest::openThreeRows()
{
    addTransaction(u"2026-03-14"_s, u"Grocer"_s, -1250, {.memo = u"weekly"_s});
    addTransaction(u"2026-03-15"_s, u"Employer"_s, 99900, {.cleared = true});
    addTransaction(u"2026-03-16"_s, u"Landlord"_s, -80000, {.cleared = true, .reconciled = true});
    openAccount();
}

void RegisterSpeechTest::cellsSpeak_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("name");

    QTest::newRow("date") << 0 << RegisterColumn::Date << u"3/14/2026"_s;
    QTest::newRow("amount") << 0 << RegisterColumn::Payment << u"12.50"_s;
    QTest::newRow("no sign") << 0 << RegisterColumn::Clr << u"Uncleared"_s;
    QTest::newRow("C") << 1 << RegisterColumn::Clr << u"Cleared"_s;
    QTest::newRow("R, under edit") << 2 << RegisterColumn::Clr << u"Reconciled"_s;
    QTest::newRow("to be typed") << 3 << RegisterColumn::Payee << u"New transaction, Payee"_s;
    QTest::newRow("typed") << 3 << RegisterColumn::Memo << u"New transaction, Memo: for %1"_s;
}

void RegisterSpeechTest::cellsSpeak()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(QString, name);
    openThreeRows();
    edit(3, RegisterColumn::Memo, u"for %1"_s);
    press(Qt::Key_Tab);
    if (row == 2)
        goTo(row, RegisterColumn::Date); // its texts are now those of the edit
    QAccessibleTableInterface *table =
        QAccessible::queryAccessibleInterface(&view())->tableInterface();
    QCOMPARE(table->cellAt(row, column)->text(QAccessible::Name), name);
}

void RegisterSpeechTest::editorsNameTheirColumn_data()
{
    QTest::addColumn<bool>("twoLines");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("one line") << false
                              << QStringList{u"Date"_s,     u"Check number"_s, u"Payee"_s,
                                             u"Category"_s, u"Memo"_s,         u"Payment"_s,
                                             u"Deposit"_s,  u"Cleared"_s};
    QTest::newRow("two lines") << true << QStringList{u"Date"_s,    u"Check number"_s, u"Payee"_s,
                                                      u"Memo"_s,    u"Category"_s,     u"Payment"_s,
                                                      u"Deposit"_s, u"Cleared"_s};
}

void RegisterSpeechTest::editorsNameTheirColumn()
{
    QFETCH(bool, twoLines);
    QFETCH(QStringList, names);
    setPreference(u"registerTwoLine"_s, twoLines);
    openThreeRows();
    const QModelIndex payee = model().index(0, RegisterColumn::Payee);
    QCOMPARE(payee.data(Qt::AccessibleDescriptionRole).toString(),
             twoLines ? u"weekly"_s : QString()); // the memo has no cell of its own then
    goTo(3, RegisterColumn::Date);
    press(Qt::Key_F2);
    QStringList spoken;
    for (qsizetype i = 0; i < names.size(); ++i) {
        spoken << spokenName(QApplication::focusWidget());
        press(Qt::Key_Tab);
    }
    QCOMPARE(spoken, names);
}

PURSEWELL_TEST_MAIN(RegisterSpeechTest)
#include "RegisterSpeechTest.moc"
