#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/SplitLineRepository.h"
#include "register/RegisterColumn.h"
#include "register/RegisterFixture.h"
#include "register/SmartAmountField.h"
#include "support/DialogAnswer.h"

#include <QComboBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

using namespace Qt::StringLiterals;

// What the dialogs that open from the register leave in the database.
class RegisterDialogsTest : public RegisterFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void ctrlNStoresASplit();
    void splitRowOpensTheForm_data();
    void splitRowOpensTheForm();
    void detailsLeadToTheSameTransaction();

private:
    static void typeInto(QDialog *form, const QString &field, const QString &text)
    {
        form->findChild<QLineEdit *>(field)->setText(text);
    }
    // Two transactions. The later is split into -300 and -700, of a category deleted since.
    void addSplit();
    QStringList storedLines() const;

    QString m_pets;
};

void RegisterDialogsTest::init()
{
    RegisterFixture::init();
    m_pets = categoryId(u"Pets"_s);
}

void RegisterDialogsTest::addSplit()
{
    addTransaction(u"2024-01-05"_s, u"Zoo"_s, -500);
    const Transaction market =
        addTransaction(u"2024-01-06"_s, u"Market"_s, -1000, {.is_split = true});
    for (const qint64 amount : {qint64(-300), qint64(-700)})
        QVERIFY(state().splitLines()->insert({u"line %1"_s.arg(amount), market.id, m_pets, amount,
                                              u"it's %1"_s, market.created_at, market.created_at}));
    QVERIFY(state().categories()->softDelete(m_pets));
}

QStringList RegisterDialogsTest::storedLines() const
{
    const QString id = stored(u"id"_s, u"payee = 'Market'"_s);
    QStringList lines;
    for (const SplitLine &line : state().splitLines()->listByTransaction(id))
        lines << u"%1|%2|%3"_s.arg(line.id.left(8), QString::number(line.amount), line.memo)
                + (line.category_id == m_pets ? u"|Pets"_s : QString());
    return lines;
}

void RegisterDialogsTest::ctrlNStoresASplit()
{
    addTransaction(u"2024-01-05"_s, u"Old"_s, -500);
    openAccount();
    goTo(0, RegisterColumn::Payee);
    press(Qt::Key_F2); // an open editor must not keep the grid from showing the new row
    std::unique_ptr<DialogAnswer> splitAnswer;
    const DialogAnswer answer(u"transactionFormDialog"_s, [&](QDialog *form) {
        typeInto(form, u"dateField"_s, u"2/1/2024"_s);
        typeInto(form, u"payeeEdit"_s, u"Market"_s);
        form->findChild<SmartAmountField *>()->setValue(10.0);
        splitAnswer = std::make_unique<DialogAnswer>(u"splitEditorDialog"_s, [](QDialog *editor) {
            auto *table = editor->findChild<QTableWidget *>();
            for (int row = 0; row < 2; ++row)
                qobject_cast<QDoubleSpinBox *>(table->cellWidget(row, 1))->setValue(row + 4);
            auto *category = qobject_cast<QComboBox *>(table->cellWidget(1, 0));
            category->setCurrentText(u"Pets"_s); // the other line stays without one
            editor->accept();
        });
        form->findChild<QPushButton *>(u"splitButton"_s)->click();
        form->accept();
    });
    LogCatcher log;
    press(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(stored(u"account_id, amount, is_split, version"_s, u"date > '2024-01-31'"_s),
             m_checking + u"|-1000|1|1"_s);
    // The table takes no line without a category; the rest of what was typed stands.
    QCOMPARE(storedLines().size(), 1);
    QVERIFY(storedLines().first().contains(u"|-500|"_s));
    QVERIFY(log.warnings().join(u'\n').contains(u"SplitLineRepository::insert failed:"_s));
    QCOMPARE(shown(1, RegisterColumn::Category), u"—Split—"_s);
    QCOMPARE(view().currentIndex(), model().index(2, 0));

    const DialogAnswer unasked(u"transactionFormDialog"_s, [](QDialog *) {});
    state().accounts()->softDelete(m_checking);
    screen().newTransactionDialog();
    QVERIFY(!unasked.wasAsked());
}

void RegisterDialogsTest::splitRowOpensTheForm_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("refused"); // lines that the database does not take
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("lines");
    const QString kept = u"line -30|-300|it's %1|Pets, line -70|-700|it's %1|Pets"_s;
    QTest::newRow("Enter keeps the lines") << u"Enter"_s << u"0"_s << u"-1000|new|1|1"_s << kept;
    QTest::newRow("menu, cleared") << u"menu"_s << u"0"_s << u"-1000|new|0|1"_s << QString();
    QTest::newRow("double click, refused")
        << u"click"_s << u"new.amount = -700"_s << u"-1000||1|1"_s << kept;
}

void RegisterDialogsTest::splitRowOpensTheForm()
{
    QFETCH(QString, way);
    QFETCH(QString, refused);
    addSplit();
    run(refusing(u"INSERT ON split_lines WHEN "_s + refused));
    openAccount();
    const DialogAnswer answer(u"transactionFormDialog"_s, [&way](QDialog *form) {
        typeInto(form, u"memoEdit"_s, u"new"_s);
        if (way == u"menu"_s)
            form->findChild<QPushButton *>(u"clearSplitButton"_s)->click();
        form->accept();
    });
    click(1, RegisterColumn::Payment);
    const QPoint cell = view().visualRect(view().currentIndex()).center();
    type(u"'"_s); // the cell is locked, also for a copy of the row above
    QCOMPARE(shown(1, RegisterColumn::Payment), u"10.00"_s);
    if (way == u"Enter"_s)
        press(Qt::Key_Return);
    else if (way == u"menu"_s)
        chooseInMenu([&] { screen().onContextMenu(cell); }, u"Edit &Splits..."_s);
    else
        QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, cell);
    QVERIFY(answer.wasAsked());
    const QString columns = u"amount, memo, is_split, version"_s;
    QTEST(stored(columns, u"payee = 'Market'"_s), "stored");
    QTEST(storedLines().join(u", "_s), "lines");
}

// Sorted by Clr, the mark moves the row away from under its number.
void RegisterDialogsTest::detailsLeadToTheSameTransaction()
{
    addSplit();
    openAccount();
    view().sortByColumn(RegisterColumn::Clr, Qt::AscendingOrder);
    QCOMPARE(shown(0, RegisterColumn::Payee), u"Market"_s);
    edit(0, RegisterColumn::Payee);
    std::unique_ptr<DialogAnswer> formAnswer;
    const DialogAnswer answer(u"transactionDetailsDialog"_s, [&](QDialog *details) {
        details->findChild<QPushButton *>(u"markButton"_s)->click();
        details->findChild<QPushButton *>(u"editButton"_s)->click();
        formAnswer = std::make_unique<DialogAnswer>(u"transactionFormDialog"_s, [](QDialog *form) {
            typeInto(form, u"memoEdit"_s, u"edited"_s);
            form->accept();
        });
    });
    press(Qt::Key_Return, Qt::AltModifier);
    QCOMPARE(stored(u"payee, memo, cleared"_s), u"Zoo||0; Market|edited|1"_s);
    QCOMPARE(shown(1, RegisterColumn::Clr), u"C"_s);
}

PURSEWELL_TEST_MAIN(RegisterDialogsTest)
#include "RegisterDialogsTest.moc"
