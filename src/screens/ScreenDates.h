#pragma once

#include <QDate>
#include <QString>

class QDateEdit;

QString shortDate(QDate date); // in the short form of the default locale

// Gives the edit its display format and a calendar of its own, in the default locale and with the
// chosen first day of the week.
void setUpDateEdit(QDateEdit *edit, const QString &displayFormat);
void setUpShortDateEdit(QDateEdit *edit); // shows its date as shortDate() does
