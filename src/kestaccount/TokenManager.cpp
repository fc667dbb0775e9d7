#include "kestaccount/TokenManager.h"

#include "kestaccount/TokenClaims.h"

#include <QDateTime>
#include <QPointer>

namespace KestAccount {

namespace {

constexpr quint32 kExpiryMarginSeconds = 30;

bool isUsable(const QString &accessToken)
{
    if (accessToken.isEmpty())
        return false;
    const int expiry = parseTokenExpiry(accessToken);
    // 32 bits throughout, as the claim is read; unsigned, since there the wrap is defined.
    const auto lastUsable =
        static_cast<qint32>(static_cast<quint32>(expiry) - kExpiryMarginSeconds);
    return expiry != 0 && QDateTime::currentSecsSinceEpoch() < lastUsable;
}

void answer(const QList<TokenManager::RefreshCallback> &waiting, RefreshResult result)
{
    for (const TokenManager::RefreshCallback &callback : waiting)
        callback(result);
}

} // namespace

TokenManager::TokenManager(std::unique_ptr<TokenStore> store, QObject *parent)
    : QObject(parent)
    , m_store(std::move(store))
{
}

void TokenManager::loadFromStore()
{
    m_accessToken = m_store->read(kAccessTokenKey).value_or(QString());
    m_refreshToken = m_store->read(kRefreshTokenKey).value_or(QString());
}

QString TokenManager::accessToken() const
{
    return isUsable(m_accessToken) ? m_accessToken : QString();
}

void TokenManager::setTokens(const QString &access, const QString &refresh)
{
    m_accessToken = access;
    m_refreshToken = refresh;
    m_store->write(kAccessTokenKey, access);
    m_store->write(kRefreshTokenKey, refresh);
}

void TokenManager::clearTokens()
{
    m_accessToken.clear();
    m_refreshToken.clear();
    m_store->clear();
}

bool TokenManager::needsRefresh() const
{
    return !m_refreshToken.isEmpty() && !isUsable(m_accessToken);
}

void TokenManager::setRefreshCallback(RefreshFunction function)
{
    m_refreshCallback = std::move(function);
}

void TokenManager::refresh(RefreshCallback callback)
{
    QMutexLocker locker(&m_mutex);
    if (callback)
        m_pendingCallbacks.append(std::move(callback));
    if (m_refreshing)
        return;
    if (m_refreshToken.isEmpty() || !m_refreshCallback) {
        const QList<RefreshCallback> waiting = std::exchange(m_pendingCallbacks, {});
        locker.unlock();
        answer(waiting, RefreshResult::Rejected);
        return;
    }
    m_refreshing = true;
    const QString refreshToken = m_refreshToken;
    locker.unlock();
    const QPointer<TokenManager> self(this);
    m_refreshCallback(
        refreshToken,
        [self](const QString &access, const QString &refresh) {
            if (!self)
                return;
            self->setTokens(access, refresh);
            self->finishRefresh(RefreshResult::Success);
        },
        [self](bool isRejected) {
            if (self)
                self->finishRefresh(isRejected ? RefreshResult::Rejected
                                               : RefreshResult::TransientFailure);
        });
}

void TokenManager::finishRefresh(RefreshResult result)
{
    QMutexLocker locker(&m_mutex);
    m_refreshing = false;
    const QList<RefreshCallback> waiting = std::exchange(m_pendingCallbacks, {});
    locker.unlock();
    answer(waiting, result);
}

} // namespace KestAccount
