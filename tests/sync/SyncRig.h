#pragma once

#include "kestaccount/ApiClient.h"
#include "kestaccount/TokenManager.h"
#include "sync/SyncEngine.h"

#include <QUrl>

SyncRepositories repositoriesOf(auto &owner) // of a test database, or what else has them
{
    return {&owner.accounts,  &owner.transactions,    &owner.categories,
            &owner.recurring, &owner.reconciliations, &owner.preferences};
}

// A sync engine on somebody's repositories, signed in to a service.
class SyncRig
{
public:
    SyncRig(const SyncRepositories &repositories, const QUrl &service, const QString &accessToken);

    SyncEngine &engine() { return m_engine; }
    KestAccount::ApiClient &client() { return m_client; }
    QTimer *timer(bool isSingleShot) const; // the debounce timer, or the repeating one
    void setSignedIn(bool isSignedIn) { m_isSignedIn = isSignedIn; }

    // Runs a pass to its end; false when it does not come. A queued one may follow.
    bool runPass();
    bool waitForEnd();
    // What was emitted since they were taken: "Syncing", "Idle", "completed", "failed …", "data".
    const QStringList &events() const { return m_events; }
    QStringList takeEvents() { return std::exchange(m_events, {}); }

private:
    KestAccount::TokenManager m_tokens;
    KestAccount::ApiClient m_client{&m_tokens};
    SyncEngine m_engine;
    bool m_isSignedIn = true;
    QStringList m_events{};
};
