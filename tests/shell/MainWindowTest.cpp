#include "shell/MainWindow.h"

#include "core/Deployment.h"
#include "data/AccountRepository.h"
#include "shell/ShellFixture.h"
#include "shell/StatusBar.h"
#include "shell/WelcomeScreen.h"
#include "shell/theme/ThemeManager.h"
#include "support/FakeHttpService.h"
#include "support/OpenedUrls.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

namespace {

struct ListedRow
{
    Account account;
    QString kind;
    QString figure;
    qint64 amount = 0;
};

QString colorOf(QLabel *label)
{
    label->ensurePolished();
    return label->palette().color(label->foregroundRole()).name();
}

} // namespace

class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsTellKindAndFigure_data();
    void rowsTellKindAndFigure();
    void totalAddsUpAllRows_data();
    void totalAddsUpAllRows();
    void startOpensWhatThereIs_data();
    void startOpensWhatThereIs();
    void clickAndAltDigitsOpenAccounts();
    void bulkWriteFillsTheListOnceAndKeepsThePlace();
    void moveStoresTheOrderOnly();
    void rowsFollowSplitterAndFontScale();
    void quitKeepsThePlaceOfTheWindow();
    void themeReachesTheWindow();
    void boxesTellKeysAndVersion();
    void feedbackOpensThePage();
    void helpEntriesAnswerInTheStatusBar_data();
    void helpEntriesAnswerInTheStatusBar();
};

void MainWindowTest::rowsTellKindAndFigure_data()
{
    QTest::addColumn<ListedRow>("row");
    using enum AccountType;
    QTest::newRow("starting balance alone")
        << ListedRow{{.starting_balance = 500000}, u"Checking"_s, u"$5,000.00"_s};
    QTest::newRow("zero is no debt") << ListedRow{
        {.account_type = Savings, .starting_balance = -100}, u"Savings"_s, u"$0.00"_s, 100};
    QTest::newRow("debt") << ListedRow{
        {.account_type = CreditCard, .starting_balance = 100}, u"Credit Card"_s, u"-$1.00"_s, -200};
    QTest::newRow("yen") << ListedRow{
        {.account_type = Cash, .currency = Currency::JPY}, u"Cash"_s, u"¥1,050"_s, 1050};
    QTest::newRow("bank and number") << ListedRow{
        {.institution = u"%2"_s, .account_number_last4 = u"7"_s}, u"%2  ·  *7"_s, u"$0.00"_s};
}

void MainWindowTest::rowsTellKindAndFigure()
{
    QFETCH(ListedRow, row);
    ShellFixture shell;
    shell.addAccount(u"Everyday"_s, row.account);
    shell.addTransaction(u"Everyday"_s, row.amount);
    shell.openWindow();
    QCOMPARE(shell.rowLabel(0, "kindLabel")->text(), row.kind);
    QLabel *balance = shell.rowLabel(0, "balanceLabel");
    QCOMPARE(balance->text(), row.figure);
    QCOMPARE(colorOf(balance), row.figure.startsWith(u'-') ? u"#ff8a80"_s : u"#66bb6a"_s);
    QVERIFY(balance->width() >= balance->fontMetrics().horizontalAdvance(row.figure));
    const QLabel *name = shell.rowLabel(0, "nameLabel");
    QVERIFY(name->height() >= name->fontMetrics().height()); // no descender is cut off
}

void MainWindowTest::totalAddsUpAllRows_data()
{
    QTest::addColumn<QList<qint64>>("balances");
    QTest::addColumn<QString>("total");
    QTest::newRow("none") << QList<qint64>() << u"No accounts"_s;
    QTest::newRow("two currencies") << QList<qint64>{500, -700} << u"Total: -$2.00"_s;
    QTest::newRow("beyond 64 bits") << QList<qint64>{std::numeric_limits<qint64>::max(), 100}
                                    << u"Total: $92,233,720,368,547,758.07"_s;
}

void MainWindowTest::totalAddsUpAllRows()
{
    QFETCH(QList<qint64>, balances);
    ShellFixture shell;
    for (const qint64 balance : balances) {
        const Currency currency = balance > 0 ? Currency::USD : Currency::JPY;
        shell.addAccount(QString::number(balance),
                         {.currency = currency, .starting_balance = balance});
    }
    shell.openWindow();
    QTEST(shell.labelText(u"totalLabel"_s), "total");
}

void MainWindowTest::startOpensWhatThereIs_data()
{
    QTest::addColumn<QStringList>("accounts");
    QTest::addColumn<QString>("lastViewed");
    QTest::addColumn<QString>("opened");
    const QStringList two{u"One"_s, u"Two"_s};
    QTest::newRow("nothing") << QStringList() << QString() << u"welcomeScreen"_s;
    QTest::newRow("the last one") << two << u"Two"_s << u"Two"_s;
    QTest::newRow("an id that is gone") << two << u"gone"_s << u"One"_s;
    QTest::newRow("the first time") << two << QString() << u"One"_s;
}

void MainWindowTest::startOpensWhatThereIs()
{
    QFETCH(QStringList, accounts);
    QFETCH(QString, lastViewed);
    ShellFixture shell;
    for (const QString &name : accounts)
        shell.addAccount(name);
    shell.state()->setCurrentAccountId(lastViewed);
    shell.openWindow();
    QTEST(shell.opened(), "opened");
}

void MainWindowTest::clickAndAltDigitsOpenAccounts()
{
    ShellFixture shell;
    for (int number = 1; number <= 11; ++number)
        shell.addAccount(QString::number(number));
    MainWindow *window = shell.openWindow();
    for (int number = 10; number >= 1; --number) {
        QTest::keyClick(window, Qt::Key(Qt::Key_0 + number % 10), Qt::AltModifier);
        QCOMPARE(shell.opened(), QString::number(number));
    }
    QTest::mouseClick(shell.list()->viewport(), Qt::LeftButton, {}, shell.centerOf(4));
    QCOMPARE(shell.opened(), u"5"_s);
    shell.state()->accounts()->softDelete(u"2"_s);
    QTRY_COMPARE(shell.list()->count(), 10);
    QTest::keyClick(window, Qt::Key_2, Qt::AltModifier);
    QCOMPARE(shell.opened(), u"3"_s);
    QTest::keyClick(window, Qt::Key_0, Qt::AltModifier);
    QCOMPARE(shell.opened(), u"11"_s);
}

void MainWindowTest::bulkWriteFillsTheListOnceAndKeepsThePlace()
{
    ShellFixture shell;
    for (int number = 0; number < 50; ++number)
        shell.addAccount(QString::number(number));
    shell.state()->setCurrentAccountId(u"2"_s);
    shell.openWindow();
    QScrollBar *bar = shell.list()->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 20);
    bar->setValue(20); // the current row is out of sight
    QSignalSpy filled(shell.list()->model(), &QAbstractItemModel::modelReset);
    for (int count = 0; count < 10; ++count)
        shell.addTransaction(u"2"_s, 125);
    QCOMPARE(filled.size(), 0);
    QTRY_COMPARE(shell.rowLabel(2, "balanceLabel")->text(), u"$12.50"_s);
    QCoreApplication::processEvents();
    QCOMPARE(filled.size(), 1);
    QCOMPARE(bar->value(), 20);
    QCOMPARE(shell.opened(), u"2"_s);
}

void MainWindowTest::moveStoresTheOrderOnly()
{
    ShellFixture shell;
    for (const QString &name : {u"One"_s, u"Two"_s, u"Three"_s}) {
        shell.addAccount(name);
        shell.state()->accounts()->markSynced(name, u"server-"_s + name);
    }
    shell.openWindow();
    QVERIFY(shell.list()->model()->moveRow({}, 2, {}, 0)); // as a drop does
    QTRY_COMPARE(shell.listedNames(), (QStringList{u"Three"_s, u"One"_s, u"Two"_s}));
    QCOMPARE(shell.valueOf(u"SELECT group_concat(id || sort_order || sync_status, ' ') FROM "
                           "(SELECT * FROM accounts ORDER BY sort_order)"_s),
             u"Three0synced One1synced Two2synced"_s);
    QCOMPARE(shell.opened(), u"One"_s);
}

void MainWindowTest::rowsFollowSplitterAndFontScale()
{
    ShellFixture shell;
    shell.addAccount(QString(100, u'W'), {.starting_balance = 123456789});
    shell.openWindow();
    const auto rightOfBalance = [&shell] {
        const QLabel *balance = shell.rowLabel(0, "balanceLabel");
        return balance->mapTo(shell.list()->viewport(), balance->rect().topRight()).x();
    };
    for (const int width : {480, 300}) {
        shell.find<QSplitter>(u"splitter"_s)->setSizes({width, 1280 - width});
        QTRY_COMPARE(shell.list()->width(), width);
        QTRY_VERIFY(rightOfBalance() < width && rightOfBalance() > width - 40);
    }
    const int before = shell.list()->item(0)->sizeHint().height();
    shell.state()->themeManager()->setFontScale(160);
    QTRY_VERIFY(shell.list()->item(0)->sizeHint().height() > before);
    const QLabel *balance = shell.rowLabel(0, "balanceLabel");
    QTRY_VERIFY(balance->width() >= balance->fontMetrics().horizontalAdvance(balance->text()));
    shell.state()->themeManager()->setFontScale(100);
}

void MainWindowTest::quitKeepsThePlaceOfTheWindow()
{
    ShellFixture shell;
    MainWindow *window = shell.openWindow();
    window->resize(1111, 777);
    shell.find<QSplitter>(u"splitter"_s)->setSizes({345, 700});
    QTRY_COMPARE(window->size(), QSize(1111, 777));
    const QList<int> sizes = shell.find<QSplitter>(u"splitter"_s)->sizes();
    QCOMPARE(sizes.first(), 345);
    QTimer::singleShot(0, window, [&shell] { shell.trigger(u"quitAction"_s); });
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(!window->isVisible());

    window = shell.openWindow();
    QTRY_COMPARE(window->size(), QSize(1111, 777));
    QTRY_COMPARE(shell.find<QSplitter>(u"splitter"_s)->sizes(), sizes);
}

void MainWindowTest::themeReachesTheWindow()
{
    ShellFixture shell;
    shell.openWindow();
    shell.find<StatusBar>(u"statusBar"_s)->setRecurringDueCount(1);
    const QList<QLabel *> labels{
        shell.find<QLabel>(u"accountCountLabel"_s), shell.find<QLabel>(u"recurringDueLabel"_s),
        shell.find<WelcomeScreen>(u"welcomeScreen"_s)->findChild<QLabel *>(u"subtitleLabel"_s)};
    for (QLabel *label : labels) {
        shell.state()->themeManager()->setTheme(ThemeManager::Dark);
        const QString dark = colorOf(label);
        shell.state()->themeManager()->setTheme(ThemeManager::Light);
        QVERIFY2(colorOf(label) != dark, qPrintable(label->objectName()));
    }
    auto *button = shell.find<WelcomeScreen>(u"welcomeScreen"_s)
                       ->findChild<QPushButton *>(u"createAccountButton"_s);
    button->setFocus();
    for (const auto theme : {ThemeManager::Dark, ThemeManager::Light}) {
        shell.state()->themeManager()->setTheme(theme);
        QCOMPARE(button->grab().toImage().pixelColor(button->width() / 2, 0),
                 QApplication::palette().color(QPalette::WindowText));
    }
}

void MainWindowTest::boxesTellKeysAndVersion()
{
    ShellFixture shell;
    shell.openWindow();
    QTextDocument shown;
    const auto textOf = [&](const QString &boxName, const QString &actionName) {
        const DialogAnswer answer(boxName, [&shown](QDialog *box) {
            shown.setHtml(qobject_cast<QMessageBox *>(box)->text());
        });
        shell.trigger(actionName);
        return shown.toPlainText().simplified();
    };
    QString text = textOf(u"shortcutsBox"_s, u"shortcutsAction"_s);
    for (const QString &line :
         {u" Ctrl+Return Save transaction "_s, u" Ctrl+Shift+N New account "_s,
          u" Ctrl+4 Categories "_s, u" Alt+1 – Alt+9 Switch to account 1–9 Alt+0 "_s})
        QVERIFY2(text.contains(line) && !text.contains(u'%'), qPrintable(text));
    QCoreApplication::setApplicationVersion(u"7.8.9"_s);
    text = textOf(u"aboutBox"_s, u"aboutAction"_s);
    QVERIFY2(text.contains(u"Version 7.8.9"_s) && text.contains(kSourceUrl), qPrintable(text));
}

void MainWindowTest::feedbackOpensThePage()
{
    ShellFixture shell;
    shell.openWindow();
    OpenedUrls opened;
    shell.trigger(u"feedbackAction"_s);
    const QUrl url = opened.take().value(0);
    QCOMPARE(url.query(), u"tags=pursewell"_s);
    QVERIFY(url.path().endsWith(u'/'));
}

void MainWindowTest::helpEntriesAnswerInTheStatusBar_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("progress");
    QTest::addColumn<QString>("answer");
    QTest::newRow("updates") << u"checkForUpdatesAction"_s << u"Checking for updates…"_s
                             << u"Kestrelwood Pursewell is up to date (version %1)"_s;
    QTest::newRow("notes") << u"whatsNewAction"_s << u"Loading release notes…"_s
                           << u"No release notes available for Kestrelwood Pursewell %1"_s;
}

void MainWindowTest::helpEntriesAnswerInTheStatusBar()
{
    QFETCH(QString, action);
    const FakeHttpService service; // has nothing
    qputenv("UPDATE_BASE_URL", service.url(u"/pursewell/stable/"_s).toEncoded());
    ShellFixture shell;
    shell.openWindow();
    const QStatusBar *bar = shell.window()->statusBar();
    shell.trigger(action);
    QTEST(shell.labelText(u"progressLabel"_s), "progress");
    QVERIFY(shell.find<QProgressBar>(u"progressBar"_s)->isVisible());
    QFETCH(QString, answer);
    QTRY_COMPARE(bar->currentMessage(), answer.arg(kApplicationVersion));
    QVERIFY(!shell.find<QProgressBar>(u"progressBar"_s)->isVisible());
    QVERIFY(!QSettings().contains("whatsNew/lastShownVersion"));
}

PURSEWELL_TEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
