#include "kestaccount/TokenManager.h"

#include "MemoryTokenStore.h"
#include "kestaccount/TokenClaims.h"
#include "support/TestSupport.h"

using namespace KestAccount;
using namespace Qt::StringLiterals;

class TokenManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readsClaims_data();
    void readsClaims();
    void judgesUsability_data();
    void judgesUsability();
    void keepsTokensInTheStore();
    void refreshesOnceForAllWaiting_data();
    void refreshesOnceForAllWaiting();
    void rejectsWithNothingToRefreshWith();
    void aCallbackMayRefreshAgain();
    void clearingDoesNotStopARefresh();

private:
    std::shared_ptr<StoredTokens> m_stored{};
    std::unique_ptr<TokenManager> m_manager{};
    QStringList m_refreshes{}; // the tokens that were handed to the refresh function
    TokenManager::RefreshSucceeded m_succeed{};
    TokenManager::RefreshFailed m_fail{};
};

void TokenManagerTest::init()
{
    m_stored = std::make_shared<StoredTokens>();
    m_manager = std::make_unique<TokenManager>(std::make_unique<MemoryTokenStore>(m_stored));
    m_refreshes.clear();
    m_manager->setRefreshCallback([this](const QString &refresh, auto succeeded, auto failed) {
        m_refreshes << refresh;
        m_succeed = succeeded;
        m_fail = failed;
    });
}

void TokenManagerTest::readsClaims_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<int>("expiry");
    QTest::addColumn<QString>("subject");
    QTest::newRow("three parts") << tokenWith(R"({"exp":7,"sub":"ann"})") << 7 << u"ann"_s;
    QTest::newRow("two parts") << tokenWith(R"({"exp":7})").section(u'.', 0, 1) << 7 << QString();
    QTest::newRow("padded") << u"e30.eyJleHAiOjd9Cg==.x"_s << 7 << QString();
    QTest::newRow("characters of the URL alphabet")
        << tokenWith("{\"sub\":\"\xc3\xbf\xc3\xbe?>\"}") << 0 << u"ÿþ?>"_s;
    QTest::newRow("one part") << u"e30"_s << 0 << QString();
    QTest::newRow("empty") << QString() << 0 << QString();
    QTest::newRow("expiry as text") << tokenWith(R"({"exp":"7"})") << 0 << QString();
    QTest::newRow("expiry as fraction") << tokenWith(R"({"exp":7.5})") << 0 << QString();
    QTest::newRow("largest expiry")
        << tokenWith(R"({"exp":2147483647})") << 2147483647 << QString();
    QTest::newRow("expiry beyond 32 bits") << tokenWith(R"({"exp":2147483648})") << 0 << QString();
    QTest::newRow("no expiry") << tokenWith("{}") << 0 << QString();
    QTest::newRow("not UTF-8") << tokenWith("{\"exp\":7,\"sub\":\"\xff\"}") << 0 << QString();
    QTest::newRow("JSON list") << tokenWith("[7]") << 0 << QString();
    QTest::newRow("no JSON") << tokenWith("seven") << 0 << QString();
    QTest::newRow("no base64") << u"e30.***.x"_s << 0 << QString();
}

void TokenManagerTest::readsClaims()
{
    QFETCH(QString, token);
    QTEST(parseTokenExpiry(token), "expiry");
    QTEST(parseTokenSubject(token), "subject");
    QCOMPARE(parseKesClaims(token), KesClaims());
}

void TokenManagerTest::judgesUsability_data()
{
    QTest::addColumn<QString>("access");
    QTest::addColumn<QString>("refresh");
    QTest::addColumn<bool>("usable");
    QTest::addColumn<bool>("needsRefresh");
    const QString refresh = u"r"_s;
    QTest::newRow("long life") << tokenFor(3600) << refresh << true << false;
    // A second more than the margin itself, since the clock may tick on the way.
    QTest::newRow("just outside the margin") << tokenFor(33) << refresh << true << false;
    QTest::newRow("at the margin") << tokenFor(30) << refresh << false << true;
    QTest::newRow("over") << tokenFor(-1) << refresh << false << true;
    QTest::newRow("unreadable") << u"access"_s << refresh << false << true;
    QTest::newRow("none") << QString() << refresh << false << true;
    QTest::newRow("over, nothing to refresh with") << tokenFor(-1) << QString() << false << false;
    QTest::newRow("neither") << QString() << QString() << false << false;
}

void TokenManagerTest::judgesUsability()
{
    QFETCH(QString, access);
    QFETCH(QString, refresh);
    QFETCH(bool, usable);
    m_manager->setTokens(access, refresh);
    QCOMPARE(m_manager->accessToken(), usable ? access : QString());
    QTEST(m_manager->needsRefresh(), "needsRefresh");
    QCOMPARE(m_manager->refreshToken(), refresh);
}

void TokenManagerTest::keepsTokensInTheStore()
{
    const QString access = tokenFor(3600);
    m_manager->setTokens(access, u"r1"_s);
    TokenManager next(std::make_unique<MemoryTokenStore>(m_stored));
    next.loadFromStore();
    QCOMPARE(next.accessToken(), access);
    QCOMPARE(next.refreshToken(), u"r1"_s);

    m_stored->refusesWrites = true;
    next.setTokens(tokenFor(60), u"r2"_s);
    QCOMPARE(next.refreshToken(), u"r2"_s); // good for this session
    m_manager->loadFromStore();
    QCOMPARE(m_manager->refreshToken(), u"r1"_s);

    m_manager->clearTokens();
    QCOMPARE(m_manager->refreshToken(), QString());
    QVERIFY(m_stored->values.isEmpty());
}

void TokenManagerTest::refreshesOnceForAllWaiting_data()
{
    QTest::addColumn<std::optional<bool>>("rejection"); // none: it succeeds
    QTest::addColumn<RefreshResult>("result");
    QTest::newRow("success") << std::optional<bool>() << RefreshResult::Success;
    QTest::newRow("rejected") << std::optional(true) << RefreshResult::Rejected;
    QTest::newRow("transient") << std::optional(false) << RefreshResult::TransientFailure;
}

void TokenManagerTest::refreshesOnceForAllWaiting()
{
    QFETCH(std::optional<bool>, rejection);
    QFETCH(RefreshResult, result);
    m_manager->setTokens({}, u"old"_s);
    QList<int> served;
    for (int caller = 0; caller < 10; ++caller)
        m_manager->refresh([&served, result, caller](RefreshResult got) {
            QCOMPARE(got, result);
            served << caller;
        });
    m_manager->refresh({});
    QCOMPARE(m_refreshes, QStringList{u"old"_s});
    QVERIFY(served.isEmpty());

    if (rejection)
        m_fail(*rejection);
    else
        m_succeed(tokenFor(3600), u"new"_s);
    QCOMPARE(served, QList<int>({0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    QCOMPARE(m_manager->refreshToken(), rejection ? u"old"_s : u"new"_s);
    QCOMPARE(m_stored->values.value(kRefreshTokenKey), m_manager->refreshToken());
}

void TokenManagerTest::rejectsWithNothingToRefreshWith()
{
    QList<RefreshResult> results;
    const auto note = [&results](RefreshResult result) { results << result; };
    m_manager->refresh(note);
    QVERIFY(m_refreshes.isEmpty());
    m_manager->setTokens({}, u"r"_s);
    m_manager->setRefreshCallback({});
    m_manager->refresh(note);
    QCOMPARE(results, QList<RefreshResult>({RefreshResult::Rejected, RefreshResult::Rejected}));
}

void TokenManagerTest::aCallbackMayRefreshAgain()
{
    m_manager->setTokens({}, u"1"_s);
    QList<RefreshResult> inner;
    m_manager->refresh([this, &inner](RefreshResult) {
        m_manager->refresh([&inner](RefreshResult result) { inner << result; });
    });
    m_succeed(tokenFor(3600), u"2"_s);
    QCOMPARE(m_refreshes, QStringList({u"1"_s, u"2"_s}));
    QVERIFY(inner.isEmpty());
    m_fail(false);
    QCOMPARE(inner, QList<RefreshResult>({RefreshResult::TransientFailure}));
}

void TokenManagerTest::clearingDoesNotStopARefresh()
{
    m_manager->setTokens({}, u"1"_s);
    QList<RefreshResult> results;
    m_manager->refresh([&results](RefreshResult result) { results << result; });
    m_manager->clearTokens();
    m_succeed(tokenFor(3600), u"2"_s);
    QCOMPARE(results, QList<RefreshResult>({RefreshResult::Success}));
    QCOMPARE(m_stored->values.value(kRefreshTokenKey), u"2"_s);
}

PURSEWELL_TEST_MAIN(TokenManagerTest)

#include "TokenManagerTest.moc"
