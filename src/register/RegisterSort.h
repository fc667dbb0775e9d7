#pragma once

#include "data/RegisterRow.h"

#include <QList>

// Puts the rows in the order of one column. Rows alike in that column go newest first, whatever the
// order asked for; rows alike in date too keep their order in the list.
void sortRegisterRows(QList<RegisterRow> &rows, int column, Qt::SortOrder order);
