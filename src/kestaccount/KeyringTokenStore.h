#pragma once

#include "kestaccount/TokenStore.h"

namespace KestAccount {

// Tokens in the keyring of the user's desktop session. While no keyring answers, the fallback holds
// them; what it held moves into the keyring with the next write.
class KeyringTokenStore : public TokenStore
{
public:
    KeyringTokenStore(const QString &appId, std::unique_ptr<TokenStore> fallback);

    std::optional<QString> read(const QString &key) override;
    bool write(const QString &key, const QString &value) override;
    bool remove(const QString &key) override;

private:
    void warnOnce(const QString &reason);

    QString m_appId;
    std::unique_ptr<TokenStore> m_fallback;
    bool m_hasWarned = false;
};

} // namespace KestAccount
