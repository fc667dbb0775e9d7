#pragma once

#include "sync/PullApplier.h"
#include "sync/SyncRepositories.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QObject>
#include <QTimer>

#include <functional>

namespace KestAccount {
class ApiClient;
}

inline constexpr int kDebounceMs = 2000;
inline constexpr int kAutoSyncIntervalMs = 300000;
inline constexpr int kPushBatchSize = 500; // changes in one request
inline constexpr int kPullPageSize = 200; // records
inline constexpr int kMaxPullPages = 50;

// Keeps the local database and the user's data on the sync service alike: pushes what is pending,
// then pulls what changed there. The local rows stay as they are when a pass fails, and the next
// one tries again. All of it runs on the GUI thread, between replies.
class SyncEngine : public QObject
{
    Q_OBJECT
    Q_PROPERTY(SyncState state READ state NOTIFY stateChanged)

public:
    enum class SyncState {
        Idle,
        Syncing,
        Error,
        Offline // has its text, but is never entered: a lost network shows as Error
    };
    Q_ENUM(SyncState)

    // None of these is owned.
    SyncEngine(KestAccount::ApiClient *apiClient, AccountRepository *accounts,
               TransactionRepository *transactions, CategoryRepository *categories,
               RecurringRepository *recurring, ReconciliationRepository *reconciliations,
               PreferencesRepository *preferences, QObject *parent = nullptr);

    void setSignedInCheck(std::function<bool()> isSignedIn); // none: as if signed in

    void startAutoSync(int intervalMs); // starts with a pass at once
    void stopAutoSync(); // does not cancel a running pass
    void scheduleSync(); // one pass, kDebounceMs after the last call
    // Or one further pass after the running one; an import is waited for. With nobody signed in it
    // sends nothing and abandons a running pass.
    void syncNow();
    // The answers to a running pass will change nothing, as if the network had lost them. What was
    // applied stays, and the next pass asks anew.
    void abandonPass();

    SyncState state() const { return m_state; }
    QString lastError() const { return m_lastError; }
    static QString stateText(SyncState state); // not translated

Q_SIGNALS:
    void stateChanged(SyncEngine::SyncState state); // only on a different state
    // At the end of a whole pass that succeeded, when the state is Idle again; dataChanged comes
    // whether or not any row changed.
    void syncCompleted();
    void syncFailed(const QString &error); // after the state became Error, or while it was
    void dataChanged();

private:
    void collectPendingChanges();
    void pushNextBatch();
    void handlePushResult(bool success, int status, const QJsonObject &body);
    bool takePushResult(const QJsonObject &result);
    void markSynced(const QString &entityType, const QString &entityId, const QString &serverId);
    void pullFromCursor();
    void pullChanges(const QString &since);
    void handlePullResult(bool success, int status, const QJsonObject &body);
    void checkIntegrity(const QJsonObject &integrity);
    void finishPass();
    void fail(const QString &error);
    void setState(SyncState state);

    KestAccount::ApiClient *m_apiClient;
    SyncRepositories m_repositories;
    PullApplier m_applier;
    QTimer *m_autoSyncTimer;
    QTimer *m_debounceTimer;
    SyncState m_state = SyncState::Idle;
    QString m_lastError{};
    int m_pullPageCount = 0; // since the last pass that pushed something
    bool m_syncQueued = false;
    std::function<bool()> m_signedInCheck{};
    QJsonArray m_pendingChanges{}; // collected for this pass and not yet sent
    int m_pass = 0; // the one whose answers count
};
