#include "register/AccountFormDialog.h"
#include "core/Dates.h"
#include "support/SampleRecords.h"
#include "support/TestSupport.h"

#include <QCalendarWidget>
#include <QDoubleSpinBox>
#include <QTest>

using namespace Qt::StringLiterals;

class AccountFormDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newAccountFromTheKeyboard();
    void balanceBecomesMinorUnits();
    void editKeepsWhatTheFormCannotShow();
};

void AccountFormDialogTest::newAccountFromTheKeyboard()
{
    weekStart() = Qt::Saturday;
    AccountFormDialog dialog;
    for (const auto &[field, text] :
         {std::pair{u"nameEdit"_s, u" Visa %1 "_s}, std::pair{u"typeCombo"_s, u"cre"_s},
          std::pair{u"currencyCombo"_s, u"eur"_s}, std::pair{u"institutionEdit"_s, u" Bank & Co"_s},
          std::pair{u"numberEdit"_s, u"12345"_s}})
        QTest::keyClicks(dialog.findChild<QWidget *>(field), text);
    QCOMPARE(dialog.startDate(), QDate::currentDate());
    QCOMPARE(dialog.findChild<QCalendarWidget *>()->firstDayOfWeek(), Qt::Saturday);
    const Account account = dialog.account();
    QCOMPARE(account.name, u"Visa %1"_s);
    QCOMPARE(account.account_type, AccountType::CreditCard);
    QCOMPARE(account.currency, Currency::EUR);
    QCOMPARE(account.institution, u"Bank & Co"_s);
    QCOMPARE(account.account_number_last4, u"1234"_s);
    QCOMPARE(account.id.size(), 36);
    QVERIFY(account.created_at.isValid());
}

void AccountFormDialogTest::balanceBecomesMinorUnits()
{
    // Cents that no double holds, and one that would be cut to the cent below.
    for (const auto &[shown, stored] :
         {std::pair{0.29, 29LL}, std::pair{1234.57, 123457LL}, std::pair{-0.07, -7LL},
          std::pair{99999999.99, 9999999999LL}}) {
        AccountFormDialog dialog;
        dialog.findChild<QDoubleSpinBox *>(u"balanceSpin"_s)->setValue(shown);
        QCOMPARE(dialog.account().starting_balance, stored);
        QCOMPARE(AccountFormDialog(dialog.account()).account().starting_balance, stored);
    }
}

void AccountFormDialogTest::editKeepsWhatTheFormCannotShow()
{
    Account account = sampleAccount(); // whose balance is beyond the box
    AccountFormDialog dialog(account);
    const Account edited = dialog.account();
    QVERIFY(edited.updated_at > account.updated_at);
    account.updated_at = edited.updated_at;
    account.sync_status = SyncStatus::Pending;
    QVERIFY(edited == account);
    dialog.findChild<QDoubleSpinBox *>(u"balanceSpin"_s)->setValue(1.0);
    QCOMPARE(dialog.account().starting_balance, 100);
}

PURSEWELL_TEST_MAIN(AccountFormDialogTest)
#include "AccountFormDialogTest.moc"
