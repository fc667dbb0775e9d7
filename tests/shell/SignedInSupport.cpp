#include "shell/SignedInSupport.h"

#include "core/state/AppState.h"
#include "kestaccount/AuthClient.h"
#include "kestaccount/Client.h"
#include "kestaccount/FileTokenStore.h"
#include "kestaccount/MemoryTokenStore.h"

using namespace Qt::StringLiterals;
using KestAccount::FileTokenStore;

namespace {

constexpr int kLongLife = 3600; // seconds

FileTokenStore tokenFile()
{
    return FileTokenStore(u"com.kestrelwood.pursewell"_s);
}

} // namespace

void pointServicesAt(const FakeHttpService &service)
{
    qputenv("AUTH_BASE_URL", service.url().toEncoded());
    qputenv("ACCOUNT_API_URL", service.url(u"/account/v1"_s).toEncoded());
    qputenv("SYNC_API_URL", service.url(u"/pursewell/v1"_s).toEncoded());
}

QByteArray freshTokens()
{
    return QJsonDocument(
               QJsonObject{{"access_token"_L1, tokenFor(kLongLife)}, {"refresh_token"_L1, u"r"_s}})
        .toJson();
}

void storeTokens(int secondsToLive)
{
    tokenFile().write(KestAccount::kAccessTokenKey, tokenFor(secondsToLive));
    tokenFile().write(KestAccount::kRefreshTokenKey, u"e30.refresh"_s);
}

void forgetStoredTokens()
{
    tokenFile().clear();
}

void signIn(AppState &state)
{
    KestAccount::AuthClient *auth = state.accountClient()->authClient();
    storeTokens(kLongLife);
    auth->initialize();
    Q_EMIT auth->loginSucceeded();
}
