#include "register/DateInput.h"

#include "core/Dates.h"
#include "shell/theme/MaterialIcon.h"

#include <QAction>
#include <QCalendarWidget>
#include <QCoreApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

constexpr char32_t kCalendarGlyph = 0xE935;
constexpr int kCalendarIconPixels = 16;

// Days since the last Sunday. Household budgets run from Sunday to Saturday for the w and k keys,
// whatever day the calendar popups begin with.
int daysSinceSunday(QDate date)
{
    return date.dayOfWeek() % 7;
}

} // namespace

QString DateInput::toText(QDate date)
{
    return date.toString(u"M/d/yyyy"_s);
}

QDate DateInput::resolve(const QString &text, QDate stored)
{
    for (const QString &form : {u"M/d/yyyy"_s, u"MM/dd/yyyy"_s, u"M/d/yy"_s, u"MM/dd/yy"_s}) {
        const QDate date = dateFromText(text, form);
        if (date.isValid())
            return date;
    }
    return stored;
}

bool DateInput::asksForCalendar(const QKeyEvent &key)
{
    const bool altDown = key.key() == Qt::Key_Down && key.modifiers() & Qt::AltModifier;
    return key.key() == Qt::Key_F4 || altDown;
}

bool DateInput::applyKey(const QString &keyText, QDate &date, QDate today)
{
    if (keyText.size() != 1)
        return false;
    const QDate from = date.isValid() ? date : today;
    switch (keyText.at(0).toLower().unicode()) {
    case u't':
        date = today;
        return true;
    case u'+':
    case u'=': // the plus key without Shift on common keyboards
        date = from.addDays(1);
        return true;
    case u'-':
        date = from.addDays(-1);
        return true;
    case u'm':
        date = QDate(from.year(), from.month(), 1);
        return true;
    case u'h':
        date = QDate(from.year(), from.month(), from.daysInMonth());
        return true;
    case u'y':
        date = QDate(from.year(), 1, 1);
        return true;
    case u'r':
        date = QDate(from.year(), 12, 31);
        return true;
    case u'w':
        date = from.addDays(-daysSinceSunday(from));
        return true;
    case u'k':
        date = from.addDays(6 - daysSinceSunday(from));
        return true;
    default:
        return false;
    }
}

QAction *DateInput::addCalendarAction(QLineEdit *field)
{
    const QColor color = field->palette().color(QPalette::PlaceholderText);
    const QIcon icon(materialIcon(kCalendarGlyph, kCalendarIconPixels, color));
    QAction *action = field->addAction(icon, QLineEdit::TrailingPosition);
    action->setText(QCoreApplication::translate("DateField", "Open calendar (F4)"));
    return action;
}

void DateInput::setUpCalendar(QCalendarWidget *calendar)
{
    calendar->setFirstDayOfWeek(static_cast<Qt::DayOfWeek>(weekStart()));
    calendar->setWeekdayTextFormat(Qt::Saturday, {});
    calendar->setWeekdayTextFormat(Qt::Sunday, {});
}

void DateInput::showCalendar(QWidget *field, QDate start, const std::function<void(QDate)> &picked)
{
    auto *calendar = new QCalendarWidget(field);
    calendar->setObjectName(u"calendarPopup"_s);
    calendar->setAttribute(Qt::WA_DeleteOnClose);
    calendar->setWindowFlag(Qt::Popup);
    calendar->setLocale(QLocale());
    setUpCalendar(calendar);
    calendar->setGridVisible(true);
    calendar->setSelectedDate(start.isValid() ? start : QDate::currentDate());
    // Only a click picks: activated() also fires on Return while the user pages through months.
    QObject::connect(calendar, &QCalendarWidget::clicked, calendar, [calendar, picked](QDate date) {
        picked(date);
        calendar->close();
    });
    calendar->move(field->mapToGlobal(field->rect().bottomLeft()));
    calendar->show();
    calendar->setFocus();
}
