#include "register/RegisterColumn.h"
#include "screens/ReconciliationScreen.h"
#include "shell/ShellFixture.h"
#include "shell/theme/ThemeManager.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

class MainWindowReconcileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRunHasItsOwnWindow();
    void labelsFollowTheFontScale();
};

void MainWindowReconcileTest::everyRunHasItsOwnWindow()
{
    ShellFixture shell;
    shell.addAccount(u"Everyday %1"_s);
    shell.addTransaction(u"Everyday %1"_s, 100);
    const MainWindow *window = shell.openWindow();
    shell.find<QPushButton>(u"reconcileButton"_s)->click();
    shell.trigger(u"reconcileAction"_s);
    const auto open = [window] { return window->findChildren<ReconciliationScreen *>(); };
    QCOMPARE(open().size(), 2);
    ReconciliationScreen *screen = open().last();
    QVERIFY(screen->isWindow() && screen->isVisible());
    QCOMPARE(screen->windowTitle(), u"Reconcile — Everyday %1"_s);
    QCOMPARE(screen->size(), QSize(1100, 720));
    open().first()->findChild<QPushButton *>(u"cancelButton"_s)->click();
    QTRY_COMPARE(open(), QList<ReconciliationScreen *>{screen});

    screen->onTransactionToggled(0);
    screen->findChild<QDoubleSpinBox *>(u"statementBalance"_s)->setValue(1.0);
    const DialogAnswer answer(u"reconciliationCompleteBox"_s, [](QDialog *) {});
    screen->findChild<QPushButton *>(u"finishButton"_s)->click();
    QTRY_VERIFY(open().isEmpty());
    QCOMPARE(shell.valueOf(u"SELECT reconciled FROM transactions"_s), u"1"_s);
    const auto *grid = shell.find<QTableView>(u"registerTable"_s);
    QCOMPARE(grid->model()->index(0, RegisterColumn::Clr).data().toString(), u"R"_s);
}

void MainWindowReconcileTest::labelsFollowTheFontScale()
{
    ShellFixture shell;
    shell.addAccount(u"One"_s);
    const MainWindow *window = shell.openWindow();
    for (const QString &action : {u"reconcileAction"_s, u"reconciliationHistoryAction"_s,
                                  u"payeesAction"_s, u"recurringAction"_s, u"categoriesAction"_s})
        shell.trigger(action);
    QHash<QLabel *, int> sizes;
    for (const QString &name : {u"reconciliationScreen"_s, u"reconciliationHistoryScreen"_s,
                                u"payeeScreen"_s, u"recurringScreen"_s, u"categoriesScreen"_s}) {
        for (QLabel *label : window->findChild<QWidget *>(name)->findChildren<QLabel *>())
            sizes.insert(label, label->font().pointSize());
    }
    shell.state()->themeManager()->setFontScale(160);
    for (auto size = sizes.cbegin(); size != sizes.cend(); ++size)
        QTRY_VERIFY2(size.key()->font().pointSize() > size.value(), qPrintable(size.key()->text()));
    shell.state()->themeManager()->setFontScale(100);
}

PURSEWELL_TEST_MAIN(MainWindowReconcileTest)
#include "MainWindowReconcileTest.moc"
