#pragma once

#include "kestaccount/TokenStore.h"

#include <QList>
#include <QMutex>
#include <QObject>

#include <functional>

namespace KestAccount {

enum class RefreshResult {
    Success = 0, // a new pair is in memory and was written to the store
    Rejected = 1, // refused, or nothing to refresh with: only a new sign-in helps
    TransientFailure = 2, // the tokens are still good for a later try
};

// The access and refresh token of the signed-in user: in memory, in the store, and refreshed once
// for however many requests find them stale.
class TokenManager : public QObject
{
public:
    using RefreshCallback = std::function<void(RefreshResult)>;
    using RefreshSucceeded = std::function<void(const QString &access, const QString &refresh)>;
    using RefreshFailed = std::function<void(bool isRejected)>;
    using RefreshFunction =
        std::function<void(const QString &refresh, RefreshSucceeded, RefreshFailed)>;

    explicit TokenManager(std::unique_ptr<TokenStore> store, QObject *parent = nullptr);

    void loadFromStore(); // overwrites what is in memory
    QString accessToken() const; // empty unless it has half a minute of life left
    QString refreshToken() const { return m_refreshToken; } // as it stands; empty: none
    void setTokens(const QString &access, const QString &refresh); // a refused write is no failure
    void clearTokens(); // does not stop a refresh under way
    bool needsRefresh() const; // the access token is of no use and there is one to refresh it with

    // Asks for a new pair. The callback, which may be empty, runs once, in order of arrival behind
    // the others; before this returns when there is nothing to refresh with.
    void refresh(RefreshCallback callback);
    void setRefreshCallback(RefreshFunction function);

private:
    void finishRefresh(RefreshResult result);

    std::unique_ptr<TokenStore> m_store;
    QString m_accessToken{};
    QString m_refreshToken{};
    RefreshFunction m_refreshCallback{};
    // Guards the two fields below and nothing else, and is never held while a callback runs, so
    // that a callback may ask for the next refresh.
    QMutex m_mutex;
    bool m_refreshing = false;
    QList<RefreshCallback> m_pendingCallbacks{};
};

} // namespace KestAccount
