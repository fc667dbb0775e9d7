#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

// The first day of the week of every calendar popup, 1 (Monday) to 7 (Sunday); starts as the
// locale's.
int &weekStart();

// Dates are text "yyyy-MM-dd". An invalid date gives a null text, which SQL stores as NULL; a text
// that is no date gives an invalid date.
QString isoDate(QDate date);
QDate dateFromIso(const QString &text);

// Time stamps are text "yyyy-MM-ddTHH:mm:ssZ": in this one form their order as text is their order
// in time.
QString isoStamp(const QDateTime &stamp);
QDateTime stampFromIso(const QString &text);
QDateTime currentStamp(); // UTC, without fractions of a second, so that it survives being stored

// Reads a date in a Qt format; a two-digit year belongs to 1900.
QDate dateFromText(const QString &text, const QString &format);
