#include "shell/MainWindow.h"

#include "data/AccountRepository.h"
#include "data/TransactionRepository.h"
#include "register/RegisterScreen.h"
#include "shell/ShellFixture.h"
#include "shell/theme/ThemeManager.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

namespace {

constexpr char kWords[] = "50% \"Joint\" %1 & <b>Söhne</b>";

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
    void init() { m_shell = std::make_unique<ShellFixture>(); }
    void cleanup();
    void rowsTellKindAndFigure_data();
    void rowsTellKindAndFigure();
    void wordsStayPlain();
    void totalAddsUpAllRows_data();
    void totalAddsUpAllRows();
    void startOpensWhatThereIs_data();
    void startOpensWhatThereIs();
    void clickOpensTheAccount();
    void altDigitsReachTenAccounts();
    void bulkWriteFillsTheListOnce();
    void fillingKeepsPlaceAndSelection();
    void moveStoresTheOrderOnly();
    void rowsFollowTheSplitter();
    void rowsFollowTheFontScale();
    void placeOfTheWindowIsKept();
    void themeReachesTheWindow();

private:
    std::unique_ptr<ShellFixture> m_shell;
};

void MainWindowTest::cleanup()
{
    m_shell.reset();
    QSettings().clear();
}

void MainWindowTest::rowsTellKindAndFigure_data()
{
    QTest::addColumn<Account>("account");
    QTest::addColumn<QList<qint64>>("amounts");
    QTest::addColumn<int>("glyph");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("figure");
    QTest::addColumn<bool>("green");

    const auto row = [](const char *name, Account account, const QList<qint64> &amounts, int glyph,
                        const QString &kind, const QString &figure, bool green) {
        QTest::newRow(name) << account << amounts << glyph << kind << figure << green;
    };
    row("starting balance alone", {.starting_balance = 500000}, {}, 0xE84F, u"Checking"_s,
        u"$5,000.00"_s, true);
    row("zero is green", {.account_type = AccountType::Savings}, {100, -100}, 0xE2EB, u"Savings"_s,
        u"$0.00"_s, true);
    row("debt", {.account_type = AccountType::CreditCard, .starting_balance = 100}, {-200}, 0xE870,
        u"Credit Card"_s, u"-$1.00"_s, false);
    row("euro", {.account_type = AccountType::Cash, .currency = Currency::EUR}, {1050}, 0xE57D,
        u"Cash"_s, u"€10.50"_s, true);
    row("yen", {.account_type = AccountType::Investment, .currency = Currency::JPY}, {1050}, 0xE8E5,
        u"Investment"_s, u"¥1,050"_s, true);
    row("other with a bank", {.account_type = AccountType::Other, .institution = u"Harbour %1"_s},
        {}, 0xE850, u"Harbour %1"_s, u"$0.00"_s, true);
    row("bank and number", {.institution = u"Harbour %1"_s, .account_number_last4 = u"%10"_s}, {},
        0xE84F, u"Harbour %1  ·  *%10"_s, u"$0.00"_s, true);
    row("number alone", {.account_number_last4 = u"0042"_s}, {}, 0xE84F, u"Checking  ·  *0042"_s,
        u"$0.00"_s, true);
}

void MainWindowTest::rowsTellKindAndFigure()
{
    QFETCH(Account, account);
    QFETCH(QList<qint64>, amounts);
    QFETCH(int, glyph);
    QFETCH(QString, kind);
    QFETCH(QString, figure);
    QFETCH(bool, green);

    m_shell->addAccount(u"Everyday"_s, account);
    for (const qint64 amount : amounts)
        m_shell->addTransaction(u"Everyday"_s, amount);
    m_shell->openWindow();
    QCOMPARE(m_shell->listedNames(), QStringList{u"Everyday"_s});
    QCOMPARE(m_shell->rowLabel(0, u"iconLabel"_s)->text(), QString(QChar(glyph)));
    QCOMPARE(m_shell->rowLabel(0, u"kindLabel"_s)->text(), kind);
    QLabel *balance = m_shell->rowLabel(0, u"balanceLabel"_s);
    QCOMPARE(balance->text(), figure);
    QCOMPARE(colorOf(balance), green ? u"#66bb6a"_s : u"#ff8a80"_s);
    QVERIFY(balance->width() >= balance->fontMetrics().horizontalAdvance(figure));
    const QLabel *name = m_shell->rowLabel(0, u"nameLabel"_s);
    QVERIFY(name->height() >= name->fontMetrics().height()); // no descender is cut off
}

void MainWindowTest::wordsStayPlain()
{
    const QString words = QString::fromUtf8(kWords);
    Account account;
    account.institution = words;
    m_shell->addAccount(words, account);
    m_shell->openWindow();
    for (const QString &name : {u"nameLabel"_s, u"kindLabel"_s}) {
        QCOMPARE(m_shell->rowLabel(0, name)->text(), words);
        QCOMPARE(m_shell->rowLabel(0, name)->textFormat(), Qt::PlainText);
    }
    QTextDocument shown;
    shown.setHtml(m_shell->rowLabel(0, u"nameLabel"_s)->toolTip());
    QCOMPARE(shown.toPlainText(), words);
}

void MainWindowTest::totalAddsUpAllRows_data()
{
    QTest::addColumn<QList<qint64>>("balances");
    QTest::addColumn<QString>("total");

    QTest::newRow("none") << QList<qint64>() << u"No accounts"_s;
    QTest::newRow("mixed") << QList<qint64>{500, -200} << u"Total: $3.00"_s;
    QTest::newRow("debt") << QList<qint64>{-1200, 0} << u"Total: -$12.00"_s;
    QTest::newRow("beyond 64 bits") << QList<qint64>{std::numeric_limits<qint64>::max(), 100}
                                    << u"Total: $92,233,720,368,547,758.07"_s;
}

void MainWindowTest::totalAddsUpAllRows()
{
    QFETCH(QList<qint64>, balances);
    QFETCH(QString, total);

    for (const qint64 balance : balances) {
        m_shell->addAccount(
            u"Account %1"_s.arg(balance),
            {.currency = balance > 0 ? Currency::USD : Currency::JPY, .starting_balance = balance});
    }
    m_shell->openWindow();
    QCOMPARE(m_shell->totalText(), total);
}

void MainWindowTest::startOpensWhatThereIs_data()
{
    QTest::addColumn<QStringList>("accounts");
    QTest::addColumn<QString>("lastViewed");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("opened");

    const QStringList two{u"One"_s, u"Two"_s};
    QTest::newRow("nothing") << QStringList() << QString() << u"welcomeScreen"_s << QString();
    QTest::newRow("nothing, and an id that is gone")
        << QStringList() << u"gone"_s << u"welcomeScreen"_s << QString();
    QTest::newRow("the last one") << two << u"Two"_s << u"registerScreen"_s << u"Two"_s;
    QTest::newRow("an id that is gone") << two << u"gone"_s << u"registerScreen"_s << u"One"_s;
    QTest::newRow("the first time") << two << QString() << u"registerScreen"_s << u"One"_s;
}

void MainWindowTest::startOpensWhatThereIs()
{
    QFETCH(QStringList, accounts);
    QFETCH(QString, lastViewed);
    QFETCH(QString, page);
    QFETCH(QString, opened);

    for (const QString &name : accounts)
        m_shell->addAccount(name);
    m_shell->state()->setCurrentAccountId(lastViewed);
    m_shell->openWindow();
    QCOMPARE(m_shell->currentPage(), page);
    QCOMPARE(m_shell->find<RegisterScreen>(u"registerScreen"_s)->accountId(), opened);
    QCOMPARE(m_shell->list()->accountIdAt(m_shell->list()->currentRow()), opened);
    if (!opened.isEmpty())
        QCOMPARE(m_shell->state()->currentAccountId(), opened);
    QVERIFY(!m_shell->find<QPushButton>(u"signInButton"_s)->isVisible());
}

void MainWindowTest::clickOpensTheAccount()
{
    m_shell->addAccount(u"One"_s);
    m_shell->addAccount(u"Two"_s);
    m_shell->openWindow();
    const QPoint second = m_shell->list()->visualItemRect(m_shell->list()->item(1)).center();
    QTest::mouseClick(m_shell->list()->viewport(), Qt::LeftButton, {}, second);
    QCOMPARE(m_shell->state()->currentAccountId(), u"Two"_s);
    QCOMPARE(m_shell->find<RegisterScreen>(u"registerScreen"_s)->accountId(), u"Two"_s);
}

void MainWindowTest::altDigitsReachTenAccounts()
{
    for (int number = 1; number <= 11; ++number)
        m_shell->addAccount(u"Account %1"_s.arg(number, 2, 10, QChar(u'0')));
    MainWindow *window = m_shell->openWindow();
    for (int number = 10; number >= 1; --number) {
        QTest::keyClick(window, Qt::Key(Qt::Key_0 + number % 10), Qt::AltModifier);
        QCOMPARE(m_shell->state()->currentAccountId(),
                 u"Account %1"_s.arg(number, 2, 10, QChar(u'0')));
        QCOMPARE(m_shell->list()->currentRow(), number - 1);
    }
    m_shell->state()->accounts()->softDelete(u"Account 02"_s);
    QTRY_COMPARE(m_shell->list()->count(), 10);
    QTest::keyClick(window, Qt::Key_2, Qt::AltModifier);
    QCOMPARE(m_shell->state()->currentAccountId(), u"Account 03"_s);
    QTest::keyClick(window, Qt::Key_0, Qt::AltModifier);
    QCOMPARE(m_shell->state()->currentAccountId(), u"Account 11"_s);
}

void MainWindowTest::bulkWriteFillsTheListOnce()
{
    m_shell->addAccount(u"Everyday"_s);
    m_shell->openWindow();
    QCoreApplication::processEvents();
    QSignalSpy filled(m_shell->list()->model(), &QAbstractItemModel::rowsInserted);
    for (int count = 0; count < 10; ++count)
        m_shell->addTransaction(u"Everyday"_s, 125);
    QCOMPARE(filled.size(), 0);
    QTRY_COMPARE(m_shell->rowLabel(0, u"balanceLabel"_s)->text(), u"$12.50"_s);
    QCoreApplication::processEvents();
    QCOMPARE(filled.size(), 1);
}

void MainWindowTest::fillingKeepsPlaceAndSelection()
{
    for (int number = 10; number < 60; ++number)
        m_shell->addAccount(u"Account %1"_s.arg(number));
    m_shell->state()->setCurrentAccountId(u"Account 12"_s);
    m_shell->openWindow();
    QScrollBar *bar = m_shell->list()->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 20);
    bar->setValue(20); // the current row is out of sight
    QSignalSpy filled(m_shell->list()->model(), &QAbstractItemModel::modelReset);
    m_shell->addTransaction(u"Account 12"_s, 100);
    QTRY_COMPARE(filled.size(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(bar->value(), 20);
    QCOMPARE(m_shell->list()->accountIdAt(m_shell->list()->currentRow()), u"Account 12"_s);
}

void MainWindowTest::moveStoresTheOrderOnly()
{
    for (const QString &name : {u"One"_s, u"Two"_s, u"Three"_s}) {
        m_shell->addAccount(name);
        m_shell->state()->accounts()->markSynced(name, u"server-"_s + name);
    }
    m_shell->openWindow();
    QAbstractItemModel *model = m_shell->list()->model();
    QVERIFY(model->moveRow({}, 2, {}, 0)); // as a drop does
    QTRY_COMPARE(m_shell->listedNames(), (QStringList{u"Three"_s, u"One"_s, u"Two"_s}));
    QCOMPARE(m_shell
                 ->valueOf(u"SELECT group_concat(id || sort_order, ' ') FROM "
                           "(SELECT * FROM accounts ORDER BY sort_order)"_s)
                 .toString(),
             u"Three0 One1 Two2"_s);
    QCOMPARE(m_shell->valueOf(u"SELECT count(*) FROM accounts WHERE sync_status = 'synced'"_s), 3);
    QCOMPARE(m_shell->state()->currentAccountId(), u"One"_s);
    QCOMPARE(m_shell->list()->currentRow(), 1);
}

void MainWindowTest::rowsFollowTheSplitter()
{
    m_shell->addAccount(u"Everyday"_s);
    m_shell->addAccount(QString(100, u'W'));
    m_shell->openWindow();
    auto *splitter = m_shell->find<QSplitter>(u"splitter"_s);
    for (const int width : {480, 300}) {
        splitter->setSizes({width, 1280 - width});
        QTRY_COMPARE(m_shell->list()->width(), width);
        const QWidget *viewport = m_shell->list()->viewport();
        const QLabel *balance = m_shell->rowLabel(1, u"balanceLabel"_s);
        QTRY_VERIFY(balance->mapTo(viewport, balance->rect().topRight()).x() < width);
        QTRY_VERIFY(balance->mapTo(viewport, balance->rect().topRight()).x() > width - 40);
    }
}

void MainWindowTest::rowsFollowTheFontScale()
{
    m_shell->addAccount(u"Everyday"_s, {.starting_balance = 123456789});
    m_shell->openWindow();
    const int before = m_shell->list()->item(0)->sizeHint().height();
    m_shell->state()->themeManager()->setFontScale(160);
    QTRY_VERIFY(m_shell->list()->item(0)->sizeHint().height() > before);
    const QLabel *balance = m_shell->rowLabel(0, u"balanceLabel"_s);
    QTRY_VERIFY(balance->width() >= balance->fontMetrics().horizontalAdvance(balance->text()));
    m_shell->state()->themeManager()->setFontScale(100);
}

void MainWindowTest::placeOfTheWindowIsKept()
{
    m_shell->openWindow();
    QCOMPARE(m_shell->window()->size(), QSize(1280, 900));
    m_shell->window()->resize(1111, 777);
    auto *splitter = m_shell->find<QSplitter>(u"splitter"_s);
    splitter->setSizes({345, 700});
    QTRY_COMPARE(m_shell->window()->size(), QSize(1111, 777));
    const QList<int> sizes = splitter->sizes();
    m_shell->closeWindow();

    m_shell->openWindow();
    QTRY_COMPARE(m_shell->window()->size(), QSize(1111, 777));
    QTRY_COMPARE(m_shell->find<QSplitter>(u"splitter"_s)->sizes(), sizes);
    QCOMPARE(sizes.first(), 345);
}

void MainWindowTest::themeReachesTheWindow()
{
    m_shell->openWindow();
    auto *count = m_shell->find<QLabel>(u"accountCountLabel"_s);
    auto *subtitle =
        m_shell->find<QWidget>(u"welcomeScreen"_s)->findChild<QLabel *>(u"subtitleLabel"_s);
    m_shell->state()->themeManager()->setTheme(ThemeManager::Dark);
    QCOMPARE(colorOf(count), u"#8faf9f"_s);
    QCOMPARE(colorOf(subtitle), u"#8faf9f"_s);
    m_shell->state()->themeManager()->setTheme(ThemeManager::Light);
    QCOMPARE(colorOf(count), u"#2a3d33"_s);
    QCOMPARE(colorOf(subtitle), u"#4a6358"_s);
}

PURSEWELL_TEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
