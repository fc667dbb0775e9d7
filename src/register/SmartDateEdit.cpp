#include "register/SmartDateEdit.h"

#include "register/DateInput.h"

#include <QAction>
#include <QKeyEvent>

SmartDateEdit::SmartDateEdit(QWidget *parent)
    : RegisterLineEdit(parent)
{
    setDate(QDate::currentDate());
    connect(DateInput::addCalendarAction(this), &QAction::triggered, this,
            &SmartDateEdit::openCalendarPopup);
}

QDate SmartDateEdit::date() const
{
    return DateInput::resolve(text(), m_date);
}

void SmartDateEdit::setDate(QDate date)
{
    m_date = date;
    setText(DateInput::toText(m_date));
    selectAll();
}

void SmartDateEdit::openCalendarPopup()
{
    DateInput::showCalendar(this, date(), [this](QDate picked) { setDate(picked); });
}

void SmartDateEdit::keyPressEvent(QKeyEvent *event)
{
    if (DateInput::asksForCalendar(*event)) {
        openCalendarPopup();
        event->accept();
        return;
    }
    QDate stepped = m_date;
    if (!DateInput::applyKey(event->text(), stepped, QDate::currentDate())) {
        RegisterLineEdit::keyPressEvent(event);
        return;
    }
    setDate(stepped);
    event->accept();
}
