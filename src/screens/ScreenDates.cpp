#include "screens/ScreenDates.h"

#include "register/DateInput.h"

#include <QCalendarWidget>
#include <QDateEdit>
#include <QLocale>

QString shortDate(QDate date)
{
    return QLocale().toString(date, QLocale::ShortFormat);
}

void setUpDateEdit(QDateEdit *edit, const QString &displayFormat)
{
    edit->setDisplayFormat(displayFormat);
    edit->setCalendarPopup(true);
    auto *calendar = new QCalendarWidget; // the edit takes it
    calendar->setLocale(QLocale());
    DateInput::setUpCalendar(calendar);
    edit->setCalendarWidget(calendar);
}

void setUpShortDateEdit(QDateEdit *edit)
{
    setUpDateEdit(edit, QLocale().dateFormat(QLocale::ShortFormat));
}
