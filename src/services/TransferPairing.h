#pragma once

#include <QList>

struct ImportRow;

// Joins the two sides of each transfer: rows of different target accounts that have the same date,
// opposite amounts and each other's account names. Of several that fit, the earliest row takes the
// earliest one behind it. The number of pairs; the time grows with the number of rows.
int pairRows(QList<ImportRow> &rows);

bool isSelfTransfer(const ImportRow &row); // names its own account as the other one
