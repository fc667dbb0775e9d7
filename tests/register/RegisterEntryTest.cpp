#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/PreferencesRepository.h"
#include "register/RegisterColumn.h"
#include "register/RegisterFixture.h"
#include "support/DialogAnswer.h"
#include "support/TestSupport.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

// What a typed row becomes in the database, and what the grid shows of it afterwards.
class RegisterEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void refusals_data();
    void refusals();
    void categoryTexts_data();
    void categoryTexts();
    void transferMakesTwoLinkedRows();
    void transferIsWrittenWholeOrNotAtAll();
    void transferTypedOverAStoredRowOnlyRenamesIt();
    void editingOneSideLeavesTheOther();
    void deletingRemovesBothSides();
    void openingBalanceRowIsNeverStored();
    void brokenDateBecomesTodayAndIsKeptForTheNextRow();
    void rowActionsStopShortOfTheOldestWhenNewestFirst();
    void sortingEndsAnEditAndSparesTheOtherRows();
    void switchingTheAccountWhileAnEditorIsOpen();
    void refreshSparesAnOpenEditor();
    void refreshKeepsTheCursorOnItsTransaction();
    void pickedCategoryGivesWayToTypedWords();
    void subcategoryLeftAloneKeepsItsId();
    void headerShowsTheAccount();

private:
    static void sayYes(QDialog *question)
    {
        qobject_cast<QMessageBox *>(question)->button(QMessageBox::Yes)->click();
    }
    void typeRow(const QString &payee, const QString &payment, const QString &deposit = {});

    std::unique_ptr<RegisterFixture> m_fixture;
    QString m_checking;
    QString m_savings;
};

void RegisterEntryTest::init()
{
    m_fixture = std::make_unique<RegisterFixture>();
    m_checking = m_fixture->addAccount(u"Checking"_s);
    m_savings = m_fixture->addAccount(u"Savings 50%1"_s);
}

void RegisterEntryTest::cleanup()
{
    m_fixture.reset();
}

// Into the insertion row, with the date 2/1/2024, and saves it.
void RegisterEntryTest::typeRow(const QString &payee, const QString &payment,
                                const QString &deposit)
{
    RegisterEditBuffers &buffers = m_fixture->model().buffers();
    buffers.date = u"2/1/2024"_s;
    buffers.payee = payee;
    buffers.payment = payment;
    buffers.deposit = deposit;
    m_fixture->screen().commitCurrentRow();
}

void RegisterEntryTest::refusals_data()
{
    QTest::addColumn<QString>("payee");
    QTest::addColumn<QString>("payment");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("windowMessage");

    QTest::newRow("no payee") << u"  "_s << u"5"_s << u"Payee is required"_s << QString();
    QTest::newRow("no amount") << u"Zoo"_s << u" "_s << u"Enter a payment or deposit amount"_s
                               << QString();
    QTest::newRow("unknown account")
        << u"[Transfer] Nowhere"_s << u"5"_s << u"Transfer account not found"_s << QString();
    QTest::newRow("another case is another account")
        << u"[Transfer] savings 50%1"_s << u"5"_s << u"Transfer account not found"_s << QString();
    QTest::newRow("currencies differ")
        << u"[Transfer] Euros"_s << u"5"_s << QString()
        << u"Transfers require both accounts to use the same currency"_s;
}

void RegisterEntryTest::refusals()
{
    QFETCH(QString, payee);
    QFETCH(QString, payment);
    QFETCH(QString, message);
    QFETCH(QString, windowMessage);

    m_fixture->addAccount(u"Euros"_s, u"EUR"_s);
    m_fixture->openAccount(m_checking);
    QSignalSpy windowMessages(&m_fixture->screen(), &RegisterScreen::errorMessage);
    typeRow(payee, payment);
    QCOMPARE(m_fixture->message(), message);
    QCOMPARE(windowMessages.value(0).value(0).toString(), windowMessage);
    QCOMPARE(m_fixture->stored(u"id"_s), QStringList());
    QCOMPARE(m_fixture->model().buffers().payee, payee); // nothing typed is lost
    QVERIFY(!m_fixture->view().currentIndex().isValid());
}

void RegisterEntryTest::categoryTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("parent");

    QTest::newRow("top level") << u" Groceries "_s << u"Groceries"_s << QString();
    QTest::newRow("bare name of a child") << u"Electric"_s << u"Electric"_s << u"Utilities"_s;
    QTest::newRow("path") << u"Utilities > Electric"_s << u"Electric"_s << u"Utilities"_s;
    QTest::newRow("path below an unknown parent")
        << u"Home > Water"_s << u"Water"_s << u"Utilities"_s;
    QTest::newRow("unknown") << u"Elektric %1"_s << QString() << QString();
    QTest::newRow("case matters") << u"groceries"_s << QString() << QString();
}

void RegisterEntryTest::categoryTexts()
{
    QFETCH(QString, text);
    QFETCH(QString, name);
    QFETCH(QString, parent);

    m_fixture->openAccount(m_checking);
    m_fixture->model().buffers().category = text;
    typeRow(u"Zoo"_s, u"5"_s);
    const QString id = name.isEmpty() ? QString() : m_fixture->categoryId(name, parent);
    QCOMPARE(m_fixture->stored(u"category_id"_s), QStringList(id));
}

void RegisterEntryTest::transferMakesTwoLinkedRows()
{
    m_fixture->openAccount(m_checking);
    m_fixture->model().buffers().memo = u"for the car"_s;
    m_fixture->model().buffers().clr = u"c"_s;
    typeRow(u"[Transfer] Savings 50%1"_s, u"250"_s, u"3"_s);

    QCOMPARE(m_fixture->stored(u"date, payee, memo, amount, cleared, reconciled"_s,
                               u"account_id = '%1'"_s.arg(m_checking)),
             QStringList(u"2024-02-01|Transfer to Savings 50%1|for the car|-25000|1|0"_s));
    QCOMPARE(m_fixture->stored(u"date, payee, memo, amount, cleared, reconciled"_s,
                               u"account_id = '%1'"_s.arg(m_savings)),
             QStringList(u"2024-02-01|Transfer from Checking||25000|1|0"_s));
    QCOMPARE(m_fixture->stored(u"count(*)"_s,
                               u"EXISTS (SELECT 1 FROM transactions o WHERE "
                               "o.id = transactions.transfer_link_id "
                               "AND o.transfer_link_id = transactions.id "
                               "AND o.account_id = transactions.transfer_dest_account_id "
                               "AND o.created_at = transactions.created_at)"_s),
             QStringList(u"2"_s));
}

void RegisterEntryTest::transferIsWrittenWholeOrNotAtAll()
{
    m_fixture->run(u"CREATE TRIGGER refuse BEFORE INSERT ON transactions "
                   "WHEN new.payee LIKE 'Transfer to%' BEGIN SELECT RAISE(ABORT, 'full'); END"_s);
    m_fixture->openAccount(m_checking);
    {
        const LogCatcher log;
        typeRow(u"[Transfer] Savings 50%1"_s, u"250"_s);
        QCOMPARE(LogCatcher::warnings().size(), 1);
    }
    QCOMPARE(m_fixture->stored(u"id"_s), QStringList());
    m_fixture->run(u"DROP TRIGGER refuse"_s);
    typeRow(u"[Transfer] Savings 50%1"_s, u"250"_s);
    QCOMPARE(m_fixture->stored(u"id"_s).size(), 2);
}

void RegisterEntryTest::transferTypedOverAStoredRowOnlyRenamesIt()
{
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"Old"_s, -500);
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(0, RegisterColumn::Payee);
    m_fixture->model().buffers().payee = u"[Transfer] Savings 50%1"_s;
    m_fixture->screen().commitCurrentRow();
    QCOMPARE(m_fixture->stored(u"payee, amount, ifnull(transfer_link_id, '')"_s),
             QStringList(u"Transfer to Savings 50%1|-500|"_s));
}

void RegisterEntryTest::editingOneSideLeavesTheOther()
{
    m_fixture->openAccount(m_checking);
    typeRow(u"[Transfer] Savings 50%1"_s, u"250"_s);
    m_fixture->goTo(0, RegisterColumn::Payment);
    m_fixture->model().buffers().payment = u"300"_s;
    m_fixture->screen().commitCurrentRow();
    QCOMPARE(m_fixture->stored(u"amount"_s), QStringList({u"-30000"_s, u"25000"_s}));
}

void RegisterEntryTest::deletingRemovesBothSides()
{
    m_fixture->openAccount(m_checking);
    typeRow(u"[Transfer] Savings 50%1"_s, u"250"_s);
    m_fixture->goTo(0, RegisterColumn::Date);
    const DialogAnswer answer(u"deleteTransactionQuestion"_s, sayYes);
    m_fixture->screen().deleteCurrentRow();
    QCOMPARE(m_fixture->stored(u"id"_s), QStringList());
    QCOMPARE(m_fixture->model().rowCount(), 1);
}

void RegisterEntryTest::openingBalanceRowIsNeverStored()
{
    const QString account = m_fixture->addAccount(u"Old"_s, u"USD"_s, 5000);
    m_fixture->openAccount(account);
    QCOMPARE(m_fixture->shown(0, RegisterColumn::Payee), u"Opening Balance"_s);
    m_fixture->goTo(0, RegisterColumn::Deposit);
    m_fixture->model().buffers().deposit = u"9"_s;
    m_fixture->screen().commitCurrentRow();
    QCOMPARE(m_fixture->shown(0, RegisterColumn::Deposit), u"50.00"_s);
    m_fixture->goTo(0, RegisterColumn::Deposit);
    const DialogAnswer answer(u"deleteTransactionQuestion"_s, sayYes);
    m_fixture->screen().deleteCurrentRow();
    QCOMPARE(m_fixture->shown(0, RegisterColumn::Balance), u"50.00"_s);
    QCOMPARE(m_fixture->stored(u"id"_s), QStringList());
}

void RegisterEntryTest::brokenDateBecomesTodayAndIsKeptForTheNextRow()
{
    m_fixture->openAccount(m_checking);
    typeRow(u"Zoo"_s, u"5"_s);
    m_fixture->model().buffers().payee = u"Zoo"_s;
    m_fixture->model().buffers().payment = u"5"_s;
    m_fixture->model().buffers().date = u"2/30/2024"_s;
    m_fixture->screen().commitCurrentRow();
    QCOMPARE(m_fixture->stored(u"date"_s).last(), QDate::currentDate().toString(Qt::ISODate));
    QCOMPARE(m_fixture->shown(2, RegisterColumn::Date), u"2/30/2024"_s);
}

void RegisterEntryTest::rowActionsStopShortOfTheOldestWhenNewestFirst()
{
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"Oldest"_s, -500);
    m_fixture->addTransaction(m_checking, u"2024-01-06"_s, u"Newest"_s, -600);
    m_fixture->openAccount(m_checking);
    m_fixture->state().preferences()->setBool(u"registerNewestFirst"_s, true);
    QCOMPARE(m_fixture->shown(2, RegisterColumn::Payee), u"Oldest"_s);
    m_fixture->goTo(2, RegisterColumn::Date);
    m_fixture->screen().deleteCurrentRow(); // asks nothing, so it cannot hang
    QCOMPARE(m_fixture->stored(u"id"_s).size(), 2);
    m_fixture->goTo(1, RegisterColumn::Date);
    const DialogAnswer answer(u"deleteTransactionQuestion"_s, sayYes);
    m_fixture->screen().deleteCurrentRow();
    QCOMPARE(m_fixture->stored(u"payee"_s), QStringList(u"Oldest"_s));
}

void RegisterEntryTest::sortingEndsAnEditAndSparesTheOtherRows()
{
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"Beta"_s, -500);
    m_fixture->addTransaction(m_checking, u"2024-01-06"_s, u"Alpha"_s, -600);
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(0, RegisterColumn::Payee);
    m_fixture->press(Qt::Key_F2);
    m_fixture->type(u"Gamma"_s);
    m_fixture->view().sortByColumn(RegisterColumn::Payee, Qt::AscendingOrder);
    m_fixture->press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(m_fixture->stored(u"payee, amount"_s), QStringList({u"Beta|-500"_s, u"Alpha|-600"_s}));
}

void RegisterEntryTest::switchingTheAccountWhileAnEditorIsOpen()
{
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"In checking"_s, -500);
    m_fixture->addTransaction(m_savings, u"2024-01-06"_s, u"In savings"_s, -600);
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(0, RegisterColumn::Payee);
    m_fixture->press(Qt::Key_F2);
    m_fixture->type(u"Changed"_s);
    m_fixture->screen().setAccount(m_savings);
    QCOMPARE(m_fixture->shown(0, RegisterColumn::Payee), u"In savings"_s);
    QCOMPARE(m_fixture->editor(), nullptr);
    typeRow(u"New"_s, u"1"_s);
    QCOMPARE(m_fixture->stored(u"payee, amount"_s, u"account_id = '%1'"_s.arg(m_checking)),
             QStringList(u"In checking|-500"_s));
    QCOMPARE(m_fixture->stored(u"payee"_s, u"account_id = '%1'"_s.arg(m_savings)),
             QStringList({u"In savings"_s, u"New"_s}));
}

void RegisterEntryTest::refreshSparesAnOpenEditor()
{
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(0, RegisterColumn::Memo);
    m_fixture->press(Qt::Key_F2);
    m_fixture->type(u"half typed"_s);
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"From elsewhere"_s, -500);
    m_fixture->screen().refresh();
    QCOMPARE(m_fixture->editorText(), u"half typed"_s);
    QCOMPARE(m_fixture->model().rowCount(), 1);
    m_fixture->press(Qt::Key_Escape);
    m_fixture->screen().refresh();
    QCOMPARE(m_fixture->model().rowCount(), 2);
}

void RegisterEntryTest::refreshKeepsTheCursorOnItsTransaction()
{
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"First"_s, -500);
    m_fixture->addTransaction(m_checking, u"2024-01-07"_s, u"Third"_s, -500);
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(1, RegisterColumn::Memo);
    m_fixture->addTransaction(m_checking, u"2024-01-06"_s, u"Second"_s, -500);
    m_fixture->screen().refresh();
    QCOMPARE(m_fixture->view().currentIndex(), m_fixture->model().index(2, RegisterColumn::Memo));
    QCOMPARE(m_fixture->model().editRow(), 2);
    m_fixture->run(u"UPDATE transactions SET deleted_at = '2024-02-01T00:00:00Z' "
                   "WHERE payee <> 'First'"_s);
    m_fixture->screen().refresh();
    QCOMPARE(m_fixture->view().currentIndex().row(), 1); // the last row there is
}

void RegisterEntryTest::pickedCategoryGivesWayToTypedWords()
{
    const QString groceries = m_fixture->categoryId(u"Groceries"_s);
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"A"_s, -1, {.category_id = groceries});
    m_fixture->addTransaction(m_checking, u"2024-01-06"_s, u"B"_s, -1, {.category_id = groceries});
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(0, RegisterColumn::Category);
    m_fixture->press(Qt::Key_F2);
    m_fixture->press(Qt::Key_Delete); // the whole text is selected
    m_fixture->press(Qt::Key_Return, Qt::ControlModifier);
    m_fixture->goTo(1, RegisterColumn::Category);
    m_fixture->press(Qt::Key_F2);
    m_fixture->type(u"Pets"_s);
    QTRY_VERIFY(QApplication::activePopupWidget());
    m_fixture->press(Qt::Key_Tab); // nothing highlighted: the words stay as typed
    m_fixture->press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(m_fixture->stored(u"category_id"_s),
             QStringList({QString(), m_fixture->categoryId(u"Pets"_s)}));
}

void RegisterEntryTest::subcategoryLeftAloneKeepsItsId()
{
    for (const QString &parent : {u"Housing"_s, u"Transportation"_s}) {
        m_fixture->addTransaction(m_checking, u"2024-01-05"_s, parent, -1,
                                  {.category_id = m_fixture->categoryId(u"Maintenance"_s, parent)});
    }
    const QStringList before = m_fixture->stored(u"payee, category_id"_s);
    m_fixture->openAccount(m_checking);
    for (const int row : {0, 1}) {
        m_fixture->goTo(row, RegisterColumn::Category);
        m_fixture->press(Qt::Key_F2);
        QCOMPARE(m_fixture->editorText(), u"Maintenance"_s);
        m_fixture->press(Qt::Key_Return);
        m_fixture->press(Qt::Key_Return, Qt::ControlModifier);
    }
    QCOMPARE(m_fixture->stored(u"payee, category_id"_s), before);
}

void RegisterEntryTest::headerShowsTheAccount()
{
    const QString account = m_fixture->addAccount(u"<i>Yen</i>"_s, u"JPY"_s, -1200);
    Account record = *m_fixture->state().accounts()->findById(account);
    record.institution = u"Bank & %1"_s;
    record.account_number_last4 = u"0042"_s;
    m_fixture->state().accounts()->update(record);
    m_fixture->openAccount(account);
    const auto text = [this](const QString &name) {
        return m_fixture->screen().findChild<QLabel *>(name)->text();
    };
    QCOMPARE(text(u"titleLabel"_s), u"<i>Yen</i>"_s);
    QCOMPARE(text(u"subtitleLabel"_s), u"Bank & %1  ·  *0042"_s);
    QCOMPARE(text(u"balanceLabel"_s), u"-¥1,200"_s);
    m_fixture->openAccount(m_checking);
    QVERIFY(m_fixture->screen().findChild<QLabel *>(u"subtitleLabel"_s)->isHidden());
    QCOMPARE(text(u"balanceLabel"_s), u"$0.00"_s);
}

PURSEWELL_TEST_MAIN(RegisterEntryTest)
#include "RegisterEntryTest.moc"
