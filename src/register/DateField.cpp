#include "register/DateField.h"

#include "register/DateInput.h"

#include <QAction>
#include <QKeyEvent>

DateField::DateField(QWidget *parent)
    : QLineEdit(parent)
    , m_date(QDate::currentDate())
{
    setText(DateInput::toText(m_date));
    connect(DateInput::addCalendarAction(this), &QAction::triggered, this,
            &DateField::openCalendarPopup);
}

QDate DateField::date() const
{
    return DateInput::resolve(text(), m_date);
}

void DateField::setDate(QDate date)
{
    if (date == m_date)
        return;
    m_date = date;
    setText(DateInput::toText(m_date));
    Q_EMIT dateChanged(m_date);
}

void DateField::openCalendarPopup()
{
    DateInput::showCalendar(this, date(), [this](QDate picked) { setDate(picked); });
}

void DateField::keyPressEvent(QKeyEvent *event)
{
    if (DateInput::asksForCalendar(*event)) {
        openCalendarPopup();
        event->accept();
        return;
    }
    // The keys step the accepted date, not half-typed digits.
    QDate stepped = m_date;
    if (!DateInput::applyKey(event->text(), stepped, QDate::currentDate())) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    setDate(stepped);
    selectAll();
    event->accept();
}

void DateField::focusOutEvent(QFocusEvent *event)
{
    const QDate resolved = date();
    if (resolved != m_date) {
        m_date = resolved;
        Q_EMIT dateChanged(m_date);
    }
    setText(DateInput::toText(m_date)); // an unreadable text snaps back to the accepted date
    QLineEdit::focusOutEvent(event);
}
