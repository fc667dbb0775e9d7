#include "shell/MainWindow.h"

#include "data/ReconciliationRepository.h"
#include "data/RecurringRepository.h"
#include "shell/ShellFixture.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

namespace {

void typeName(QDialog *dialog, const QString &name, Qt::Key end)
{
    auto *edit = dialog->findChild<QLineEdit *>(u"nameEdit"_s);
    edit->selectAll();
    QTest::keyClicks(edit, name);
    QTest::keyClick(dialog, end);
}

QMenu *contextMenu(const ShellFixture &shell, QPoint pos)
{
    shell.window()->onAccountContextMenu(pos);
    return shell.find<QMenu>(u"accountContextMenu"_s);
}

} // namespace

class MainWindowAccountsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newAccountIsTyped_data();
    void newAccountIsTyped();
    void unnamedOrCancelledAccountIsNotStored();
    void deleteAsks();
    void withoutAnAccountNothingOpens();
    void wordsStayPlain();
    void contextMenuEditsItsAccount();
    void contextMenuDeletesAnotherAfterARefill();
};

void MainWindowAccountsTest::newAccountIsTyped_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("figure");
    QTest::addColumn<QString>("stored");
    QTest::newRow("a sum") << u"7.50"_s << u"$7.50"_s << u"750 2025-11-03 Opening Balance11"_s;
    QTest::newRow("a debt") << u"-0.05"_s << u"-$0.05"_s << u"-5 2025-11-03 Opening Balance11"_s;
    QTest::newRow("nothing") << u"0.00"_s << u"$0.00"_s << QString();
}

void MainWindowAccountsTest::newAccountIsTyped()
{
    QFETCH(QString, typed);
    ShellFixture shell;
    shell.addAccount(u"Everyday"_s);
    MainWindow *window = shell.openWindow();
    const DialogAnswer answer(u"accountFormDialog"_s, [&typed](QDialog *dialog) {
        auto *balance = dialog->findChild<QDoubleSpinBox *>(u"balanceSpin"_s);
        balance->selectAll();
        QTest::keyClicks(balance, typed);
        dialog->findChild<QDateEdit *>(u"startDateEdit"_s)->setDate(QDate(2025, 11, 3));
        typeName(dialog, u"  Nest egg %1 "_s, Qt::Key_Return);
    });
    QTest::keyClick(window, Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(answer.wasAsked());

    const QString id = shell.valueOf(u"SELECT id FROM accounts WHERE name = 'Nest egg %1'"_s);
    QCOMPARE(shell.opened(), id);
    QTEST(shell.rowLabel(shell.list()->rowOf(id), "balanceLabel")->text(), "figure");
    QCOMPARE(shell.valueOf(u"SELECT sum(starting_balance) FROM accounts"_s), u"0"_s);
    QTEST(
        shell.valueOf(u"SELECT amount || ' ' || date || ' ' || payee || cleared || reconciled "
                      "FROM transactions WHERE id > '' AND min(created_at, updated_at) > '2000'"_s),
        "stored");
}

void MainWindowAccountsTest::unnamedOrCancelledAccountIsNotStored()
{
    ShellFixture shell;
    shell.openWindow();
    for (const auto &[name, end] :
         {std::pair(u"   "_s, Qt::Key_Return), std::pair(u"Nest egg"_s, Qt::Key_Escape)}) {
        const DialogAnswer answer(
            u"accountFormDialog"_s,
            [&name = name, end = end](QDialog *dialog) { typeName(dialog, name, end); });
        auto *welcome = shell.find<QWidget>(u"welcomeScreen"_s);
        QTest::mouseClick(welcome->findChild<QPushButton *>(u"createAccountButton"_s),
                          Qt::LeftButton);
        QVERIFY(answer.wasAsked());
        QCOMPARE(shell.valueOf(u"SELECT count(*) FROM accounts"_s), u"0"_s);
        QCOMPARE(shell.opened(), u"welcomeScreen"_s);
    }
}

void MainWindowAccountsTest::deleteAsks()
{
    ShellFixture shell;
    for (const QString &name : {u"Gone"_s, u"Other"_s}) {
        shell.addAccount(name);
        shell.addTransaction(name, 300);
    }
    const QDate later(2099, 1, 1);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    shell.state()->recurring()->insert({.id = u"rent"_s,
                                        .account_id = u"Gone"_s,
                                        .payee = u"Rent"_s,
                                        .start_date = later,
                                        .next_due_date = later,
                                        .created_at = now,
                                        .updated_at = now});
    shell.state()->reconciliations()->insert({.id = u"statement"_s,
                                              .account_id = u"Gone"_s,
                                              .statement_date = later,
                                              .completed_at = now,
                                              .created_at = now,
                                              .updated_at = now});
    shell.openWindow();
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) { // Return: on the safe button
        const DialogAnswer no(u"deleteAccountQuestion"_s,
                              [key](QDialog *question) { QTest::keyClick(question, key); });
        shell.trigger(u"deleteAccountAction"_s);
        QVERIFY(no.wasAsked());
        QCOMPARE(shell.opened(), u"Gone"_s);
    }
    const DialogAnswer answer(u"deleteAccountQuestion"_s, clickYes);
    shell.trigger(u"deleteAccountAction"_s);
    QVERIFY(answer.wasAsked());
    for (const QString &table :
         {u"transactions"_s, u"recurring_transactions"_s, u"reconciliations"_s})
        QCOMPARE(shell.valueOf(u"SELECT COUNT(*) FROM %1 WHERE account_id = 'Gone' "
                               "AND deleted_at IS NOT NULL"_s.arg(table)),
                 u"1"_s);
    QCOMPARE(shell.opened(), u"welcomeScreen"_s);
    QCOMPARE(shell.listedNames(), QStringList{u"Other"_s});
    QCOMPARE(shell.labelText(u"totalLabel"_s), u"Total: $3.00"_s);
}

void MainWindowAccountsTest::withoutAnAccountNothingOpens()
{
    ShellFixture shell;
    shell.openWindow();
    auto *bar = shell.find<QStatusBar>(u"statusBar"_s);
    for (const QString &action : {u"editAccountAction"_s, u"deleteAccountAction"_s}) {
        bar->clearMessage();
        shell.trigger(action);
        QCOMPARE(bar->currentMessage(), u"Select an account first"_s);
    }
}

void MainWindowAccountsTest::wordsStayPlain()
{
    const QString words = u"50%\t\"Joint\" %1 & <b>Söhne</b>"_s;
    ShellFixture shell;
    shell.addAccount(words, {.institution = words});
    shell.openWindow();
    for (const char *name : {"nameLabel", "kindLabel"}) {
        QCOMPARE(shell.rowLabel(0, name)->text(), words);
        QCOMPARE(shell.rowLabel(0, name)->textFormat(), Qt::PlainText);
    }
    QTextDocument toolTip;
    toolTip.setHtml(shell.rowLabel(0, "nameLabel")->toolTip());
    QCOMPARE(toolTip.toPlainText().simplified(), words.simplified());
    QMenu *menu = contextMenu(shell, shell.centerOf(0));
    QCOMPARE(menu->actions().at(2)->text(), u"Edit \"50% \"Joint\" %1 && <b>Söhne</b>\"..."_s);

    QString asked;
    const DialogAnswer answer(u"deleteAccountQuestion"_s, [&asked](QDialog *question) {
        const auto *box = qobject_cast<QMessageBox *>(question);
        QCOMPARE(box->textFormat(), Qt::PlainText);
        asked = box->text();
    });
    menu->actions().last()->trigger();
    QVERIFY2(asked.startsWith(u"Delete \"%1\"?\n\nAll "_s.arg(words)), qPrintable(asked));
}

void MainWindowAccountsTest::contextMenuEditsItsAccount()
{
    ShellFixture shell;
    shell.addAccount(u"One"_s);
    shell.addAccount(u"Two"_s, {.starting_balance = 700});
    shell.openWindow();
    const QPoint belowTheRows(10, shell.list()->viewport()->height() - 5);
    QMenu *menu = contextMenu(shell, belowTheRows);
    QCOMPARE(menu->actions().size(), 1);
    menu->close();
    QTRY_VERIFY(!shell.find<QMenu>(u"accountContextMenu"_s));

    const DialogAnswer answer(u"accountFormDialog"_s, [](QDialog *dialog) {
        typeName(dialog, u"50% %1 & <b>"_s, Qt::Key_Return);
    });
    contextMenu(shell, shell.centerOf(1))->actions().at(2)->trigger();
    QVERIFY(answer.wasAsked());
    QCOMPARE(shell.opened(), u"Two"_s); // selected first
    QTRY_COMPARE(shell.listedNames(), (QStringList{u"One"_s, u"50% %1 & <b>"_s}));
    QCOMPARE(shell.valueOf(u"SELECT starting_balance || name FROM accounts WHERE id = 'Two'"_s),
             u"70050% %1 & <b>"_s);
}

void MainWindowAccountsTest::contextMenuDeletesAnotherAfterARefill()
{
    ShellFixture shell;
    shell.addAccount(u"One"_s);
    shell.addAccount(u"Two"_s);
    shell.openWindow();
    QMenu *menu = contextMenu(shell, shell.centerOf(1));
    QSignalSpy filled(shell.list()->model(), &QAbstractItemModel::modelReset);
    shell.addTransaction(u"Two"_s, 100);
    QTRY_COMPARE(filled.size(), 1);
    const DialogAnswer answer(u"deleteAccountQuestion"_s, clickYes);
    menu->actions().last()->trigger();
    QVERIFY(answer.wasAsked());
    QCOMPARE(shell.listedNames(), QStringList{u"One"_s});
    QCOMPARE(shell.opened(), u"One"_s);
    const DialogAnswer unasked(u"deleteAccountQuestion"_s, [](QDialog *) {});
    shell.window()->deleteAccount(u"gone"_s);
    QVERIFY(!unasked.wasAsked());
}

PURSEWELL_TEST_MAIN(MainWindowAccountsTest)
#include "MainWindowAccountsTest.moc"
