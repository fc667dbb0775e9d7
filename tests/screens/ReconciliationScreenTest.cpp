#include "screens/ReconciliationScreen.h"

#include "core/state/AppState.h"
#include "data/ReconciliationRepository.h"
#include "register/DateField.h"
#include "register/SmartAmountField.h"
#include "screens/ReconciliationModel.h"
#include "support/DialogAnswer.h"
#include "support/StateFixture.h"

using namespace Qt::StringLiterals;

class ReconciliationScreenTest : public StateFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void offersTheNextStatementDate_data();
    void offersTheNextStatementDate();
    void gateIsExactToTheCent_data();
    void gateIsExactToTheCent();
    void rowIsTickedByKeyAndMouse_data();
    void rowIsTickedByKeyAndMouse();
    void ticksSurviveAddEditAndDelete();
    void finishWritesWhatIsTicked();

private:
    Transaction add(const QString &date, qint64 amount, bool cleared, bool reconciled = false);
    void start();
    void typeBalance(const QString &text);
    QString ticks() const; // one letter a row: x or -
    QStringList figures() const;
    template <typename Type> Type *find(const QString &name) const
    {
        return m_screen->findChild<Type *>(name);
    }

    ReconciliationScreen *m_screen = nullptr;
    ReconciliationModel *m_model = nullptr;
    QTableView *m_table = nullptr;
    QString m_account;
};

void ReconciliationScreenTest::init()
{
    StateFixture::init();
    m_account = addAccount(u"Giro"_s, {.currency = Currency::EUR});
    m_screen = keep<ReconciliationScreen>(&state());
    m_model = m_screen->findChild<ReconciliationModel *>();
    m_table = find<QTableView>(u"transactionTable"_s);
    new QAbstractItemModelTester(m_model, m_model);
}

Transaction ReconciliationScreenTest::add(const QString &date, qint64 amount, bool cleared,
                                          bool reconciled)
{
    Transaction rest;
    rest.account_id = m_account;
    rest.cleared = cleared;
    rest.reconciled = reconciled;
    rest.version = 3;
    rest.sync_status = SyncStatus::Synced;
    return addTransaction(date, u"50% <b>Söhne</b>"_s, amount, rest);
}

void ReconciliationScreenTest::start()
{
    m_screen->startForAccount(m_account);
    showActive(m_screen, {1100, 720});
}

void ReconciliationScreenTest::typeBalance(const QString &text)
{
    auto *field = find<SmartAmountField>(u"statementBalance"_s);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, text);
}

QString ReconciliationScreenTest::ticks() const
{
    QString ticks;
    for (int row = 0; row < m_model->rowCount(); ++row)
        ticks += m_model->isTicked(row) ? u'x' : u'-';
    return ticks;
}

QStringList ReconciliationScreenTest::figures() const
{
    QStringList texts;
    const auto values = m_screen->findChildren<QLabel *>(QRegularExpression(u"Value$"_s));
    for (const QLabel *value : values) // from top to bottom
        texts << value->text();
    return texts;
}

void ReconciliationScreenTest::offersTheNextStatementDate_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("reconciled");
    QTest::addColumn<QString>("offered");

    QTest::newRow("first run, the field is left alone") << u""_s << u""_s << u"2020-05-05"_s;
    QTest::newRow("into a leap February") << u"2024-01-31"_s << u""_s << u"2024-02-29"_s;
    QTest::newRow("from 29 February") << u"2024-02-29"_s << u"2024-02-28"_s << u"2024-03-29"_s;
    QTest::newRow("by a reconciled row") << u""_s << u"2023-01-31"_s << u"2023-02-28"_s;
    QTest::newRow("same day") << u"2025-11-30"_s << u"2025-11-30"_s << u"2025-12-30"_s;
    QTest::newRow("row after the statement, turn of the year")
        << u"2025-10-31"_s << u"2025-12-31"_s << u"2026-01-31"_s;
    QTest::newRow("broken row") << u"2025-10-31"_s << u"soon"_s << u"2025-11-30"_s;
    QTest::newRow("broken statement") << u"soon"_s << u"2025-10-31"_s << u"2025-11-30"_s;
    QTest::newRow("both broken, an older row decides") << u"soon"_s << u"soon"_s << u"2020-02-01"_s;
}

void ReconciliationScreenTest::offersTheNextStatementDate()
{
    QFETCH(QString, statement);
    QFETCH(QString, reconciled);
    QFETCH(QString, offered);

    add(u"2027-01-01"_s, 100, true); // not reconciled
    if (!reconciled.isEmpty()) {
        add(u"2020-01-01"_s, 100, true, true);
        add(u"2021-01-01"_s, 100, true, true);
        run(u"UPDATE transactions SET date = '%1' WHERE date = '2021-01-01'"_s.arg(reconciled));
    }
    if (!statement.isEmpty())
        run(u"INSERT INTO reconciliations (id, account_id, statement_date, "
            "statement_balance, reconciled_balance, completed_at, created_at, "
            "updated_at) VALUES ('n', '%1', '%2', 0, 0, '', '', '')"_s.arg(m_account, statement));
    auto *field = find<DateField>(u"statementDate"_s);
    field->setDate(QDate(2020, 5, 5));
    m_screen->startForAccount(m_account);
    QCOMPARE(field->date().toString(Qt::ISODate), offered);
}

void ReconciliationScreenTest::gateIsExactToTheCent_data()
{
    QTest::addColumn<qint64>("settled");
    QTest::addColumn<QList<qint64>>("ticked");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("difference");

    using Amounts = QList<qint64>;
    QTest::newRow("a run without rows") << qint64(5005) << Amounts{} << u"50.05"_s << u"€0.00"_s;
    QTest::newRow("a cent missing") << qint64(0) << Amounts{1000} << u"10.01"_s << u"€0.01"_s;
    QTest::newRow("a cent too much") << qint64(0) << Amounts{1000} << u"9.99"_s << u"-€0.01"_s;
    QTest::newRow("no binary fraction") << qint64(0) << Amounts{-435} << u"-4.35"_s << u"€0.00"_s;
    QTest::newRow("the largest") << qint64(9999999998) << Amounts{1} << u"99999999.99"_s
                                 << u"€0.00"_s;
    QTest::newRow("beyond 64 bit") << std::numeric_limits<qint64>::max() << Amounts{1} << u"1"_s
                                   << u"-€92,233,720,368,547,757.07"_s;
}

void ReconciliationScreenTest::gateIsExactToTheCent()
{
    QFETCH(qint64, settled);
    QFETCH(QList<qint64>, ticked);
    QFETCH(QString, typed);
    QFETCH(QString, difference);

    run(u"UPDATE accounts SET starting_balance = %1"_s.arg(settled - 40));
    add(u"2026-01-01"_s, 40, true, true);
    add(u"2026-01-02"_s, 77777, false); // not on the statement
    for (const qint64 amount : std::as_const(ticked))
        add(u"2026-01-03"_s, amount, true);
    start();
    typeBalance(typed);
    const auto *button = find<QPushButton>(u"finishButton"_s);
    QCOMPARE(figures().last(), difference);
    QCOMPARE(button->isEnabled(), difference == u"€0.00"_s);
    m_screen->onTransactionToggled(0);
    QVERIFY(!button->isEnabled()); // one row too many
}

void ReconciliationScreenTest::rowIsTickedByKeyAndMouse_data()
{
    QTest::addColumn<QKeySequence>("key"); // empty: the mouse
    QTest::addColumn<QString>("after");

    QTest::newRow("space") << QKeySequence(Qt::Key_Space) << u"xx-"_s;
    QTest::newRow("c") << QKeySequence(Qt::Key_C) << u"xx-"_s;
    QTest::newRow("R") << QKeySequence(Qt::SHIFT | Qt::Key_R) << u"xx-"_s;
    QTest::newRow("another letter") << QKeySequence(Qt::Key_X) << u"x--"_s;
    QTest::newRow("copy") << QKeySequence(Qt::CTRL | Qt::Key_C) << u"x--"_s;
    QTest::newRow("mouse") << QKeySequence() << u"xx-"_s;
}

void ReconciliationScreenTest::rowIsTickedByKeyAndMouse()
{
    QFETCH(QKeySequence, key);
    QFETCH(QString, after);

    QTest::keyClick(m_table, Qt::Key_Space); // no rows yet
    add(u"2026-01-02"_s, 100, true);
    add(u"2026-01-03"_s, 200, false);
    add(u"2026-01-04"_s, 400, false);
    start();
    QCOMPARE(ticks(), u"x--"_s); // what the register has cleared is ticked at first
    m_table->selectRow(1);
    QSignalSpy changed(m_model, &QAbstractItemModel::dataChanged);
    QSignalSpy reset(m_model, &QAbstractItemModel::modelReset);
    const QRect cell = m_table->visualRect(m_model->index(1, ReconciliationModel::Tick));
    if (key.isEmpty())
        QTest::mouseClick(m_table->viewport(), Qt::LeftButton, {},
                          {cell.left() + 12, cell.center().y()});
    else
        QTest::keySequence(m_table, key);
    QCOMPARE(ticks(), after);
    // However many rows there are, one cell is drawn anew.
    QCOMPARE(changed.size(), after == u"x--"_s ? 0 : 1);
    QCOMPARE(reset.size(), 0);
    QCOMPARE(m_model->index(1, ReconciliationModel::Cleared).data().toString(), QString());
    QCOMPARE(m_table->currentIndex().row(), 1);
}

void ReconciliationScreenTest::ticksSurviveAddEditAndDelete()
{
    add(u"2026-01-02"_s, 100, true);
    const Transaction transfer = add(u"2026-01-03"_s, 200, false);
    const Transaction farSide = addTransaction(u"2026-01-05"_s, u"Transfer"_s, -200,
                                               {.account_id = addAccount(u"Other"_s)});
    run(u"UPDATE transactions SET transfer_link_id = '%1' WHERE id = '%2'"_s.arg(farSide.id,
                                                                                 transfer.id));
    add(u"2026-01-04"_s, 400, false);
    start();
    m_table->setFocus();
    m_screen->onTransactionToggled(0);
    m_screen->onTransactionToggled(2);

    const auto fill = [](const QString &date, const QString &amount) {
        return [date, amount](QDialog *form) {
            form->findChild<DateField *>()->setText(date);
            form->findChild<SmartAmountField *>()->selectAll();
            QTest::keyClicks(form->findChild<SmartAmountField *>(), amount);
            form->accept();
        };
    };
    const DialogAnswer added(u"transactionFormDialog"_s, fill(u"1/1/2026"_s, u"8"_s));
    QTest::keyClick(m_table, Qt::Key_Insert);
    QCOMPARE(ticks(), u"---x"_s); // the new row is the oldest

    m_table->selectRow(3);
    const DialogAnswer edited(u"transactionFormDialog"_s, fill(u"1/2/2025"_s, u"1.50"_s));
    const QRect payee = m_table->visualRect(m_model->index(3, ReconciliationModel::Payee));
    QTest::mouseClick(m_table->viewport(), Qt::LeftButton, {}, payee.center());
    QTest::mouseDClick(m_table->viewport(), Qt::LeftButton, {}, payee.center());
    QCOMPARE(ticks(), u"x---"_s); // by id, wherever the row goes
    QCOMPARE(m_table->currentIndex().row(), 0);
    QCOMPARE(figures().at(1), u"€1.50"_s);

    m_table->selectRow(3);
    const DialogAnswer deleted(u"deleteTransactionQuestion"_s, [](QDialog *question) {
        auto *box = qobject_cast<QMessageBox *>(question);
        QCOMPARE(box->text(), u"Delete the transaction for 50% <b>Söhne</b>?"_s);
        QCOMPARE(box->textFormat(), Qt::PlainText);
        QCOMPARE(box->defaultButton(), box->button(QMessageBox::No));
        box->button(QMessageBox::Yes)->click();
    });
    showActive(m_screen); // the shortcut waits for the form to be gone
    QTest::keyClick(m_table, Qt::Key_Delete);
    QVERIFY(deleted.wasAsked());
    QCOMPARE(ticks(), u"x--"_s);
    QCOMPARE(m_table->currentIndex().row(), 2);
    QCOMPARE(stored(u"amount, cleared, reconciled"_s), // the far side stays
             u"150|0|0; -800|0|0; 100|1|0; -200|0|0"_s);
}

void ReconciliationScreenTest::finishWritesWhatIsTicked()
{
    run(u"UPDATE accounts SET starting_balance = 1000"_s);
    run(refusing(u"UPDATE ON transactions WHEN old.amount = 100"_s));
    add(u"2025-12-01"_s, 50, true, true);
    add(u"2026-01-02"_s, 100, true);
    add(u"2026-01-03"_s, -300, false);
    add(u"2026-01-04"_s, 400, true);
    start();
    m_screen->onTransactionToggled(1);
    m_screen->onTransactionToggled(2);
    find<DateField>(u"statementDate"_s)->setText(u"1/31/2026"_s);
    typeBalance(u"8.50"_s);
    QCOMPARE(
        figures(),
        (QStringList{u"€10.50"_s, u"€1.00"_s, u"-€3.00"_s, u"€8.50"_s, u"€8.50"_s, u"€0.00"_s}));
    const QString fields = u"amount, cleared, reconciled, version, sync_status"_s;
    QCOMPARE(stored(fields).section(u"; "_s, 2, 2), u"-300|0|0|3|synced"_s); // nothing yet

    const LogCatcher log;
    QSignalSpy completed(m_screen, &ReconciliationScreen::reconciliationCompleted);
    const DialogAnswer answer(u"reconciliationCompleteBox"_s, [&completed](QDialog *box) {
        QCOMPARE(completed.size(), 0);
        QTest::keyClick(box, Qt::Key_Return);
    });
    QTest::mouseClick(find<QPushButton>(u"finishButton"_s), Qt::LeftButton);
    QVERIFY(answer.wasAsked());
    QCOMPARE(completed.size(), 1);
    // A row that the database refuses does not keep the others back.
    QCOMPARE(log.warnings().filter(u"TransactionRepository::update failed:"_s).size(), 1);
    QCOMPARE(stored(fields),
             u"50|1|1|3|synced; 100|1|0|3|synced; -300|1|1|3|pending; 400|1|0|3|synced"_s);
    const auto history = state().reconciliations()->listByAccount(m_account);
    QCOMPARE(history.size(), 1);
    QCOMPARE(history.first().statement_date, QDate(2026, 1, 31));
    QCOMPARE(history.first().statement_balance, 850);
    QCOMPARE(history.first().reconciled_balance, 850);
    QCOMPARE(stored(u"updated_at"_s, u"amount = -300"_s),
             history.first().completed_at.toString(Qt::ISODate));
}

PURSEWELL_TEST_MAIN(ReconciliationScreenTest)
#include "ReconciliationScreenTest.moc"
