#include "kestaccount/TokenStore.h"

#ifdef Q_OS_WIN
#include "kestaccount/CredentialManagerTokenStore.h"
#else
#include "kestaccount/FileTokenStore.h"
#include "kestaccount/KeyringTokenStore.h"
#endif

namespace KestAccount {

void TokenStore::clear()
{
    remove(kAccessTokenKey);
    remove(kRefreshTokenKey);
}

std::unique_ptr<TokenStore> createTokenStore(const QString &appId)
{
#ifdef Q_OS_WIN
    return std::make_unique<CredentialManagerTokenStore>(appId);
#else
    return std::make_unique<KeyringTokenStore>(appId, std::make_unique<FileTokenStore>(appId));
#endif
}

} // namespace KestAccount
