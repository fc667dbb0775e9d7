#include "register/TransactionFormDialog.h"
#include "core/state/AppState.h"
#include "data/CategoryRepository.h"
#include "data/SplitLineRepository.h"
#include "register/DateField.h"
#include "register/SmartAmountField.h"
#include "register/SplitEditorDialog.h"
#include "support/DialogAnswer.h"
#include "support/SampleRecords.h"
#include "support/StateFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>

using namespace Qt::StringLiterals;

class TransactionFormDialogTest : public StateFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void newTransaction_data();
    void newTransaction();
    void editKeepsWhatItDoesNotShow();
    void payeeBringsItsLastTransaction();
    void splitFollowsTheType();
    void remainingTellsTheDifference();

private:
    template <typename Type> static Type *child(const QWidget &dialog, const QString &name)
    {
        return dialog.findChild<Type *>(name);
    }
    static QString categoryText(const QWidget &dialog)
    {
        return child<QComboBox>(dialog, u"categoryCombo"_s)->currentText();
    }
    template <typename Box> static Box *boxAt(const QWidget &dialog, int row, int column)
    {
        const auto *table = child<QTableWidget>(dialog, u"splitTable"_s);
        return qobject_cast<Box *>(table->cellWidget(row, column));
    }
    SplitLine line(qint64 amount, const QString &categoryId) const
    {
        return {u"line %1"_s.arg(amount),
                {},
                categoryId,
                amount,
                awkwardWords(),
                sampleStamp(),
                sampleStamp()};
    }

    QString m_pets;
};

void TransactionFormDialogTest::init()
{
    StateFixture::init();
    m_pets = categoryId(u"Pets"_s);
}

void TransactionFormDialogTest::newTransaction_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<double>("amount");
    QTest::addColumn<QString>("categoryText");
    QTest::addColumn<qint64>("storedAmount");
    QTest::addColumn<QString>("parentCategory"); // of the stored one; "-": none is stored
    QTest::newRow("payment, not exact in binary")
        << u"payment"_s << 1.15 << u"Pets"_s << qint64(-115) << QString();
    QTest::newRow("deposit at the limit, name of two categories")
        << u"deposit"_s << 99999999.99 << u"Housing > Maintenance"_s << qint64(9999999999)
        << u"Housing"_s;
    QTest::newRow("bare name of a subcategory")
        << u"payment"_s << 0.0 << u"Maintenance"_s << qint64(0) << u"-"_s;
    QTest::newRow("none") << u"deposit"_s << 0.01 << u"(none)"_s << qint64(1) << u"-"_s;
}

void TransactionFormDialogTest::newTransaction()
{
    QFETCH(QString, type);
    QFETCH(double, amount);
    QFETCH(QString, categoryText);
    QFETCH(QString, parentCategory);

    const TransactionFormDialog dialog(&state(), m_checking);
    child<QRadioButton>(dialog, type + u"Radio"_s)->setChecked(true);
    child<DateField>(dialog, u"dateField"_s)->setText(u"2/29/2024"_s);
    child<QLineEdit>(dialog, u"payeeEdit"_s)->setText(u"  "_s + awkwardWords() + u' ');
    child<SmartAmountField>(dialog, u"amountField"_s)->setValue(amount);
    child<QComboBox>(dialog, u"categoryCombo"_s)->setCurrentText(categoryText);
    const Transaction typed = dialog.transaction();
    QVERIFY(!typed.id.isEmpty() && typed.created_at.isValid() && typed.updated_at.isValid());
    QCOMPARE(typed.account_id, m_checking);
    QCOMPARE(typed.date, QDate(2024, 2, 29));
    QCOMPARE(typed.payee, awkwardWords());
    QTEST(typed.amount, "storedAmount");
    const QString name = categoryText.split(u" > "_s).last();
    QCOMPARE(typed.category_id,
             parentCategory == u"-"_s ? QString() : categoryId(name, parentCategory));
    const TransactionFormDialog next(&state(), m_checking);
    QCOMPARE(next.transaction().date, typed.date);
}

// The amount is beyond what the box can hold, and the category deleted since.
void TransactionFormDialogTest::editKeepsWhatItDoesNotShow()
{
    Transaction stored = sampleTransaction();
    stored.is_split = false;
    stored.memo = u"it's %1"_s;
    stored.category_id = m_pets;
    state().categories()->softDelete(m_pets);
    const TransactionFormDialog dialog(&state(), stored);
    QCOMPARE(categoryText(dialog), u"Pets"_s);
    Transaction returned = dialog.transaction();
    QVERIFY(std::exchange(returned.updated_at, stored.updated_at) > stored.updated_at);
    QCOMPARE(std::exchange(returned.sync_status, stored.sync_status), SyncStatus::Pending);
    QVERIFY(returned == stored);
    child<SmartAmountField>(dialog, u"amountField"_s)->setValue(2.0);
    QCOMPARE(dialog.transaction().amount, -200);
}

void TransactionFormDialogTest::splitFollowsTheType()
{
    Transaction stored = addTransaction(u"2024-01-05"_s, u"Market"_s, -1000,
                                        {.category_id = m_pets, .is_split = true});
    SplitLine half = line(-500, m_pets);
    half.transaction_id = stored.id;
    QVERIFY(state().splitLines()->insert(half));
    TransactionFormDialog dialog(&state(), stored);
    auto *splitButton = child<QPushButton>(dialog, u"splitButton"_s);
    QCOMPARE(dialog.splitLines(), {half});
    QCOMPARE(categoryText(dialog), u"—Split—"_s);
    child<QRadioButton>(dialog, u"depositRadio"_s)->setChecked(true);
    QCOMPARE(dialog.splitLines().first().amount, 500);
    const auto divide = [splitButton] {
        const DialogAnswer answer(u"splitEditorDialog"_s, [](QDialog *editor) {
            boxAt<QDoubleSpinBox>(*editor, 0, 1)->setValue(4.0);
            editor->accept();
        });
        splitButton->click();
    };
    divide();
    QCOMPARE(dialog.splitLines().first().amount, 400);
    QVERIFY(dialog.transaction().is_split);
    child<SmartAmountField>(dialog, u"amountField"_s)->setValue(0.0);
    child<QRadioButton>(dialog, u"paymentRadio"_s)->setChecked(true);
    divide(); // of a total without a sign
    QCOMPARE(dialog.splitLines().first().amount, -400);

    child<QPushButton>(dialog, u"clearSplitButton"_s)->click();
    QVERIFY(dialog.splitLines().isEmpty() && !dialog.transaction().is_split);
    QCOMPARE(dialog.transaction().category_id, m_pets);
    dialog.show();
    splitButton->click(); // nothing to divide
    QCOMPARE(dialog.focusWidget(), child<SmartAmountField>(dialog, u"amountField"_s));
}

void TransactionFormDialogTest::remainingTellsTheDifference()
{
    state().categories()->softDelete(m_pets);
    const SplitEditorDialog editor(&state(), -1000,
                                   {line(-10, m_pets), line(0, m_pets), line(300, u"unknown"_s)});
    const auto *remaining = child<QLabel>(editor, u"remainingLabel"_s);
    const auto allot = [&](double amount) {
        boxAt<QDoubleSpinBox>(editor, 2, 1)->setValue(amount);
        return remaining->text() + remaining->styleSheet();
    };
    QCOMPARE(remaining->text(), u"Remaining: $6.90"_s);
    QCOMPARE(allot(9.91), u"Remaining: -$0.01color: #cc0000;"_s);
    QCOMPARE(allot(9.9), u"Remaining: $0.00color: green;"_s);
    const QList<SplitLine> lines = editor.splitLines();
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines.at(0).id != u"line -10"_s && lines.at(0).id != lines.at(1).id);
    QCOMPARE(lines.at(0).amount, -10);
    QCOMPARE(lines.at(0).category_id, m_pets);
    QCOMPARE(lines.at(1).amount, -990);
    QCOMPARE(lines.at(1).category_id, QString());
    QFocusEvent entered(QEvent::FocusIn); // the row that holds the focus is the one to go
    QCoreApplication::sendEvent(boxAt<QDoubleSpinBox>(editor, 2, 1), &entered);
    child<QPushButton>(editor, u"removeLineButton"_s)->click();
    QCOMPARE(remaining->text() + remaining->styleSheet(), u"Remaining: $9.90"_s);
}

void TransactionFormDialogTest::payeeBringsItsLastTransaction()
{
    addTransaction(u"2024-02-05"_s, u"The Vet"_s, 4210,
                   {.category_id = m_pets, .check_number = u"9"_s, .cleared = true});
    TransactionFormDialog dialog(&state(), m_checking);
    child<QLineEdit>(dialog, u"memoEdit"_s)->setText(u"old"_s);
    dialog.onPayeeSelected(u"Stranger"_s);
    QCOMPARE(dialog.transaction().memo, u"old"_s);

    showActive(&dialog);
    QTest::keyClicks(dialog.focusWidget(), u"vet"_s);
    QTRY_VERIFY(QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    QVERIFY(dialog.isVisible());
    const Transaction filled = dialog.transaction();
    QCOMPARE(filled.payee, u"The Vet"_s);
    QCOMPARE(filled.amount, 4210);
    QCOMPARE(filled.category_id, m_pets);
    QCOMPARE(filled.memo, QString());
    QVERIFY(filled.check_number.isEmpty() && !filled.cleared);
}

PURSEWELL_TEST_MAIN(TransactionFormDialogTest)
#include "TransactionFormDialogTest.moc"
