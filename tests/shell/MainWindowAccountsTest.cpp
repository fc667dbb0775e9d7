#include "shell/MainWindow.h"

#include "data/AccountRepository.h"
#include "data/ReconciliationRepository.h"
#include "data/RecurringRepository.h"
#include "data/TransactionRepository.h"
#include "register/RegisterScreen.h"
#include "shell/ShellFixture.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

namespace {

constexpr char kWords[] = "50% \"Joint\" %1 & <b>Söhne</b>";

void clickYes(QDialog *question)
{
    QTest::mouseClick(qobject_cast<QMessageBox *>(question)->button(QMessageBox::Yes),
                      Qt::LeftButton);
}

} // namespace

class MainWindowAccountsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_shell = std::make_unique<ShellFixture>(); }
    void cleanup() { m_shell.reset(); }
    void newAccountIsTyped_data();
    void newAccountIsTyped();
    void unnamedOrCancelledAccountIsNotStored_data();
    void unnamedOrCancelledAccountIsNotStored();
    void editChangesTheRecord();
    void deleteTakesAllThatHangsOnIt();
    void deleteNeedsAYes_data();
    void deleteNeedsAYes();
    void deleteOfAnotherLeavesTheRegister();
    void withoutAnAccountNothingOpens_data();
    void withoutAnAccountNothingOpens();
    void contextMenuOffersWhatFits();
    void contextMenuOutlivesARefill();

private:
    QMenu *openContextMenu(QPoint pos);
    void addDependents(const QString &accountId);

    std::unique_ptr<ShellFixture> m_shell;
};

void MainWindowAccountsTest::newAccountIsTyped_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<qint64>("opening");
    QTest::addColumn<QString>("figure");

    QTest::newRow("with an opening balance") << u"100.00"_s << qint64(10000) << u"$100.00"_s;
    QTest::newRow("with a debt") << u"-0.05"_s << qint64(-5) << u"-$0.05"_s;
    QTest::newRow("empty") << u"0.00"_s << qint64(0) << u"$0.00"_s;
}

void MainWindowAccountsTest::newAccountIsTyped()
{
    QFETCH(QString, typed);
    QFETCH(qint64, opening);
    QFETCH(QString, figure);

    m_shell->addAccount(u"Everyday"_s);
    MainWindow *window = m_shell->openWindow();
    const DialogAnswer answer(u"accountFormDialog"_s, [&typed](QDialog *dialog) {
        QTest::keyClicks(dialog->findChild<QLineEdit *>(u"nameEdit"_s), u"  Nest egg %1 "_s);
        auto *balance = dialog->findChild<QDoubleSpinBox *>(u"balanceSpin"_s);
        balance->selectAll();
        QTest::keyClicks(balance, typed);
        dialog->findChild<QDateEdit *>(u"startDateEdit"_s)->setDate(QDate(2025, 11, 3));
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    QTest::keyClick(window, Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(answer.wasAsked());

    QCOMPARE(
        m_shell->valueOf(u"SELECT starting_balance FROM accounts WHERE name = 'Nest egg %1'"_s), 0);
    const QString id =
        m_shell->valueOf(u"SELECT id FROM accounts WHERE name = 'Nest egg %1'"_s).toString();
    QCOMPARE(m_shell->state()->currentAccountId(), id);
    QCOMPARE(m_shell->find<RegisterScreen>(u"registerScreen"_s)->accountId(), id);
    const int row = m_shell->list()->rowOf(id);
    QCOMPARE(m_shell->list()->currentRow(), row);
    QCOMPARE(m_shell->rowLabel(row, u"balanceLabel"_s)->text(), figure);

    const QList<RegisterRow> rows = m_shell->state()->transactions()->registerRows(id);
    QCOMPARE(rows.size(), opening == 0 ? 0 : 1);
    for (const RegisterRow &stored : rows) {
        QVERIFY(!stored.id.isEmpty());
        QCOMPARE(stored.amount, opening);
        QCOMPARE(stored.date, QDate(2025, 11, 3));
        QCOMPARE(stored.payee, u"Opening Balance"_s);
        QVERIFY(stored.cleared && stored.reconciled);
        QVERIFY(stored.created_at.isValid() && stored.updated_at.isValid());
    }
}

void MainWindowAccountsTest::unnamedOrCancelledAccountIsNotStored_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("key");

    QTest::newRow("no name") << u"   "_s << int(Qt::Key_Return);
    QTest::newRow("cancelled") << u"Nest egg"_s << int(Qt::Key_Escape);
}

void MainWindowAccountsTest::unnamedOrCancelledAccountIsNotStored()
{
    QFETCH(QString, name);
    QFETCH(int, key);

    m_shell->openWindow();
    const DialogAnswer answer(u"accountFormDialog"_s, [&](QDialog *dialog) {
        QTest::keyClicks(dialog->findChild<QLineEdit *>(u"nameEdit"_s), name);
        QTest::keyClick(dialog, Qt::Key(key));
    });
    auto *button = m_shell->find<QWidget>(u"welcomeScreen"_s)
                       ->findChild<QPushButton *>(u"createAccountButton"_s);
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(answer.wasAsked());
    QCOMPARE(m_shell->valueOf(u"SELECT count(*) FROM accounts"_s), 0);
    QCOMPARE(m_shell->currentPage(), u"welcomeScreen"_s);
}

void MainWindowAccountsTest::editChangesTheRecord()
{
    const QString words = u"50% \"Joint\" %1 & <b>"_s; // what a test can type
    m_shell->addAccount(u"Everyday"_s, {.starting_balance = 700, .version = 3});
    m_shell->state()->accounts()->markSynced(u"Everyday"_s, u"server-1"_s);
    m_shell->openWindow();
    const DialogAnswer answer(u"accountFormDialog"_s, [&words](QDialog *dialog) {
        auto *name = dialog->findChild<QLineEdit *>(u"nameEdit"_s);
        name->selectAll();
        QTest::keyClicks(name, words);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    m_shell->trigger(u"editAccountAction"_s);
    QVERIFY(answer.wasAsked());
    QTRY_COMPARE(m_shell->listedNames(), QStringList{words});
    const auto stored = m_shell->state()->accounts()->findById(u"Everyday"_s);
    QCOMPARE(stored->name, words);
    QCOMPARE(stored->starting_balance, 700);
    QCOMPARE(stored->sync_status, SyncStatus::Pending);
    QCOMPARE(stored->server_id, u"server-1"_s);
}

void MainWindowAccountsTest::addDependents(const QString &accountId)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const QDate day(2026, 3, 14);
    RecurringTransaction rent;
    rent.id = u"rent-"_s + accountId;
    rent.account_id = accountId;
    rent.payee = u"Landlord"_s;
    rent.start_date = rent.next_due_date = day;
    rent.created_at = rent.updated_at = now;
    QVERIFY(m_shell->state()->recurring()->insert(rent));
    Reconciliation statement;
    statement.id = u"statement-"_s + accountId;
    statement.account_id = accountId;
    statement.statement_date = day;
    statement.completed_at = now;
    QVERIFY(m_shell->state()->reconciliations()->insert(statement));
    m_shell->addTransaction(accountId, 100);
    m_shell->addTransaction(accountId, 200);
}

void MainWindowAccountsTest::deleteTakesAllThatHangsOnIt()
{
    const QString words = QString::fromUtf8(kWords);
    m_shell->addAccount(words);
    m_shell->addAccount(u"Other"_s);
    addDependents(words);
    addDependents(u"Other"_s);
    m_shell->state()->setCurrentAccountId(words);
    m_shell->openWindow();
    QString asked;
    Qt::TextFormat format = Qt::AutoText;
    const DialogAnswer answer(u"deleteAccountQuestion"_s, [&](QDialog *question) {
        const auto *box = qobject_cast<QMessageBox *>(question);
        asked = box->text();
        format = box->textFormat();
        clickYes(question);
    });
    m_shell->trigger(u"deleteAccountAction"_s);
    QVERIFY(answer.wasAsked());
    QVERIFY(asked.startsWith(u"Delete \"50% \"Joint\" %1 & <b>Söhne</b>\"?\n\nAll "_s));
    QCOMPARE(format, Qt::PlainText);

    const auto live = [this](const QString &table) {
        return m_shell->valueOf(u"SELECT count(*) FROM %1 WHERE deleted_at IS NULL"_s.arg(table));
    };
    QCOMPARE(live(u"transactions"_s), 2);
    QCOMPARE(live(u"recurring_transactions"_s), 1);
    QCOMPARE(live(u"reconciliations"_s), 1);
    QCOMPARE(m_shell->valueOf(u"SELECT group_concat(name) FROM accounts "
                              "WHERE deleted_at IS NULL"_s),
             u"Other"_s);
    // The restore takes what was deleted in the ten seconds before the account.
    QVERIFY(m_shell
                ->valueOf(u"SELECT max(t.deleted_at) <= a.deleted_at FROM transactions t "
                          "JOIN accounts a ON a.id = t.account_id "
                          "WHERE a.deleted_at IS NOT NULL"_s)
                .toBool());
    QCOMPARE(m_shell->state()->currentAccountId(), QString());
    QCOMPARE(m_shell->currentPage(), u"welcomeScreen"_s);
    QCOMPARE(m_shell->listedNames(), QStringList{u"Other"_s});
    QCOMPARE(m_shell->totalText(), u"Total: $3.00"_s);
}

void MainWindowAccountsTest::deleteNeedsAYes_data()
{
    QTest::addColumn<int>("key");

    QTest::newRow("escape") << int(Qt::Key_Escape);
    QTest::newRow("return, on the safe button") << int(Qt::Key_Return);
}

void MainWindowAccountsTest::deleteNeedsAYes()
{
    QFETCH(int, key);

    m_shell->addAccount(u"Everyday"_s);
    m_shell->openWindow();
    const DialogAnswer answer(u"deleteAccountQuestion"_s, [key](QDialog *question) {
        QTest::keyClick(question, Qt::Key(key));
    });
    m_shell->trigger(u"deleteAccountAction"_s);
    QVERIFY(answer.wasAsked());
    QCOMPARE(m_shell->valueOf(u"SELECT count(*) FROM accounts WHERE deleted_at IS NULL"_s), 1);
    QCOMPARE(m_shell->currentPage(), u"registerScreen"_s);
}

void MainWindowAccountsTest::deleteOfAnotherLeavesTheRegister()
{
    m_shell->addAccount(u"One"_s);
    m_shell->addAccount(u"Two"_s);
    MainWindow *window = m_shell->openWindow();
    const DialogAnswer answer(u"deleteAccountQuestion"_s, clickYes);
    window->deleteAccount(u"Two"_s);
    QVERIFY(answer.wasAsked());
    QCOMPARE(m_shell->currentPage(), u"registerScreen"_s);
    QCOMPARE(m_shell->state()->currentAccountId(), u"One"_s);
    QCOMPARE(m_shell->find<RegisterScreen>(u"registerScreen"_s)->accountId(), u"One"_s);
    QCOMPARE(m_shell->listedNames(), QStringList{u"One"_s});
    window->deleteAccount(u"gone"_s); // asks nothing
}

void MainWindowAccountsTest::withoutAnAccountNothingOpens_data()
{
    QTest::addColumn<QString>("action");

    QTest::newRow("edit") << u"editAccountAction"_s;
    QTest::newRow("delete") << u"deleteAccountAction"_s;
}

void MainWindowAccountsTest::withoutAnAccountNothingOpens()
{
    QFETCH(QString, action);

    m_shell->openWindow();
    m_shell->trigger(action);
    QCOMPARE(m_shell->find<QStatusBar>(u"statusBar"_s)->currentMessage(),
             u"Select an account first"_s);
}

QMenu *MainWindowAccountsTest::openContextMenu(QPoint pos)
{
    m_shell->window()->onAccountContextMenu(pos);
    return m_shell->find<QMenu>(u"accountContextMenu"_s);
}

void MainWindowAccountsTest::contextMenuOffersWhatFits()
{
    const QString words = QString::fromUtf8(kWords);
    m_shell->addAccount(u"One"_s);
    m_shell->addAccount(words);
    m_shell->openWindow();
    const auto texts = [](const QMenu *menu) {
        QStringList lines;
        for (const QAction *action : menu->actions())
            lines << (action->isSeparator() ? u"-"_s : action->text());
        return lines;
    };
    QMenu *menu = openContextMenu({10, m_shell->list()->viewport()->height() - 5});
    QCOMPARE(texts(menu), QStringList{u"New Account..."_s});
    menu->close();
    QTRY_VERIFY(!m_shell->find<QMenu>(u"accountContextMenu"_s));

    menu = openContextMenu(m_shell->list()->visualItemRect(m_shell->list()->item(1)).center());
    QCOMPARE(
        texts(menu),
        (QStringList{u"New Account..."_s, u"-"_s, u"Edit \"50% \"Joint\" %1 && <b>Söhne</b>\"..."_s,
                     u"-"_s, u"Delete \"50% \"Joint\" %1 && <b>Söhne</b>\""_s}));
    const DialogAnswer answer(u"accountFormDialog"_s, [](QDialog *dialog) { dialog->reject(); });
    menu->actions().at(2)->trigger();
    QVERIFY(answer.wasAsked());
    QCOMPARE(m_shell->state()->currentAccountId(), words); // selected first
}

void MainWindowAccountsTest::contextMenuOutlivesARefill()
{
    m_shell->addAccount(u"One"_s);
    m_shell->addAccount(u"Two"_s);
    m_shell->openWindow();
    QMenu *menu =
        openContextMenu(m_shell->list()->visualItemRect(m_shell->list()->item(1)).center());
    QSignalSpy filled(m_shell->list()->model(), &QAbstractItemModel::modelReset);
    m_shell->addTransaction(u"Two"_s, 100);
    QTRY_COMPARE(filled.size(), 1);
    const DialogAnswer answer(u"deleteAccountQuestion"_s, clickYes);
    menu->actions().last()->trigger();
    QVERIFY(answer.wasAsked());
    QCOMPARE(m_shell->listedNames(), QStringList{u"One"_s});
}

PURSEWELL_TEST_MAIN(MainWindowAccountsTest)
#include "MainWindowAccountsTest.moc"
