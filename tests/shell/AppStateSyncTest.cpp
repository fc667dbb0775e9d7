#include "core/state/AppState.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "core/state/ServiceEndpoints.h"
#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/Database.h"
#include "data/ReconciliationRepository.h"
#include "data/RecurringRepository.h"
#include "data/TransactionRepository.h"
#include "kestaccount/AuthClient.h"
#include "kestaccount/Client.h"
#include "kestaccount/TokenManager.h"
#include "shell/SignedInSupport.h"
#include "support/TestSupport.h"
#include "sync/SyncEngine.h"

using namespace Qt::StringLiterals;
using KestAccount::AuthClient;

namespace {

using Change = std::function<bool(AppState &, const QString &accountId)>;

const QString kRefreshed = u"POST /api/v1/realms/kestrelwood/auth/token/refresh"_s;

} // namespace

// How the state signs in, and what starts a sync.
class AppStateSyncTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void environmentReplacesAddresses_data();
    void environmentReplacesAddresses();
    void startRestoresTheSession_data();
    void startRestoresTheSession();
    void signingInStartsAndSigningOutStops();
    void changesScheduleASync_data();
    void changesScheduleASync();

private:
    void start(); // the state of a new run on the same data
    bool isTimerActive(int intervalMs) const; // of the engine

    QTemporaryDir m_directory;
    std::unique_ptr<FakeHttpService> m_service;
    std::unique_ptr<AppState> m_state;
};

void AppStateSyncTest::init()
{
    QSettings().clear();
    forgetStoredTokens();
    m_state.reset();
    m_service = std::make_unique<FakeHttpService>();
    pointServicesAt(*m_service);
}

void AppStateSyncTest::start()
{
    m_state.reset();
    qputenv("PURSEWELL_DATA_DIR", m_directory.path().toUtf8());
    m_state = std::make_unique<AppState>();
    QVERIFY(m_state->initialize());
}

bool AppStateSyncTest::isTimerActive(int intervalMs) const
{
    const QList<QTimer *> timers = m_state->syncEngine()->findChildren<QTimer *>();
    return std::any_of(timers.begin(), timers.end(), [intervalMs](const QTimer *timer) {
        return timer->interval() == intervalMs && timer->isActive();
    });
}

void AppStateSyncTest::environmentReplacesAddresses_data()
{
    QTest::addColumn<bool>("isSet");
    QTest::addColumn<QString>("value");
    QTest::newRow("unset") << false << QString();
    QTest::newRow("empty counts as unset") << true << QString();
    QTest::newRow("set") << true << u"http://localhost:1/größe"_s;
}

void AppStateSyncTest::environmentReplacesAddresses()
{
    QFETCH(bool, isSet);
    QFETCH(QString, value);
    const QList<const char *> names{"AUTH_BASE_URL",   "ACCOUNT_API_URL", "SYNC_API_URL",
                                    "AUTH_REALM_SLUG", "AUTH_CLIENT_ID",  "ACCOUNT_PORTAL_URL"};
    for (const char *name : names)
        isSet ? qputenv(name, value.toUtf8()) : qunsetenv(name);
    const ServiceEndpoints read = serviceEndpoints();
    for (const char *name : names)
        qunsetenv(name);
    const QStringList texts{read.account.authBaseUrl, read.account.accountApiUrl,
                            read.syncApiUrl,          read.account.realmSlug,
                            read.account.clientId,    read.account.portalUrl};
    if (!value.isEmpty()) {
        QCOMPARE(texts, QStringList(texts.size(), value));
        return;
    }
    QCOMPARE(QSet<QString>(texts.begin(), texts.end()).size(), texts.size());
    QCOMPARE(QUrl(read.account.authBaseUrl).path(), QString());
    QCOMPARE(QUrl(read.account.accountApiUrl).path(), u"/account/v1"_s);
    QCOMPARE(QUrl(read.syncApiUrl).path(), u"/pursewell/v1"_s);
    QVERIFY(QRegularExpression(u"^[0-9a-f]{32}$"_s).match(read.account.clientId).hasMatch());
}

void AppStateSyncTest::startRestoresTheSession_data()
{
    QTest::addColumn<int>("tokenLife"); // seconds; negative: nothing is stored
    QTest::addColumn<FakeReply>("refreshed");
    QTest::addColumn<bool>("isSignedIn");
    const FakeReply good{.body = freshTokens()};
    QTest::newRow("never signed in") << -1 << good << false;
    QTest::newRow("signed in") << 600 << good << true;
    QTest::newRow("offline") << 600 << FakeReply{.drops = true} << true;
    QTest::newRow("refused") << 600 << FakeReply{.status = 401} << false;
    QTest::newRow("token ran out") << 0 << good << true;
    QTest::newRow("token ran out, offline") << 0 << FakeReply{.drops = true} << true;
}

void AppStateSyncTest::startRestoresTheSession()
{
    QFETCH(int, tokenLife);
    QFETCH(FakeReply, refreshed);
    QFETCH(bool, isSignedIn);
    if (tokenLife >= 0)
        storeTokens(tokenLife);
    m_service->answer(kRefreshed, {refreshed});
    const LogCatcher log;
    start();
    QTRY_COMPARE(m_service->requestLines().count(kRefreshed) > 0, tokenLife >= 0);
    QTRY_COMPARE(m_state->accountClient()->isAuthenticated(), isSignedIn);
    QTRY_COMPARE(isTimerActive(kAutoSyncIntervalMs), isSignedIn);
    if (isSignedIn)
        QTRY_VERIFY(m_state->syncEngine()->state() == SyncEngine::SyncState::Error); // 404
    QCOMPARE(m_service->requestLines().filter(u"/sync/"_s).isEmpty(),
             !isSignedIn || (refreshed.drops && tokenLife == 0));
    QCOMPARE(m_state->accountClient()->tokenManager()->refreshToken().isEmpty(), !isSignedIn);
    for (const QString &line : LogCatcher::infos() + LogCatcher::warnings())
        QVERIFY2(!line.contains(u"e30."_s), qPrintable(line)); // no token in the log
}

void AppStateSyncTest::signingInStartsAndSigningOutStops()
{
    const LogCatcher log;
    start();
    m_service->answer(u"POST /pursewell/v1/sync/push"_s, {{.hangs = true}});
    signIn(*m_state);
    QVERIFY(QSettings().value(u"auth/hasSignedInBefore"_s).toBool());
    QTRY_VERIFY(m_service->requestLines().contains(u"POST /account/v1/devices/register"_s));
    QTRY_VERIFY(!m_service->requestLines().filter(u"/sync/"_s).isEmpty());
    QVERIFY(isTimerActive(kAutoSyncIntervalMs));
    QVERIFY(isTimerActive(kDebounceMs));
    QCOMPARE(m_state->syncEngine()->state(), SyncEngine::SyncState::Syncing);
    m_state->accountClient()->authClient()->logout();
    QVERIFY(!isTimerActive(kAutoSyncIntervalMs));
    QCOMPARE(m_state->syncEngine()->state(), SyncEngine::SyncState::Idle);
    QVERIFY(QSettings().value(u"auth/hasSignedInBefore"_s).toBool());
}

void AppStateSyncTest::changesScheduleASync_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("isScheduled");
    const QDateTime now = currentStamp();
    const QDate day(2026, 3, 14);
    QTest::newRow("account") << Change([now](AppState &state, const QString &) {
        return state.accounts()->insert(
            {.id = newId(), .name = u"A"_s, .created_at = now, .updated_at = now});
    }) << true;
    QTest::newRow("category") << Change([now](AppState &state, const QString &) {
        return state.categories()->insert(
            {.id = newId(), .name = u"C"_s, .created_at = now, .updated_at = now});
    }) << true;
    QTest::newRow("transaction") << Change([now, day](AppState &state, const QString &accountId) {
        return state.transactions()->insert({.id = newId(),
                                             .account_id = accountId,
                                             .date = day,
                                             .payee = u"T"_s,
                                             .created_at = now,
                                             .updated_at = now});
    }) << true;
    QTest::newRow("template") << Change([now, day](AppState &state, const QString &accountId) {
        return state.recurring()->insert({.id = newId(),
                                          .account_id = accountId,
                                          .payee = u"R"_s,
                                          .start_date = day,
                                          .next_due_date = day,
                                          .created_at = now,
                                          .updated_at = now});
    }) << false;
    QTest::newRow("reconciliation")
        << Change([now, day](AppState &state, const QString &accountId) {
               return state.reconciliations()->insert({.id = newId(),
                                                       .account_id = accountId,
                                                       .statement_date = day,
                                                       .completed_at = now,
                                                       .created_at = now,
                                                       .updated_at = now});
           })
        << false;
}

void AppStateSyncTest::changesScheduleASync()
{
    QFETCH(Change, change);
    start();
    const QString accountId = newId();
    QVERIFY(m_state->accounts()->insert({.id = accountId,
                                         .name = u"A"_s,
                                         .created_at = currentStamp(),
                                         .updated_at = currentStamp()}));
    start();
    QVERIFY(!isTimerActive(kDebounceMs));
    QVERIFY(change(*m_state, accountId));
    QTEST(isTimerActive(kDebounceMs), "isScheduled");
}

PURSEWELL_TEST_MAIN(AppStateSyncTest)
#include "AppStateSyncTest.moc"
