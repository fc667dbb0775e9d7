#include "kestaccount/CredentialManagerTokenStore.h"
#include "kestaccount/FileTokenStore.h"
#include "kestaccount/KeyringTokenStore.h"
#include "support/TestSupport.h"

#include <wincred.h>

#include <map>

using namespace KestAccount;
using namespace Qt::StringLiterals;

namespace {

// The platform's credentials, as its four calls would keep them.
struct Credentials
{
    std::map<std::wstring, std::string> blobs{};
    std::wstring wrong{}; // what a call was given that it should not have been
    bool refuses = false;
    int reads = 0;
    int frees = 0;
} credentials;

void expect(bool isRight, const wchar_t *what)
{
    if (!isRight)
        credentials.wrong += what;
}

} // namespace

BOOL CredReadW(LPCWSTR targetName, DWORD type, DWORD flags, PCREDENTIALW *credential)
{
    expect(type == CRED_TYPE_GENERIC && flags == 0, L"read ");
    const auto found = credentials.blobs.find(targetName);
    if (credentials.refuses || found == credentials.blobs.end())
        return 0;
    ++credentials.reads;
    *credential = new CREDENTIALW{};
    (*credential)->CredentialBlob = reinterpret_cast<LPBYTE>(found->second.data());
    (*credential)->CredentialBlobSize = static_cast<DWORD>(found->second.size());
    return 1;
}

BOOL CredWriteW(CREDENTIALW *credential, DWORD flags)
{
    expect(flags == 0 && credential->Flags == 0 && credential->Type == CRED_TYPE_GENERIC
               && credential->Persist == CRED_PERSIST_LOCAL_MACHINE && !credential->Comment
               && !credential->UserName && credential->AttributeCount == 0,
           L"write ");
    if (credentials.refuses)
        return 0;
    credentials.blobs[credential->TargetName] = std::string(
        reinterpret_cast<char *>(credential->CredentialBlob), credential->CredentialBlobSize);
    return 1;
}

BOOL CredDeleteW(LPCWSTR targetName, DWORD type, DWORD flags)
{
    expect(type == CRED_TYPE_GENERIC && flags == 0, L"delete ");
    return !credentials.refuses && credentials.blobs.erase(targetName) == 1;
}

void CredFree(void *buffer)
{
    ++credentials.frees;
    delete static_cast<PCREDENTIALW>(buffer);
}

class TokenStoresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsReplacesAndRemoves_data();
    void keepsReplacesAndRemoves();
    void credentialsAreGenericAndNamed();
    void aFileIsPrivateAndWhole();
    void aBrokenFileIsNoTokens();
    void withoutAKeyringAFileHoldsTheTokens();
};

using StoreMaker = std::function<std::unique_ptr<TokenStore>()>;

void TokenStoresTest::keepsReplacesAndRemoves_data()
{
    QTest::addColumn<StoreMaker>("make");
    QTest::newRow("credential manager")
        << StoreMaker([] { return std::make_unique<CredentialManagerTokenStore>(u"app"_s); });
    QTest::newRow("file") << StoreMaker([] { return std::make_unique<FileTokenStore>(u"app"_s); });
    QTest::newRow("keyring that does not answer") << StoreMaker([] {
        return std::make_unique<KeyringTokenStore>(u"app"_s,
                                                   std::make_unique<FileTokenStore>(u"app2"_s));
    });
}

void TokenStoresTest::keepsReplacesAndRemoves()
{
    QFETCH(StoreMaker, make);
    const LogCatcher log;
    const QString words = u"ü \"%1\"\n日本 😀"_s;
    QVERIFY(make()->write(kAccessTokenKey, u"first"_s));
    QVERIFY(make()->write(kAccessTokenKey, words));
    QVERIFY(make()->write(kRefreshTokenKey, QString(100000, u'x')));
    QCOMPARE(make()->read(kAccessTokenKey), std::optional(words));
    QCOMPARE(make()->read(kRefreshTokenKey), std::optional(QString(100000, u'x')));
    QCOMPARE(make()->read(u"another"_s), std::nullopt);
    QVERIFY(!make()->remove(u"another"_s));
    QVERIFY(make()->remove(kAccessTokenKey));
    QCOMPARE(make()->read(kAccessTokenKey), std::nullopt);
    make()->clear();
    QCOMPARE(make()->read(kRefreshTokenKey), std::nullopt);
}

void TokenStoresTest::credentialsAreGenericAndNamed()
{
    credentials = {};
    CredentialManagerTokenStore store(u"com.kestrelwood.pursewell"_s);
    QVERIFY(store.write(kAccessTokenKey, u"é"_s));
    const std::wstring target = L"Kestrelwood/com.kestrelwood.pursewell/kestrelwood_access_token";
    QCOMPARE(credentials.blobs, (std::map<std::wstring, std::string>{{target, "\xc3\xa9"}}));
    QVERIFY(store.read(kAccessTokenKey).has_value());
    QVERIFY(store.remove(kAccessTokenKey));
    QCOMPARE(credentials.frees, credentials.reads);
    QCOMPARE(credentials.wrong, std::wstring());

    credentials.refuses = true;
    QVERIFY(!store.write(kAccessTokenKey, u"a"_s));
    QVERIFY(!store.remove(kAccessTokenKey));
    QCOMPARE(store.read(kAccessTokenKey), std::nullopt);
}

void TokenStoresTest::aFileIsPrivateAndWhole()
{
    FileTokenStore store(u"app"_s);
    QVERIFY(store.write(kAccessTokenKey, u"secret"_s));
    const QFileInfo file(store.path());
    QCOMPARE(file.permissions() & (QFile::ReadGroup | QFile::ReadOther | QFile::ExeOwner),
             QFile::Permissions());
    QVERIFY(file.permissions() & QFile::ReadOwner);
    QCOMPARE(file.dir().entryList(QDir::Files | QDir::Hidden).filter(u"app.tokens"_s),
             QStringList{file.fileName()}); // no half-written one is left beside it
    QVERIFY(store.remove(kAccessTokenKey));
    QVERIFY(!QFile::exists(store.path()));
}

void TokenStoresTest::aBrokenFileIsNoTokens()
{
    FileTokenStore store(u"broken"_s);
    QVERIFY(store.write(kAccessTokenKey, u"a"_s));
    QFile file(store.path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\"kestrelwood_access_token\": \"a");
    file.close();
    QCOMPARE(store.read(kAccessTokenKey), std::nullopt);
    QVERIFY(store.write(kAccessTokenKey, u"b"_s));
    QCOMPARE(store.read(kAccessTokenKey), std::optional(u"b"_s));
}

void TokenStoresTest::withoutAKeyringAFileHoldsTheTokens()
{
    const LogCatcher log;
    KeyringTokenStore store(u"app"_s, std::make_unique<FileTokenStore>(u"app3"_s));
    QCOMPARE(store.read(kAccessTokenKey), std::nullopt);
    QVERIFY(LogCatcher::warnings().isEmpty()); // nothing had to be kept so far
    QVERIFY(store.write(kAccessTokenKey, u"secret-1"_s));
    QVERIFY(store.write(kRefreshTokenKey, u"secret-2"_s));
    QCOMPARE(FileTokenStore(u"app3"_s).read(kAccessTokenKey), std::optional(u"secret-1"_s));
    QCOMPARE(LogCatcher::warnings().size(), 1);
    QVERIFY(!LogCatcher::warnings().first().contains(u"secret"_s));
}

PURSEWELL_TEST_MAIN(TokenStoresTest)

#include "TokenStoresTest.moc"
