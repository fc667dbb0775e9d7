#include "register/AccountFormDialog.h"
#include "core/Dates.h"
#include "support/TestSupport.h"

#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

class AccountFormDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newAccountFromTheKeyboard();
    void balanceBecomesMinorUnits_data();
    void balanceBecomesMinorUnits();
    void editKeepsWhatTheFormDoesNotShow();
    void balanceBeyondTheBoxIsLeftAlone();
};

void AccountFormDialogTest::newAccountFromTheKeyboard()
{
    weekStart() = Qt::Saturday;
    AccountFormDialog dialog;
    QCOMPARE(dialog.windowTitle(), u"New Account"_s);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QWindow *window = dialog.windowHandle();
    const auto type = [window](const QString &text) {
        for (const QChar letter : text)
            QTest::keyClick(window, letter.toLatin1());
        QTest::keyClick(window, Qt::Key_Tab);
    };
    type(u" Visa %1 "_s);
    type(u"cre"_s); // finds "Credit Card"
    type(u"eur"_s);
    type(u"-1250.5"_s);
    QCOMPARE(dialog.findChild<QDateEdit *>()->calendarWidget()->firstDayOfWeek(), Qt::Saturday);
    QCOMPARE(dialog.startDate(), QDate::currentDate());
    type(QString());
    while (QApplication::focusWidget() == dialog.findChild<QDateEdit *>())
        QTest::keyClick(window, Qt::Key_Tab);
    type(u"Bank & Co"_s);
    type(u"12345"_s);
    QTest::keyClick(window, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));

    const Account account = dialog.account();
    QCOMPARE(account.name, u"Visa %1"_s);
    QCOMPARE(account.account_type, AccountType::CreditCard);
    QCOMPARE(account.currency, Currency::EUR);
    QCOMPARE(account.starting_balance, -125050);
    QCOMPARE(account.institution, u"Bank & Co"_s);
    QCOMPARE(account.account_number_last4, u"1234"_s);
    QCOMPARE(account.id.size(), 36);
    QVERIFY(account.created_at.isValid());
    QCOMPARE(account.sync_status, SyncStatus::Pending);
}

void AccountFormDialogTest::balanceBecomesMinorUnits_data()
{
    QTest::addColumn<double>("shown");
    QTest::addColumn<qint64>("stored");
    QTest::newRow("cents that no double holds") << 0.29 << qint64(29);
    QTest::newRow("rounded, not cut") << 1234.57 << qint64(123457);
    QTest::newRow("debt") << -0.07 << qint64(-7);
    QTest::newRow("largest") << 99999999.99 << qint64(9999999999);
}

void AccountFormDialogTest::balanceBecomesMinorUnits()
{
    QFETCH(double, shown);
    QFETCH(qint64, stored);
    AccountFormDialog dialog;
    dialog.findChild<QDoubleSpinBox *>(u"balanceSpin"_s)->setValue(shown);
    QCOMPARE(dialog.account().starting_balance, stored);
    AccountFormDialog again(dialog.account());
    QCOMPARE(again.account().starting_balance, stored);
}

void AccountFormDialogTest::editKeepsWhatTheFormDoesNotShow()
{
    Account account;
    account.id = u"an id"_s;
    account.name = u"\"Joint\" <b>%1</b>"_s;
    account.account_type = AccountType::Investment;
    account.currency = Currency::JPY;
    account.institution = u"Bank"_s;
    account.account_number_last4 = u"0042"_s;
    account.starting_balance = -98765;
    account.sort_order = 7;
    account.is_shared = true;
    account.version = 3;
    account.sync_status = SyncStatus::Synced;
    account.server_id = u"server"_s;
    account.created_at = QDateTime(QDate(2020, 2, 29), QTime(1, 2, 3), Qt::UTC);

    AccountFormDialog dialog(account);
    QCOMPARE(dialog.windowTitle(), u"Edit Account"_s);
    Account edited = dialog.account();
    QVERIFY(edited.updated_at.isValid());
    account.updated_at = edited.updated_at;
    account.sync_status = SyncStatus::Pending;
    QVERIFY(edited == account);
}

void AccountFormDialogTest::balanceBeyondTheBoxIsLeftAlone()
{
    Account account;
    account.starting_balance = std::numeric_limits<qint64>::min();
    AccountFormDialog dialog(account);
    dialog.findChild<QLineEdit *>(u"nameEdit"_s)->setText(u"renamed"_s);
    QCOMPARE(dialog.account().starting_balance, account.starting_balance);
    dialog.findChild<QDoubleSpinBox *>(u"balanceSpin"_s)->setValue(1.0);
    QCOMPARE(dialog.account().starting_balance, 100);
}

PURSEWELL_TEST_MAIN(AccountFormDialogTest)
#include "AccountFormDialogTest.moc"
