#pragma once

#include "data/SplitLine.h"

#include <QList>

class AppState;
struct Transaction;

// Store a transaction from a form together with its split lines, which take the place of any old
// ones. False when nothing was changed; the log tells why.
bool insertWithSplitLines(const AppState &appState, const Transaction &transaction,
                          const QList<SplitLine> &lines);
bool updateWithSplitLines(const AppState &appState, const Transaction &transaction,
                          const QList<SplitLine> &lines);
