#include "register/TransactionDetailsDialog.h"
#include "core/Ids.h"
#include "data/SplitLineRepository.h"
#include "data/TransactionRepository.h"
#include "register/RegisterFixture.h"
#include "support/DialogAnswer.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

class TransactionDetailsDialogTest : public RegisterFixture
{
    Q_OBJECT

private Q_SLOTS:
    void showsEveryField_data();
    void showsEveryField();
    void showsSplitLines();
    void markWritesAtOnceAndLeavesTheVersion();
    void deleteTakesBothSides();

private:
    static QString value(const QDialog &dialog, const QString &name)
    {
        return dialog.findChild<QLabel *>(name + u"Value"_s)->text();
    }
    QStringList labels(const Transaction &transaction)
    {
        const TransactionDetailsDialog dialog(&state(), transaction);
        QStringList texts;
        for (const QLabel *label : dialog.findChildren<QLabel *>())
            texts << label->text();
        return texts;
    }
};

void TransactionDetailsDialogTest::showsEveryField_data()
{
    QTest::addColumn<Transaction>("rest");
    QTest::addColumn<QString>("amountAndStatus");
    QTest::newRow("payment") << Transaction{.amount = -123456} << u"- $1,234.56|Uncleared"_s;
    QTest::newRow("deposit") << Transaction{.amount = 5, .cleared = true} << u"$0.05|Cleared"_s;
    QTest::newRow("zero") << Transaction{.reconciled = true} << u"$0.00|Reconciled"_s;
}

void TransactionDetailsDialogTest::showsEveryField()
{
    QFETCH(Transaction, rest);
    QFETCH(QString, amountAndStatus);
    rest.memo = u"\"quoted\""_s;
    rest.category_id = categoryId(u"Groceries"_s);
    rest.check_number = u"1041"_s;
    rest.transfer_dest_account_id = u"gone"_s;
    Transaction stored = addTransaction(u"2024-02-29"_s, u"<b>%1</b> & Söhne"_s, rest.amount, rest);
    const TransactionDetailsDialog dialog(&state(), stored);
    QStringList values;
    for (const QString &name : {u"date"_s, u"payee"_s, u"category"_s, u"memo"_s, u"checkNumber"_s,
                                u"transfer"_s, u"amount"_s, u"status"_s})
        values << value(dialog, name);
    QCOMPARE(values.join(u'|'),
             u"2/29/2024|<b>%1</b> & Söhne|Groceries|\"quoted\"|1041|gone|"_s + amountAndStatus);
    QCOMPARE(dialog.findChild<QLabel *>(u"payeeValue"_s)->textFormat(), Qt::PlainText);
    QCOMPARE(!dialog.findChild<QPushButton *>(u"markButton"_s), stored.reconciled);
    stored.created_at = {};
    QVERIFY(labels(stored).contains(u"Entered: —"_s));
}

void TransactionDetailsDialogTest::showsSplitLines()
{
    const Transaction stored =
        addTransaction(u"2024-01-05"_s, u"Market"_s, -1000, {.is_split = true});
    QVERIFY(labels(stored).contains(u"(no split lines on record)"_s));
    for (const qint64 amount : {-250, -700})
        state().splitLines()->insert({newId(), stored.id, categoryId(u"Pets"_s), amount,
                                      u"line %1"_s, stored.created_at, stored.created_at});
    // The total is the transaction's, not the lines' sum.
    QVERIFY(labels(stored).join(u'|').contains(
        u"|Pets|$2.50|line %1|Pets|$7.00|line %1|Total|$10.00|"_s));
    QCOMPARE(value(TransactionDetailsDialog(&state(), stored), u"category"_s), u"—Split—"_s);
}

void TransactionDetailsDialogTest::markWritesAtOnceAndLeavesTheVersion()
{
    const QString id = addTransaction(u"2024-01-05"_s, u"Zoo"_s, -1000).id;
    state().transactions()->markSynced(id, u"server"_s);
    const TransactionDetailsDialog dialog(&state(), *state().transactions()->findById(id));
    auto *mark = dialog.findChild<QPushButton *>(u"markButton"_s);
    mark->click();
    QCOMPARE(stored(u"cleared, version, sync_status, server_id"_s), u"1|1|pending|server"_s);
    QCOMPARE(mark->text(), u"Mark Uncleared"_s);
    QCOMPARE(value(dialog, u"status"_s), u"Cleared"_s);
    mark->click();
    QCOMPARE(stored(u"cleared"_s), u"0"_s);
}

void TransactionDetailsDialogTest::deleteTakesBothSides()
{
    const QString savings = addAccount(u"Savings"_s);
    Transaction near = addTransaction(u"2024-01-05"_s, u"To"_s, -1000);
    near.transfer_link_id =
        addTransaction(u"2024-01-05"_s, u"From"_s, 1000, {.account_id = savings}).id;
    TransactionDetailsDialog dialog(&state(), near);
    auto *button = dialog.findChild<QPushButton *>(u"deleteButton"_s);
    QCOMPARE(answering(QMessageBox::Yes, [button] { button->click(); }),
             u"Delete transfer \"To\" for $10.00?\n\n"
             "Both sides of the transfer will be deleted."_s);
    QVERIFY(dialog.isDeleted());
    QCOMPARE(stored(u"id"_s), QString());
}

PURSEWELL_TEST_MAIN(TransactionDetailsDialogTest)
#include "TransactionDetailsDialogTest.moc"
