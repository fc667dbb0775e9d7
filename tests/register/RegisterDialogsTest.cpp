#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/SplitLineRepository.h"
#include "register/RegisterColumn.h"
#include "register/SmartAmountField.h"
#include "screens/ScreenFixture.h"
#include "support/DialogAnswer.h"
#include "support/TestSupport.h"

#include <QComboBox>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

using namespace Qt::StringLiterals;

// What the dialogs that open from the register leave in the database.
class RegisterDialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_fixture.reset(); }

    void ctrlNStoresASplit();
    void splitRowOpensTheForm_data();
    void splitRowOpensTheForm();
    void detailsLeadToTheSameTransaction();

private:
    static void type(QDialog *form, const QString &field, const QString &text)
    {
        form->findChild<QLineEdit *>(field)->setText(text);
    }
    void addSplit(); // two transactions, of which the later is split into -300 and -700
    QStringList storedLines() const;

    std::unique_ptr<ScreenFixture> m_fixture;
    QString m_checking;
    QString m_pets;
};

void RegisterDialogsTest::init()
{
    m_fixture = std::make_unique<ScreenFixture>();
    m_checking = m_fixture->addAccount(u"Checking"_s);
    m_pets = m_fixture->categoryId(u"Pets"_s);
}

void RegisterDialogsTest::addSplit()
{
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"Zoo"_s, -500);
    const Transaction market = m_fixture->addTransaction(m_checking, u"2024-01-06"_s, u"Market"_s,
                                                         -1000, {.is_split = true});
    for (const qint64 amount : {qint64(-300), qint64(-700)})
        QVERIFY(m_fixture->state().splitLines()->insert({u"line %1"_s.arg(amount), market.id,
                                                         m_pets, amount, u"it's %1"_s,
                                                         market.created_at, market.created_at}));
}

QStringList RegisterDialogsTest::storedLines() const
{
    const QString id = m_fixture->stored(u"id"_s, u"payee = 'Market'"_s).value(0);
    QStringList lines;
    for (const SplitLine &line : m_fixture->state().splitLines()->listByTransaction(id))
        lines << u"%1|%2|%3"_s.arg(line.id.left(8), QString::number(line.amount), line.memo);
    return lines;
}

void RegisterDialogsTest::ctrlNStoresASplit()
{
    m_fixture->addTransaction(m_checking, u"2024-01-05"_s, u"Old"_s, -500);
    m_fixture->openAccount(m_checking);
    m_fixture->goTo(0, RegisterColumn::Payee);
    m_fixture->press(Qt::Key_F2); // an open editor must not keep the grid from showing the new row
    std::unique_ptr<DialogAnswer> splitAnswer;
    const DialogAnswer answer(u"transactionFormDialog"_s, [&](QDialog *form) {
        type(form, u"dateField"_s, u"2/1/2024"_s);
        type(form, u"payeeEdit"_s, u"Market"_s);
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
    m_fixture->press(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(
        m_fixture->stored(u"account_id, amount, is_split, version"_s, u"date > '2024-01-31'"_s),
        QStringList(m_checking + u"|-1000|1|1"_s));
    // The table takes no line without a category; the rest of what was typed stands.
    QCOMPARE(storedLines().size(), 1);
    QVERIFY(storedLines().first().contains(u"|-500|"_s));
    QVERIFY(log.warnings().join(u'\n').contains(u"SplitLineRepository::insert failed:"_s));
    QCOMPARE(m_fixture->shown(1, RegisterColumn::Category), u"—Split—"_s);
    QCOMPARE(m_fixture->view().currentIndex(), m_fixture->model().index(2, 0));

    const DialogAnswer unasked(u"transactionFormDialog"_s, [](QDialog *) {});
    m_fixture->state().accounts()->softDelete(m_checking);
    m_fixture->screen().newTransactionDialog();
    QVERIFY(!unasked.wasAsked());
}

void RegisterDialogsTest::splitRowOpensTheForm_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("refused"); // lines that the database does not take
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("lines");
    const QString kept = u"line -30|-300|it's %1, line -70|-700|it's %1"_s;
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
    m_fixture->run(u"CREATE TRIGGER refusing BEFORE INSERT ON split_lines WHEN %1 "
                   "BEGIN SELECT RAISE(ABORT, 'refused'); END"_s.arg(refused));
    m_fixture->openAccount(m_checking);
    const DialogAnswer answer(u"transactionFormDialog"_s, [&way](QDialog *form) {
        type(form, u"memoEdit"_s, u"new"_s);
        if (way == u"menu"_s)
            form->findChild<QPushButton *>(u"clearSplitButton"_s)->click();
        form->accept();
    });
    m_fixture->click(1, RegisterColumn::Payment);
    const QPoint cell = m_fixture->view().visualRect(m_fixture->view().currentIndex()).center();
    m_fixture->type(u"'"_s); // the cell is locked, also for a copy of the row above
    QCOMPARE(m_fixture->shown(1, RegisterColumn::Payment), u"10.00"_s);
    QTimer::singleShot(0, this, [] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        for (QAction *action : menu ? menu->actions() : QList<QAction *>()) {
            menu->close();
            if (action->text() == u"Edit &Splits..."_s)
                action->trigger();
        }
    });
    if (way == u"Enter"_s)
        m_fixture->press(Qt::Key_Return);
    else if (way == u"menu"_s)
        m_fixture->screen().onContextMenu(cell);
    else
        QTest::mouseDClick(m_fixture->view().viewport(), Qt::LeftButton, {}, cell);
    QVERIFY(answer.wasAsked());
    const QString columns = u"amount, memo, is_split, version"_s;
    QTEST(m_fixture->stored(columns, u"payee = 'Market'"_s).value(0), "stored");
    QTEST(storedLines().join(u", "_s), "lines");
}

// Sorted by Clr, the mark moves the row away from under its number.
void RegisterDialogsTest::detailsLeadToTheSameTransaction()
{
    addSplit();
    m_fixture->openAccount(m_checking);
    m_fixture->view().sortByColumn(RegisterColumn::Clr, Qt::AscendingOrder);
    QCOMPARE(m_fixture->shown(0, RegisterColumn::Payee), u"Market"_s);
    m_fixture->goTo(0, RegisterColumn::Payee);
    std::unique_ptr<DialogAnswer> formAnswer;
    const DialogAnswer answer(u"transactionDetailsDialog"_s, [&](QDialog *details) {
        details->findChild<QPushButton *>(u"markButton"_s)->click();
        details->findChild<QPushButton *>(u"editButton"_s)->click();
        formAnswer = std::make_unique<DialogAnswer>(u"transactionFormDialog"_s, [](QDialog *form) {
            type(form, u"memoEdit"_s, u"edited"_s);
            form->accept();
        });
    });
    m_fixture->press(Qt::Key_Return, Qt::AltModifier);
    QCOMPARE(m_fixture->stored(u"payee, memo, cleared"_s),
             QStringList({u"Zoo||0"_s, u"Market|edited|1"_s}));
}

PURSEWELL_TEST_MAIN(RegisterDialogsTest)
#include "RegisterDialogsTest.moc"
