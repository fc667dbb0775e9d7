#include "kestaccount/ApiClient.h"

#include "MemoryTokenStore.h"
#include "kestaccount/TokenClaims.h"
#include "kestaccount/TokenManager.h"
#include "support/FakeHttpService.h"
#include "support/TestSupport.h"

using namespace KestAccount;
using namespace Qt::StringLiterals;

namespace {

enum class Refresh { Succeeds, Rejected, Fails };

struct Answer
{
    bool success = false;
    int status = -1;
    QJsonObject body{};

    bool operator==(const Answer &) const = default;
};

} // namespace

class ApiClientTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void framesRequests_data();
    void framesRequests();
    void reducesAnswers_data();
    void reducesAnswers();
    void refreshesAheadAndAfter401_data();
    void refreshesAheadAndAfter401();
    void manyWaitForOneRefresh();
    void outlivesItsWaitingRequests();

private:
    void send();

    std::unique_ptr<FakeHttpService> m_service{};
    std::unique_ptr<TokenManager> m_tokens{};
    std::unique_ptr<ApiClient> m_client{};
    std::unique_ptr<QSignalSpy> m_required{};
    std::unique_ptr<QSignalSpy> m_networkErrors{};
    QList<Answer> m_answers{};
    int m_refreshes = 0;
    Refresh m_refresh = Refresh::Succeeds;
};

void ApiClientTest::init()
{
    m_service = std::make_unique<FakeHttpService>();
    m_client.reset();
    m_tokens = std::make_unique<TokenManager>(
        std::make_unique<MemoryTokenStore>(std::make_shared<StoredTokens>()));
    m_tokens->setTokens(tokenFor(3600), u"r"_s);
    m_refreshes = 0;
    m_refresh = Refresh::Succeeds;
    m_tokens->setRefreshCallback([this](const QString &, auto succeeded, auto failed) {
        ++m_refreshes;
        QTimer::singleShot(0, this, [this, succeeded, failed] {
            if (m_refresh == Refresh::Succeeds)
                succeeded(tokenFor(7200, {{"sub"_L1, u"fresh"_s}}), u"r2"_s);
            else
                failed(m_refresh == Refresh::Rejected);
        });
    });
    m_client = std::make_unique<ApiClient>(m_tokens.get());
    m_client->setBaseUrl(m_service->url(u"/api/v1/realms/house"_s));
    m_client->setAppIdentity(u"app"_s, u"1.2"_s, u"linux"_s);
    m_required = std::make_unique<QSignalSpy>(m_client.get(), &ApiClient::authenticationRequired);
    m_networkErrors = std::make_unique<QSignalSpy>(m_client.get(), &ApiClient::networkError);
    m_answers.clear();
}

void ApiClientTest::send()
{
    m_client->get(u"/x"_s, [this](bool success, int status, const QJsonObject &body) {
        m_answers << Answer{success, status, body};
    });
}

void ApiClientTest::framesRequests_data()
{
    QTest::addColumn<std::function<void(ApiClient &, ApiClient::ResponseCallback)>>("call");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<bool>("withToken");
    using Call = std::function<void(ApiClient &, ApiClient::ResponseCallback)>;
    const QJsonObject body{{"a"_L1, u"ü%1"_s}};
    const QByteArray bytes = "{\"a\":\"\xc3\xbc%1\"}";
    QTest::newRow("get with a query") << Call([](ApiClient &api, auto done) {
        api.get(u"/x"_s, done, QUrlQuery(u"since=a%2Bb"_s));
    }) << u"GET /api/v1/realms/house/x?since=a%2Bb"_s
                                      << QByteArray() << true;
    QTest::newRow("post") << Call(
        [body](ApiClient &api, auto done) { api.post(u"/x"_s, body, done); })
                          << u"POST /api/v1/realms/house/x"_s << bytes << true;
    QTest::newRow("post of nothing")
        << Call([](ApiClient &api, auto done) { api.post(u"/x"_s, {}, done); })
        << u"POST /api/v1/realms/house/x"_s << QByteArray() << true;
    QTest::newRow("public") << Call(
        [body](ApiClient &api, auto done) { api.postPublic(u"/x"_s, body, done); })
                            << u"POST /api/v1/realms/house/x"_s << bytes << false;
    QTest::newRow("patch") << Call(
        [body](ApiClient &api, auto done) { api.patch(u"/x"_s, body, done); })
                           << u"PATCH /api/v1/realms/house/x"_s << bytes << true;
    QTest::newRow("delete, words in the path")
        << Call([](ApiClient &api, auto done) { api.del(u"/a b?ü"_s, done); })
        << u"DELETE /api/v1/realms/house/a%20b%3F%C3%BC"_s << QByteArray() << true;
}

void ApiClientTest::framesRequests()
{
    QFETCH(std::function<void(ApiClient &, ApiClient::ResponseCallback)>, call);
    bool isAnswered = false;
    call(*m_client, [&isAnswered](bool, int, const QJsonObject &) { isAnswered = true; });
    QTRY_VERIFY(isAnswered);
    const FakeRequest request = m_service->requests().first();
    QTEST(request.method + u' ' + request.target.toString(QUrl::FullyEncoded), "line");
    QTEST(request.body, "body");
    QCOMPARE(request.headers.value("content-type"), "application/json");
    QCOMPARE(request.headers.value("accept"), "application/json");
    QCOMPARE(request.headers.value("x-app-id"), "app");
    QCOMPARE(request.headers.value("x-app-version"), "1.2");
    QCOMPARE(request.headers.value("x-platform"), "linux");
    QFETCH(bool, withToken);
    QCOMPARE(request.headers.value("authorization"),
             withToken ? "Bearer " + m_tokens->accessToken().toUtf8() : QByteArray());
}

void ApiClientTest::reducesAnswers_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<Answer>("answer");
    const QJsonObject object{{"a"_L1, 1}};
    QTest::newRow("object") << 200 << QByteArray(R"({"a":1})") << Answer{true, 200, object};
    QTest::newRow("no content") << 204 << QByteArray() << Answer{true, 204};
    QTest::newRow("list") << 200 << QByteArray("[]") << Answer{true, 200};
    QTest::newRow("page") << 200 << QByteArray("<html>") << Answer{true, 200};
    QTest::newRow("half") << 200 << QByteArray(R"({"a":1)") << Answer{true, 200};
    QTest::newRow("error with its words")
        << 500 << QByteArray(R"({"a":1})") << Answer{false, 500, object};
    QTest::newRow("not found") << 404 << QByteArray() << Answer{false, 404};
    QTest::newRow("too many") << 429 << QByteArray() << Answer{false, 429};
    QTest::newRow("dropped") << 0 << QByteArray() << Answer{false, 0};
}

void ApiClientTest::reducesAnswers()
{
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    QFETCH(Answer, answer);
    m_service->answer(u"GET /api/v1/realms/house/x"_s,
                      {{.status = status, .body = body, .drops = status == 0}});
    send();
    QTRY_COMPARE(m_answers.size(), 1);
    QCOMPARE(m_answers.first(), answer);
    QCOMPARE(m_networkErrors->size(), status == 0 ? 1 : 0);
    QCOMPARE(m_required->size(), 0);
    QCOMPARE(m_refreshes, 0);
}

void ApiClientTest::refreshesAheadAndAfter401_data()
{
    QTest::addColumn<bool>("stale"); // the token, when the request is made
    QTest::addColumn<Refresh>("refresh");
    QTest::addColumn<QList<int>>("statuses"); // of the service, in turn
    QTest::addColumn<int>("requests");
    QTest::addColumn<int>("refreshes");
    QTest::addColumn<int>("required");
    QTest::addColumn<Answer>("answer");
    using Statuses = QList<int>;
    const Answer good{true, 200};
    const Answer denied{false, 401};
    const Answer failed{false, 0};
    QTest::newRow("stale") << true << Refresh::Succeeds << Statuses{200} << 1 << 1 << 0 << good;
    QTest::newRow("stale, refused")
        << true << Refresh::Rejected << Statuses{} << 0 << 1 << 1 << denied;
    QTest::newRow("stale, no answer")
        << true << Refresh::Fails << Statuses{} << 0 << 1 << 0 << failed;
    // Judged by the clock alone, so a 401 may still refresh it.
    QTest::newRow("stale, then 401")
        << true << Refresh::Succeeds << Statuses{401, 200} << 2 << 2 << 0 << good;
    QTest::newRow("401") << false << Refresh::Succeeds << Statuses{401, 200} << 2 << 1 << 0 << good;
    QTest::newRow("401 twice") << false << Refresh::Succeeds << Statuses{401, 401} << 2 << 1 << 0
                               << denied;
    QTest::newRow("401, refused") << false << Refresh::Rejected << Statuses{401} << 1 << 1 << 1
                                  << denied;
    QTest::newRow("401, no answer")
        << false << Refresh::Fails << Statuses{401} << 1 << 1 << 0 << failed;
}

void ApiClientTest::refreshesAheadAndAfter401()
{
    QFETCH(bool, stale);
    QFETCH(Refresh, refresh);
    QFETCH(QList<int>, statuses);
    const LogCatcher log;
    m_refresh = refresh;
    m_tokens->setTokens(tokenFor(stale ? -1 : 3600), u"r"_s);
    QList<FakeReply> replies;
    for (const int status : statuses)
        replies << FakeReply{.status = status};
    m_service->answer(u"GET /api/v1/realms/house/x"_s, replies);
    send();
    QTRY_COMPARE(m_answers.size(), 1);
    QTEST(m_answers.first(), "answer");
    QTEST(static_cast<int>(m_service->requests().size()), "requests");
    QTEST(m_refreshes, "refreshes");
    QTEST(static_cast<int>(m_required->size()), "required");
    QCOMPARE(m_tokens->refreshToken(), refresh == Refresh::Succeeds ? u"r2"_s : u"r"_s);
    QStringList words;
    if (stale && refresh != Refresh::Succeeds)
        words << u"ApiClient: token refresh %1 for GET /api/v1/realms/house/x"_s.arg(
            refresh == Refresh::Rejected ? u"rejected" : u"failed (transient)");
    QCOMPARE(LogCatcher::warnings(), words);
    for (const FakeRequest &request : m_service->requests().sliced(statuses.isEmpty() ? 0 : 1))
        QVERIFY(parseTokenSubject(QString::fromLatin1(request.headers.value("authorization")))
                == "fresh"_L1);
}

void ApiClientTest::manyWaitForOneRefresh()
{
    m_tokens->setTokens(tokenFor(-1), u"r"_s);
    m_service->answer(u"GET /api/v1/realms/house/x"_s, {{.status = 204}});
    for (int request = 0; request < 10; ++request)
        send();
    QVERIFY(m_service->requests().isEmpty());
    QTRY_COMPARE(m_answers, QList<Answer>(10, Answer{true, 204}));
    QCOMPARE(m_refreshes, 1);
}

void ApiClientTest::outlivesItsWaitingRequests()
{
    m_tokens->setTokens(tokenFor(-1), u"r"_s);
    send();
    m_service->answer(u"GET /api/v1/realms/house/x"_s, {{.hangs = true}});
    m_client.reset();
    bool isOver = false;
    m_tokens->refresh([&isOver](RefreshResult) { isOver = true; });
    QTRY_VERIFY(isOver);
    QVERIFY(m_answers.isEmpty());
}

PURSEWELL_TEST_MAIN(ApiClientTest)

#include "ApiClientTest.moc"
