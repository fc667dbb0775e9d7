#include "SyncRig.h"
#include "kestaccount/MemoryTokenStore.h"
#include "support/FakeHttpService.h"
#include "support/SampleRecords.h"
#include "support/TestDatabase.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

namespace {

const QString kPush = u"POST /sync/push"_s;
const QString kPull = u"GET /sync/pull"_s;
const FakeReply kEmpty{.body = "{}"};

} // namespace

class BadAnswersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void survivesBadAnswers_data();
    void survivesBadAnswers();
};

void BadAnswersTest::survivesBadAnswers_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<FakeReply>("reply");
    QTest::addColumn<QString>("lastEvent");
    QTest::addColumn<QString>("cursorAfter");

    const QString whole = u"data"_s;
    const QString one = u"one"_s;
    const QString longTime(1024 * 1024, u't');
    for (const auto &[call, word] : {std::pair{kPush, u"Push"_s}, std::pair{kPull, u"Pull"_s}}) {
        const auto add = [&call, &word](const char *name, const FakeReply &reply,
                                        const QString &lastEvent, const QString &cursorAfter) {
            QTest::addRow("%s: %s", qPrintable(word), name)
                << call << reply << lastEvent << cursorAfter;
        };
        const auto failed = [&word](int status) {
            return u"failed %1 failed (HTTP %2)"_s.arg(word, QString::number(status));
        };
        add("not JSON", {.body = "<html>"}, whole, one);
        add("other keys", {.body = R"({"x":1})"}, whole, one);
        add("numbers",
            {.body = R"({"results":1,"accounts":2,"server_time":3,"integrity":4,"has_more":5})"},
            whole, one);
        add("texts", {.body = R"({"results":"","accounts":"","server_time":["x"],"has_more":"y"})"},
            whole, one);
        add("lists of anything",
            {.body = R"({"results":[1,"",null,[],{}],"accounts":[1,"",null,[],{}],
                         "transactions":[1,{}],"categories":[{}],"recurring":[{}]})"},
            whole, one);
        add("unknown ids",
            {.body = R"({"results":[{"status":"ok","entity_type":"account","entity_id":"?"}],
                         "transactions":[{"client_id":"z","account_id":"?","date":"2024-01-01"}]})"},
            whole, one);
        add("a version beyond all bounds",
            {.body = R"({"accounts":[{"client_id":"p","name":"x","version":1e300}]})"}, whole, one);
        add("dates beyond all bounds",
            {.body = R"({"transactions":[{"client_id":"z","account_id":"p","payee":"",
                         "date":"99999-99-99","created_at":"-1"}]})"},
            whole, one);
        add("deeply nested", {.body = QByteArray(100000, '[')}, whole, one);
        add("refused", {.status = 400, .body = R"({"error":"no"})"}, failed(400), one);
        add("broken service", {.status = 500, .body = R"({"server_time":"x"})"}, failed(500), one);
        add("cut off", {.drops = true}, failed(0), one);
    }
    QTest::newRow("Pull: a cursor of 1 MB")
        << kPull << FakeReply{.body = R"({"server_time":")" + longTime.toLatin1() + R"("})"}
        << whole << longTime;
}

void BadAnswersTest::survivesBadAnswers()
{
    QFETCH(QString, call);
    QFETCH(FakeReply, reply);
    FakeHttpService service;
    service.answer(kPush, {kEmpty});
    service.answer(kPull, {kEmpty});
    service.answer(call, {reply});
    TestDatabase database;
    SyncRig rig(repositoriesOf(database), service.url(), tokenFor(3600));
    Account account = sampleAccount(u"p"_s);
    account.sync_status = SyncStatus::Pending;
    database.accounts.insert(account);
    database.preferences.set(u"lastSyncTimestamp"_s, u"one"_s);

    const LogCatcher log;
    QVERIFY(rig.runPass());
    QTEST(rig.takeEvents().last(), "lastEvent");
    QTEST(database.preferences.getOr(u"lastSyncTimestamp"_s, {}), "cursorAfter");
    QCOMPARE(database.accounts.findById(u"p"_s)->sync_status, SyncStatus::Pending);
    QCOMPARE(database.value(u"PRAGMA integrity_check"_s).toString(), u"ok"_s);
    QCOMPARE(database.value(u"SELECT COUNT(*) FROM accounts"_s).toInt(), 1);
    service.answer(call, {kEmpty});
    QVERIFY(rig.runPass()); // no lasting harm: this one finds a service in order
    QCOMPARE(rig.takeEvents().last(), u"data"_s);
}

PURSEWELL_TEST_MAIN(BadAnswersTest)
#include "BadAnswersTest.moc"
