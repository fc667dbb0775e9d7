#include "register/RecurringFormDialog.h"

#include "core/state/AppState.h"
#include "data/CategoryRepository.h"
#include "data/RecurringRepository.h"
#include "screens/ScreenFixture.h"
#include "support/DialogAnswer.h"
#include "support/SampleRecords.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

using Purpose = RecurringFormDialog::Purpose;

class RecurringFormDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<ScreenFixture>(); }
    void cleanup() { m_fixture.reset(); }
    void scheduleFollowsTheStartDate_data();
    void scheduleFollowsTheStartDate();
    void amountBecomesMinorUnits_data();
    void amountBecomesMinorUnits();
    void editKeepsWhatTheFormDoesNotShow();
    void memorizesARow_data();
    void memorizesARow();

private:
    std::unique_ptr<ScreenFixture> m_fixture;
};

void RecurringFormDialogTest::scheduleFollowsTheStartDate_data()
{
    QTest::addColumn<Purpose>("purpose");
    QTest::addColumn<QString>("before"); // start, due, and what is typed if anything
    QTest::addColumn<QString>("after"); // start, due
    QTest::addColumn<int>("warnings");
    const auto row = [](const char *name, const QString &before, const QString &after,
                        int warnings = 0, Purpose purpose = Purpose::Edit) {
        QTest::newRow(name) << purpose << before << after << warnings;
    };
    row("left alone", u"2023-12-31 2024-01-31"_s, u"2023-12-31 2024-01-31"_s);
    row("into the past", u"2023-12-31 2024-03-31 2000-01-01"_s, u"2000-01-01 2000-01-01"_s);
    row("memorized", u"2023-12-31 2024-01-31"_s, u"2023-12-31 2023-12-31"_s, 0, Purpose::Memorize);
    row("due date broken", u"2023-12-31 1999-12-31"_s, u"2023-12-31 2023-12-31"_s, 1);
    row("no due date", u"2023-12-31 none"_s, u"2023-12-31 2023-12-31"_s, 1);
    row("start broken", u"1999-12-31 2024-01-31"_s, u"2024-02-29 2024-01-31"_s, 1);
    row("both broken", u"1999-12-31 0024-01-31"_s, u"2024-02-29 2024-02-29"_s, 2);
    row("no start", u"none 2024-01-31"_s, u"2024-02-29 2024-02-29"_s);
    row("typed too early", u"2023-12-31 2024-01-31 1999-12-31"_s, u"2024-02-29 2024-02-29"_s, 2);
}

void RecurringFormDialogTest::scheduleFollowsTheStartDate()
{
    QFETCH(Purpose, purpose);
    QFETCH(QString, before);
    const auto day = [&before](int section) {
        return QDate::fromString(before.section(u' ', section, section), Qt::ISODate);
    };
    RecurringTransaction stored = sampleRecurring();
    stored.start_date = day(0);
    stored.next_due_date = day(1);
    RecurringFormDialog dialog(&m_fixture->state(), purpose, stored, nullptr,
                               [] { return QDate(2024, 2, 29); });
    if (day(2).isValid())
        dialog.findChild<QDateEdit *>(u"startDateEdit"_s)->setDate(day(2));
    const LogCatcher log;
    const RecurringTransaction result = dialog.recurring();
    QTEST(result.start_date.toString(Qt::ISODate) + u' '
              + result.next_due_date.toString(Qt::ISODate),
          "after");
    QTEST(int(log.warnings().size()), "warnings");
}

void RecurringFormDialogTest::amountBecomesMinorUnits_data()
{
    QTest::addColumn<qint64>("stored");
    QTest::addColumn<double>("typed"); // below 0: left alone
    QTest::addColumn<QString>("radio");
    QTest::addColumn<qint64>("amount");
    QTest::newRow("half a cent") << qint64(0) << 0.005 << u"depositRadio"_s << qint64(1);
    QTest::newRow("no double holds it") << qint64(5) << 0.29 << u"paymentRadio"_s << qint64(-29);
    QTest::newRow("turned round") << qint64(-1234) << -1.0 << u"depositRadio"_s << qint64(1234);
    QTest::newRow("beyond the box")
        << -kSampleAmount << -1.0 << u"paymentRadio"_s << -kSampleAmount;
}

void RecurringFormDialogTest::amountBecomesMinorUnits()
{
    QFETCH(qint64, stored);
    QFETCH(double, typed);
    QFETCH(QString, radio);
    RecurringTransaction recurring = sampleRecurring();
    recurring.amount = stored;
    const RecurringFormDialog dialog(&m_fixture->state(), Purpose::Edit, recurring);
    if (typed >= 0.0)
        dialog.findChild<QDoubleSpinBox *>(u"amountSpin"_s)->setValue(typed);
    dialog.findChild<QRadioButton *>(radio)->setChecked(true);
    QTEST(dialog.recurring().amount, "amount");
}

void RecurringFormDialogTest::editKeepsWhatTheFormDoesNotShow()
{
    RecurringTransaction stored = sampleRecurring(); // its account has gone, and so will
    stored.category_id = m_fixture->categoryId(u"Groceries"_s);
    QVERIFY(m_fixture->state().categories()->softDelete(stored.category_id));
    const RecurringFormDialog dialog(&m_fixture->state(), Purpose::Edit, stored);
    const RecurringTransaction edited = dialog.recurring();
    stored.updated_at = edited.updated_at;
    stored.sync_status = SyncStatus::Pending;
    ++stored.version;
    QVERIFY(edited == stored);
}

void RecurringFormDialogTest::memorizesARow_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("message");
    QTest::newRow("first valid day")
        << u"2000-01-01"_s << true << u"Transaction memorized as recurring"_s;
    QTest::newRow("cancelled") << u"2024-02-29"_s << false << QString();
    QTest::newRow("too early") << u"1999-12-31"_s << false
                               << u"Cannot memorize: source transaction has an invalid date"_s;
}

void RecurringFormDialogTest::memorizesARow()
{
    QFETCH(QString, date);
    QFETCH(bool, accepted);
    const QString account = m_fixture->addAccount(u"Giro"_s);
    const Transaction rest{.memo = awkwardWords(),
                           .category_id = m_fixture->categoryId(u"Groceries"_s),
                           .transfer_dest_account_id = u"other"_s};
    const Transaction source =
        m_fixture->addTransaction(account, date, awkwardWords(), -1234, rest);
    m_fixture->openAccount(account);
    m_fixture->goTo(0, 0);
    const DialogAnswer answer(u"recurringFormDialog"_s, [accepted](QDialog *dialog) {
        QTest::keyClick(dialog, accepted ? Qt::Key_Return : Qt::Key_Escape);
    });
    m_fixture->press(Qt::Key_M, Qt::ControlModifier);
    QTEST(m_fixture->message(), "message");
    const QList<RecurringTransaction> stored = m_fixture->state().recurring()->listActive();
    QCOMPARE(stored.size(), accepted ? 1 : 0);
    if (!accepted)
        return;
    RecurringTransaction expected{.id = stored.first().id,
                                  .account_id = account,
                                  .payee = source.payee,
                                  .memo = source.memo,
                                  .amount = source.amount,
                                  .category_id = source.category_id,
                                  .start_date = source.date,
                                  .next_due_date = source.date,
                                  .transfer_dest_account_id = source.transfer_dest_account_id,
                                  .created_at = stored.first().created_at,
                                  .updated_at = stored.first().created_at};
    QVERIFY(stored.first() == expected && expected.id != source.id);
}

PURSEWELL_TEST_MAIN(RecurringFormDialogTest)
#include "RecurringFormDialogTest.moc"
