#include "register/RegisterModel.h"
#include "register/DateInput.h"
#include "register/RegisterColumn.h"
#include "shell/theme/MoneyColors.h"
#include "support/TestSupport.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace RegisterColumn;

namespace {

RegisterRow row(const QDate &date, const QString &payee, qint64 amount, qint64 balance)
{
    RegisterRow made;
    made.id = made.payee = payee;
    made.date = date;
    made.amount = amount;
    made.balance = balance;
    return made;
}

// Oldest first, as the register reads them.
QList<RegisterRow> sample()
{
    QList<RegisterRow> rows{
        row({2024, 1, 1}, u"pay"_s, 10000, 10000), row({2024, 1, 2}, u"Rent"_s, -9000, 1000),
        row({2024, 1, 2}, u"apple"_s, -2500, -1500), row({2024, 1, 5}, u"zero"_s, 0, -1500)};
    rows[0].reconciled = true;
    rows[0].cleared = rows[1].cleared = true;
    rows[1].category_name = u"Housing"_s;
    rows[1].is_split = true;
    rows[2].check_number = u"10"_s;
    rows[2].memo = u"two kilos"_s;
    return rows;
}

QString texts(const RegisterModel &model, int modelRow, int role = Qt::DisplayRole)
{
    QStringList all;
    for (int column = 0; column < kCount; ++column)
        all << model.index(modelRow, column).data(role).toString();
    return all.join(u'|');
}

} // namespace

class RegisterModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sortOrders_data();
    void sortOrders();
    void manyRowsOfOneDayKeepTheirOrder();
    void storedTexts();
    void editedRowShowsItsBuffers();
    void insertionRowTakesEdits();
    void editableCells();
    void coloursFollowSigns();
};

void RegisterModelTest::sortOrders_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("ascending");
    QTest::addColumn<QString>("descending");
    const auto add = [](const char *name, int column, const QString &up, const QString &down) {
        QTest::newRow(name) << column << up << down;
    };
    // Ties fall back to newest first in both orders, and days keep the order of entry. The
    // insertion row is "*".
    add("date", Date, u"pay Rent apple zero *"_s, u"* zero Rent apple pay"_s);
    add("check", CheckNumber, u"zero Rent pay apple *"_s, u"apple zero Rent pay *"_s);
    add("payee", Payee, u"Rent apple pay zero *"_s, u"zero pay apple Rent *"_s);
    add("category", Category, u"zero apple pay Rent *"_s, u"Rent zero apple pay *"_s);
    add("memo", Memo, u"zero Rent pay apple *"_s, u"apple zero Rent pay *"_s);
    add("payment", Payment, u"zero pay apple Rent *"_s, u"Rent apple zero pay *"_s);
    add("deposit", Deposit, u"zero Rent apple pay *"_s, u"pay zero Rent apple *"_s);
    add("clr", Clr, u"zero apple Rent pay *"_s, u"pay Rent zero apple *"_s);
    add("balance", Balance, u"zero apple Rent pay *"_s, u"pay Rent zero apple *"_s);
}

void RegisterModelTest::sortOrders()
{
    QFETCH(int, column);
    QFETCH(QString, ascending);
    QFETCH(QString, descending);
    RegisterModel model;
    QAbstractItemModelTester tester(&model);
    QSignalSpy sorted(&model, &RegisterModel::sortChanged);
    const auto payees = [&model] {
        QStringList all;
        for (int at = 0; at < model.rowCount(); ++at)
            all << (model.rowAt(at) ? model.index(at, Payee).data().toString() : u"*"_s);
        return all.indexOf(u"*"_s) == model.insertionRow() ? all.join(u' ') : u"(torn)"_s;
    };
    QCOMPARE(payees(), u"*"_s);
    model.setRows(sample());
    model.sort(column, Qt::DescendingOrder);
    QCOMPARE(payees(), descending);
    model.setRows(sample()); // sorted anew as asked for last
    QCOMPARE(payees(), descending);
    model.sort(column, Qt::AscendingOrder);
    QCOMPARE(payees(), ascending);
    QVERIFY(!model.rowAt(-1) && !model.rowAt(5));
    model.sort(9, Qt::AscendingOrder);
    QCOMPARE(sorted.size(), 2);
}

void RegisterModelTest::manyRowsOfOneDayKeepTheirOrder()
{
    QList<RegisterRow> rows;
    for (int i = 0; i < 500; ++i)
        rows << row({2024, 1, i < 250 ? 1 : 2}, QString::number(i), i, 0);
    RegisterModel model;
    model.sort(Date, Qt::DescendingOrder);
    model.setRows(rows);
    for (int i = 0; i < 500; ++i)
        QCOMPARE(model.rows().at(i).amount, (i + 250) % 500);
}

void RegisterModelTest::storedTexts()
{
    RegisterModel model;
    model.setRows(sample());
    QCOMPARE(texts(model, 0), u"1/1/2024||pay||||100.00|R|100.00"_s);
    QCOMPARE(texts(model, 1), u"1/2/2024||Rent|—Split—||90.00||C|10.00"_s);
    QCOMPARE(texts(model, 1, Qt::EditRole), u"1/2/2024||Rent|Housing||90.00||C|"_s);
    QCOMPARE(texts(model, 2), u"1/2/2024|10|apple||two kilos|25.00|||-15.00"_s);
    QCOMPARE(texts(model, 3), u"1/5/2024||zero||||0.00||-15.00"_s);
}

void RegisterModelTest::editedRowShowsItsBuffers()
{
    RegisterModel model;
    model.setRows(sample());
    model.loadRowIntoBuffers(1);
    model.setEditRow(1);
    model.buffers().payee = u"typed"_s;
    model.buffers().category = u"other"_s;
    QCOMPARE(texts(model, 1), u"1/2/2024||typed|—Split—||90.00||C|10.00"_s);
    QCOMPARE(texts(model, 1, Qt::EditRole), u"1/2/2024||typed|other||90.00||C|10.00"_s);
    QCOMPARE(texts(model, 4), u"||||||||"_s);
    QVERIFY(model.index(1, Date).data(Qt::BackgroundRole).isValid());
    QVERIFY(!model.index(4, Date).data(Qt::BackgroundRole).isValid());
    model.setRows(sample());
    QCOMPARE(model.editRow(), -1);
    QCOMPARE(model.index(1, Payee).data().toString(), u"Rent"_s);
}

void RegisterModelTest::insertionRowTakesEdits()
{
    RegisterModel model;
    const QModelIndex payee = model.index(0, Payee);
    QCOMPARE(model.index(0, Date).data().toString(), DateInput::toText(QDate::currentDate()));
    QCOMPARE(payee.data().toString(), u"Payee"_s);
    QCOMPARE(payee.data(Qt::EditRole).toString(), QString());
    QCOMPARE(payee.data(Qt::ForegroundRole).value<QColor>(), mutedColor());
    for (int column = 0; column < kCount; ++column)
        QVERIFY(model.setData(model.index(0, column), QString::number(column)));
    QCOMPARE(texts(model, 0), u"0|1|2|3|4|5|6|7|"_s);
    QVERIFY(!payee.data(Qt::ForegroundRole).isValid());
    model.setLastEnteredDate(u"mistyped"_s);
    model.resetInsertionBuffers();
    QCOMPARE(model.buffers(), (RegisterEditBuffers{.date = u"mistyped"_s}));
}

void RegisterModelTest::editableCells()
{
    RegisterModel model;
    model.setRows(sample());
    const auto editable = [&model](int modelRow, int editRow) {
        model.setEditRow(editRow);
        QString marks;
        for (int column = 0; column < kCount; ++column)
            marks += model.index(modelRow, column).flags() & Qt::ItemIsEditable ? u'e' : u'.';
        return marks;
    };
    QCOMPARE(editable(0, -1), u"........."_s); // at rest
    QCOMPARE(editable(4, -1), u"eeeeeeee."_s); // the insertion row
    QCOMPARE(editable(4, 0), u"eeeeeeee."_s); // the insertion row beside an edit
    QCOMPARE(editable(0, 0), u"eeeeeeee."_s); // reconciled, and under edit all the same
    QCOMPARE(editable(1, 1), u"eee.e..e."_s); // split: category and amount are its lines'
}

void RegisterModelTest::coloursFollowSigns()
{
    RegisterModel model;
    model.setRows(sample());
    const QString red = negativeColor().name(), green = positiveColor().name();
    const QString grey = mutedColor().name();
    QCOMPARE(texts(model, 0, Qt::ForegroundRole), u"||||%1|%2|%3|%1|"_s.arg(grey, red, green));
    QCOMPARE(texts(model, 1, Qt::ForegroundRole), u"||||%1|%2||%1|"_s.arg(grey, red));
    QCOMPARE(texts(model, 2, Qt::ForegroundRole), u"||||%1|%2||%1|%2"_s.arg(grey, red));
    QCOMPARE(texts(model, 3, Qt::ForegroundRole), u"||||%1|%2|%3|%1|%2"_s.arg(grey, red, green));
}

PURSEWELL_TEST_MAIN(RegisterModelTest)
#include "RegisterModelTest.moc"
