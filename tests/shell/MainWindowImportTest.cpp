#include "shell/MainWindow.h"

#include "data/BulkWrite.h"
#include "register/RegisterModel.h"
#include "register/RegisterTableView.h"
#include "shell/ShellFixture.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

class MainWindowImportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_shell = std::make_unique<ShellFixture>(); }
    void cleanup() { m_shell.reset(); }
    void importsFillTheWindow();
    void focusDecidesAboutTheKey_data();
    void focusDecidesAboutTheKey();
    void sidebarWaitsForTheEndOfABulkWrite();
    void searchStartsInItsField();

private:
    void press(const QString &button) { m_shell->find<QAbstractButton>(button)->click(); }
    void import(const QString &format, const QByteArray &content); // from opening to "Done"

    std::unique_ptr<ShellFixture> m_shell;
};

void MainWindowImportTest::import(const QString &format, const QByteArray &content)
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(content);
    file.close();
    m_shell->trigger(u"importAction"_s);
    press(format);
    const DialogAnswer answer(u"QFileDialog"_s, chooseFile(file.fileName()));
    press(u"browseButton"_s);
    press(u"importButton"_s);
    press(u"doneButton"_s);
}

void MainWindowImportTest::importsFillTheWindow()
{
    m_shell->openWindow();
    QCOMPARE(m_shell->opened(), u"welcomeScreen"_s);
    import(u"qifRadio"_s,
           "!Account\nNB\nTBank\n^\n!Type:Bank\nD1/2/2024\nT-5\nPGrocer\nL[A & Co]\n^\n"
           "!Account\nNA & Co\nTBank\n^\n!Type:Bank\nD1/2/2024\nT5\nPGrocer\nL[B]\n^\n"
           "D1/3/2024\nT7.25\nPSalary\n^\n");
    QCOMPARE(m_shell->listedNames(), (QStringList{u"A & Co"_s, u"B"_s}));
    QCOMPARE(m_shell->rowLabel(0, "balanceLabel")->text(), u"$12.25"_s);
    QCOMPARE(m_shell->rowLabel(1, "balanceLabel")->text(), u"-$5.00"_s);
    QCOMPARE(m_shell->opened(), m_shell->list()->accountIdAt(0));
    const auto *rows = m_shell->window()->findChild<RegisterModel *>();
    QCOMPARE(rows->rowCount(), 3);

    // Into the account that is open by now.
    import(u"csvRadio"_s, "Day,Payee,Amount\n2024-01-04,Kiosk,-1\n");
    QCOMPARE(rows->rowCount(), 4);
    QCOMPARE(m_shell->rowLabel(0, "balanceLabel")->text(), u"$11.25"_s);
}

void MainWindowImportTest::focusDecidesAboutTheKey_data()
{
    QTest::addColumn<QString>("place");
    QTest::newRow("grid") << u"grid"_s;
    QTest::newRow("open editor") << u"editor"_s;
    QTest::newRow("beside the grid") << u"beside"_s;
}

void MainWindowImportTest::focusDecidesAboutTheKey()
{
    QFETCH(QString, place);
    m_shell->addAccount(u"Giro"_s);
    m_shell->addTransaction(u"Giro"_s, -100);
    m_shell->openWindow();
    auto *grid = m_shell->window()->findChild<RegisterTableView *>();
    grid->setFocus();
    grid->setCurrentIndex(grid->model()->index(0, 2));
    if (place == u"editor"_s)
        grid->edit(grid->currentIndex());
    else if (place == u"beside"_s)
        m_shell->window()->findChild<QAbstractButton *>(u"reconcileButton"_s)->setFocus();
    QTest::keyClick(m_shell->window()->windowHandle(), Qt::Key_I, Qt::ControlModifier);
    const auto *window = m_shell->find<QWidget>(u"importScreen"_s);
    QCOMPARE(window && window->isVisible(), place == u"beside"_s);
    if (place != u"beside"_s) {
        QCOMPARE(grid->currentIndex(), grid->model()->index(1, 0)); // the empty row, being typed in
        QVERIFY(grid->isEditing());
    }
}

void MainWindowImportTest::sidebarWaitsForTheEndOfABulkWrite()
{
    m_shell->addAccount(u"Giro"_s);
    m_shell->openWindow();
    const QLabel *balance = m_shell->rowLabel(0, "balanceLabel");
    {
        const BulkWrite many(m_shell->state()->transactions());
        m_shell->addTransaction(u"Giro"_s, -100);
        QTimer later;
        later.setSingleShot(true);
        later.start(0);
        QTRY_VERIFY(!later.isActive()); // what was asked for before has been done
        // A new row here would mean the whole table added up at every step.
        QVERIFY(m_shell->rowLabel(0, "balanceLabel") == balance);
    }
    QTRY_COMPARE(m_shell->rowLabel(0, "balanceLabel")->text(), u"-$1.00"_s);
}

void MainWindowImportTest::searchStartsInItsField()
{
    m_shell->openWindow();
    m_shell->trigger(u"findAction"_s);
    QTRY_VERIFY(m_shell->find<QLineEdit>(u"searchField"_s)->hasFocus());
}

PURSEWELL_TEST_MAIN(MainWindowImportTest)
#include "MainWindowImportTest.moc"
