#pragma once

#include "data/Transaction.h"

class AppState;
class QDate;
class QWidget;

// Opens the form that makes a monthly template of the transaction, as one of the account's, and
// stores what it gives. False when it was cancelled or could not be stored.
bool memorizeTransaction(AppState &appState, const QString &accountId,
                         const Transaction &transaction, QWidget *parent);

// A date before 2000 is taken for a mistake: a template of that day would be due ever since.
bool canBeMemorized(QDate date);
