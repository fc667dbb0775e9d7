#include "shell/MainWindow.h"

#include "kestaccount/AuthClient.h"
#include "kestaccount/Client.h"
#include "register/RegisterDelegate.h"
#include "register/RegisterModel.h"
#include "register/RegisterScreen.h"
#include "shell/ShellFixture.h"
#include "shell/SignedInSupport.h"
#include "support/OpenedUrls.h"
#include "support/TestSupport.h"
#include "sync/SyncEngine.h"

using namespace Qt::StringLiterals;
using KestAccount::AuthClient;

namespace {

const QString kPushed = u"POST /pursewell/v1/sync/push"_s;

FakeReply pageWith(QLatin1StringView key, const QJsonObject &record)
{
    return {.body = QJsonDocument(QJsonObject{{key, QJsonArray{record}}}).toJson()};
}

FakeReply pulledTransaction(const QString &accountId)
{
    return pageWith("transactions"_L1,
                    {{"client_id"_L1, u"pulled"_s},
                     {"account_id"_L1, accountId},
                     {"date"_L1, u"2026-03-14"_s},
                     {"payee"_L1, u"Pulled"_s},
                     {"amount"_L1, -500},
                     {"version"_L1, 1},
                     {"created_at"_L1, u"2026-03-14T09:00:00Z"_s},
                     {"updated_at"_L1, u"2026-03-14T09:00:00Z"_s}});
}

} // namespace

// What the window shows of signing in, signing out and syncing.
class MainWindowSignInTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void welcomePageSignsIn_data();
    void welcomePageSignsIn();
    void signingOutLeavesTheRegister();
    void statusBarTellsOfTheSync_data();
    void statusBarTellsOfTheSync();
    void firstSyncOpensAnAccount();
    void pulledRowsSpareWhatIsBeingTyped();
    void sharingAsksForASignIn();
    void sharesTheAccountThatIsOpen();
    void accountWindowComesBackUntilTheSignOut();

private:
    AuthClient *auth() const { return m_shell->state()->accountClient()->authClient(); }
    QString page() const
    {
        return m_shell->find<QStackedWidget>(u"stack"_s)->currentWidget()->objectName();
    }
    QString title() const
    {
        return m_shell->find<QWidget>(u"welcomeScreen"_s)
            ->findChild<QLabel *>(u"titleLabel"_s)
            ->text();
    }
    QString syncWord() const { return m_shell->labelText(u"syncStatusLabel"_s); }
    QString message() const { return m_shell->window()->statusBar()->currentMessage(); }
    QAction *action(const QString &name) const { return m_shell->find<QAction>(name); }

    std::unique_ptr<FakeHttpService> m_service;
    std::unique_ptr<ShellFixture> m_shell;
};

void MainWindowSignInTest::init()
{
    m_shell.reset();
    forgetStoredTokens();
    m_service = std::make_unique<FakeHttpService>();
    pointServicesAt(*m_service);
    m_service->answer(kPulled, {{.body = "{}"}});
    m_shell = std::make_unique<ShellFixture>();
}

void MainWindowSignInTest::welcomePageSignsIn_data()
{
    QTest::addColumn<bool>("isReturning");
    QTest::addColumn<QString>("title");
    QTest::newRow("new") << false << u"Welcome to\nKestrelwood Pursewell"_s;
    QTest::newRow("returning") << true << u"Welcome back"_s;
}

void MainWindowSignInTest::welcomePageSignsIn()
{
    QFETCH(bool, isReturning);
    QSettings().setValue(u"auth/hasSignedInBefore"_s, isReturning);
    m_shell->openWindow();
    QTEST(title(), "title");
    QCOMPARE(syncWord(), u"Not signed in"_s);
    QVERIFY(!action(u"signOutAction"_s)->isVisible());
    QCOMPARE(action(u"accountAction"_s)->statusTip(), u"Sign in or sign up"_s);

    OpenedUrls opened;
    QTest::mouseClick(m_shell->find<QPushButton>(u"signInButton"_s), Qt::LeftButton);
    QUrl redirect(
        QUrlQuery(opened.take().value(0)).queryItemValue(u"redirect_uri"_s, QUrl::FullyDecoded));
    const QJsonObject tokens = QJsonDocument::fromJson(freshTokens()).object();
    redirect.setQuery(QUrlQuery{{u"access_token"_s, tokens.value("access_token"_L1).toString()},
                                {u"refresh_token"_s, u"r"_s}});
    QSignalSpy told(m_shell->window()->statusBar(), &QStatusBar::messageChanged);
    QNetworkAccessManager browser;
    browser.get(QNetworkRequest(redirect));
    QTRY_VERIFY(told.contains(QVariantList{u"Signed in successfully"_s}));
    QCOMPARE(page(), u"emptyPage"_s);
    QVERIFY(action(u"signOutAction"_s)->isVisible());
    QCOMPARE(action(u"accountAction"_s)->statusTip(), u"Manage your account"_s);

    m_shell->trigger(u"signOutAction"_s); // at once, whatever the service answers
    QCOMPARE(page(), u"welcomeScreen"_s);
    QCOMPARE(title(), u"Welcome back"_s);
    QCOMPARE(syncWord(), u"Not signed in"_s);
    Q_EMIT auth()->loginFailed(u"No tokens received"_s);
    QCOMPARE(message(), u"Sign-in failed: No tokens received"_s);
}

void MainWindowSignInTest::signingOutLeavesTheRegister()
{
    m_shell->addAccount(u"First"_s);
    m_shell->addAccount(u"Second"_s);
    signIn(*m_shell->state());
    m_shell->openWindow()->selectAccount(u"Second"_s);
    m_shell->trigger(u"signOutAction"_s);
    QCOMPARE(m_shell->opened(), u"SecondwelcomeScreen"_s);
    QCOMPARE(m_shell->listedNames(), QStringList({u"First"_s, u"Second"_s}));
    QTest::mouseClick(m_shell->list()->viewport(), Qt::LeftButton, {}, m_shell->centerOf(0));
    QCOMPARE(m_shell->opened(), u"First"_s);
    m_shell->trigger(u"accountAction"_s);
    QCOMPARE(page(), u"welcomeScreen"_s);
    signIn(*m_shell->state());
    QCOMPARE(m_shell->opened(), u"First"_s);
}

void MainWindowSignInTest::statusBarTellsOfTheSync_data()
{
    QTest::addColumn<FakeReply>("pushed");
    QTest::addColumn<FakeReply>("pulled");
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("told");
    const FakeReply good{.body = "{}"};
    QTest::newRow("complete") << good << good << u"Synced"_s << u"Sync complete"_s;
    QTest::newRow("push") << FakeReply{.status = 503} << good << u"Sync error"_s
                          << u"Sync failed: Push failed (HTTP 503)"_s;
    QTest::newRow("pull, no answer") << good << FakeReply{.drops = true} << u"Sync error"_s
                                     << u"Sync failed: Pull failed (HTTP 0)"_s;
}

void MainWindowSignInTest::statusBarTellsOfTheSync()
{
    QFETCH(FakeReply, pushed);
    QFETCH(FakeReply, pulled);
    m_service->answer(kPushed, {pushed});
    m_service->answer(kPulled, {pulled});
    m_shell->openWindow();
    storeTokens(600);
    auth()->initialize();
    QCOMPARE(syncWord(), u"Synced"_s);
    m_shell->state()->syncEngine()->syncNow();
    QCOMPARE(syncWord(), u"Syncing..."_s);
    QFETCH(QString, word);
    QTRY_COMPARE(syncWord(), word);
    QTEST(message(), "told");
}

void MainWindowSignInTest::firstSyncOpensAnAccount()
{
    m_shell->openWindow();
    m_service->answer(kPushed, {{.body = "{}"}});
    m_service->answer(kPulled,
                      {pageWith("accounts"_L1,
                                {{"client_id"_L1, u"Pulled"_s},
                                 {"name"_L1, u"Pulled"_s},
                                 {"version"_L1, 1},
                                 {"created_at"_L1, u"2026-03-14T09:00:00Z"_s},
                                 {"updated_at"_L1, u"2026-03-14T09:00:00Z"_s}})});
    signIn(*m_shell->state());
    QCOMPARE(page(), u"emptyPage"_s);
    QTRY_COMPARE(m_shell->opened(), u"Pulled"_s);
    QCOMPARE(m_shell->listedNames(), QStringList{u"Pulled"_s});
    m_service->answer(kPulled, {pulledTransaction(u"Pulled"_s)});
    m_shell->state()->syncEngine()->syncNow();
    QTRY_COMPARE(m_shell->window()->findChild<RegisterModel *>()->rowCount(), 2);
}

void MainWindowSignInTest::pulledRowsSpareWhatIsBeingTyped()
{
    m_shell->addAccount(u"Everyday"_s);
    QWindow *window = m_shell->openWindow()->windowHandle();
    auto *model = m_shell->window()->findChild<RegisterModel *>();
    const auto type = [window](const QString &text) {
        for (const QChar character : text)
            QTest::keyClick(window, character.toLatin1());
    };
    m_service->answer(kPushed, {{.body = "{}"}});
    m_service->answer(kPulled, {pulledTransaction(u"Everyday"_s)});
    m_shell->find<QWidget>(u"registerTable"_s)->setFocus();
    QTest::keyClick(window, Qt::Key_Return);
    QTest::keyClick(window, Qt::Key_Return);
    type(u"101"_s);
    QTest::keyClick(window, Qt::Key_Return);
    type(u"Half ty"_s);
    QSignalSpy changed(m_shell->state()->syncEngine(), &SyncEngine::dataChanged);
    signIn(*m_shell->state());
    QTRY_VERIFY(!changed.isEmpty());
    QCOMPARE(m_shell->rowLabel(0, "balanceLabel")->text(), u"-$5.00"_s);
    type(u"ped"_s);
    QCOMPARE(model->buffers().check_number, u"101"_s);
    QTest::keyClick(window, Qt::Key_Tab);
    QTRY_COMPARE(model->buffers().payee, u"Half typed"_s);
    model->buffers().payment = u"2"_s;
    QTest::keyClick(window, Qt::Key_Return, Qt::ControlModifier);
    QTRY_COMPARE(
        m_shell->valueOf(u"SELECT group_concat(payee || ifnull(check_number, '') || amount) FROM "
                         "(SELECT * FROM transactions ORDER BY amount)"_s),
        u"Pulled-500,Half typed101-200"_s);
    QCOMPARE(model->rowCount(), 3);
}

void MainWindowSignInTest::sharingAsksForASignIn()
{
    m_shell->openWindow();
    m_shell->trigger(u"shareAccountAction"_s);
    QCOMPARE(message(), u"Select an account first"_s);
    m_shell->addAccount(u"Everyday"_s);
    m_shell->openWindow()->selectAccount(u"Everyday"_s);
    DialogAnswer answer(u"signInRequiredBox"_s, [](QDialog *box) {
        const auto *learnMore = box->findChild<QPushButton *>(u"learnMoreButton"_s);
        QVERIFY(learnMore->isDefault());
        QTest::keyClick(box, Qt::Key_Return);
    });
    m_shell->trigger(u"shareAccountAction"_s);
    QVERIFY(answer.wasAsked());
    QCOMPARE(page(), u"welcomeScreen"_s); // where one signs in
}

void MainWindowSignInTest::sharesTheAccountThatIsOpen()
{
    const QString name = u"%1 & <b>Co"_s;
    m_shell->addAccount(name);
    signIn(*m_shell->state());
    m_shell->openWindow()->selectAccount(name);
    DialogAnswer answer(u"shareMembersDialog"_s, [&name](QDialog *dialog) {
        QCOMPARE(dialog->windowTitle(), u"Share Account"_s);
        QStringList texts;
        for (const QLabel *label : dialog->findChildren<QLabel *>())
            texts << label->text();
        QVERIFY2(texts.contains(u"Sharing: "_s + name), qPrintable(texts.join(u'\n')));
    });
    m_shell->trigger(u"shareAccountAction"_s);
    QVERIFY(answer.wasAsked());
    QTRY_VERIFY(m_service->requestLines().filter(u"/pursewell/v1/accounts/"_s).size() == 1);
}

void MainWindowSignInTest::accountWindowComesBackUntilTheSignOut()
{
    signIn(*m_shell->state());
    m_shell->openWindow();
    m_shell->trigger(u"accountAction"_s);
    const QPointer screen = m_shell->find<KestAccount::AccountScreen>(u"accountScreen"_s);
    QVERIFY(screen->isVisible());
    auto *navigation = screen->findChild<QListWidget *>(u"navigation"_s);
    navigation->setCurrentRow(3);
    screen->close();
    m_shell->trigger(u"accountAction"_s);
    QVERIFY(screen->isVisible());
    QCOMPARE(navigation->currentRow(), 0);
    Q_EMIT screen->logoutRequested();
    QCOMPARE(page(), u"welcomeScreen"_s);
    QTRY_VERIFY(!screen); // another user is not to see what it shows
}

PURSEWELL_TEST_MAIN(MainWindowSignInTest)
#include "MainWindowSignInTest.moc"
