#include "core/Dates.h"
#include "register/DateField.h"
#include "register/DateInput.h"
#include "register/SmartAmountField.h"
#include "register/SmartDateEdit.h"
#include "support/TestSupport.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QSignalSpy>
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
    void fieldTellsRealChangesAndSnapsBack();
    void popupPicksByClickAlone();
    void pointJumpsToTheCents();
};

void DateFieldsTest::resolvesTypedDates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");
    const auto add = [](const char *name, const QString &text, const QDate &date) {
        QTest::newRow(name) << text << date;
    };
    const QDate stored(2020, 6, 15);
    add("short", u"1/2/2024"_s, {2024, 1, 2});
    add("padded", u"01/02/2024"_s, {2024, 1, 2});
    add("two-digit year", u"1/2/24"_s, {1924, 1, 2});
    add("padded two-digit year", u"03/14/25"_s, {1925, 3, 14});
    add("leap day", u"2/29/2024"_s, {2024, 2, 29});
    add("no leap day", u"2/29/2023"_s, stored);
    add("no leap day in 1900", u"2/29/00"_s, stored);
    add("hyphens", u"3-14-2025"_s, stored);
    add("day first", u"14/3/2025"_s, stored);
    add("empty", {}, stored);
    add("words", u"%1 tomorrow"_s, stored);
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
    const auto add = [](const char *name, const QString &keys, const QDate &from, const QDate &to) {
        QTest::newRow(name) << keys << from << to;
    };
    const QDate today(2024, 3, 10); // the handed-in one; a day on which clocks change
    add("today", u"t"_s, {2001, 1, 1}, today);
    add("upper case", u"T"_s, {2001, 1, 1}, today);
    add("plus over the leap day", u"++"_s, {2024, 2, 28}, {2024, 3, 1});
    add("equals is plus", u"="_s, {2023, 12, 31}, {2024, 1, 1});
    add("minus over the year", u"-"_s, {2024, 1, 1}, {2023, 12, 31});
    add("minus over the clock change", u"-"_s, {2024, 3, 11}, today);
    add("first of month", u"m"_s, {2024, 1, 31}, {2024, 1, 1});
    add("first, then last of month", u"mh"_s, {2024, 1, 31}, {2024, 1, 31});
    add("last of a leap February", u"h"_s, {2024, 2, 1}, {2024, 2, 29});
    add("first of year", u"y"_s, {2024, 2, 29}, {2024, 1, 1});
    add("last of year", u"r"_s, {2024, 2, 29}, {2024, 12, 31});
    add("week begins on Sunday", u"w"_s, {2024, 3, 16}, today);
    add("a Sunday stays", u"w"_s, today, today);
    add("week ends on Saturday", u"k"_s, today, {2024, 3, 16});
    add("a Saturday stays", u"k"_s, {2024, 3, 16}, {2024, 3, 16});
    add("an invalid date starts from today", u"+"_s, {}, {2024, 3, 11});
}

void DateFieldsTest::dateKeys()
{
    QFETCH(QString, keys);
    QFETCH(QDate, from);
    QFETCH(QDate, to);
    for (const QChar key : keys)
        QVERIFY(DateInput::applyKey(key, from, QDate(2024, 3, 10)));
    QCOMPARE(from, to);
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

    SmartDateEdit editor;
    editor.setDate(QDate(2024, 1, 31));
    QTest::keyClicks(&editor, u"=3/4/24"_s); // a date after a key replaces it as a whole
    QCOMPARE(editor.date(), QDate(1924, 3, 4));
}

void DateFieldsTest::fieldTellsRealChangesAndSnapsBack()
{
    DateField field;
    QSignalSpy changes(&field, &DateField::dateChanged);
    QTest::keyClick(&field, 't'); // it is today already
    QCOMPARE(changes.size(), 0);
    field.setDate(QDate(2024, 5, 6));
    field.setDate(QDate(2024, 5, 6));
    QCOMPARE(changes.size(), 1);
    for (const auto &[typed, shown] :
         {std::pair{u"nonsense"_s, u"5/6/2024"_s}, std::pair{u"05/09/2024"_s, u"5/9/2024"_s}}) {
        field.setText(typed);
        QFocusEvent leaving(QEvent::FocusOut);
        QCoreApplication::sendEvent(&field, &leaving);
        QCOMPARE(field.text(), shown);
    }
    QCOMPARE(changes.size(), 2);
    QCOMPARE(changes.last().at(0).toDate(), QDate(2024, 5, 9));
}

void DateFieldsTest::popupPicksByClickAlone()
{
    weekStart() = Qt::Wednesday;
    DateField field;
    field.show();
    for (const auto &[key, modifier] :
         {std::pair{Qt::Key_F4, Qt::NoModifier}, std::pair{Qt::Key_Down, Qt::AltModifier}}) {
        field.setDate(QDate(2024, 5, 6));
        field.setText(u"7/8/2023"_s); // typed, not yet accepted
        QTest::keyClick(&field, key, modifier);
        const QPointer<QCalendarWidget> popup = field.findChild<QCalendarWidget *>();
        QVERIFY(popup);
        QCOMPARE(popup->selectedDate(), QDate(2023, 7, 8));
        QCOMPARE(popup->firstDayOfWeek(), Qt::Wednesday);
        Q_EMIT popup->activated(QDate(2023, 7, 20)); // Return while paging picks nothing
        QCOMPARE(field.date(), QDate(2023, 7, 8));
        Q_EMIT popup->clicked(QDate(2023, 7, 21));
        QCOMPARE(field.text(), u"7/21/2023"_s);
        QTRY_VERIFY(!popup);
    }
}

void DateFieldsTest::pointJumpsToTheCents()
{
    for (const QLocale::Language language : {QLocale::English, QLocale::German}) {
        for (const char key : {'.', ','}) {
            SmartAmountField field;
            field.setLocale(language);
            field.setValue(12.50);
            auto *line = field.findChild<QLineEdit *>();
            line->selectAll();
            QTest::keyClick(&field, key);
            QCOMPARE(line->text(), language == QLocale::German ? u"12,50"_s : u"12.50"_s);
            QCOMPARE(line->cursorPosition(), 3);
            QVERIFY(!line->hasSelectedText());
        }
    }
}

PURSEWELL_TEST_MAIN(DateFieldsTest)
#include "DateFieldsTest.moc"
