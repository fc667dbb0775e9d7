#include "core/state/SyncTriggers.h"

#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/TransactionRepository.h"
#include "kestaccount/AccountClient.h"
#include "kestaccount/AuthClient.h"
#include "kestaccount/Client.h"
#include "sync/SyncEngine.h"

#include <QDebug>
#include <QPointer>
#include <QSettings>

using namespace Qt::StringLiterals;
using KestAccount::AuthClient;

namespace {

void startSyncing(SyncEngine *engine)
{
    engine->startAutoSync(kAutoSyncIntervalMs);
    engine->scheduleSync();
}

void onLoginSucceeded(AppState *state)
{
    QSettings().setValue(u"auth/hasSignedInBefore"_s, true);
    state->accountClient()->accountClient()->registerDevice();
    qInfo() << "loginSucceeded: starting auto-sync + immediate sync";
    startSyncing(state->syncEngine());
}

void onStartupRefresh(AppState *state, bool ok)
{
    const KestAccount::Client *client = state->accountClient();
    qInfo().noquote() << "Startup token refresh:" << (ok ? "ok" : "failed")
                      << "\u2014 authenticated=" << client->isAuthenticated();
    // Offline, the refresh fails for a passing reason and the user stays signed in; the status bar
    // shows what becomes of the sync.
    if (!client->isAuthenticated())
        return;
    qInfo() << "Startup: starting auto-sync + immediate sync";
    startSyncing(state->syncEngine());
}

} // namespace

void restoreSession(AppState *state)
{
    KestAccount::Client *client = state->accountClient();
    AuthClient *auth = client->authClient();
    client->initialize();
    QObject::connect(client, &KestAccount::Client::authStateChanged, state, [state, client] {
        if (!client->isAuthenticated())
            state->syncEngine()->abandonPass(); // nobody is there to see its end
    });
    QObject::connect(auth, &AuthClient::loginSucceeded, state,
                     [state] { onLoginSucceeded(state); });
    QObject::connect(auth, &AuthClient::logoutCompleted, state,
                     [state] { state->syncEngine()->stopAutoSync(); });
    // A token that had run out is being refreshed already: this waits for that refresh, and the
    // user who comes back after a night is synced like the one who comes back at once.
    if (auth->state() != KestAccount::AuthState::Unauthenticated)
        auth->refreshToken([guard = QPointer(state)](bool ok) {
            if (guard)
                onStartupRefresh(guard, ok);
        });
}

void connectSyncTriggers(AppState *state)
{
    SyncEngine *engine = state->syncEngine();
    QObject::connect(state->accounts(), &AccountRepository::accountsChanged, engine,
                     &SyncEngine::scheduleSync);
    QObject::connect(state->categories(), &CategoryRepository::categoriesChanged, engine,
                     &SyncEngine::scheduleSync);
    QObject::connect(state->transactions(), &TransactionRepository::transactionsChanged, engine,
                     [engine] { engine->scheduleSync(); });
}
