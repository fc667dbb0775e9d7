#include "register/RegisterFixture.h"

#include <QLabel>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace RegisterColumn;

// What a typed row becomes in the database, and what the grid shows of it afterwards.
class RegisterEntryTest : public RegisterFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void refusals_data();
    void refusals();
    void categoryTexts_data();
    void categoryTexts();
    void transferMakesTwoRows();
    void transferIsWrittenWholeOrNotAtAll();
    void transferTypedOverAStoredRowOnlyRenamesIt();
    void openingBalanceRowIsNeverStored();
    void brokenDateBecomesTodayAndIsKeptForTheNextRow();
    void rowActionsStopShortOfTheOldestWhenNewestFirst();
    void sortingEndsAnEditAndSparesTheOtherRows();
    void switchingTheAccountWhileAnEditorIsOpen();
    void refreshSparesAnOpenEditorAndKeepsThePlace();
    void pickedCategoryGivesWayToTypedWords();
    void subcategoryLeftAloneKeepsItsId();
    void headerShowsTheAccount();

private:
    // Into the insertion row, and saves it.
    void typeRow(const RegisterEditBuffers &typed)
    {
        model().buffers() = typed;
        screen().commitCurrentRow();
    }
    QString storedIn(const QString &accountId, const QString &columns)
    {
        return stored(columns, u"account_id = '%1'"_s.arg(accountId));
    }
    QString m_savings;
};

void RegisterEntryTest::init()
{
    RegisterFixture::init();
    m_savings = addAccount(u"Savings 50%1"_s);
}

void RegisterEntryTest::refusals_data()
{
    QTest::addColumn<QString>("payee");
    QTest::addColumn<QString>("payment");
    QTest::addColumn<QString>("told"); // below the grid, or else to the window
    QTest::newRow("no payee") << u"  "_s << u"5"_s << u"Payee is required|"_s;
    QTest::newRow("no amount") << u"Zoo"_s << u" "_s << u"Enter a payment or deposit amount|"_s;
    const QString notFound = u"Transfer account not found|"_s;
    QTest::newRow("unknown account") << u"[Transfer] Nowhere"_s << u"5"_s << notFound;
    QTest::newRow("other case") << u"[Transfer] savings 50%1"_s << u"5"_s << notFound;
    const QString differ = u"|Transfers require both accounts to use the same currency"_s;
    QTest::newRow("currencies differ") << u"[Transfer] Euros"_s << u"5"_s << differ;
}

void RegisterEntryTest::refusals()
{
    QFETCH(QString, payee);
    QFETCH(QString, payment);
    QFETCH(QString, told);
    addAccount(u"Euros"_s, {.currency = Currency::EUR});
    openAccount();
    QSignalSpy windowMessages(&screen(), &RegisterScreen::errorMessage);
    typeRow({.payee = payee, .payment = payment});
    QCOMPARE(message() + u'|' + windowMessages.value(0).value(0).toString(), told);
    QCOMPARE(stored(u"id"_s), QString());
    QCOMPARE(model().buffers().payee, payee); // nothing typed is lost
    QVERIFY(!view().currentIndex().isValid());
}

void RegisterEntryTest::categoryTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("parent");
    QTest::newRow("top level") << u" Groceries "_s << u"Groceries"_s << QString();
    QTest::newRow("child") << u"Electric"_s << u"Electric"_s << u"Utilities"_s;
    QTest::newRow("path") << u"Utilities > Electric"_s << u"Electric"_s << u"Utilities"_s;
    QTest::newRow("unknown parent") << u"Home > Water"_s << u"Water"_s << u"Utilities"_s;
    QTest::newRow("unknown") << u"Elektric %1"_s << QString() << QString();
    QTest::newRow("case matters") << u"groceries"_s << QString() << QString();
}

void RegisterEntryTest::categoryTexts()
{
    QFETCH(QString, text);
    QFETCH(QString, name);
    QFETCH(QString, parent);
    openAccount();
    typeRow({.payee = u"Zoo"_s, .category = text, .payment = u"5"_s});
    QCOMPARE(stored(u"payee, category_id"_s), u"Zoo|"_s + categoryId(name, parent));
}

void RegisterEntryTest::transferMakesTwoRows()
{
    openAccount();
    typeRow({.date = u"2/1/2024"_s,
             .payee = u"[Transfer] Savings 50%1"_s,
             .memo = u"for the car"_s,
             .payment = u"250"_s,
             .deposit = u"3"_s,
             .clr = u"c"_s});
    const QString columns = u"date, payee, memo, amount, cleared, reconciled"_s;
    QCOMPARE(storedIn(m_checking, columns),
             u"2024-02-01|Transfer to Savings 50%1|for the car|-25000|1|0"_s);
    QCOMPARE(storedIn(m_savings, columns), u"2024-02-01|Transfer from Checking||25000|1|0"_s);
    QCOMPARE(stored(u"EXISTS (SELECT 1 FROM transactions f WHERE f.transfer_link_id = "
                    "transactions.id AND f.transfer_dest_account_id = transactions.account_id)"_s),
             u"1; 1"_s);
    goTo(0, Payment);
    model().buffers().payment = u"300"_s;
    screen().commitCurrentRow();
    QCOMPARE(stored(u"amount"_s), u"-30000; 25000"_s); // the other side is the other account's
}

void RegisterEntryTest::transferIsWrittenWholeOrNotAtAll()
{
    run(refusing(u"INSERT ON transactions WHEN new.payee LIKE 'Transfer to%'"_s));
    const RegisterEditBuffers transfer{.payee = u"[Transfer] Savings 50%1"_s, .payment = u"250"_s};
    openAccount();
    {
        const LogCatcher log;
        typeRow(transfer);
        QCOMPARE(LogCatcher::warnings().size(), 1);
    }
    QCOMPARE(stored(u"id"_s), QString());
    run(u"DROP TRIGGER refusing"_s);
    typeRow(transfer);
    QCOMPARE(stored(u"count(*)"_s), u"2"_s);
}

void RegisterEntryTest::transferTypedOverAStoredRowOnlyRenamesIt()
{
    addTransaction(u"2024-01-05"_s, u"Old"_s, -500);
    openAccount();
    goTo(0, Payee);
    model().buffers().payee = u"[Transfer] Savings 50%1"_s;
    screen().commitCurrentRow();
    QCOMPARE(stored(u"payee, amount, transfer_link_id"_s), u"Transfer to Savings 50%1|-500|"_s);
}

void RegisterEntryTest::openingBalanceRowIsNeverStored()
{
    openAccount(addAccount(u"Old"_s, {.starting_balance = 5000}));
    QCOMPARE(shown(0, Payee), u"Opening Balance"_s);
    goTo(0, Deposit);
    model().buffers().deposit = u"9"_s;
    screen().commitCurrentRow();
    QCOMPARE(shown(0, Deposit), u"50.00"_s);
    goTo(0, Deposit);
    answering(QMessageBox::Yes, [this] { screen().deleteCurrentRow(); });
    QCOMPARE(shown(0, Balance), u"50.00"_s);
    QCOMPARE(stored(u"id"_s), QString());
}

void RegisterEntryTest::brokenDateBecomesTodayAndIsKeptForTheNextRow()
{
    openAccount();
    typeRow({.date = u"2/30/2024"_s, .payee = u"Zoo"_s, .payment = u"5"_s});
    QCOMPARE(stored(u"date"_s), QDate::currentDate().toString(Qt::ISODate));
    QCOMPARE(shown(1, Date), u"2/30/2024"_s);
}

void RegisterEntryTest::rowActionsStopShortOfTheOldestWhenNewestFirst()
{
    addTransaction(u"2024-01-05"_s, u"Oldest"_s, -500);
    addTransaction(u"2024-01-06"_s, u"Newest"_s, -600);
    openAccount();
    setPreference(u"registerNewestFirst"_s, true);
    for (const int row : {2, 1}) {
        goTo(row, Date);
        answering(QMessageBox::Yes, [this] { screen().deleteCurrentRow(); });
    }
    QCOMPARE(stored(u"payee"_s), u"Oldest"_s);
}

void RegisterEntryTest::sortingEndsAnEditAndSparesTheOtherRows()
{
    addTransaction(u"2024-01-05"_s, u"Beta"_s, -500);
    addTransaction(u"2024-01-06"_s, u"Alpha"_s, -600);
    openAccount();
    edit(0, Payee, u"Gamma"_s);
    view().sortByColumn(Payee, Qt::AscendingOrder);
    save();
    QCOMPARE(stored(u"payee, amount"_s), u"Beta|-500; Alpha|-600"_s);
}

void RegisterEntryTest::switchingTheAccountWhileAnEditorIsOpen()
{
    addTransaction(u"2024-01-05"_s, u"In checking"_s, -500);
    addTransaction(u"2024-01-06"_s, u"In savings"_s, -600, {.account_id = m_savings});
    openAccount();
    edit(0, Payee, u"Changed"_s);
    screen().setAccount(m_savings);
    QCOMPARE(shown(0, Payee), u"In savings"_s);
    QCOMPARE(editor(), nullptr);
    typeRow({.payee = u"New"_s, .payment = u"1"_s});
    QCOMPARE(storedIn(m_checking, u"payee, amount"_s), u"In checking|-500"_s);
    QCOMPARE(storedIn(m_savings, u"payee"_s), u"In savings; New"_s);
}

void RegisterEntryTest::refreshSparesAnOpenEditorAndKeepsThePlace()
{
    addTransaction(u"2024-01-05"_s, u"First"_s, -500);
    addTransaction(u"2024-01-07"_s, u"Third"_s, -500);
    openAccount();
    edit(1, Memo, u"half typed"_s);
    addTransaction(u"2024-01-06"_s, u"Second"_s, -500);
    screen().refresh();
    QCOMPARE(editorText(), u"half typed"_s);
    QCOMPARE(model().rowCount(), 3);
    press(Qt::Key_Escape);
    screen().refresh();
    QCOMPARE(view().currentIndex(), model().index(2, Memo));
    QCOMPARE(model().editRow(), 2);
    run(u"UPDATE transactions SET deleted_at = '2024-02-01T00:00:00Z' WHERE payee <> 'First'"_s);
    screen().refresh();
    QCOMPARE(view().currentIndex().row(), 1); // the last row there is
}

void RegisterEntryTest::pickedCategoryGivesWayToTypedWords()
{
    const QString groceries = categoryId(u"Groceries"_s);
    addTransaction(u"2024-01-05"_s, u"A"_s, -1, {.category_id = groceries});
    addTransaction(u"2024-01-06"_s, u"B"_s, -1, {.category_id = groceries});
    openAccount();
    edit(0, Category);
    press(Qt::Key_Delete); // the whole text is selected
    save();
    edit(1, Category, u"Pets"_s);
    QTRY_VERIFY(QApplication::activePopupWidget());
    press(Qt::Key_Tab); // nothing highlighted: the words stay as typed
    save();
    QCOMPARE(stored(u"category_id"_s), u"; "_s + categoryId(u"Pets"_s));
}

void RegisterEntryTest::subcategoryLeftAloneKeepsItsId()
{
    for (const QString &parent : {u"Housing"_s, u"Transportation"_s})
        addTransaction(u"2024-01-05"_s, parent, -1,
                       {.category_id = categoryId(u"Maintenance"_s, parent)});
    // The same bare name at the top of the tree, where the editor's list finds it at once.
    run(u"UPDATE categories SET name = 'Maintenance' WHERE name = 'Groceries'"_s);
    const QString before = stored(u"payee, category_id"_s);
    openAccount();
    for (const int row : {0, 1}) {
        edit(row, Category);
        QCOMPARE(editorText(), u"Maintenance"_s);
        press(Qt::Key_Return);
        save();
    }
    QCOMPARE(stored(u"payee, category_id"_s), before);
}

void RegisterEntryTest::headerShowsTheAccount()
{
    const auto texts = [this] {
        QStringList all;
        for (const QString &name : {u"titleLabel"_s, u"subtitleLabel"_s, u"balanceLabel"_s})
            all << screen().findChild<QLabel *>(name)->text();
        return all.join(u'|');
    };
    openAccount(addAccount(u"<i>Yen</i>"_s,
                           {.currency = Currency::JPY,
                            .institution = u"Bank & %1"_s,
                            .account_number_last4 = u"0042"_s,
                            .starting_balance = -12}));
    QCOMPARE(texts(), u"<i>Yen</i>|Bank & %1  ·  *0042|-¥12"_s);
    openAccount();
    QCOMPARE(texts(), u"Checking||$0.00"_s);
}

PURSEWELL_TEST_MAIN(RegisterEntryTest)
#include "RegisterEntryTest.moc"
