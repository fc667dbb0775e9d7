#include "core/Dates.h"
#include "register/DateField.h"
#include "register/DateInput.h"
#include "register/SmartAmountField.h"
#include "register/SmartDateEdit.h"
#include "support/TestSupport.h"

#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;

class DateFieldsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resolvesTypedDates_data();
    void resolvesTypedDates();
    void dateKeys_data();
    void dateKeys();
    void otherKeysAreText();
    void fieldSnapsBackOnLeaving();
    void fieldTellsRealChangesOnly();
    void gridEditorSelectsAfterAKey();
    void popupPicksByClickAlone_data();
    void popupPicksByClickAlone();
    void pointJumpsToTheCents_data();
    void pointJumpsToTheCents();
};

void DateFieldsTest::resolvesTypedDates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");

    const QDate stored(2020, 6, 15);
    QTest::newRow("short") << u"1/2/2024"_s << QDate(2024, 1, 2);
    QTest::newRow("padded") << u"01/02/2024"_s << QDate(2024, 1, 2);
    QTest::newRow("two-digit year") << u"1/2/24"_s << QDate(1924, 1, 2);
    QTest::newRow("padded two-digit year") << u"03/14/25"_s << QDate(1925, 3, 14);
    QTest::newRow("leap day") << u"2/29/2024"_s << QDate(2024, 2, 29);
    QTest::newRow("no leap day") << u"2/29/2023"_s << stored;
    QTest::newRow("no leap day in 1900") << u"2/29/00"_s << stored;
    QTest::newRow("hyphens") << u"3-14-2025"_s << stored;
    QTest::newRow("day first") << u"14/3/2025"_s << stored;
    QTest::newRow("empty") << QString() << stored;
    QTest::newRow("words") << u"%1 tomorrow"_s << stored;
}

void DateFieldsTest::resolvesTypedDates()
{
    QFETCH(QString, text);
    QFETCH(QDate, date);
    QCOMPARE(DateInput::resolve(text, QDate(2020, 6, 15)), date);
}

void DateFieldsTest::dateKeys_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QDate>("from");
    QTest::addColumn<QDate>("to");

    const QDate today(2024, 3, 10); // the handed-in one; a day on which clocks change
    QTest::newRow("today") << u"t"_s << QDate(2001, 1, 1) << today;
    QTest::newRow("upper case") << u"T"_s << QDate(2001, 1, 1) << today;
    QTest::newRow("plus over the leap day") << u"++"_s << QDate(2024, 2, 28) << QDate(2024, 3, 1);
    QTest::newRow("equals is plus") << u"="_s << QDate(2023, 12, 31) << QDate(2024, 1, 1);
    QTest::newRow("minus over the year") << u"-"_s << QDate(2024, 1, 1) << QDate(2023, 12, 31);
    QTest::newRow("minus over the clock change") << u"-"_s << QDate(2024, 3, 11) << today;
    QTest::newRow("first of month") << u"m"_s << QDate(2024, 1, 31) << QDate(2024, 1, 1);
    QTest::newRow("first, then last of month")
        << u"mh"_s << QDate(2024, 1, 31) << QDate(2024, 1, 31);
    QTest::newRow("last of a leap February") << u"h"_s << QDate(2024, 2, 1) << QDate(2024, 2, 29);
    QTest::newRow("first of year") << u"y"_s << QDate(2024, 2, 29) << QDate(2024, 1, 1);
    QTest::newRow("last of year") << u"r"_s << QDate(2024, 2, 29) << QDate(2024, 12, 31);
    QTest::newRow("week begins on Sunday") << u"w"_s << QDate(2024, 3, 16) << today;
    QTest::newRow("a Sunday stays") << u"w"_s << today << today;
    QTest::newRow("week ends on Saturday") << u"k"_s << today << QDate(2024, 3, 16);
    QTest::newRow("a Saturday stays") << u"k"_s << QDate(2024, 3, 16) << QDate(2024, 3, 16);
    QTest::newRow("an invalid date starts from today") << u"+"_s << QDate() << today.addDays(1);
}

void DateFieldsTest::dateKeys()
{
    QFETCH(QString, keys);
    QFETCH(QDate, from);
    QFETCH(QDate, to);
    QDate date = from;
    for (const QChar key : keys)
        QVERIFY(DateInput::applyKey(key, date, QDate(2024, 3, 10)));
    QCOMPARE(date, to);
}

void DateFieldsTest::otherKeysAreText()
{
    QDate date(2024, 1, 1);
    for (const QString &key : {u"5"_s, u"/"_s, u"x"_s, u""_s, u"tt"_s, u"\t"_s})
        QVERIFY(!DateInput::applyKey(key, date, QDate::currentDate()));
    QCOMPARE(date, QDate(2024, 1, 1));

    DateField field;
    field.setDate(QDate(2024, 5, 6));
    field.clear();
    QTest::keyClicks(&field, u"7/8/2023"_s);
    QCOMPARE(field.text(), u"7/8/2023"_s);
    QTest::keyClick(&field, '+'); // steps the accepted date, not the half-typed one
    QCOMPARE(field.text(), u"5/7/2024"_s);
}

void DateFieldsTest::fieldSnapsBackOnLeaving()
{
    QWidget form;
    DateField field(&form);
    QLineEdit other(&form);
    form.show();
    form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    field.setDate(QDate(2024, 5, 6));
    QSignalSpy changes(&field, &DateField::dateChanged);
    for (const auto &[typed, shown] :
         {std::pair{u"nonsense"_s, u"5/6/2024"_s}, std::pair{u"05/09/2024"_s, u"5/9/2024"_s}}) {
        field.setFocus();
        field.setText(typed);
        other.setFocus();
        QCOMPARE(field.text(), shown);
    }
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.at(0).at(0).toDate(), QDate(2024, 5, 9));
}

void DateFieldsTest::fieldTellsRealChangesOnly()
{
    DateField field;
    QSignalSpy changes(&field, &DateField::dateChanged);
    QTest::keyClick(&field, 't');
    QCOMPARE(field.date(), QDate::currentDate());
    QCOMPARE(changes.size(), 0);
    QTest::keyClick(&field, '+');
    QCOMPARE(changes.size(), 1);
    field.setDate(field.date());
    QCOMPARE(changes.size(), 1);
}

void DateFieldsTest::gridEditorSelectsAfterAKey()
{
    SmartDateEdit edit;
    edit.setDate(QDate(2024, 1, 31));
    QTest::keyClick(&edit, '=');
    QCOMPARE(edit.text(), u"2/1/2024"_s);
    QCOMPARE(edit.selectedText(), edit.text());
    QTest::keyClicks(&edit, u"3/4/24"_s); // replaces the whole date
    QCOMPARE(edit.date(), QDate(1924, 3, 4));
}

void DateFieldsTest::popupPicksByClickAlone_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("F4") << int(Qt::Key_F4) << int(Qt::NoModifier);
    QTest::newRow("Alt+Down") << int(Qt::Key_Down) << int(Qt::AltModifier);
}

void DateFieldsTest::popupPicksByClickAlone()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);

    weekStart() = Qt::Wednesday;
    DateField field;
    field.show();
    field.setDate(QDate(2024, 5, 6));
    field.setText(u"7/8/2023"_s); // typed, not yet accepted
    QTest::keyClick(&field, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QPointer<QCalendarWidget> popup = field.findChild<QCalendarWidget *>();
    QVERIFY(popup);
    QCOMPARE(popup->selectedDate(), QDate(2023, 7, 8));
    QCOMPARE(popup->firstDayOfWeek(), Qt::Wednesday);
    Q_EMIT popup->activated(QDate(2023, 7, 20)); // Return while paging picks nothing
    QCOMPARE(field.date(), QDate(2023, 7, 8));
    Q_EMIT popup->clicked(QDate(2023, 7, 21));
    QCOMPARE(field.text(), u"7/21/2023"_s);
    QTRY_VERIFY(!popup);
}

void DateFieldsTest::pointJumpsToTheCents_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("shown");
    QTest::newRow("point") << QLocale(QLocale::English, QLocale::UnitedStates) << u"12.50"_s;
    QTest::newRow("comma") << QLocale(QLocale::German, QLocale::Germany) << u"12,50"_s;
}

void DateFieldsTest::pointJumpsToTheCents()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, shown);
    for (const char key : {'.', ','}) {
        SmartAmountField field;
        field.setLocale(locale);
        field.setValue(12.50);
        auto *line = field.findChild<QLineEdit *>();
        QCOMPARE(line->text(), shown);
        line->selectAll();
        QTest::keyClick(&field, key);
        QCOMPARE(line->text(), shown);
        QCOMPARE(line->cursorPosition(), 3);
        QVERIFY(!line->hasSelectedText());
    }
}

PURSEWELL_TEST_MAIN(DateFieldsTest)
#include "DateFieldsTest.moc"
