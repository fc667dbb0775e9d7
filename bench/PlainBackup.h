#pragma once

#include <QByteArray>

class PlainSqlite;

// A backup written and read by libzip and SQLite's C API alone: the same archive, the same
// statements row by row, and no more of JSON than it takes to write and read such rows.
QByteArray plainExport(PlainSqlite &plain);

// The number of rows written; the ones that are there already are changed.
int plainRestore(PlainSqlite &plain, const QByteArray &archive);
