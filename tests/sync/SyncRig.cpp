#include "SyncRig.h"

#include "kestaccount/MemoryTokenStore.h"

#include <QMetaEnum>
#include <QTest>

using namespace Qt::StringLiterals;

SyncRig::SyncRig(const SyncRepositories &repositories, const QUrl &service,
                 const QString &accessToken)
    : m_tokens(std::make_unique<MemoryTokenStore>(std::make_shared<StoredTokens>()))
    , m_engine(&m_client, repositories.accounts, repositories.transactions, repositories.categories,
               repositories.recurring, repositories.reconciliations, repositories.preferences)
{
    m_client.setBaseUrl(service);
    m_tokens.setTokens(accessToken, {});
    m_engine.setSignedInCheck([this] { return m_isSignedIn; });
    QObject::connect(&m_engine, &SyncEngine::stateChanged, &m_engine, [this](auto state) {
        m_events << QString::fromLatin1(
            QMetaEnum::fromType<SyncEngine::SyncState>().valueToKey(static_cast<int>(state)));
    });
    QObject::connect(&m_engine, &SyncEngine::syncCompleted, &m_engine,
                     [this] { m_events << u"completed"_s; });
    QObject::connect(&m_engine, &SyncEngine::syncFailed, &m_engine,
                     [this](const QString &error) { m_events << u"failed "_s + error; });
    QObject::connect(&m_engine, &SyncEngine::dataChanged, &m_engine,
                     [this] { m_events << u"data"_s; });
}

QTimer *SyncRig::timer(bool isSingleShot) const
{
    for (QTimer *timer : m_engine.findChildren<QTimer *>()) {
        if (timer->isSingleShot() == isSingleShot)
            return timer;
    }
    return nullptr;
}

bool SyncRig::runPass()
{
    m_engine.syncNow();
    return waitForEnd();
}

bool SyncRig::waitForEnd()
{
    return QTest::qWaitFor([this] { return m_engine.state() != SyncEngine::SyncState::Syncing; },
                           60000);
}
