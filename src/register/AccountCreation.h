#pragma once

class AppState;
class QString;
class QWidget;

// Asks for a new account in its form and stores it, its opening balance as a transaction of its
// own. Gives the account's id, empty when nothing was stored.
QString createAccountByForm(AppState *appState, QWidget *parent);
