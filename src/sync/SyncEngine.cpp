#include "sync/SyncEngine.h"

#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/PreferencesRepository.h"
#include "data/ReconciliationRepository.h"
#include "data/RecurringRepository.h"
#include "data/TransactionRepository.h"
#include "kestaccount/ApiClient.h"
#include "sync/SyncPayloads.h"

#include <QDebug>
#include <QPointer>
#include <QSqlQuery>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kCursorKey{"lastSyncTimestamp"}; // the service's text, opaque to us

} // namespace

SyncEngine::SyncEngine(KestAccount::ApiClient *apiClient, AccountRepository *accounts,
                       TransactionRepository *transactions, CategoryRepository *categories,
                       RecurringRepository *recurring, ReconciliationRepository *reconciliations,
                       PreferencesRepository *preferences, QObject *parent)
    : QObject(parent)
    , m_apiClient(apiClient)
    , m_repositories{.accounts = accounts,
                     .transactions = transactions,
                     .categories = categories,
                     .recurring = recurring,
                     .reconciliations = reconciliations,
                     .preferences = preferences}
    , m_applier(m_repositories)
    , m_autoSyncTimer(new QTimer(this))
    , m_debounceTimer(new QTimer(this))
{
    m_debounceTimer->setSingleShot(true);
    m_debounceTimer->setInterval(kDebounceMs);
    connect(m_autoSyncTimer, &QTimer::timeout, this, &SyncEngine::syncNow);
    connect(m_debounceTimer, &QTimer::timeout, this, &SyncEngine::syncNow);
    connect(m_apiClient, &KestAccount::ApiClient::authenticationRequired, this,
            [this] { setState(SyncState::Error); });
}

void SyncEngine::setSignedInCheck(std::function<bool()> isSignedIn)
{
    m_signedInCheck = std::move(isSignedIn);
}

void SyncEngine::startAutoSync(int intervalMs)
{
    m_autoSyncTimer->start(intervalMs);
    syncNow();
}

void SyncEngine::stopAutoSync()
{
    m_autoSyncTimer->stop();
}

void SyncEngine::scheduleSync()
{
    m_debounceTimer->start();
}

void SyncEngine::syncNow()
{
    if (m_signedInCheck && !m_signedInCheck()) {
        abandonPass();
        m_syncQueued = false;
        setState(SyncState::Idle);
        return;
    }
    if (m_state == SyncState::Syncing) {
        m_syncQueued = true;
        return;
    }
    // An import lets events through. What it has written so far may yet be rolled back, and must
    // not be on the service by then.
    if (m_repositories.transactions->isBulkWriting()) {
        scheduleSync();
        return;
    }
    ++m_pass;
    m_syncQueued = false;
    setState(SyncState::Syncing);
    collectPendingChanges();
}

void SyncEngine::abandonPass()
{
    ++m_pass;
    if (m_state == SyncState::Syncing)
        setState(SyncState::Idle);
}

QString SyncEngine::stateText(SyncState state)
{
    switch (state) {
    case SyncState::Idle:
        return u"Synced"_s;
    case SyncState::Syncing:
        return u"Syncing..."_s;
    case SyncState::Error:
        return u"Sync error"_s;
    case SyncState::Offline:
        return u"Offline"_s;
    }
    return u"Unknown"_s;
}

// A pass without a push goes on counting its pages from where the last pass stopped.
void SyncEngine::collectPendingChanges()
{
    const QJsonArray changes = pendingChanges(m_repositories);
    if (changes.isEmpty()) {
        pullChanges(m_repositories.preferences->getOr(kCursorKey, {}));
        return;
    }
    qInfo().noquote() << "Pushing" << changes.size() << "changes (in batches of" << kPushBatchSize
                      << ")";
    m_pendingChanges = changes;
    pushNextBatch();
}

void SyncEngine::pushNextBatch()
{
    if (m_pendingChanges.isEmpty()) {
        pullFromCursor();
        return;
    }
    QJsonArray batch;
    QJsonArray remaining;
    for (const QJsonValue &change : std::as_const(m_pendingChanges))
        (batch.size() < kPushBatchSize ? batch : remaining).append(change);
    m_pendingChanges = remaining;
    qInfo().noquote() << "Push batch:" << batch.size() << "changes," << m_pendingChanges.size()
                      << "remaining";
    m_apiClient->post(
        u"/sync/push"_s, {{"changes"_L1, batch}},
        [self = QPointer(this), pass = m_pass](bool success, int status, const QJsonObject &body) {
            if (self && self->m_pass == pass)
                self->handlePushResult(success, status, body);
        });
}

// One batch a pass: what is left stays pending in the database, and the next pass collects it
// afresh. So a long backlog never keeps the pull waiting.
void SyncEngine::handlePushResult(bool success, int status, const QJsonObject &body)
{
    if (!success) {
        fail(u"Push failed (HTTP %1)"_s.arg(status));
        return;
    }
    int accepted = 0;
    int refused = 0;
    const QJsonArray results = body.value("results"_L1).toArray();
    for (const QJsonValue &result : results)
        ++(takePushResult(result.toObject()) ? accepted : refused);
    if (refused > 0)
        qWarning().noquote() << "Push batch:" << accepted << "ok," << refused
                             << "errors \u2014 failed records remain pending for next sync";
    pullFromCursor();
}

bool SyncEngine::takePushResult(const QJsonObject &result)
{
    const QString status = result.value("status"_L1).toString();
    const QString entityType = result.value("entity_type"_L1).toString();
    const QString entityId = result.value("entity_id"_L1).toString();
    if (status != "ok"_L1) {
        qWarning().noquote() << "Push result not ok \u2014 leaving record pending:" << entityType
                             << entityId << "status=" << status
                             << "message=" << result.value("message"_L1).toString();
        return false;
    }
    markSynced(entityType, entityId, result.value("server_id"_L1).toString());
    return true;
}

// Unconditional: a row that was edited while the push was under way counts as synced as well, until
// its next change. A word that is no entity of ours changes nothing.
void SyncEngine::markSynced(const QString &entityType, const QString &entityId,
                            const QString &serverId)
{
    if (entityType == "account"_L1)
        m_repositories.accounts->markSynced(entityId, serverId);
    else if (entityType == "transaction"_L1)
        m_repositories.transactions->markSynced(entityId, serverId);
    else if (entityType == "category"_L1)
        m_repositories.categories->markSynced(entityId, serverId);
    else if (entityType == "recurring"_L1)
        m_repositories.recurring->markSynced(entityId, serverId);
    else if (entityType == "reconciliation"_L1)
        m_repositories.reconciliations->markSynced(entityId, serverId);
}

void SyncEngine::pullFromCursor()
{
    const QString since = m_repositories.preferences->getOr(kCursorKey, {});
    m_pullPageCount = 0;
    pullChanges(since);
}

void SyncEngine::pullChanges(const QString &since)
{
    QUrlQuery query;
    // Encoded here: the query class would leave a "+" as it is, which reads as a blank over there.
    if (!since.isEmpty())
        query.addQueryItem(u"since"_s, QString::fromLatin1(QUrl::toPercentEncoding(since)));
    query.addQueryItem(u"limit"_s, QString::number(kPullPageSize));
    m_apiClient->get(
        u"/sync/pull"_s,
        [self = QPointer(this), pass = m_pass](bool success, int status, const QJsonObject &body) {
            if (self && self->m_pass == pass)
                self->handlePullResult(success, status, body);
        },
        query);
}

void SyncEngine::handlePullResult(bool success, int status, const QJsonObject &body)
{
    if (!success) {
        fail(u"Pull failed (HTTP %1)"_s.arg(status));
        return;
    }
    m_applier.applyPage(body);
    // The cursor moves only behind rows that are in the database.
    const QString serverTime = body.value("server_time"_L1).toString();
    if (!serverTime.isEmpty())
        m_repositories.preferences->set(kCursorKey, serverTime);
    if (body.contains("integrity"_L1))
        checkIntegrity(body.value("integrity"_L1).toObject());
    ++m_pullPageCount;
    if (body.value("has_more"_L1).toBool() && m_pullPageCount < kMaxPullPages)
        pullChanges(serverTime);
    else
        finishPass();
}

// Tells the log and no more: only the user knows whether the other side is the right one.
void SyncEngine::checkIntegrity(const QJsonObject &integrity)
{
    const int serverCount = integrity.value("category_count"_L1).toInt();
    QSqlQuery query(u"SELECT COUNT(*) FROM categories WHERE deleted_at IS NULL"_s);
    const int localCount = query.next() ? query.value(0).toInt() : 0;
    if (serverCount >= 1 && serverCount != localCount)
        qWarning().noquote() << "Category count mismatch: local=" << localCount
                             << "server=" << serverCount
                             << "(informational only \u2014 use Force Full Sync if data appears "
                                "wrong)";
}

void SyncEngine::finishPass()
{
    setState(SyncState::Idle);
    Q_EMIT syncCompleted();
    Q_EMIT dataChanged();
    if (m_syncQueued) {
        m_syncQueued = false;
        QTimer::singleShot(0, this, &SyncEngine::syncNow);
    }
}

void SyncEngine::fail(const QString &error)
{
    m_lastError = error;
    setState(SyncState::Error);
    Q_EMIT syncFailed(m_lastError);
}

void SyncEngine::setState(SyncState state)
{
    if (m_state == state)
        return;
    m_state = state;
    Q_EMIT stateChanged(state);
}
