#include "LocalService.h"

#include "support/TestSupport.h"

#include <QTcpSocket>

using namespace Qt::StringLiterals;

class LocalServiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void answersMalformedRequests_data();
    void answersMalformedRequests();
    void survivesEveryBodyOnEveryRoute_data();
    void survivesEveryBodyOnEveryRoute();
    void survivesClientsThatGoAway();
    void portIsItsOwn();
    void signsInOnlyForThisMachine_data();
    void signsInOnlyForThisMachine();

private:
    QByteArray ask(const QByteArray &request); // the whole answer; empty: closed without one
    int statusOf(const QByteArray &request) { return ask(request).mid(9, 3).toInt(); }
    QByteArray request(const QByteArray &line, const QByteArray &body = {},
                       const QByteArray &headers = {});
    bool isInOrder() { return statusOf(request("GET /pursewell/v1/sync/pull?limit=1")) == 200; }

    LocalService m_service{u":memory:"_s};
    QByteArray m_token{};
};

void LocalServiceTest::initTestCase()
{
    QVERIFY(m_service.start());
    m_token = m_service.signIn(u"ann@example.com"_s).access.toLatin1();
}

QByteArray LocalServiceTest::request(const QByteArray &line, const QByteArray &body,
                                     const QByteArray &headers)
{
    return line + " HTTP/1.1\r\nHost: localhost\r\nAuthorization: Bearer " + m_token + "\r\n"
        + headers + "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

QByteArray LocalServiceTest::ask(const QByteArray &request)
{
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(m_service.port()));
    socket.write(request);
    QByteArray answer;
    while (socket.waitForReadyRead(20000))
        answer += socket.readAll();
    return answer + socket.readAll();
}

void LocalServiceTest::answersMalformedRequests_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("status");

    const QByteArray push = "POST /pursewell/v1/sync/push";
    QTest::newRow("no HTTP") << "garbage\r\n\r\n"_ba << 400;
    QTest::newRow("unknown verb") << request("BREW /pursewell/v1/sync/push") << 400;
    QTest::newRow("unknown path") << request("GET /teapot") << 404;
    QTest::newRow("long path") << request("GET /kestrelwood/account/login" + QByteArray(8000, 'x'))
                               << 404;
    QTest::newRow("longer path") << request("GET /" + QByteArray(100000, 'x')) << 414;
    QTest::newRow("long id") << request("DELETE /account/v1/devices/" + QByteArray(8000, 'x'))
                             << 204;
    QTest::newRow("broken escapes")
        << request("GET /pursewell/v1/sync/pull?since=%zz%&limit=%00") << 200;
    QTest::newRow("limit beyond all bounds")
        << request("GET /pursewell/v1/sync/pull?limit=99999999999999999999") << 200;
    QTest::newRow("negative limit") << request("GET /pursewell/v1/sync/pull?limit=-1") << 200;
    QTest::newRow("cursor of another service")
        << request("GET /pursewell/v1/sync/pull?since=a~b~9999999999~-") << 200;
    QTest::newRow("not JSON") << request(push, "{") << 400;
    QTest::newRow("list") << request(push, "[]") << 400;
    QTest::newRow("no body") << request(push) << 400;
    QTest::newRow("no changes") << request(push, R"({"changes":{}})") << 400;
    QTest::newRow("changes of anything")
        << request(push, R"({"changes":[1,null,"",[],{},{"entity_type":"account"},
                             {"entity_type":5,"entity_id":{},"payload":[],"version":"x"},
                             {"entity_type":"account","entity_id":"\u0000","version":1e300}]})")
        << 200;
    QTest::newRow("deeply nested") << request(push, QByteArray(1000000, '[')) << 400;
    QTest::newRow("too long") << request(push, QByteArray(65 * 1024 * 1024, ' ')) << 413;
    QTest::newRow("length unknown")
        << push + " HTTP/1.1\r\nHost: x\r\nTransfer-Encoding: chunked\r\n\r\n1\r\n{\r\n"_ba << 411;
    QTest::newRow("nobody's token") << "GET /account/v1/profile HTTP/1.1\r\n\r\n"_ba << 401;
}

void LocalServiceTest::answersMalformedRequests()
{
    QFETCH(QByteArray, bytes);
    QTEST(statusOf(bytes), "status");
    QVERIFY(isInOrder());
}

void LocalServiceTest::survivesEveryBodyOnEveryRoute_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("none") << ""_ba;
    QTest::newRow("not JSON") << "\xff\xfe{"_ba;
    QTest::newRow("list") << "[[]]"_ba;
    QTest::newRow("numbers")
        << R"({"email":1,"refresh_token":2,"display_name":3,"current_password":4,"new_password":5,
               "user_id":6,"role":7,"changes":8,"device_name":9,"kind":10})"_ba;
    QTest::newRow("objects")
        << R"({"email":{},"refresh_token":{},"display_name":{},"current_password":[],
               "new_password":{},"user_id":{},"role":[],"changes":{},"kind":{}})"_ba;
}

void LocalServiceTest::survivesEveryBodyOnEveryRoute()
{
    QFETCH(QByteArray, body);
    for (const char *line :
         {"POST /api/v1/realms/r/auth/token/refresh", "PATCH /api/v1/realms/r/users/me",
          "POST /api/v1/realms/r/users/me/password", "GET /api/v1/realms/r/users/me/sessions",
          "DELETE /api/v1/realms/r/users/me/sessions/x", "GET /account/v1/group",
          "POST /account/v1/group/invite", "POST /account/v1/group/join/x",
          "DELETE /account/v1/group/members/x", "DELETE /account/v1/group/invitations/x",
          "POST /account/v1/devices/register", "POST /pursewell/v1/sync/push",
          "GET /pursewell/v1/accounts/x/members", "POST /pursewell/v1/accounts/x/share",
          "DELETE /pursewell/v1/accounts/x/share/y", "POST /control/fault",
          "POST /r/account/login"}) {
        const int status = statusOf(request(line, body, "Content-Type: application/json\r\n"));
        QVERIFY2(status >= 200 && status < 500, line);
    }
    QVERIFY(isInOrder());
}

void LocalServiceTest::survivesClientsThatGoAway()
{
    const QByteArray whole =
        request("POST /pursewell/v1/sync/push", R"({"changes":[)" + QByteArray(100000, ' ') + "]}");
    for (const qsizetype sent : {qsizetype(0), qsizetype(20), whole.size() / 2, whole.size()}) {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(m_service.port()));
        QVERIFY(socket.waitForConnected());
        socket.write(whole.first(sent));
        socket.flush();
        socket.abort();
    }
    m_service.faults().set({.kind = Fault::Kind::Huge, .times = 1});
    {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(m_service.port()));
        socket.write(request("GET /pursewell/v1/sync/pull"));
        QVERIFY(socket.waitForReadyRead());
        socket.abort(); // in the middle of the answer
    }
    QVERIFY(isInOrder());
}

void LocalServiceTest::portIsItsOwn()
{
    LocalService second(u":memory:"_s);
    QVERIFY(!second.start(m_service.port()));
}

void LocalServiceTest::signsInOnlyForThisMachine_data()
{
    QTest::addColumn<QByteArray>("redirect");
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<int>("status");
    const QByteArray good = "email=ann%40example.com&password=secret";
    QTest::newRow("here") << "http%3A%2F%2Flocalhost%3A19876%2Fcallback"_ba << good << 302;
    QTest::newRow("elsewhere") << "http%3A%2F%2Fexample.com%2Fcallback"_ba << good << 403;
    QTest::newRow("nowhere") << ""_ba << good << 403;
    QTest::newRow("wrong password") << "http%3A%2F%2Flocalhost%3A19876%2Fcallback"_ba
                                    << "email=ann%40example.com&password=guess"_ba << 403;
    QTest::newRow("no address") << "http%3A%2F%2Flocalhost%3A19876%2Fcallback"_ba
                                << "password=secret"_ba << 403;
}

void LocalServiceTest::signsInOnlyForThisMachine()
{
    QFETCH(QByteArray, redirect);
    QFETCH(QByteArray, form);
    QFETCH(int, status);
    const QByteArray answer =
        ask(request("POST /kestrelwood/account/login?client_id=x&redirect_uri=" + redirect, form,
                    "Content-Type: application/x-www-form-urlencoded\r\n"));
    QCOMPARE(answer.mid(9, 3).toInt(), status);
    QCOMPARE(answer.contains("Location: http://localhost:19876/callback?access_token="),
             status == 302);
}

PURSEWELL_TEST_MAIN(LocalServiceTest)
#include "LocalServiceTest.moc"
