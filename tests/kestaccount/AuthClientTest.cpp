#include "kestaccount/AuthClient.h"

#include "MemoryTokenStore.h"
#include "kestaccount/ApiClient.h"
#include "kestaccount/TokenManager.h"
#include "support/FakeHttpService.h"
#include "support/OpenedUrls.h"
#include "support/TestSupport.h"

using namespace KestAccount;
using namespace Qt::StringLiterals;

class AuthClientTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void restoresTheSession_data();
    void restoresTheSession();
    void signsInThroughTheBrowser_data();
    void signsInThroughTheBrowser();
    void takesAFreePort();
    void survivesStrangeClients_data();
    void survivesStrangeClients();
    void signsOutAtOnce();
    void refusedRefreshSignsOut();
    void keepsTheLastKnownUser();
    void listsSessions();

private:
    void start(const QString &access, const QString &refresh);
    quint16 startLogin(); // the port that the redirect goes to
    QByteArray sendRaw(quint16 port, const QByteArray &bytes,
                       const QString &address = u"127.0.0.1"_s);

    std::unique_ptr<FakeHttpService> m_service{};
    std::shared_ptr<StoredTokens> m_stored{};
    std::unique_ptr<TokenManager> m_tokens{};
    std::unique_ptr<ApiClient> m_api{};
    std::unique_ptr<AuthClient> m_auth{};
    QStringList m_events{}; // the signals, in their order
    OpenedUrls m_opened{};
    QUrl m_page{}; // the last one that a browser would have been given
};

void AuthClientTest::init()
{
    m_auth.reset();
    m_service = std::make_unique<FakeHttpService>();
    start({}, {});
}

void AuthClientTest::start(const QString &access, const QString &refresh)
{
    m_auth.reset();
    m_api.reset();
    m_stored = std::make_shared<StoredTokens>();
    m_stored->values = {{kAccessTokenKey, access}, {kRefreshTokenKey, refresh}};
    m_tokens = std::make_unique<TokenManager>(std::make_unique<MemoryTokenStore>(m_stored));
    m_api = std::make_unique<ApiClient>(m_tokens.get());
    m_api->setBaseUrl(m_service->url());
    m_auth = std::make_unique<AuthClient>(u"http://sign-in.example"_s, u"house"_s, u"id"_s,
                                          m_api.get(), m_tokens.get());
    m_events.clear();
    connect(m_auth.get(), &AuthClient::stateChanged, this, [this](AuthState state) {
        m_events << QString::fromLatin1(QMetaEnum::fromType<AuthState>().valueToKey(int(state)));
    });
    connect(m_auth.get(), &AuthClient::loginSucceeded, this, [this] { m_events << u"in"_s; });
    connect(m_auth.get(), &AuthClient::logoutCompleted, this, [this] { m_events << u"out"_s; });
    connect(m_auth.get(), &AuthClient::loginFailed, this,
            [this](const QString &error) { m_events << error; });
}

void AuthClientTest::restoresTheSession_data()
{
    QTest::addColumn<QString>("access");
    QTest::addColumn<QString>("refresh");
    QTest::addColumn<int>("status"); // of the refresh; 0: no answer
    QTest::addColumn<QString>("state");
    QTest::addColumn<bool>("keepsTokens");
    QTest::newRow("usable") << tokenFor(60) << u"r"_s << 500 << u"Authenticated"_s << true;
    QTest::newRow("nothing stored")
        << QString() << QString() << 200 << u"Unauthenticated"_s << false;
    QTest::newRow("refreshed") << tokenFor(0) << u"r"_s << 200 << u"Authenticated"_s << true;
    QTest::newRow("refused") << tokenFor(0) << u"r"_s << 401 << u"Unauthenticated"_s << false;
    QTest::newRow("too many requests is a refusal")
        << QString() << u"r"_s << 429 << u"Unauthenticated"_s << false;
    QTest::newRow("service down") << tokenFor(0) << u"r"_s << 503 << u"Authenticated"_s << true;
    QTest::newRow("offline") << tokenFor(0) << u"r"_s << 0 << u"Authenticated"_s << true;
}

void AuthClientTest::restoresTheSession()
{
    QFETCH(QString, access);
    QFETCH(QString, refresh);
    QFETCH(int, status);
    start(access, refresh);
    const QByteArray tokens =
        QJsonDocument(QJsonObject{{"access_token"_L1, tokenFor(60)}, {"refresh_token"_L1, u"r2"_s}})
            .toJson();
    m_service->answer(u"POST /auth/token/refresh"_s,
                      {{.status = status, .body = tokens, .drops = status == 0}});
    QCOMPARE(m_auth->state(), AuthState::Unknown);
    m_auth->initialize();
    QFETCH(QString, state);
    QTRY_COMPARE(m_events, QStringList{state});
    QTEST(!m_stored->values.value(kRefreshTokenKey).isEmpty(), "keepsTokens");
    for (const FakeRequest &request : m_service->requests())
        QVERIFY(!request.headers.contains("authorization"));
}

quint16 AuthClientTest::startLogin()
{
    m_auth->login();
    m_page = m_opened.take().value(0);
    const QUrl redirect(QUrlQuery(m_page).queryItemValue(u"redirect_uri"_s, QUrl::FullyDecoded));
    return static_cast<quint16>(redirect.port());
}

QByteArray AuthClientTest::sendRaw(quint16 port, const QByteArray &bytes, const QString &address)
{
    QTcpSocket socket;
    socket.connectToHost(address, port);
    QSignalSpy gone(&socket, &QTcpSocket::disconnected);
    if (!QTest::qWaitFor([&socket] { return socket.state() == QTcpSocket::ConnectedState; }))
        return "no connection";
    socket.write(bytes);
    if (!QTest::qWaitFor([&gone] { return !gone.isEmpty(); }))
        return "still connected";
    return socket.readAll();
}

void AuthClientTest::signsInThroughTheBrowser_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QStringList>("events");
    const QStringList in{u"Authenticated"_s, u"in"_s};
    const QStringList failed{u"No tokens received"_s};
    const QByteArray both = "access_token=a%2Bb&refresh_token=r";
    QTest::newRow("query") << "/callback?" + both << u"127.0.0.1"_s << in;
    QTest::newRow("fragment") << "/callback#" + both << u"127.0.0.1"_s << in;
    QTest::newRow("other path") << "/favicon.ico?" + both << u"127.0.0.1"_s << in;
    QTest::newRow("IPv6") << "/callback?" + both << u"::1"_s << in;
    QTest::newRow("nothing") << QByteArray("/") << u"127.0.0.1"_s << failed;
    QTest::newRow("access alone") << QByteArray("/callback?access_token=a") << u"127.0.0.1"_s
                                  << failed;
    QTest::newRow("access alone in the fragment")
        << QByteArray("/callback?refresh_token=r#access_token=a") << u"127.0.0.1"_s << failed;
}

void AuthClientTest::signsInThroughTheBrowser()
{
    QFETCH(QByteArray, target);
    QFETCH(QString, address);
    QFETCH(QStringList, events);
    if (address == "::1"_L1 && !QTcpServer().listen(QHostAddress::LocalHostIPv6))
        return; // this machine has no IPv6, and the listener does without
    const quint16 port = startLogin();
    QCOMPARE(m_page.toString(QUrl::FullyEncoded),
             u"http://sign-in.example/house/account/login?client_id=id&redirect_uri="
             "http%3A%2F%2Flocalhost%3A%1%2Fcallback"_s.replace(u"%1"_s, QString::number(port)));
    const QByteArray page = sendRaw(port, "GET " + target + " HTTP/1.1\r\n\r\n", address);
    QVERIFY(page.startsWith("HTTP/1.1 200 OK\r\n"));
    QVERIFY(page.contains("<h2>Authentication complete!</h2>"));
    QTRY_COMPARE(m_events, events);
    if (events.contains(u"in"_s))
        QCOMPARE(m_stored->values.value(kAccessTokenKey), u"a+b"_s);
    QTcpSocket late;
    late.connectToHost(QHostAddress::LocalHost, port);
    QTRY_COMPARE(late.error(), QTcpSocket::ConnectionRefusedError);
}

void AuthClientTest::takesAFreePort()
{
    const quint16 first = startLogin();
    const quint16 second = startLogin(); // the first page was abandoned
    QVERIFY(first != second && second != 0);
    sendRaw(second, "GET /?access_token=a&refresh_token=r HTTP/1.1\r\n\r\n");
    sendRaw(first, "GET /?access_token=a&refresh_token=r HTTP/1.1\r\n\r\n");
    // The second one changes no state any more, but is told all the same.
    QTRY_COMPARE(m_events, QStringList({u"Authenticated"_s, u"in"_s, u"in"_s}));
}

void AuthClientTest::survivesStrangeClients_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("half a line") << QByteArray("GET /callback?access_tok");
    QTest::newRow("no blank in 10 MB") << QByteArray(10 * 1024 * 1024, 'x');
    QTest::newRow("10 MB target") << "GET /" + QByteArray(10 * 1024 * 1024, 'x');
}

void AuthClientTest::survivesStrangeClients()
{
    QFETCH(QByteArray, bytes);
    const quint16 port = startLogin();
    QTcpSocket strange;
    strange.connectToHost(QHostAddress::LocalHost, port);
    QTRY_COMPARE(strange.state(), QTcpSocket::ConnectedState);
    strange.write(bytes);
    QTRY_VERIFY(strange.bytesToWrite() == 0 || strange.state() != QTcpSocket::ConnectedState);
    sendRaw(port, "GET /?access_token=a&refresh_token=r HTTP/1.1\r\n\r\n");
    QTRY_COMPARE(m_events, QStringList({u"Authenticated"_s, u"in"_s}));
}

void AuthClientTest::signsOutAtOnce()
{
    start(tokenFor(60), u"r"_s);
    m_auth->initialize();
    m_events.clear();
    m_service->answer(u"POST /auth/logout"_s, {{.drops = true}});
    m_auth->logout();
    QCOMPARE(m_events, QStringList({u"Unauthenticated"_s, u"out"_s}));
    QVERIFY(m_stored->values.isEmpty());
    QTRY_VERIFY(!m_service->requests().isEmpty());
    QVERIFY(m_service->requests().first().headers.value("authorization").startsWith("Bearer "));
}

void AuthClientTest::refusedRefreshSignsOut()
{
    start(tokenFor(60), u"r"_s);
    m_auth->initialize();
    m_events.clear();
    QList<bool> answers;
    const auto note = [&answers](bool ok) { answers << ok; };
    m_service->answer(u"POST /auth/token/refresh"_s,
                      {{.status = 500}, {.status = 200, .body = "{}"}, {.status = 403}});
    m_auth->refreshToken(note);
    QTRY_COMPARE(answers, QList<bool>{false});
    QCOMPARE(m_tokens->refreshToken(), u"r"_s);
    QVERIFY(m_auth->isAuthenticated());
    m_auth->refreshToken(note); // an answer without tokens is believed
    QTRY_COMPARE(answers, QList<bool>({false, true}));
    QCOMPARE(m_tokens->refreshToken(), QString());
    m_auth->refreshToken(note);
    QCOMPARE(answers, QList<bool>({false, true, false}));
    QCOMPARE(m_events, QStringList{u"Unauthenticated"_s});
}

void AuthClientTest::keepsTheLastKnownUser()
{
    start(tokenFor(60, {{"sub"_L1, u"u1"_s}}), u"r"_s);
    m_auth->initialize();
    QCOMPARE(m_auth->userId(), u"u1"_s);
    m_service->answer(u"GET /users/me"_s,
                      {{.body = R"({"id":"u1","email":"ann@x","display_name":"Ann",
                                    "created_at":"2024-02-29T10:00:00Z"})"},
                       {.status = 500}});
    m_service->answer(u"PATCH /users/me"_s, {{.status = 403}, {.body = R"({"display_name":7})"}});
    QList<User> users;
    const auto note = [&users](const User &user) { users << user; };
    m_auth->fetchCurrentUser(note);
    QTRY_COMPARE(users.size(), 1);
    QCOMPARE(users.first(),
             (User{.id = u"u1"_s,
                   .email = u"ann@x"_s,
                   .displayName = u"Ann"_s,
                   .createdAt = QDateTime(QDate(2024, 2, 29), QTime(10, 0), Qt::UTC)}));
    m_auth->fetchCurrentUser(note);
    QTRY_COMPARE(users.size(), 2);
    m_auth->updateProfile(u"Anna \"%1\""_s, note);
    QTRY_COMPARE(users.size(), 3);
    QCOMPARE(users, QList<User>(3, users.first()));
    QCOMPARE(m_service->requests().last().body, QByteArray(R"({"display_name":"Anna \"%1\""})"));
    m_auth->updateProfile(u"A"_s, note);
    QTRY_COMPARE(users.size(), 4);
    QCOMPARE(m_auth->currentUser(), User());
    m_service->answer(u"GET /users/me"_s, {{.body = R"({"id":"u1"})"}});
    m_service->answer(u"POST /auth/token/refresh"_s,
                      {{.body = QJsonDocument(QJsonObject{{"access_token"_L1, tokenFor(60)},
                                                          {"refresh_token"_L1, u"r"_s}})
                                    .toJson()}});
    m_tokens->setTokens(tokenFor(10), u"r"_s); // too near its end: refreshed before the request
    m_auth->fetchCurrentUser(note);
    QTRY_COMPARE(users.size(), 5);
    QCOMPARE(users.last().id, u"u1"_s);
    m_auth->fetchCurrentUser(note);
    m_auth->logout(); // before the answer
    QTRY_COMPARE(users.size(), 6);
    QCOMPARE(users.last(), User());
}

void AuthClientTest::listsSessions()
{
    start(tokenFor(60), u"r"_s);
    m_auth->initialize();
    m_service->answer(u"GET /users/me/sessions"_s,
                      {{.body = R"({"sessions":[{"id":"s1","is_current":true},7]})"},
                       {.body = R"({"sessions":"none"})"},
                       {.status = 500, .body = R"({"sessions":[{"id":"s1"}]})"}});
    QList<qsizetype> counts;
    for (int attempt = 0; attempt < 3; ++attempt) {
        m_auth->listSessions([&counts](const QList<Session> &list) { counts << list.size(); });
        QTRY_COMPARE(counts.size(), attempt + 1);
    }
    QCOMPARE(counts, QList<qsizetype>({2, 0, 0}));
}

PURSEWELL_TEST_MAIN(AuthClientTest)

#include "AuthClientTest.moc"
