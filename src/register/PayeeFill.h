#pragma once

#include "register/RegisterEditBuffers.h"

class AppState;

// "[Transfer] " and the name of the other account in the payee cell makes a transfer. The word is a
// command that is typed and read back, so it is the same in every language.
QString transferPrefix();

// What the payee cell offers: a transfer to each other account, then every payee ever used.
QStringList payeeSuggestions(const AppState &appState, const QString &accountId);

// Fills amount, category and memo from the payee's last transaction in the account, over whatever
// stands there. Does nothing for a payee that the account does not know.
void fillFromLastTransaction(const AppState &appState, const QString &accountId,
                             const QString &payee, RegisterEditBuffers &buffers);
