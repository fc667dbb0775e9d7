#include "register/TransactionDetailsDialog.h"
#include "core/Ids.h"
#include "core/state/AppState.h"
#include "data/SplitLineRepository.h"
#include "data/TransactionRepository.h"
#include "register/RegisterColumn.h"
#include "register/RegisterFixture.h"
#include "support/DialogAnswer.h"
#include "support/TestSupport.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

class TransactionDetailsDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsEveryField_data();
    void showsEveryField();
    void showsSplitLines();
    void splitWithoutLines();
    void markWritesAtOnceAndLeavesTheVersion();
    void reconciledRowsHaveNoMark();
    void deleteTakesBothSides();
    void altReturnOpensItAndTheGridFollows();

private:
    QString value(const QDialog &dialog, const QString &name) const
    {
        const auto *label = dialog.findChild<QLabel *>(name + u"Value"_s);
        return label ? label->text() : u"(absent)"_s;
    }
    QStringList labels(const QDialog &dialog) const
    {
        QStringList texts;
        for (const QLabel *label : dialog.findChildren<QLabel *>())
            texts << label->text();
        return texts;
    }

    std::unique_ptr<RegisterFixture> m_fixture;
    QString m_checking;
};

void TransactionDetailsDialogTest::init()
{
    m_fixture = std::make_unique<RegisterFixture>();
    m_checking = m_fixture->addAccount(u"Checking"_s);
}

void TransactionDetailsDialogTest::cleanup()
{
    m_fixture.reset();
}

void TransactionDetailsDialogTest::showsEveryField_data()
{
    QTest::addColumn<qint64>("amount");
    QTest::addColumn<bool>("cleared");
    QTest::addColumn<bool>("reconciled");
    QTest::addColumn<QString>("amountText");
    QTest::addColumn<QString>("status");
    QTest::newRow("payment") << qint64(-123456) << false << false << u"- $1,234.56"_s
                             << u"Uncleared"_s;
    QTest::newRow("deposit") << qint64(5) << true << false << u"$0.05"_s << u"Cleared"_s;
    QTest::newRow("zero") << qint64(0) << true << true << u"$0.00"_s << u"Reconciled"_s;
}

void TransactionDetailsDialogTest::showsEveryField()
{
    QFETCH(qint64, amount);
    QFETCH(bool, cleared);
    QFETCH(bool, reconciled);
    QFETCH(QString, amountText);
    QFETCH(QString, status);

    const Transaction stored =
        m_fixture->addTransaction(m_checking, u"2024-02-29"_s, u"<b>%1</b> & Söhne"_s, amount,
                                  {.memo = u"\"quoted\""_s,
                                   .category_id = m_fixture->categoryId(u"Groceries"_s),
                                   .check_number = u"1041"_s,
                                   .cleared = cleared,
                                   .reconciled = reconciled,
                                   .transfer_dest_account_id = u"gone"_s});
    const TransactionDetailsDialog dialog(&m_fixture->state(), stored);
    QCOMPARE(value(dialog, u"date"_s), u"2/29/2024"_s);
    QCOMPARE(value(dialog, u"payee"_s), u"<b>%1</b> & Söhne"_s);
    QCOMPARE(dialog.findChild<QLabel *>(u"payeeValue"_s)->textFormat(), Qt::PlainText);
    QCOMPARE(value(dialog, u"amount"_s), amountText);
    QCOMPARE(value(dialog, u"category"_s), u"Groceries"_s);
    QCOMPARE(value(dialog, u"memo"_s), u"\"quoted\""_s);
    QCOMPARE(value(dialog, u"checkNumber"_s), u"1041"_s);
    QCOMPARE(value(dialog, u"transfer"_s), u"gone"_s); // an account that cannot be read
    QCOMPARE(value(dialog, u"status"_s), status);
    Transaction unstamped = stored;
    unstamped.created_at = {};
    QVERIFY(
        labels(TransactionDetailsDialog(&m_fixture->state(), unstamped)).contains(u"Entered: —"_s));
}

void TransactionDetailsDialogTest::showsSplitLines()
{
    const Transaction stored = m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"Market"_s,
                                                         -1000, {.is_split = true});
    for (const qint64 amount : {qint64(-250), qint64(-700)}) {
        SplitLine line;
        line.id = newId();
        line.transaction_id = stored.id;
        line.category_id = m_fixture->categoryId(u"Pets"_s);
        line.amount = amount;
        line.memo = u"line %1"_s;
        line.created_at = stored.created_at;
        line.updated_at = stored.created_at;
        QVERIFY(m_fixture->state().splitLines()->insert(line));
    }
    const TransactionDetailsDialog dialog(&m_fixture->state(), stored);
    QCOMPARE(value(dialog, u"category"_s), u"—Split—"_s);
    const QStringList shown = labels(dialog);
    QCOMPARE(shown.count(u"Pets"_s), 2);
    QCOMPARE(shown.count(u"line %1"_s), 2);
    QVERIFY(shown.contains(u"$2.50"_s) && shown.contains(u"$7.00"_s));
    QVERIFY(shown.contains(u"$10.00"_s)); // the transaction's, not the lines' sum
}

void TransactionDetailsDialogTest::splitWithoutLines()
{
    const Transaction stored = m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"Market"_s,
                                                         -1000, {.is_split = true});
    QVERIFY(labels(TransactionDetailsDialog(&m_fixture->state(), stored))
                .contains(u"(no split lines on record)"_s));
}

void TransactionDetailsDialogTest::markWritesAtOnceAndLeavesTheVersion()
{
    const Transaction stored =
        m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"Zoo"_s, -1000);
    m_fixture->state().transactions()->markSynced(stored.id, u"server"_s);
    const TransactionDetailsDialog dialog(&m_fixture->state(),
                                          *m_fixture->state().transactions()->findById(stored.id));
    auto *mark = dialog.findChild<QPushButton *>(u"markButton"_s);
    QCOMPARE(mark->text(), u"Mark Cleared"_s);
    mark->click();
    QCOMPARE(m_fixture->stored(u"cleared, version, sync_status, server_id"_s),
             QStringList(u"1|1|pending|server"_s));
    QCOMPARE(mark->text(), u"Mark Uncleared"_s);
    QCOMPARE(value(dialog, u"status"_s), u"Cleared"_s);
    mark->click();
    QCOMPARE(m_fixture->stored(u"cleared"_s), QStringList(u"0"_s));
}

void TransactionDetailsDialogTest::reconciledRowsHaveNoMark()
{
    const QString account = m_fixture->addAccount(u"Old"_s, u"USD"_s, 5000);
    const RegisterRow opening = m_fixture->state().transactions()->registerRows(account).first();
    const TransactionDetailsDialog dialog(&m_fixture->state(), opening);
    QVERIFY(!dialog.findChild<QPushButton *>(u"markButton"_s));
    QCOMPARE(value(dialog, u"category"_s), QString());
}

void TransactionDetailsDialogTest::deleteTakesBothSides()
{
    Transaction near = m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"To"_s, -1000);
    Transaction far = m_fixture->addTransaction(m_fixture->addAccount(u"Savings"_s),
                                                u"2024-01-05"_s, u"From"_s, 1000);
    near.transfer_link_id = far.id;
    TransactionDetailsDialog dialog(&m_fixture->state(), near);
    QString asked;
    const DialogAnswer answer(u"deleteTransactionQuestion"_s, [&asked](QDialog *question) {
        const auto *box = qobject_cast<QMessageBox *>(question);
        asked = box->text();
        box->button(QMessageBox::Yes)->click();
    });
    dialog.findChild<QPushButton *>(u"deleteButton"_s)->click();
    QCOMPARE(asked,
             u"Delete transfer \"To\" for $10.00?\n\n"
             "Both sides of the transfer will be deleted."_s);
    QVERIFY(dialog.isDeleted());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(m_fixture->stored(u"id"_s), QStringList());
}

void TransactionDetailsDialogTest::altReturnOpensItAndTheGridFollows()
{
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"Zoo"_s, -1000);
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(0, RegisterColumn::Payee);
    m_fixture->press(Qt::Key_F2);
    const DialogAnswer answer(u"transactionDetailsDialog"_s, [](QDialog *dialog) {
        dialog->findChild<QPushButton *>(u"markButton"_s)->click();
    });
    QTest::keyClick(m_fixture->screen().windowHandle(), Qt::Key_Return, Qt::AltModifier);
    QCOMPARE(m_fixture->shown(0, RegisterColumn::Clr), u"C"_s);
}

PURSEWELL_TEST_MAIN(TransactionDetailsDialogTest)
#include "TransactionDetailsDialogTest.moc"
