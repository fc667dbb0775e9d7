#include "sync/SyncEngine.h"

#include "SyncRig.h"
#include "data/BulkWrite.h"
#include "kestaccount/MemoryTokenStore.h"
#include "support/FakeHttpService.h"
#include "support/SampleRecords.h"
#include "support/TestDatabase.h"
#include "support/TestSupport.h"

#include <QJsonDocument>
#include <QSqlDriver>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

const QString kPush = u"POST /sync/push"_s;
const QString kPull = u"GET /sync/pull"_s;

QByteArray json(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

FakeReply page(const QJsonObject &body)
{
    return {.body = json(body)};
}

FakeReply results(const QJsonArray &entries)
{
    return page({{"results"_L1, entries}});
}

QJsonObject result(const QString &status, const QString &type, const QString &id)
{
    return {{"status"_L1, status},
            {"entity_type"_L1, type},
            {"entity_id"_L1, id},
            {"server_id"_L1, u"key of "_s + id},
            {"message"_L1, u"because"_s}};
}

// Counts what the database is asked during its lifetime.
class StatementCount
{
public:
    explicit StatementCount(const QSqlDatabase &connection)
        : m_handle(*static_cast<sqlite3 *const *>(connection.driver()->handle().constData()))
    {
        sqlite3_trace_v2(
            m_handle, SQLITE_TRACE_STMT,
            [](unsigned, void *count, void *, void *) { return ++*static_cast<int *>(count), 0; },
            &m_count);
    }
    ~StatementCount() { sqlite3_trace_v2(m_handle, 0, nullptr, nullptr); }
    StatementCount(const StatementCount &) = delete;
    StatementCount &operator=(const StatementCount &) = delete;

    int count() const { return m_count; }

private:
    sqlite3 *m_handle;
    int m_count = 0;
};

} // namespace

class SyncEngineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void pushesThenPulls();
    void marksWhatWasAccepted();
    void burstsBecomeOnePass();
    void queuesOnePass();
    void waitsForABulkWrite();
    void keepsItsTimersGoing();
    void sendsNothingWhenNobodyIsSignedIn();
    void reportsAuthentication();
    void movesTheCursor_data();
    void movesTheCursor();
    void stopsAtThePageLimit();
    void tellsOfACategoryMismatch_data();
    void tellsOfACategoryMismatch();

private:
    void addPending(const QString &id);
    QStringList takeRequests();
    QString cursor() { return m_database->preferences.getOr(u"lastSyncTimestamp"_s, {}); }

    std::unique_ptr<FakeHttpService> m_service{};
    std::unique_ptr<TestDatabase> m_database{};
    std::unique_ptr<SyncRig> m_rig{};
};

void SyncEngineTest::init()
{
    m_rig.reset();
    m_database.reset();
    m_service = std::make_unique<FakeHttpService>();
    m_service->answer(kPush, {results({})});
    m_service->answer(kPull, {page({})});
    m_database = std::make_unique<TestDatabase>();
    m_rig =
        std::make_unique<SyncRig>(repositoriesOf(*m_database), m_service->url(), tokenFor(3600));
}

void SyncEngineTest::addPending(const QString &id)
{
    Account account = sampleAccount(id);
    account.sync_status = SyncStatus::Pending;
    QVERIFY(m_database->accounts.insert(account));
}

QStringList SyncEngineTest::takeRequests()
{
    const QStringList lines = m_service->requestLines();
    m_service->forgetRequests();
    return lines;
}

void SyncEngineTest::pushesThenPulls()
{
    addPending(u"p"_s);
    const LogCatcher log;
    QVERIFY(m_rig->runPass());
    const QJsonObject body = QJsonDocument::fromJson(m_service->requests().first().body).object();
    QCOMPARE(takeRequests(), (QStringList{kPush, kPull}));
    QCOMPARE(body.keys(), QStringList{u"changes"_s});
    QCOMPARE(body[u"changes"].toArray().first()[u"entity_id"], QJsonValue(u"p"_s));
    QCOMPARE(LogCatcher::infos(),
             (QStringList{u"Pushing 1 changes (in batches of 500 )"_s,
                          u"Push batch: 1 changes, 0 remaining"_s}));
    QVERIFY(m_rig->runPass()); // nobody said that the row was taken
    QCOMPARE(takeRequests(), (QStringList{kPush, kPull}));
}

void SyncEngineTest::marksWhatWasAccepted()
{
    for (const QString &id : {u"taken"_s, u"refused"_s, u"unmentioned"_s, u"other"_s})
        addPending(id);
    m_service->answer(kPush,
                      {results({result(u"ok"_s, u"account"_s, u"taken"_s),
                                result(u"conflict"_s, u"account"_s, u"refused"_s),
                                result(u"ok"_s, u"budget"_s, u"other"_s),
                                result(u"ok"_s, u"account"_s, u"unknown"_s)})});
    const LogCatcher log;
    QVERIFY(m_rig->runPass());
    QStringList pending;
    for (const Account &account : m_database->accounts.listPending())
        pending << account.id;
    QCOMPARE(pending, (QStringList{u"refused"_s, u"unmentioned"_s, u"other"_s}));
    const Account taken = m_database->accounts.findById(u"taken"_s).value();
    QCOMPARE(taken.server_id, u"key of taken"_s);
    QCOMPARE(taken.version, sampleAccount().version);
    QCOMPARE(m_rig->takeEvents().last(), u"data"_s); // a refused row fails no pass
    QCOMPARE(LogCatcher::warnings(),
             (QStringList{u"Push result not ok \u2014 leaving record pending: account refused "
                          "status= conflict message= because"_s,
                          u"Push batch: 3 ok, 1 errors \u2014 failed records remain pending for "
                          "next sync"_s}));
}

void SyncEngineTest::burstsBecomeOnePass()
{
    const QTimer *debounce = m_rig->timer(true);
    m_rig->engine().scheduleSync();
    QTRY_VERIFY(debounce->remainingTime() < kDebounceMs - 100);
    QElapsedTimer sinceLast;
    for (int edit = 0; edit < 10; ++edit) {
        m_rig->engine().scheduleSync();
        sinceLast.start();
    }
    QTRY_COMPARE_WITH_TIMEOUT(m_service->requestLines(), QStringList{kPull}, 4 * kDebounceMs);
    QVERIFY(sinceLast.elapsed() >= kDebounceMs * 9 / 10); // the timer is a coarse one
    QVERIFY(m_rig->waitForEnd());
    QVERIFY(!debounce->isActive());
    QCOMPARE(takeRequests(), QStringList{kPull});
}

void SyncEngineTest::queuesOnePass()
{
    m_rig->engine().syncNow();
    for (int edit = 0; edit < 5; ++edit)
        m_rig->engine().syncNow();
    const QStringList pass{u"Syncing"_s, u"Idle"_s, u"completed"_s, u"data"_s};
    QTRY_COMPARE(m_rig->events(), pass + pass);
    QVERIFY(m_rig->runPass()); // a third that had been queued would show beside this one
    QCOMPARE(takeRequests().size(), 3);

    // A queue outlives a failure, and the next pass takes its place.
    m_service->answer(kPull, {{.status = 500}, page({})});
    m_rig->engine().syncNow();
    m_rig->engine().syncNow();
    QVERIFY(m_rig->waitForEnd());
    QVERIFY(m_rig->runPass());
    QVERIFY(m_rig->runPass());
    QCOMPARE(takeRequests().size(), 3);
}

// It may be rolled back yet.
void SyncEngineTest::waitsForABulkWrite()
{
    addPending(u"a"_s);
    {
        const BulkWrite together(&m_database->transactions);
        m_rig->engine().syncNow();
        QCOMPARE(m_rig->engine().state(), SyncEngine::SyncState::Idle);
        QVERIFY(m_rig->timer(true)->isActive());
    }
    QVERIFY(m_rig->runPass());
    QCOMPARE(takeRequests(), QStringList({kPush, kPull}));
}

void SyncEngineTest::keepsItsTimersGoing()
{
    m_service->answer(kPull, {{.status = 503}});
    m_rig->engine().startAutoSync(20);
    QCOMPARE(m_rig->engine().state(), SyncEngine::SyncState::Syncing); // at once
    QTRY_VERIFY(m_rig->events().size() >= 9);
    QCOMPARE(m_rig->events().first(9),
             (QStringList{u"Syncing"_s, u"Error"_s, u"failed Pull failed (HTTP 503)"_s}
              + QStringList{u"Syncing"_s, u"Error"_s, u"failed Pull failed (HTTP 503)"_s}
              + QStringList{u"Syncing"_s, u"Error"_s, u"failed Pull failed (HTTP 503)"_s}));
    QCOMPARE(m_rig->engine().lastError(), u"Pull failed (HTTP 503)"_s);
    m_rig->engine().stopAutoSync();
    QVERIFY(!m_rig->timer(false)->isActive());
}

void SyncEngineTest::sendsNothingWhenNobodyIsSignedIn()
{
    m_rig->setSignedIn(false);
    addPending(u"p"_s);
    {
        const StatementCount statements(m_database->get()->connection());
        m_rig->timer(true)->setInterval(1);
        m_rig->engine().startAutoSync(1);
        m_rig->engine().scheduleSync();
        QTRY_VERIFY(!m_rig->timer(true)->isActive());
        m_rig->engine().stopAutoSync();
        QCOMPARE(statements.count(), 0);
        m_database->value(u"SELECT 1"_s);
        QCOMPARE(statements.count(), 1); // it does count
    }
    QCOMPARE(m_rig->takeEvents(), QStringList());

    // Signed out in the middle of a pass, which had another one queued behind it.
    m_rig->setSignedIn(true);
    m_rig->engine().syncNow();
    m_rig->engine().syncNow();
    m_rig->setSignedIn(false);
    m_rig->engine().syncNow();
    QCOMPARE(m_rig->takeEvents(), (QStringList{u"Syncing"_s, u"Idle"_s}));
    m_rig->setSignedIn(true);
    QVERIFY(m_rig->runPass()); // beside whose requests the one of before comes to no end
    QCOMPARE(takeRequests(), (QStringList{kPush, kPush, kPull}));
}

void SyncEngineTest::reportsAuthentication()
{
    m_service->answer(kPull, {{.status = 401}});
    const LogCatcher log;
    QVERIFY(m_rig->runPass()); // there is nothing to refresh with
    QTRY_COMPARE(m_rig->events(),
                 (QStringList{u"Syncing"_s, u"Error"_s, u"failed Pull failed (HTTP 401)"_s}));
    m_service->answer(kPull, {page({})});
    QVERIFY(m_rig->runPass());
    m_rig->takeEvents();
    Q_EMIT m_rig->client().authenticationRequired(); // somebody else's request
    QCOMPARE(m_rig->takeEvents(), QStringList{u"Error"_s});
    QCOMPARE(m_rig->engine().lastError(), u"Pull failed (HTTP 401)"_s);
}

void SyncEngineTest::movesTheCursor_data()
{
    QTest::addColumn<QList<QJsonObject>>("pages");
    QTest::addColumn<QStringList>("asked"); // the queries, as sent
    QTest::addColumn<QString>("cursorAfter");

    using Pages = QList<QJsonObject>;
    const auto pageOf = [](const QJsonValue &time, bool hasMore) {
        return QJsonObject{{"server_time"_L1, time}, {"has_more"_L1, hasMore}};
    };
    QTest::newRow("one page") << Pages{pageOf(u"two"_s, false)}
                              << QStringList{u"since=one&limit=200"_s} << u"two"_s;
    QTest::newRow("two pages") << Pages{pageOf(u"two"_s, true), pageOf(u"three"_s, false)}
                               << QStringList{u"since=one&limit=200"_s, u"since=two&limit=200"_s}
                               << u"three"_s;
    QTest::newRow("none") << Pages{QJsonObject()} << QStringList{u"since=one&limit=200"_s}
                          << u"one"_s;
    QTest::newRow("none and more: from the beginning")
        << Pages{pageOf({}, true), pageOf(u""_s, false)}
        << QStringList{u"since=one&limit=200"_s, u"limit=200"_s} << u"one"_s;
    QTest::newRow("signs that mean something in an address")
        << Pages{pageOf(u"2024-01-01T00:00:00+02:00 %41&x=#ü"_s, true), QJsonObject()}
        << QStringList{u"since=one&limit=200"_s,
                       u"since=2024-01-01T00%3A00%3A00%2B02%3A00%20%2541%26x%3D%23%C3%BC&limit="
                       "200"_s}
        << u"2024-01-01T00:00:00+02:00 %41&x=#ü"_s;
}

void SyncEngineTest::movesTheCursor()
{
    QFETCH(QList<QJsonObject>, pages);
    QList<FakeReply> replies;
    for (const QJsonObject &body : pages)
        replies << page(body);
    m_service->answer(kPull, replies);
    m_database->preferences.set(u"lastSyncTimestamp"_s, u"one"_s);
    QVERIFY(m_rig->runPass());
    QStringList asked;
    for (const FakeRequest &request : m_service->requests())
        asked << request.target.query(QUrl::FullyEncoded);
    QTEST(asked, "asked");
    QTEST(cursor(), "cursorAfter");
}

void SyncEngineTest::stopsAtThePageLimit()
{
    m_service->answer(kPull, {page({{"has_more"_L1, true}, {"server_time"_L1, u"t"_s}})});
    QVERIFY(m_rig->runPass());
    QCOMPARE(m_rig->takeEvents().last(), u"data"_s);
    QCOMPARE(takeRequests().size(), kMaxPullPages);
    QVERIFY(m_rig->runPass());
    QCOMPARE(takeRequests().size(), 1); // the count goes on until something is pushed
    addPending(u"p"_s);
    QVERIFY(m_rig->runPass());
    QCOMPARE(takeRequests().size(), 1 + kMaxPullPages);
}

void SyncEngineTest::tellsOfACategoryMismatch_data()
{
    QTest::addColumn<QJsonValue>("integrity");
    QTest::addColumn<QStringList>("warnings");
    const auto count = [](const QJsonValue &number) {
        return QJsonValue(
            QJsonObject{{"category_count"_L1, number},
                        {"accounts"_L1, QJsonObject{{"a"_L1, QJsonObject{{"count"_L1, 7}}}}}});
    };
    QTest::newRow("alike") << count(1) << QStringList();
    QTest::newRow("none told") << count(0) << QStringList();
    QTest::newRow("not a number") << count(u"2"_s) << QStringList();
    QTest::newRow("not an object") << QJsonValue(true) << QStringList();
    QTest::newRow("more there")
        << count(2)
        << QStringList{
               u"Category count mismatch: local= 1 server= 2 (informational only \u2014 use "
               "Force Full Sync if data appears wrong)"_s};
}

void SyncEngineTest::tellsOfACategoryMismatch()
{
    QFETCH(QJsonValue, integrity);
    m_database->categories.insert(sampleCategory(u"c"_s));
    m_database->categories.insert(sampleCategory(u"deleted"_s));
    m_database->categories.softDelete(u"deleted"_s);
    m_database->categories.markSynced(u"deleted"_s, u"key"_s);
    m_service->answer(kPull, {page({{"integrity"_L1, integrity}})});
    const LogCatcher log;
    QVERIFY(m_rig->runPass());
    QTEST(LogCatcher::warnings(), "warnings");
}

PURSEWELL_TEST_MAIN(SyncEngineTest)
#include "SyncEngineTest.moc"
