#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

// The rows of a comma-separated text, their fields trimmed. Blank lines give no row; the rows may
// differ in length.
QList<QStringList> parseCsv(const QString &text);

// Reads a date in one of the usual forms; month first, where both readings are possible. A
// two-digit year belongs to 1900. Null, when no form fits.
QDate parseCsvDate(const QString &text);
