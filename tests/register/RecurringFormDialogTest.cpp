#include "register/RecurringFormDialog.h"

#include "core/state/AppState.h"
#include "data/CategoryRepository.h"
#include "data/RecurringRepository.h"
#include "register/RegisterFixture.h"
#include "support/DialogAnswer.h"
#include "support/SampleRecords.h"

using namespace Qt::StringLiterals;

using Purpose = RecurringFormDialog::Purpose;

class RecurringFormDialogTest : public RegisterFixture
{
    Q_OBJECT

private Q_SLOTS:
    void scheduleFollowsTheStartDate_data();
    void scheduleFollowsTheStartDate();
    void amountBecomesMinorUnits_data();
    void amountBecomesMinorUnits();
    void editKeepsWhatTheFormDoesNotShow();
    void memorizesARow_data();
    void memorizesARow();
};

void RecurringFormDialogTest::scheduleFollowsTheStartDate_data()
{
    QTest::addColumn<Purpose>("purpose");
    QTest::addColumn<QString>("before"); // start, due, and what is typed if anything
    QTest::addColumn<QString>("after"); // start, due
    QTest::addColumn<QString>("rejected"); // what the log tells
    const auto row = [](const char *name, const QString &before, const QString &after,
                        const QString &rejected = {}, Purpose purpose = Purpose::Edit) {
        QTest::newRow(name) << purpose << before << after << rejected;
    };
    const QString dueDate = u"nextDueDate→startDate"_s;
    const QString startDate = u"startDate→today"_s;
    const QString both = startDate + u' ' + dueDate;
    row("left alone", u"2023-12-31 2024-01-31"_s, u"2023-12-31 2024-01-31"_s);
    row("into the past", u"2023-12-31 2024-03-31 2000-01-01"_s, u"2000-01-01 2000-01-01"_s);
    row("no midnight", u"2018-10-04 2018-12-04 2018-11-04"_s, u"2018-11-04 2018-11-04"_s);
    row("memorized", u"2023-12-31 2024-01-31"_s, u"2023-12-31 2023-12-31"_s, {}, Purpose::Memorize);
    row("due date broken", u"2023-12-31 1999-12-31"_s, u"2023-12-31 2023-12-31"_s, dueDate);
    row("no due date", u"2023-12-31 none"_s, u"2023-12-31 2023-12-31"_s, dueDate);
    row("start broken", u"1999-12-31 2024-01-31"_s, u"2024-02-29 2024-01-31"_s, startDate);
    row("both broken", u"1999-12-31 0024-01-31"_s, u"2024-02-29 2024-02-29"_s, both);
    row("no start", u"none 2024-01-31"_s, u"2024-02-29 2024-02-29"_s);
    row("typed too early", u"2023-12-31 2024-01-31 1999-12-31"_s, u"2024-02-29 2024-02-29"_s, both);
}

void RecurringFormDialogTest::scheduleFollowsTheStartDate()
{
    const ZoneChange zone("America/Sao_Paulo"); // its clocks changed at midnight
    QFETCH(Purpose, purpose);
    QFETCH(QString, before);
    const auto day = [&before](int section) {
        return QDate::fromString(before.section(u' ', section, section), Qt::ISODate);
    };
    RecurringTransaction stored = sampleRecurring();
    stored.start_date = day(0);
    stored.next_due_date = day(1);
    RecurringFormDialog dialog(&state(), purpose, stored, nullptr,
                               [] { return QDate(2024, 2, 29); });
    if (day(2).isValid())
        dialog.findChild<QDateEdit *>(u"startDateEdit"_s)->setDate(day(2));
    const LogCatcher log;
    const RecurringTransaction result = dialog.recurring();
    QTEST(result.start_date.toString(Qt::ISODate) + u' '
              + result.next_due_date.toString(Qt::ISODate),
          "after");
    QStringList rejected;
    for (const QString &line : log.warnings())
        rejected << line.section(u' ', 3, 3) + u'→'
                + line.section(u"— falling back to "_s, 1).section(u' ', 0, 0);
    QTEST(rejected.join(u' '), "rejected");
}

void RecurringFormDialogTest::amountBecomesMinorUnits_data()
{
    QTest::addColumn<qint64>("stored");
    QTest::addColumn<double>("typed"); // below 0: left alone
    QTest::addColumn<QString>("radio");
    QTest::addColumn<qint64>("amount");
    QTest::newRow("no double holds it") << qint64(5) << 0.29 << u"paymentRadio"_s << qint64(-29);
    QTest::newRow("turned round") << -kSampleAmount << -1.0 << u"depositRadio"_s << kSampleAmount;
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
    const RecurringFormDialog dialog(&state(), Purpose::Edit, recurring);
    if (typed >= 0.0)
        dialog.findChild<QDoubleSpinBox *>(u"amountSpin"_s)->setValue(typed);
    dialog.findChild<QRadioButton *>(radio)->setChecked(true);
    QTEST(dialog.recurring().amount, "amount");
}

void RecurringFormDialogTest::editKeepsWhatTheFormDoesNotShow()
{
    RecurringTransaction stored = sampleRecurring(); // its account has gone, and so will
    stored.category_id = categoryId(u"Groceries"_s);
    QVERIFY(state().categories()->softDelete(stored.category_id));
    const RecurringFormDialog dialog(&state(), Purpose::Edit, stored);
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
    addTransaction(date, awkwardWords(), -1234, {.transfer_dest_account_id = u"other"_s});
    openAccount();
    goTo(0, 0);
    const DialogAnswer answer(u"recurringFormDialog"_s, [accepted](QDialog *dialog) {
        QTest::keyClick(dialog, accepted ? Qt::Key_Return : Qt::Key_Escape);
    });
    press(Qt::Key_M, Qt::ControlModifier);
    QTEST(message(), "message");
    const QList<RecurringTransaction> stored = state().recurring()->listActive();
    QCOMPARE(stored.size(), accepted ? 1 : 0);
    QCOMPARE(stored.value(0).transfer_dest_account_id, accepted ? u"other"_s : QString());
}

PURSEWELL_TEST_MAIN(RecurringFormDialogTest)
#include "RecurringFormDialogTest.moc"
