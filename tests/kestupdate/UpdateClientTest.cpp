#include "kestupdate/Client.h"

#include "kestupdate/ReleaseManifest.h"
#include "support/FakeHttpService.h"
#include "support/TestSupport.h"

using namespace KestUpdate;
using namespace Qt::StringLiterals;

class UpdateClientTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatIsWrongWithAManifest_data();
    void saysWhatIsWrongWithAManifest();
    void answersOnce_data();
    void answersOnce();
    void needsAConfiguration();
};

void UpdateClientTest::saysWhatIsWrongWithAManifest_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *part, const char *other, const QString &error) {
        QTest::addRow("%s: %s", part, other) << releaseManifest(part, other) << error;
    };
    const QString unsound = u"artifact linux-x64 failed validation"_s;
    row("*", "", {});
    row("}}}", "}}", u"JSON parse error: unterminated object"_s);
    QTest::newRow("list") << "[]"_ba << u"manifest root is not a JSON object"_s;
    row("\"schema\":1", "\"schema\":\"1\"", u"missing or non-integer field: schema"_s);
    row("\"schema\":1", "\"schema\":2", u"unsupported manifest schema: 2 (expected 1)"_s);
    row("\"schema\":1", "\"schema\":1.5", u"unsupported manifest schema: 0 (expected 1)"_s);
    row("\"app\":\"pursewell\",\"channel\"", "\"c\"", u"missing or non-string field: app"_s);
    row("channel", "%1", u"missing or non-string field: channel"_s);
    row("stable", "", u"manifest failed validation"_s);
    row("\"artifacts\":", "\"artifacts\":1,\"x\":", u"missing or non-object field: artifacts"_s);
    row("\"artifacts\":", "\"artifacts\":{},\"x\":", u"manifest failed validation"_s);
    row("{\"linux-x64\"", "{\"%1\":[],\"x\"", u"artifact %1 is not an object"_s);
    row("{\"linux-x64\"", "{\"beos\":{},\"x\"", u"missing or non-string field: version"_s);
    row("sha256", "sha", u"missing or non-string field: sha256"_s);
    row("abcdef0", "0", unsound);
    row("1.0.11", "", unsound);
    row("2026-09-14", "2026-02-30", unsound);
    row("http://files", "http://[", unsound);
    row("\"size\":5", "\"size\":0.9", unsound);
    row("\"size\":5", "\"size\":1e300", unsound);
    row("\"size\":5", "\"size\":\"5\"", unsound);
}

void UpdateClientTest::saysWhatIsWrongWithAManifest()
{
    QFETCH(QByteArray, bytes);
    QString error = u"left over"_s;
    const Manifest manifest = parseManifest(bytes, &error);
    QTEST(error, "error");
    QCOMPARE(manifest.isValid(), error.isEmpty());
}

void UpdateClientTest::answersOnce_data()
{
    QTest::addColumn<QString>("currentVersion");
    QTest::addColumn<FakeReply>("reply");
    QTest::addColumn<QString>("answer"); // how it begins
    const auto offers = [](const char *tag, const QString &current, const QByteArray &version,
                           const QString &answer = u"update"_s) {
        QTest::newRow(tag) << current << FakeReply{.body = releaseManifest("1.0.11", version)}
                           << answer;
    };
    offers("newer", u"1.0.10"_s, "1.0.11");
    offers("newer with fewer parts", u"1.0.10"_s, "1.1");
    offers("same", u"1.0.10"_s, "1.0.10", u"none"_s);
    offers("older by number, not by letter", u"1.0.10"_s, "1.0.9", u"none"_s);
    offers("no pre-releases", u"1.0.10"_s, "1.0.11-rc1", u"none"_s);
    offers("four parts", u"1.0.10"_s, "1.0.11.1", u"none"_s);
    offers("too old", u"1.0.9"_s, "1.0.11",
           u"current version 1.0.9 is older than min_upgradable_from 1.0.10; please upgrade to an "
           "intermediate release first"_s);
    const auto told = [](const char *tag, const FakeReply &reply, const QString &answer) {
        QTest::newRow(tag) << u"1.0.10"_s << reply << answer;
    };
    told("from any version", {.body = releaseManifest("min_upgradable", "max")}, u"update"_s);
    QTest::newRow("unreadable version")
        << u"dev"_s << FakeReply{.body = releaseManifest("min_upgradable", "max")} << u"update"_s;
    told("other platform", {.body = releaseManifest("linux", "beos")}, u"none"_s);
    told("broken", {.body = "{}"}, u"manifest invalid: missing or non-integer field: schema"_s);
    told("not found", {.status = 404, .body = "<html>"}, u"none"_s);
    told("gone", {.status = 410}, u"network error: "_s);
    told("failing", {.status = 500, .body = releaseManifest()}, u"network error: "_s);
    told("cut off", {.drops = true}, u"network error: "_s);
    told("100 MB", {.body = releaseManifest() + QByteArray(100 << 20, ' ')}, u"network error: "_s);
    told("moved", {.status = 302, .headers = "Location: /moved\r\n"}, u"update"_s);
    told("moved to a file", {.status = 302, .headers = "Location: file:///etc/hostname\r\n"},
         u"network error: "_s);
}

void UpdateClientTest::answersOnce()
{
    QFETCH(QString, currentVersion);
    QFETCH(FakeReply, reply);
    QFETCH(QString, answer);
    FakeHttpService service;
    service.answer(u"GET /stable/latest.json"_s, {reply});
    service.answer(u"GET /moved"_s, {{.body = releaseManifest()}});
    Client client({u"pursewell"_s, u"stable"_s, service.url(u"/stable"_s), currentVersion});
    QStringList answers;
    connect(&client, &Client::updateAvailable, this,
            [&answers](const Artifact &artifact) { answers << u"update "_s + artifact.version; });
    connect(&client, &Client::upToDate, this, [&answers] { answers << u"none"_s; });
    connect(&client, &Client::checkFailed, this,
            [&answers](const QString &reason) { answers << reason; });

    client.checkForUpdates();
    client.checkForUpdates(); // ignored
    QTRY_COMPARE(answers.size(), 1);
    QVERIFY2(answers.first().startsWith(answer), qPrintable(answers.first()));
    const int tries = reply.drops ? 2 : 1; // Qt's own
    QCOMPARE(service.requestLines().count(u"GET /stable/latest.json"_s), tries);
    QCOMPARE(service.requests().first().headers.value("user-agent"),
             "KestUpdateQt/0.1 (pursewell)"_ba);
    client.checkForUpdates(); // now it may be asked again
    QTRY_COMPARE(answers.size(), 2);
}

void UpdateClientTest::needsAConfiguration()
{
    for (const Config &config : {Config{.currentVersion = u"1"_s},
                                 Config{.manifestBaseUrl = QUrl(u"http://127.0.0.1:9"_s)}}) {
        Client client(config);
        QSignalSpy failed(&client, &Client::checkFailed);
        client.checkForUpdates();
        QCOMPARE(failed.size(), 1);
        QCOMPARE(failed.first().first().toString(),
                 config.currentVersion.isEmpty() ? u"currentVersion is empty"_s
                                                 : u"manifestBaseUrl is not valid"_s);
    }
}

PURSEWELL_TEST_MAIN(UpdateClientTest)
#include "UpdateClientTest.moc"
