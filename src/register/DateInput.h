#pragma once

#include <QDate>
#include <QString>

#include <functional>

class QAction;
class QCalendarWidget;
class QKeyEvent;
class QLineEdit;
class QWidget;

// What the two date fields share: the text form, the reading of typed dates, the date keys and the
// calendar popup.
namespace DateInput {

// "M/d/yyyy", in every interface language.
QString toText(QDate date);

// The date that a typed text means, or `stored` when it means none. A two-digit year is a year of
// the 1900s; no separator but the slash is read.
QDate resolve(const QString &text, QDate stored);

// F4, and Alt with the down arrow.
bool asksForCalendar(const QKeyEvent &key);

// Steps `date` by the key with that text (t + = - m h y r w k, in either case) and returns true, or
// leaves it alone and returns false. An invalid date counts as `today`.
bool applyKey(const QString &keyText, QDate &date, QDate today);

// Adds the trailing calendar button to the field; the caller connects triggered().
QAction *addCalendarAction(QLineEdit *field);

// Weeks begin as chosen, and weekends have the colour of the other days: the usual red is hard to
// read on both palettes.
void setUpCalendar(QCalendarWidget *calendar);

// Opens a calendar under the field on `start`, or on today when that is invalid. `picked` is called
// once, and only if a day is clicked; the popup deletes itself.
void showCalendar(QWidget *field, QDate start, const std::function<void(QDate)> &picked);

} // namespace DateInput
