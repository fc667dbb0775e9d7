#include "shell/MainWindow.h"

#include "core/Dates.h"
#include "data/RecurringRepository.h"
#include "data/TransactionRepository.h"
#include "register/RegisterModel.h"
#include "screens/RecurringScreen.h"
#include "shell/ShellFixture.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

class MainWindowRecurringTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_shell = std::make_unique<ShellFixture>(); }
    void cleanup();
    void startPostsWhatIsDue_data();
    void startPostsWhatIsDue();
    void dueCountFollows();
    void secondaryWindowIsReused_data();
    void secondaryWindowIsReused();
    void sampleDataComesAndGoes();

private:
    void addTemplate(const QString &id, QDate due, bool autoPost);
    QString dueText() const { return m_shell->find<QLabel>(u"recurringDueLabel"_s)->text(); }
    QString message() const { return m_shell->find<QStatusBar>(u"statusBar"_s)->currentMessage(); }

    std::unique_ptr<ShellFixture> m_shell;
};

void MainWindowRecurringTest::cleanup()
{
    m_shell.reset();
    qunsetenv("PURSEWELL_DEV");
}

void MainWindowRecurringTest::addTemplate(const QString &id, QDate due, bool autoPost)
{
    const RecurringTransaction recurring{.id = id,
                                         .account_id = u"Giro"_s,
                                         .payee = id,
                                         .amount = -1000,
                                         .start_date = due,
                                         .next_due_date = due,
                                         .auto_post = autoPost,
                                         .created_at = currentStamp(),
                                         .updated_at = currentStamp()};
    if (!m_shell->state()->recurring()->insert(recurring))
        qFatal("template not stored");
}

void MainWindowRecurringTest::startPostsWhatIsDue_data()
{
    QTest::addColumn<bool>("autoPost");
    QTest::addColumn<int>("days"); // from today
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("due");
    QTest::addColumn<QString>("balance");
    QTest::newRow("automatic") << true << 0 << u"Auto-posted 1 recurring transaction(s)"_s
                               << QString() << u"-$10.00"_s;
    QTest::newRow("by hand") << false << -3 << QString() << u"  •  1 recurring due"_s << u"$0.00"_s;
    QTest::newRow("not yet") << true << 1 << QString() << QString() << u"$0.00"_s;
}

void MainWindowRecurringTest::startPostsWhatIsDue()
{
    QFETCH(bool, autoPost);
    QFETCH(int, days);
    m_shell->addAccount(u"Giro"_s);
    addTemplate(u"Rent"_s, QDate::currentDate().addDays(days), autoPost);
    m_shell->openWindow();
    QTEST(message(), "message");
    QTEST(dueText(), "due");
    QTEST(m_shell->rowLabel(0, "balanceLabel")->text(), "balance");
}

void MainWindowRecurringTest::dueCountFollows()
{
    m_shell->addAccount(u"Giro"_s);
    m_shell->openWindow();
    m_shell->trigger(u"recurringAction"_s);
    auto *screen = m_shell->find<RecurringScreen>(u"recurringScreen"_s);
    auto *table = screen->findChild<QTableView *>();
    addTemplate(u"Rent"_s, QDate::currentDate(), false);
    QTRY_VERIFY(!dueText().isEmpty());
    QTRY_COMPARE(table->model()->rowCount(), 1); // an open window hears of it
    screen->findChild<QPushButton *>(u"confirmAllButton"_s)->click();
    QTRY_COMPARE(dueText(), QString());
    QCOMPARE(m_shell->rowLabel(0, "balanceLabel")->text(), u"-$10.00"_s);
    QCOMPARE(m_shell->window()->findChild<RegisterModel *>()->rowCount(), 2);
}

void MainWindowRecurringTest::secondaryWindowIsReused_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("change"); // of the rows that it lists
    QTest::newRow("recurring") << u"recurringAction"_s << u"recurringScreen"_s
                               << u"Recurring Transactions"_s << QSize(700, 500)
                               << u"INSERT INTO recurring_transactions (id, account_id, payee, "
                                  "amount, start_date, next_due_date, created_at, updated_at) "
                                  "VALUES ('r', 'Giro', 'Rent', -1, '2024-02-29', '2024-02-29', "
                                  "'', '')"_s;
    QTest::newRow("categories")
        << u"categoriesAction"_s << u"categoriesScreen"_s << u"Categories"_s << QSize(600, 500)
        << u"UPDATE categories SET deleted_at = created_at WHERE name = 'Pets'"_s;
    QTest::newRow("payees")
        << u"payeesAction"_s << u"payeeScreen"_s << u"Payee Management"_s << QSize(550, 500)
        << u"INSERT INTO transactions (id, account_id, date, payee, amount, created_at, "
           "updated_at) VALUES ('t', 'Giro', '2024-02-29', 'Zoo', -1, '', '')"_s;
    QTest::newRow("reconciliations, of another account")
        << u"reconciliationHistoryAction"_s << u"reconciliationHistoryScreen"_s
        << u"Reconciliation History"_s << QSize(750, 500)
        << u"INSERT INTO reconciliations (id, account_id, statement_date, statement_balance, "
           "reconciled_balance, completed_at, created_at, updated_at) "
           "VALUES ('n', 'Other', '2024-02-29', 0, 0, '', '', '')"_s;
    QTest::newRow("reports") << u"reportsAction"_s << u"reportsScreen"_s << u"Reports"_s
                             << QSize(800, 600) << QString();
    QTest::newRow("search") << u"findAction"_s << u"searchScreen"_s << u"Search Transactions"_s
                            << QSize(800, 550) << QString();
    QTest::newRow("import") << u"importAction"_s << u"importScreen"_s << u"Import Transactions"_s
                            << QSize(650, 600) << QString();
}

void MainWindowRecurringTest::secondaryWindowIsReused()
{
    QFETCH(QString, action);
    QFETCH(QString, name);
    QFETCH(QString, change);
    m_shell->openWindow(); // without an account
    m_shell->addAccount(u"Giro"_s);
    m_shell->addAccount(u"Other"_s);
    m_shell->window()->selectAccount(u"Giro"_s);
    m_shell->trigger(action);
    auto *window = m_shell->find<QWidget>(name);
    QVERIFY(window && window->isVisible() && window->isWindow());
    QTEST(window->windowTitle(), "title");
    QTEST(window->size(), "size");
    const auto *model = window->findChild<QAbstractItemView *>()->model();
    const int listed = model->rowCount();
    window->resize(900, 640);
    window->close();
    if (!change.isEmpty())
        m_shell->valueOf(change); // past the repositories, which would tell
    m_shell->window()->selectAccount(u"Other"_s);
    m_shell->trigger(action);
    QCOMPARE(m_shell->window()->findChildren<QWidget *>(name), QList<QWidget *>{window});
    QVERIFY(window->isVisible());
    QCOMPARE(window->size(), QSize(900, 640));
    QVERIFY(change.isEmpty() || model->rowCount() != listed);
}

void MainWindowRecurringTest::sampleDataComesAndGoes()
{
    m_shell->openWindow();
    QVERIFY(!m_shell->find<QAction>(u"loadSampleDataAction"_s));
    qputenv("PURSEWELL_DEV", "1");
    m_shell->openWindow();
    const auto noticeOf = [this](const QString &action) {
        QString text;
        const DialogAnswer answer(u"sampleDataNotice"_s, [&text](QDialog *dialog) {
            text = qobject_cast<QMessageBox *>(dialog)->text();
        });
        m_shell->trigger(action);
        return text;
    };
    QCOMPARE(noticeOf(u"clearSampleDataAction"_s), u"No sample data to clear."_s);
    m_shell->trigger(u"loadSampleDataAction"_s);
    QCOMPARE(message(), u"Sample data loaded"_s);
    QCOMPARE(m_shell->list()->count(), 3);
    QCOMPARE(noticeOf(u"loadSampleDataAction"_s), u"Sample data is already loaded."_s);
    m_shell->window()->selectAccount(m_shell->list()->accountIdAt(0));
    m_shell->trigger(u"clearSampleDataAction"_s);
    QCOMPARE(message(), u"Sample data cleared"_s);
    QCOMPARE(m_shell->list()->count(), 0);
    QCOMPARE(m_shell->opened(), u"welcomeScreen"_s);
    QCOMPARE(m_shell->state()->currentAccountId(), QString());
}

PURSEWELL_TEST_MAIN(MainWindowRecurringTest)
#include "MainWindowRecurringTest.moc"
