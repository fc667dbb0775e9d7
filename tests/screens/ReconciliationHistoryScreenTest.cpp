#include "screens/ReconciliationHistoryScreen.h"

#include "core/state/AppState.h"
#include "data/ReconciliationRepository.h"
#include "shell/theme/MoneyColors.h"
#include "support/StateFixture.h"

using namespace Qt::StringLiterals;

class ReconciliationHistoryScreenTest : public StateFixture
{
    Q_OBJECT

private Q_SLOTS:
    void rowsTellWhenAndWhat_data();
    void rowsTellWhenAndWhat();
};

void ReconciliationHistoryScreenTest::rowsTellWhenAndWhat_data()
{
    QTest::addColumn<QString>("completed");
    QTest::addColumn<QString>("shown"); // New York's clock

    QTest::newRow("winter") << u"2026-01-01T04:59:59Z"_s << u"Dec 31, 2025 11:59 pm"_s;
    QTest::newRow("before the clock goes back")
        << u"2025-11-02T05:30:00Z"_s << u"Nov 2, 2025 1:30 am"_s;
    QTest::newRow("the same hour again") << u"2025-11-02T06:30:00Z"_s << u"Nov 2, 2025 1:30 am"_s;
    QTest::newRow("after the clock went forward")
        << u"2025-03-09T07:00:00Z"_s << u"Mar 9, 2025 3:00 am"_s;
    QTest::newRow("broken") << u"soon"_s << u""_s;
}

void ReconciliationHistoryScreenTest::rowsTellWhenAndWhat()
{
    QFETCH(QString, completed);
    QFETCH(QString, shown);

    const QString words = u"O'Brien \"%1\" & <b>שלום</b> 🐦"_s;
    const QString account = addAccount(words, {.currency = Currency::JPY});
    Reconciliation record;
    record.id = completed;
    record.account_id = account;
    record.statement_date = QDate(2024, 2, 29);
    record.statement_balance = 1234;
    record.reconciled_balance = -1234;
    record.completed_at = QDateTime::currentDateTimeUtc();
    state().reconciliations()->insert(record);
    record.id += u"later statement"_s;
    record.statement_date = QDate(2024, 3, 1);
    state().reconciliations()->insert(record);
    run(u"UPDATE reconciliations SET completed_at = '%1'"_s.arg(completed));

    ReconciliationHistoryScreen screen(&state());
    screen.setAccount(account);
    const auto *title = screen.findChild<QLabel *>(u"titleLabel"_s);
    QCOMPARE(title->text(), u"Reconciliation History — "_s + words);
    const auto *table = screen.findChild<QTableWidget *>(u"historyTable"_s);
    QCOMPARE(table->rowCount(), 2);
    const QStringList expected{u"Feb 29, 2024"_s, u"¥1,234"_s, u"-¥1,234"_s, shown};
    for (int column = 0; column < table->columnCount(); ++column)
        QCOMPARE(table->item(1, column)->text(), expected.at(column));
    QVERIFY(table->item(1, 1)->foreground() != negativeColor());
    QCOMPARE(table->item(1, 2)->foreground(), QBrush(negativeColor()));

    const auto *emptyLabel = screen.findChild<QLabel *>(u"emptyLabel"_s);
    QVERIFY(emptyLabel->isHidden() && !table->isHidden());
    screen.setAccount(u"gone"_s);
    QVERIFY(!emptyLabel->isHidden() && table->isHidden());
    QCOMPARE(title->text(), u"Reconciliation History"_s);
}

PURSEWELL_TEST_MAIN(ReconciliationHistoryScreenTest)
#include "ReconciliationHistoryScreenTest.moc"
