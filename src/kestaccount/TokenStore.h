#pragma once

#include <QLatin1StringView>
#include <QString>

#include <memory>
#include <optional>

namespace KestAccount {

inline constexpr QLatin1StringView kAccessTokenKey{"kestrelwood_access_token"};
inline constexpr QLatin1StringView kRefreshTokenKey{"kestrelwood_refresh_token"};

// Where the tokens outlive the process: a store of short texts by key, private to the user.
class TokenStore
{
public:
    virtual ~TokenStore() = default;

    virtual std::optional<QString> read(const QString &key) = 0; // nothing: absent or unreadable
    virtual bool write(const QString &key, const QString &value) = 0; // replaces; true when stored
    virtual bool remove(const QString &key) = 0; // true when something was removed
    virtual void clear(); // removes both token keys
};

// The store of this platform, for the application of that identifier.
std::unique_ptr<TokenStore> createTokenStore(const QString &appId);

} // namespace KestAccount
