#include "kestaccount/AccountScreen.h"

#include "MemoryTokenStore.h"
#include "kestaccount/AccountClient.h"
#include "kestaccount/AccountPage.h"
#include "kestaccount/Client.h"
#include "kestaccount/RelativeTime.h"
#include "kestaccount/TokenManager.h"
#include "support/DialogAnswer.h"
#include "support/FakeHttpService.h"
#include "support/TestSupport.h"

using namespace KestAccount;
using namespace Qt::StringLiterals;

// The account window, clicked through against a scripted service.
class AccountScreenTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void tellsHowLongAgo_data();
    void tellsHowLongAgo();
    void showsWhatTheServicesAnswer_data();
    void showsWhatTheServicesAnswer();
    void sendsWhatIsEntered_data();
    void sendsWhatIsEntered();
    void ownerCannotDelete();
    void deletionSignsOut();
    void groupIsRebuiltUnderTheKeyboard();
    void newerMessageKeepsItsTime();
    void followsTheFontAndThePalette();
    void answersMayOutliveTheScreen();

private:
    void openScreen(const QString &role = u"member"_s);
    QStringList shownTexts() const; // of the labels that can be seen
    QPushButton *button(const QString &name) const
    {
        return visibleChild<QPushButton>(*m_screen, name);
    }
    QString status() const;

    std::unique_ptr<FakeHttpService> m_service{};
    std::unique_ptr<Client> m_client{};
    std::unique_ptr<AccountScreen> m_screen{};
};

using Tab = AccountScreen::Tab;

void AccountScreenTest::init()
{
    m_service = std::make_unique<FakeHttpService>();
    m_service->answer(u"GET /api/v1/realms/house/users/me"_s,
                      {{200, R"({"id":"u","email":"ann@example.com","display_name":"Ann"})"}});
}

void AccountScreenTest::openScreen(const QString &role)
{
    m_screen.reset();
    m_client =
        std::make_unique<Client>(ClientConfig{.authBaseUrl = m_service->url().toString(),
                                              .realmSlug = u"house"_s,
                                              .accountApiUrl = m_service->url(u"/a"_s).toString(),
                                              .appId = u"app"_s,
                                              .appVersion = u"1.2"_s});
    const QJsonObject kes{{"kes"_L1, QJsonObject{{"role"_L1, role}}}};
    m_client->tokenManager()->setTokens(tokenFor(3600, {{"custom"_L1, kes}}), u"r"_s);
    m_screen = std::make_unique<AccountScreen>(m_client.get());
    showActive(m_screen.get(), {600, 550});
}

QStringList AccountScreenTest::shownTexts() const
{
    QStringList texts;
    const QList<QLabel *> labels = m_screen->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->isVisible() && !label->text().isEmpty())
            texts << label->text();
    }
    return texts;
}

QString AccountScreenTest::status() const
{
    return m_screen->findChild<QLabel *>(u"statusLabel"_s)->text();
}

void AccountScreenTest::tellsHowLongAgo_data()
{
    QTest::addColumn<int>("age");
    QTest::addColumn<QString>("text");
    QTest::newRow("clock ahead of ours") << -30 << u"Active now"_s;
    QTest::newRow("last second of now") << 59 << u"Active now"_s;
    QTest::newRow("first minute") << 60 << u"1m ago"_s;
    QTest::newRow("last minute") << 3599 << u"59m ago"_s;
    QTest::newRow("first hour") << 3600 << u"1h ago"_s;
    QTest::newRow("last hour") << 86399 << u"23h ago"_s;
    QTest::newRow("first day") << 86400 << u"1d ago"_s;
    QTest::newRow("last day") << 604799 << u"6d ago"_s;
    QTest::newRow("a date, of the evening before here") << 604800 << u"May 31, 2026"_s;
}

void AccountScreenTest::tellsHowLongAgo()
{
    QFETCH(int, age);
    const QDateTime now(QDate(2026, 6, 8), QTime(2, 0), Qt::UTC);
    QTEST(relativeTime(now.addSecs(-age), now), "text");
    QCOMPARE(relativeTime({}, now), u"Unknown"_s);
}

void AccountScreenTest::showsWhatTheServicesAnswer_data()
{
    QTest::addColumn<Tab>("tab");
    QTest::addColumn<QString>("request");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("role");
    QTest::addColumn<QStringList>("texts"); // below the title
    const QString me = u"GET /api/v1/realms/house/users/me"_s;
    const QString group = u"GET /a/group"_s;
    const QString sessions = u"GET /api/v1/realms/house/users/me/sessions"_s;
    const auto row = [](const char *name, Tab tab, const QString &request, const QByteArray &body,
                        const QStringList &texts, const QString &role = u"member"_s) {
        QTest::newRow(name) << tab << request << body << role << texts;
    };
    row("no name", Tab::Profile, me, R"({"id":"u","email":"<b>%1</b>@example.com"})",
        {u"Personal Information"_s, u"(not set)"_s, u"<b>%1</b>@example.com"_s, u"Password"_s,
         u"Change your account password."_s});
    row("no group", Tab::Group, group, "{}",
        {u"No Group"_s,
         u"You're not part of a group. The group owner can invite you, or you can join with an "
         "invite code."_s});
    const QByteArray house = R"({"id":"g","name":"<i>%1</i>","max_seats":5,"members":[
        {"account_id":"1","display_name":"%2","email":"ann@example.com","role":"owner"},
        {"account_id":"2","email":"bob@example.com","role":"member"}],"pending_invitations":[
        {"id":"i","invited_email":"cy@example.com"},{"id":"j","invite_code":"AB%1"}]})";
    const QStringList members{
        u"<i>%1</i>"_s, u"2 of 5 seats used"_s, u"Members"_s, u"%2"_s, u"ann@example.com"_s,
        u"Owner"_s,     u"bob@example.com"_s};
    row("group of a member", Tab::Group, group, house, members);
    row("group of its owner", Tab::Group, group, house,
        members
            + QStringList{u"Pending Invitations"_s, u"cy@example.com"_s, u"Invite code: AB%1"_s,
                          u"Invite Members"_s},
        u"owner"_s);
    row("devices", Tab::Devices, u"GET /a/devices"_s,
        R"({"devices":[{"id":"d","device_name":"<b>%1</b>","platform":"<u>x","app_version":"%2"},
                       {"id":"e","platform":"Linux"}]})",
        {u"Registered Devices"_s, u"Devices that have synced with your account."_s,
         u"<b>&lt;b&gt;%1&lt;/b&gt;</b>"_s, u"<u>x  ·  v%2"_s, u"Unknown"_s,
         u"<b>Unknown Device</b>"_s, u"Linux"_s, u"Unknown"_s});
    row("no devices", Tab::Devices, u"GET /a/devices"_s, "<html>",
        {u"Registered Devices"_s, u"Devices that have synced with your account."_s,
         u"No devices registered."_s});
    const QString sixty(60, u'x');
    row("sessions", Tab::Security, sessions,
        R"({"sessions":[{"id":"1","user_agent":")" + sixty.toUtf8()
            + R"(","is_current":true,"ip_address":"%1"},{"id":"2","user_agent":")" + sixty.toUtf8()
            + R"(y","last_active_at":"2020-02-03T12:00:00Z"},{"id":"3"}]})",
        {u"Active Sessions"_s, u"Sessions currently signed in to your account."_s, sixty,
         u"This session  ·  %1"_s, u"Current"_s, sixty + u"..."_s, u"Feb 3, 2020"_s,
         u"Unknown client"_s, u"Unknown"_s});
    row("no sessions", Tab::Security, sessions, "{}",
        {u"Active Sessions"_s, u"Sessions currently signed in to your account."_s,
         u"No active sessions."_s});
}

void AccountScreenTest::showsWhatTheServicesAnswer()
{
    QFETCH(Tab, tab);
    QFETCH(QString, request);
    QFETCH(QByteArray, body);
    QFETCH(QString, role);
    QFETCH(QStringList, texts);
    m_service->answer(request, {{200, body}});
    openScreen(role);
    m_screen->showTab(tab);
    m_screen->refresh();
    m_screen->refresh(); // its answers come between those of the first
    QTRY_COMPARE(m_service->requestLines().size(), 8);
    QTRY_COMPARE(shownTexts().mid(1), texts);
    QTest::qWait(0);
    QCOMPARE(shownTexts().mid(1), texts);
}

using Answers = QStringList;

void AccountScreenTest::sendsWhatIsEntered_data()
{
    QTest::addColumn<QString>("buttonName");
    QTest::addColumn<Answers>("answers"); // to the prompts in turn; "\n" cancels
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("request"); // empty: none
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("message");
    const QString me = u"PATCH /api/v1/realms/house/users/me"_s;
    const QString password = u"POST /api/v1/realms/house/users/me/password"_s;
    const QString invite = u"POST /a/group/invite"_s;
    const QString none{};
    const auto row = [](const char *name, const QString &buttonName, const Answers &answers,
                        int httpStatus, const QString &request, const QByteArray &body,
                        const QString &message) {
        QTest::newRow(name) << buttonName << answers << httpStatus << request << body << message;
    };
    row("name", u"editDisplayNameButton"_s, {u" <b>%1 "_s}, 200, me, R"({"display_name":"<b>%1"})",
        u"Display name updated."_s);
    row("name refused looks updated", u"editDisplayNameButton"_s, {u"x"_s}, 500, me,
        R"({"display_name":"x"})", u"Display name updated."_s);
    row("blank name", u"editDisplayNameButton"_s, {u"  "_s}, 200, none, {}, none);
    const QString change = u"changePasswordButton"_s;
    row("8 characters", change, {u"old"_s, u"12345678"_s, u"12345678"_s}, 204, password,
        R"({"current_password":"old","new_password":"12345678"})", u"Password changed."_s);
    row("wrong password", change, {u"bad"_s, u"12345678"_s, u"12345678"_s}, 400, password,
        R"({"current_password":"bad","new_password":"12345678"})", u"Failed to change password."_s);
    row("7 characters", change, {u"old"_s, u"1234567"_s}, 204, none, {},
        u"Password must be at least 8 characters."_s);
    row("typed differently", change, {u"old"_s, u"12345678"_s, u"12345679"_s}, 204, none, {},
        u"Passwords do not match."_s);
    row("cancelled at the end", change, {u"old"_s, u"12345678"_s, u"\n"_s}, 204, none, {}, none);
    row("mail", u"inviteByEmailButton"_s, {u" bob@example.com "_s}, 201, invite,
        R"({"email":"bob@example.com"})", u"Invitation sent."_s);
    row("mail refused", u"inviteByEmailButton"_s, {u"x"_s}, 403, invite, R"({"email":"x"})",
        u"Failed to send invitation."_s);
    row("code refused", u"generateCodeButton"_s, {}, 500, invite, {},
        u"Failed to generate code."_s);
    row("remove a member", u"removeMemberButton"_s, {u"Remove <b>Bob %1</b> from the group?"_s},
        204, u"DELETE /a/group/members/2"_s, {}, u"<b>Bob %1</b> removed."_s);
    row("keep a member", u"removeMemberButton"_s, {u"\n"_s}, 204, none, {}, none);
    row("revoke an invitation", u"revokeInvitationButton"_s, {}, 204,
        u"DELETE /a/group/invitations/i"_s, {}, u"Invitation revoked."_s);
    row("remove a device", u"removeDeviceButton"_s, {u"Remove <b>%1</b>?"_s}, 204,
        u"DELETE /a/devices/d"_s, {}, u"Device removed."_s);
    row("revoke a session", u"revokeSessionButton"_s, {}, 204,
        u"DELETE /api/v1/realms/house/users/me/sessions/s"_s, {}, u"Session revoked."_s);
    row("delete in lower case", u"deleteAccountButton"_s, {u"delete"_s}, 204, none, {}, none);
    row("deletion refused", u"deleteAccountButton"_s, {u"DELETE"_s}, 500, u"DELETE /a/profile"_s,
        {}, u"Failed to delete account."_s);
}

void AccountScreenTest::sendsWhatIsEntered()
{
    QFETCH(QString, buttonName);
    QFETCH(Answers, answers);
    QFETCH(int, status);
    QFETCH(QString, request);
    QFETCH(QByteArray, body);
    QFETCH(QString, message);
    m_service->answer(u"GET /a/group"_s, {{200, R"({"id":"g","members":[{"account_id":"2",
        "display_name":"<b>Bob %1</b>"}],"pending_invitations":[{"id":"i"}]})"}});
    m_service->answer(u"GET /a/devices"_s,
                      {{200, R"({"devices":[{"id":"d","device_name":"<b>%1</b>"}]})"}});
    m_service->answer(u"GET /api/v1/realms/house/users/me/sessions"_s,
                      {{200, R"({"sessions":[{"id":"s"}]})"}});
    const bool ok = status < 300;
    m_service->answer(request, {{status, ok ? R"({"id":"u","display_name":"Ann"})" : "{}"}});
    openScreen(u"owner"_s);
    m_screen->refresh();
    QTRY_VERIFY(m_screen->findChild<QPushButton *>(u"revokeSessionButton"_s)
                && m_screen->findChild<QPushButton *>(u"removeDeviceButton"_s)
                && m_screen->findChild<QPushButton *>(u"removeMemberButton"_s));
    QTRY_COMPARE(m_screen->findChild<QLabel *>(u"displayNameLabel"_s)->text(), u"Ann"_s);
    m_service->forgetRequests();

    QTimer answering;
    connect(&answering, &QTimer::timeout, this, [&answers] {
        QWidget *modal = QApplication::activeModalWidget();
        if (!modal)
            return;
        const QString answer = answers.isEmpty() ? u"\n"_s : answers.takeFirst();
        auto *box = qobject_cast<QMessageBox *>(modal);
        if (answer == u"\n"_s)
            QTest::keyClick(modal, Qt::Key_Escape);
        else if (box && box->text() == answer && box->textFormat() == Qt::PlainText)
            box->button(QMessageBox::Yes)->click();
        else if (auto *prompt = qobject_cast<QInputDialog *>(modal)) {
            prompt->setTextValue(answer);
            prompt->accept();
        } else
            QTest::keyClick(modal, Qt::Key_Escape);
    });
    answering.start(5);
    QPushButton *clicked = m_screen->findChild<QPushButton *>(buttonName);
    clicked->setEnabled(true); // the deletion is not an owner's to ask for
    clicked->click();
    QTRY_COMPARE(this->status(), message);
    QCOMPARE(answers, Answers());
    if (request.isEmpty()) {
        m_screen->refresh(); // comes behind whatever was sent
        QTRY_COMPARE(m_service->requests().size(), 4);
        QCOMPARE(m_service->requestLines().filter(u"GET"_s).size(), 4);
        return;
    }
    QTRY_COMPARE(m_service->requestLines().value(0), request);
    QCOMPARE(m_service->requests().constFirst().body, body);
}

void AccountScreenTest::ownerCannotDelete()
{
    openScreen(u"owner"_s);
    m_screen->showTab(Tab::Privacy);
    QVERIFY(!button(u"deleteAccountButton"_s)->isEnabled());
    QVERIFY(shownTexts().contains(u"You are the group owner. Transfer ownership or remove all "
                                  "members before deleting your account."_s));
    openScreen(u"member"_s);
    m_screen->showTab(Tab::Privacy);
    QVERIFY(button(u"deleteAccountButton"_s)->isEnabled());
    QVERIFY(!m_screen->findChild<QLabel *>(u"ownerNotice"_s));
}

void AccountScreenTest::deletionSignsOut()
{
    m_service->answer(u"DELETE /a/profile"_s, {{204}});
    openScreen();
    QSignalSpy requested(m_screen.get(), &AccountScreen::logoutRequested);
    m_screen->showTab(Tab::Privacy);
    DialogAnswer confirmation(u"accountPrompt"_s, [](QDialog *dialog) {
        qobject_cast<QInputDialog *>(dialog)->setTextValue(u"DELETE"_s);
        dialog->accept();
    });
    button(u"deleteAccountButton"_s)->click();
    DialogAnswer notice(u"accountNotice"_s, [&requested](QDialog *dialog) {
        QCOMPARE(requested.count(), 0); // the user reads of it first
        dialog->accept();
    });
    QTRY_COMPARE(requested.count(), 1);
    QVERIFY(notice.wasAsked());
}

// The pressed button goes in the rebuild that it starts; the next key must find a place.
void AccountScreenTest::groupIsRebuiltUnderTheKeyboard()
{
    m_service->answer(u"GET /a/group"_s,
                      {{404}, {200, R"({"id":"g","members":[{"email":"ann@example.com"}]})"}});
    m_service->answer(u"POST /a/group/join/C0DE"_s, {{204}});
    m_service->answer(u"GET /api/v1/realms/house/users/me/sessions"_s,
                      {{200, R"({"sessions":[{"id":"s"},{"id":"t"}]})"}});
    openScreen();
    m_screen->showTab(Tab::Group);
    m_screen->refresh();
    QTRY_VERIFY(button(u"joinButton"_s));
    button(u"joinButton"_s)->setFocus();
    DialogAnswer code(u"accountPrompt"_s, [](QDialog *dialog) {
        qobject_cast<QInputDialog *>(dialog)->setTextValue(u" C0DE "_s);
        dialog->accept();
    });
    QTest::keyClick(button(u"joinButton"_s), Qt::Key_Space);
    QTRY_VERIFY(button(u"leaveButton"_s));
    QCOMPARE(m_screen->focusWidget(), button(u"leaveButton"_s));
    QCOMPARE(status(), u"Joined group."_s);
    QCOMPARE(shownTexts().count(u"ann@example.com"_s), 1);

    m_screen->showTab(Tab::Security);
    QTRY_VERIFY(button(u"revokeSessionButton"_s));
    const QPointer<QPushButton> revoke = button(u"revokeSessionButton"_s);
    revoke->setFocus();
    QTest::keyClick(revoke, Qt::Key_Space);
    QTRY_VERIFY(!revoke); // a second press must not revoke what has come in its place
    QCOMPARE(m_screen->focusWidget(), m_screen->findChild<QListWidget *>(u"navigation"_s));
}

void AccountScreenTest::newerMessageKeepsItsTime()
{
    openScreen();
    auto *timer = m_screen->findChild<QTimer *>(u"statusTimer"_s);
    auto *page = m_screen->findChild<AccountPage *>();
    Q_EMIT page->failed(u"old"_s);
    QCOMPARE(timer->interval(), 4000);
    timer->setInterval(200); // as if most of its time had passed
    Q_EMIT page->succeeded(u"new"_s);
    QVERIFY(timer->remainingTime() > 2000);
    QCOMPARE(status(), u"new"_s);
    timer->setInterval(10);
    QTRY_COMPARE(status(), QString());
}

void AccountScreenTest::followsTheFontAndThePalette()
{
    openScreen();
    const QFont fontBefore = QApplication::font();
    const QPalette paletteBefore = QApplication::palette();
    QFont large = fontBefore;
    large.setPointSize(30);
    QApplication::setFont(large);
    QPalette dark = paletteBefore;
    dark.setColor(QPalette::AlternateBase, QColor(1, 2, 3));
    QApplication::setPalette(dark);
    const auto *label = m_screen->findChild<QLabel *>(u"statusLabel"_s);
    const auto *title = m_screen->findChild<QLabel *>(u"pageTitle"_s);
    const auto *navigation = m_screen->findChild<QListWidget *>(u"navigation"_s);
    QTRY_COMPARE(title->font().pointSize(), 34);
    QCOMPARE(label->font().pointSize(), 29);
    QTRY_VERIFY(label->height() >= label->fontMetrics().height()); // 24 would cut it
    QTRY_VERIFY(navigation->styleSheet().contains(u"#010203"_s));
    QApplication::setFont(fontBefore);
    QApplication::setPalette(paletteBefore);
    QTRY_COMPARE(label->height(), 24);
}

void AccountScreenTest::answersMayOutliveTheScreen()
{
    openScreen();
    m_screen->refresh();
    m_screen.reset();
    QTRY_COMPARE(m_service->requests().size(), 4);
    bool isLater = false; // the answer to a later request comes after theirs
    m_client->accountClient()->getProfile([&isLater](const Profile &) { isLater = true; });
    QTRY_VERIFY(isLater);
}

PURSEWELL_TEST_MAIN(AccountScreenTest)
#include "AccountScreenTest.moc"
