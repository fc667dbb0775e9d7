#include "kestaccount/KeyringTokenStore.h"

#include "MemoryTokenStore.h"
#include "support/TestSupport.h"

using namespace KestAccount;
using namespace Qt::StringLiterals;

// Against a real keyring daemon on a session bus of this test's own (run-with-keyring.sh).
class KeyringTokenStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsReplacesAndRemoves();
    void takesOverFromTheFallback();

private:
    std::shared_ptr<StoredTokens> m_fallback = std::make_shared<StoredTokens>();

    KeyringTokenStore store(const QString &appId = u"app"_s) const
    {
        return KeyringTokenStore(appId, std::make_unique<MemoryTokenStore>(m_fallback));
    }
};

void KeyringTokenStoreTest::keepsReplacesAndRemoves()
{
    const LogCatcher log;
    const QString words = u"ü \"%1\" 日本 😀"_s;
    QVERIFY(store().write(kAccessTokenKey, u"first"_s));
    QVERIFY(store().write(kAccessTokenKey, words));
    QVERIFY(store().write(kRefreshTokenKey, QString(20000, u'x')));
    QCOMPARE(store().read(kAccessTokenKey), std::optional(words));
    QCOMPARE(store().read(kRefreshTokenKey), std::optional(QString(20000, u'x')));
    QCOMPARE(store(u"other app"_s).read(kAccessTokenKey), std::nullopt);
    QVERIFY(store().remove(kAccessTokenKey));
    QVERIFY(!store().remove(kAccessTokenKey));
    QCOMPARE(store().read(kAccessTokenKey), std::nullopt);
    store().clear();
    QCOMPARE(store().read(kRefreshTokenKey), std::nullopt);
    QVERIFY(m_fallback->values.isEmpty());
    QCOMPARE(LogCatcher::warnings(), QStringList());
}

void KeyringTokenStoreTest::takesOverFromTheFallback()
{
    m_fallback->values.insert(kAccessTokenKey, u"from the file"_s);
    QCOMPARE(store().read(kAccessTokenKey), std::optional(u"from the file"_s));
    QVERIFY(store().write(kAccessTokenKey, u"from the keyring"_s));
    QVERIFY(m_fallback->values.isEmpty());
    QCOMPARE(store().read(kAccessTokenKey), std::optional(u"from the keyring"_s));
    // Written while the keyring was locked.
    m_fallback->values.insert(kAccessTokenKey, u"later"_s);
    QCOMPARE(store().read(kAccessTokenKey), std::optional(u"later"_s));
}

int main(int argc, char *argv[])
{
    const QByteArray bus = qgetenv("DBUS_SESSION_BUS_ADDRESS"); // the environment hides it
    TestEnvironment environment;
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus);
    QCoreApplication application(argc, argv);
    KeyringTokenStoreTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "KeyringTokenStoreTest.moc"
