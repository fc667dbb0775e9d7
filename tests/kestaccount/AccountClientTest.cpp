#include "kestaccount/AccountClient.h"

#include "MemoryTokenStore.h"
#include "kestaccount/ApiClient.h"
#include "kestaccount/AuthClient.h"
#include "kestaccount/Client.h"
#include "kestaccount/DeviceIdentity.h"
#include "kestaccount/FileTokenStore.h"
#include "kestaccount/TokenManager.h"
#include "support/FakeHttpService.h"
#include "support/TestSupport.h"

using namespace KestAccount;
using namespace Qt::StringLiterals;

// The account calls, through the whole client as the program builds it.
class AccountClientTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readsRecords_data();
    void readsRecords();
    void groupChangesFetchANewToken_data();
    void groupChangesFetchANewToken();
    void registersThisDevice();
    void passesOnTheState();
    void namesThePlatform_data();
    void namesThePlatform();
    void fingerprintIsStableAndOurOwn();

private:
    std::unique_ptr<FakeHttpService> m_service{};
    std::unique_ptr<Client> m_client{};
};

using Call = std::function<void(AccountClient *, QString *)>;

void AccountClientTest::init()
{
    m_service = std::make_unique<FakeHttpService>();
    m_client =
        std::make_unique<Client>(ClientConfig{.authBaseUrl = m_service->url().toString(),
                                              .realmSlug = u"house"_s,
                                              .accountApiUrl = m_service->url(u"/a"_s).toString(),
                                              .appId = u"app"_s,
                                              .appVersion = u"1.2"_s});
    m_client->tokenManager()->setTokens(tokenFor(3600), u"r"_s);
}

void AccountClientTest::readsRecords_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QString>("request");
    QTest::addColumn<FakeReply>("reply");
    QTest::addColumn<QString>("read");
    const Call profile = [](AccountClient *client, QString *read) {
        client->getProfile([read](const Profile &p) {
            *read = u"%1 %2 %3"_s.arg(
                p.id, p.createdAt.toString(Qt::ISODate),
                p.group ? u"group %1 %2"_s.arg(p.group->id).arg(p.group->memberCount)
                        : u"no group"_s);
        });
    };
    const Call group = [](AccountClient *client, QString *read) {
        client->getGroup([read](const Group &g) {
            *read = u"%1/%2"_s.arg(g.id).arg(g.maxSeats);
            for (const GroupMember &member : g.members)
                *read += u" "_s + member.accountId + u"-"_s + member.role;
            for (const GroupInvitation &invitation : g.pendingInvitations)
                *read += u" "_s + invitation.inviteCode;
        });
    };
    const Call devices = [](AccountClient *client, QString *read) {
        client->getDevices([read](const QList<Device> &list) {
            *read = QString::number(list.size());
            for (const Device &device : list)
                *read += u" "_s + device.id + (device.lastSyncAt.isValid() ? u"!"_s : u"?"_s);
        });
    };
    const Call joined = [](AccountClient *client, QString *read) {
        client->joinGroup(u"c"_s, [read](bool ok) { *read = ok ? u"yes"_s : u"no"_s; });
    };
    const auto row = [](const char *name, const Call &call, const QString &request,
                        const FakeReply &reply, const QString &read) {
        QTest::newRow(name) << call << request << reply << read;
    };
    const QString atProfile = u"GET /a/profile"_s;
    const QString atGroup = u"GET /a/group"_s;
    const QString atDevices = u"GET /a/devices"_s;
    row("profile", profile, atProfile,
        {.body =
             R"({"id":"p","created_at":"2024-05-06T07:08:09Z","group":{"id":"g","member_count":2}})"},
        u"p 2024-05-06T07:08:09Z group g 2"_s);
    row("profile without group", profile, atProfile, {.body = R"({"id":"p"})"}, u"p  no group"_s);
    row("profile with null group", profile, atProfile, {.body = R"({"id":"p","group":null})"},
        u"p  group  0"_s);
    row("profile of wrong types", profile, atProfile, {.body = R"({"id":7,"created_at":[]})"},
        u"  no group"_s);
    row("profile refused", profile, atProfile, {.status = 403, .body = R"({"id":"p"})"},
        u"  no group"_s);
    row("group", group, atGroup,
        {.body = R"({"id":"g","max_seats":5,"members":[{"account_id":"a","role":"owner"},
                    {"account_id":"b"}],"pending_invitations":[{"invite_code":"C"}]})"},
        u"g/5 a-owner b- C"_s);
    row("group of wrong types", group, atGroup,
        {.body = R"({"id":"g","max_seats":"5","members":{},"pending_invitations":[1]})"},
        u"g/0 "_s);
    row("group refused", group, atGroup, {.status = 403}, u"/0"_s);
    row("devices", devices, atDevices,
        {.body = R"({"devices":[{"id":"2","last_sync_at":"2024-05-06T07:08:09Z"},
                    {"id":"1","last_sync_at":"never"}]})"},
        u"2 2! 1?"_s);
    row("devices refused", devices, atDevices, {.status = 500, .body = R"({"devices":[{}]})"},
        u"0"_s);
    row("joined", joined, u"POST /a/group/join/c"_s, {.status = 204}, u"yes"_s);
    row("not joined", joined, u"POST /a/group/join/c"_s, {.status = 404}, u"no"_s);
}

void AccountClientTest::readsRecords()
{
    QFETCH(Call, call);
    QFETCH(QString, request);
    QFETCH(FakeReply, reply);
    m_service->answer(request, {reply});
    QString read;
    call(m_client->accountClient(), &read);
    QTRY_VERIFY(!read.isNull());
    QTEST(read, "read");
}

void AccountClientTest::groupChangesFetchANewToken_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QString>("request");
    QTest::addColumn<bool>("works");
    QTest::addColumn<bool>("refreshes");
    const Call join = [](AccountClient *client, QString *) { client->joinGroup(u"A%1?B"_s, {}); };
    const Call leave = [](AccountClient *client, QString *) { client->leaveGroup(); };
    const Call removal = [](AccountClient *client, QString *) { client->removeMember(u"m"_s); };
    QTest::newRow("joined") << join << u"POST /a/group/join/A%1?B"_s << true << true;
    QTest::newRow("not joined") << join << u"POST /a/group/join/A%1?B"_s << false << false;
    QTest::newRow("left") << leave << u"POST /a/group/leave"_s << true << true;
    QTest::newRow("not left") << leave << u"POST /a/group/leave"_s << false << false;
    QTest::newRow("removed") << removal << u"DELETE /a/group/members/m"_s << true << false;
    QTest::newRow("not removed") << removal << u"DELETE /a/group/members/m"_s << false << false;
}

void AccountClientTest::groupChangesFetchANewToken()
{
    QFETCH(Call, call);
    QFETCH(QString, request);
    QFETCH(bool, works);
    QFETCH(bool, refreshes);
    m_service->answer(request, {{.status = works ? 204 : 409}});
    m_service->answer(u"GET /a/devices"_s, {{.body = "{}"}});
    QSignalSpy changed(m_client->accountClient(), &AccountClient::groupChanged);
    call(m_client->accountClient(), nullptr);
    QTRY_VERIFY(!m_service->requests().isEmpty());
    bool isLater = false; // an answer to a later request: what was to follow has followed
    m_client->accountClient()->getDevices([&isLater](const QList<Device> &) { isLater = true; });
    QTRY_VERIFY(isLater && (!works || changed.size() == 1));
    QCOMPARE(changed.size(), works ? 1 : 0);
    QTRY_COMPARE(
        m_service->requestLines().contains(u"POST /api/v1/realms/house/auth/token/refresh"_s),
        refreshes);
}

void AccountClientTest::registersThisDevice()
{
    m_client->accountClient()->registerDevice();
    QTRY_COMPARE(m_service->requestLines(), QStringList{u"POST /a/devices/register"_s});
    QCOMPARE(QJsonDocument::fromJson(m_service->requests().first().body).object(),
             (QJsonObject{{"device_name"_L1, QSysInfo::machineHostName()},
                          {"platform"_L1, u"Linux"_s},
                          {"app_id"_L1, u"app"_s},
                          {"app_version"_L1, u"1.2"_s},
                          {"device_fingerprint"_L1, deviceFingerprint(u"app"_s)}}));
}

void AccountClientTest::passesOnTheState()
{
    const QJsonObject kes{{"group_id"_L1, u"g"_s}, {"role"_L1, u"owner"_s}};
    m_client->tokenManager()->setTokens(tokenFor(60, {{"custom"_L1, QJsonObject{{"kes"_L1, kes}}}}),
                                        u"r"_s);
    QStringList events;
    connect(m_client.get(), &Client::authStateChanged, this,
            [&events](AuthState state) { events << QString::number(int(state)); });
    connect(m_client.get(), &Client::claimsUpdated, this,
            [&events](const KesClaims &claims) { events << claims.groupId + claims.role; });
    m_client->initialize();
    m_client->authClient()->logout();
    QCOMPARE(events, QStringList({u"3"_s, u"gowner"_s, u"1"_s}));
    QCOMPARE(m_client->claims(), KesClaims());
}

void AccountClientTest::namesThePlatform_data()
{
    QTest::addColumn<QString>("kernel");
    QTest::addColumn<QString>("word");
    QTest::newRow("Linux") << u"linux"_s << u"linux"_s;
    QTest::newRow("mixed case") << u"WinNT"_s << u"windows"_s;
    QTest::newRow("mac") << u"Darwin"_s << u"macos"_s;
    QTest::newRow("other") << u"FreeBSD"_s << u"freebsd"_s;
}

void AccountClientTest::namesThePlatform()
{
    QFETCH(QString, kernel);
    QTEST(platformWord(kernel), "word");
}

void AccountClientTest::fingerprintIsStableAndOurOwn()
{
    const QString fingerprint = deviceFingerprint(u"app"_s);
    QCOMPARE(fingerprint, deviceFingerprint(u"app"_s));
    QVERIFY(!fingerprint.isEmpty());
    const QString machineId = QString::fromLatin1(QSysInfo::machineUniqueId());
    if (!machineId.isEmpty()) {
        QVERIFY(!fingerprint.contains(machineId) && fingerprint != machineId);
        QVERIFY(fingerprint != deviceFingerprint(u"another"_s));
    }
    QCOMPARE(hostNameFingerprint(u"host"_s).size(), 32);
    QCOMPARE(hostNameFingerprint(u"host"_s), hostNameFingerprint(u"host"_s));
    QVERIFY(hostNameFingerprint(u"host"_s) != hostNameFingerprint(u"Host"_s));
}

PURSEWELL_TEST_MAIN(AccountClientTest)

#include "AccountClientTest.moc"
