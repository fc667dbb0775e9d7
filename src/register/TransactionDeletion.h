#pragma once

class AppState;
class QWidget;
struct Transaction;

// Asks, and then soft-deletes the transaction, with its other side if it is a transfer. True when
// it was deleted.
bool confirmAndDeleteTransaction(const AppState &appState, const Transaction &transaction,
                                 QWidget *parent);
