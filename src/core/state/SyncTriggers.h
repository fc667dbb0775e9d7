#pragma once

class AppState;

// Connects what starts a sync: signing in, the start of the program with a signed-in user, and
// changes of accounts, transactions and categories. Templates and reconciliations start none of
// their own and go out with the next pass.
void connectSyncTriggers(AppState *state);

// Restores the session of the last run; a signed-in user's token is refreshed at once, and syncing
// starts when that has ended, well or not.
void restoreSession(AppState *state);
