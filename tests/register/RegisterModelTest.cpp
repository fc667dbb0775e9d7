#include "register/RegisterModel.h"
#include "register/DateInput.h"
#include "register/RegisterColumn.h"
#include "shell/theme/FontRoles.h"
#include "support/TestSupport.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QColor>
#include <QFont>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

RegisterRow row(const QString &date, const QString &payee, qint64 amount, qint64 balance)
{
    RegisterRow made;
    made.id = payee;
    made.date = QDate::fromString(date, Qt::ISODate);
    made.payee = payee;
    made.amount = amount;
    made.balance = balance;
    return made;
}

// Oldest first, as the register reads them.
QList<RegisterRow> sample()
{
    QList<RegisterRow> rows{
        row(u"2024-01-01"_s, u"pay"_s, 10000, 10000), row(u"2024-01-02"_s, u"Rent"_s, -9000, 1000),
        row(u"2024-01-02"_s, u"apple"_s, -2500, -1500), row(u"2024-01-05"_s, u"zero"_s, 0, -1500)};
    rows[0].reconciled = true;
    rows[0].cleared = true;
    rows[1].cleared = true;
    rows[1].category_name = u"Housing"_s;
    rows[1].is_split = true;
    rows[2].check_number = u"10"_s;
    rows[2].memo = u"two kilos"_s;
    return rows;
}

void usePalette(const QString &window)
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(window));
    QApplication::setPalette(palette);
}

} // namespace

class RegisterModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void insertionRowPlace_data();
    void insertionRowPlace();
    void sortOrders_data();
    void sortOrders();
    void manyRowsOfOneDayKeepTheirOrder();
    void storedTexts();
    void editedRowShowsItsBuffers();
    void insertionRowPlaceholders();
    void flags_data();
    void flags();
    void colours_data();
    void colours();
    void fontsAndAlignment();
    void setDataTakesEditsOnly();
    void headers();
};

void RegisterModelTest::insertionRowPlace_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("order");
    QTest::addColumn<int>("insertionRow");
    QTest::newRow("oldest first") << 0 << int(Qt::AscendingOrder) << 4;
    QTest::newRow("newest first") << 0 << int(Qt::DescendingOrder) << 0;
    QTest::newRow("another column, descending") << 2 << int(Qt::DescendingOrder) << 4;
}

void RegisterModelTest::insertionRowPlace()
{
    QFETCH(int, column);
    QFETCH(int, order);
    QFETCH(int, insertionRow);

    RegisterModel model;
    QAbstractItemModelTester tester(&model);
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.insertionRow(), 0);
    model.setRows(sample());
    model.sort(column, Qt::SortOrder(order));
    QCOMPARE(model.insertionRow(), insertionRow);
    QCOMPARE(model.rowAt(insertionRow), nullptr);
    for (int modelRow = 0; modelRow < model.rowCount(); ++modelRow) {
        if (modelRow != insertionRow)
            QCOMPARE(model.index(modelRow, 2).data().toString(), model.rowAt(modelRow)->payee);
    }
    QCOMPARE(model.rowAt(-1), nullptr);
    QCOMPARE(model.rowAt(model.rowCount()), nullptr);
}

void RegisterModelTest::sortOrders_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QStringList>("ascending");
    QTest::addColumn<QStringList>("descending");

    const auto order = [](const char *name, int column, const QString &up, const QString &down) {
        QTest::newRow(name) << column << up.split(u' ') << down.split(u' ');
    };
    // Ties fall back to newest first in both orders, and days keep the order of entry.
    order("date", RegisterColumn::Date, u"pay Rent apple zero"_s, u"zero Rent apple pay"_s);
    order("check number", RegisterColumn::CheckNumber, u"zero Rent pay apple"_s,
          u"apple zero Rent pay"_s);
    order("category", RegisterColumn::Category, u"zero apple pay Rent"_s, u"Rent zero apple pay"_s);
    order("memo", RegisterColumn::Memo, u"zero Rent pay apple"_s, u"apple zero Rent pay"_s);
    order("payment", RegisterColumn::Payment, u"zero pay apple Rent"_s, u"Rent apple zero pay"_s);
    order("deposit", RegisterColumn::Deposit, u"zero Rent apple pay"_s, u"pay zero Rent apple"_s);
    order("clr", RegisterColumn::Clr, u"zero apple Rent pay"_s, u"pay Rent zero apple"_s);
    order("balance", RegisterColumn::Balance, u"zero apple Rent pay"_s, u"pay Rent zero apple"_s);
}

void RegisterModelTest::sortOrders()
{
    QFETCH(int, column);
    QFETCH(QStringList, ascending);
    QFETCH(QStringList, descending);

    RegisterModel model;
    model.setRows(sample());
    QSignalSpy sorted(&model, &RegisterModel::sortChanged);
    const auto payees = [&model] {
        QStringList all;
        for (const RegisterRow &stored : model.rows())
            all << stored.payee;
        return all;
    };
    model.sort(column, Qt::DescendingOrder);
    QCOMPARE(payees(), descending);
    model.setRows(sample()); // sorted anew as asked for last
    QCOMPARE(payees(), descending);
    model.sort(column, Qt::AscendingOrder);
    if (column == RegisterColumn::Date)
        model.setRows(sample());
    QCOMPARE(payees(), ascending);
    model.sort(9, Qt::AscendingOrder);
    QCOMPARE(sorted.size(), 2);
}

void RegisterModelTest::manyRowsOfOneDayKeepTheirOrder()
{
    QList<RegisterRow> rows;
    for (int i = 0; i < 500; ++i)
        rows << row(i < 250 ? u"2024-01-01"_s : u"2024-01-02"_s, QString::number(i), i, 0);
    RegisterModel model;
    model.sort(RegisterColumn::Date, Qt::DescendingOrder);
    model.setRows(rows);
    for (int i = 0; i < 500; ++i)
        QCOMPARE(model.rows().at(i).amount, (i + 250) % 500);
}

void RegisterModelTest::storedTexts()
{
    RegisterModel model;
    model.setRows(sample());
    const auto texts = [&model](int modelRow, int role) {
        QStringList all;
        for (int column = 0; column < RegisterColumn::kCount; ++column)
            all << model.index(modelRow, column).data(role).toString();
        return all.join(u'|');
    };
    QCOMPARE(texts(0, Qt::DisplayRole), u"1/1/2024||pay||||100.00|R|100.00"_s);
    QCOMPARE(texts(1, Qt::DisplayRole), u"1/2/2024||Rent|—Split—||90.00||C|10.00"_s);
    QCOMPARE(texts(1, Qt::EditRole), u"1/2/2024||Rent|Housing||90.00||C|"_s);
    QCOMPARE(texts(2, Qt::DisplayRole), u"1/2/2024|10|apple||two kilos|25.00|||-15.00"_s);
    QCOMPARE(texts(3, Qt::DisplayRole), u"1/5/2024||zero||||0.00||-15.00"_s);
}

void RegisterModelTest::editedRowShowsItsBuffers()
{
    RegisterModel model;
    model.setRows(sample());
    model.loadRowIntoBuffers(1);
    QSignalSpy changed(&model, &RegisterModel::dataChanged);
    model.setEditRow(1);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(model.buffers().payment, u"90.00"_s);
    model.buffers().payee = u"typed"_s;
    model.buffers().category = u"other"_s;
    QCOMPARE(model.index(1, 2).data().toString(), u"typed"_s);
    QCOMPARE(model.index(1, 3).data().toString(), u"—Split—"_s);
    QCOMPARE(model.index(1, 3).data(Qt::EditRole).toString(), u"other"_s);
    QCOMPARE(model.index(1, 8).data(Qt::EditRole).toString(), u"10.00"_s);
    for (int column = 0; column < RegisterColumn::kCount; ++column) {
        QCOMPARE(model.index(4, column).data().toString(), QString());
        QVERIFY(!model.index(4, column).data(Qt::BackgroundRole).isValid());
    }
    model.setRows(sample());
    QCOMPARE(model.editRow(), -1);
    QCOMPARE(model.index(1, 2).data().toString(), u"Rent"_s);
}

void RegisterModelTest::insertionRowPlaceholders()
{
    RegisterModel model;
    model.setTwoLineMode(true);
    QCOMPARE(model.index(0, 0).data().toString(), DateInput::toText(QDate::currentDate()));
    QCOMPARE(model.index(0, 2).data().toString(), u"Payee"_s);
    QCOMPARE(model.index(0, 2).data(Qt::EditRole).toString(), QString());
    QCOMPARE(model.index(0, 8).data(), QVariant());
    QCOMPARE(model.index(0, 2).data(Qt::ForegroundRole).value<QColor>(), QColor(u"#6E8A7E"_s));
    model.buffers().payee = u"typed"_s;
    QVERIFY(!model.index(0, 2).data(Qt::ForegroundRole).isValid());
    model.setLastEnteredDate(u"mistyped"_s);
    model.resetInsertionBuffers();
    QCOMPARE(model.buffers(), (RegisterEditBuffers{.date = u"mistyped"_s}));
}

void RegisterModelTest::flags_data()
{
    QTest::addColumn<int>("modelRow");
    QTest::addColumn<int>("editRow");
    QTest::addColumn<QString>("editable"); // one mark a column

    QTest::newRow("resting row") << 0 << -1 << u"........."_s;
    QTest::newRow("insertion row") << 4 << -1 << u"eeeeeeee."_s;
    QTest::newRow("insertion row beside an edit") << 4 << 0 << u"eeeeeeee."_s;
    QTest::newRow("reconciled row under edit") << 0 << 0 << u"eeeeeeee."_s;
    QTest::newRow("split row under edit") << 1 << 1 << u"eee.e..e."_s;
}

void RegisterModelTest::flags()
{
    QFETCH(int, modelRow);
    QFETCH(int, editRow);
    QFETCH(QString, editable);

    RegisterModel model;
    model.setRows(sample());
    model.setEditRow(editRow);
    QString marks;
    for (int column = 0; column < RegisterColumn::kCount; ++column) {
        const Qt::ItemFlags flags = model.flags(model.index(modelRow, column));
        QVERIFY(flags.testFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled));
        marks += flags & Qt::ItemIsEditable ? u'e' : u'.';
    }
    QCOMPARE(marks, editable);
    QCOMPARE(model.flags({}), Qt::NoItemFlags);
}

void RegisterModelTest::colours_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("negative");
    QTest::addColumn<QString>("positive");
    QTest::addColumn<QString>("edited");
    QTest::newRow("dark") << u"#0F1E19"_s << u"#FF8A80"_s << u"#66BB6A"_s << u"#1A2E28"_s;
    QTest::newRow("light") << u"#FAFBFA"_s << u"#C62828"_s << u"#2E7D32"_s << u"#E8F5E9"_s;
}

void RegisterModelTest::colours()
{
    QFETCH(QString, window);
    QFETCH(QString, negative);
    QFETCH(QString, positive);
    QFETCH(QString, edited);

    usePalette(window);
    RegisterModel model;
    model.setRows(sample());
    const auto colour = [&model](int modelRow, int column, int role = Qt::ForegroundRole) {
        const QVariant value = model.index(modelRow, column).data(role);
        return value.isValid() ? value.value<QColor>().name().toUpper() : QString();
    };
    QCOMPARE(colour(1, RegisterColumn::Payment), negative.toUpper());
    QCOMPARE(colour(0, RegisterColumn::Deposit), positive.toUpper());
    QCOMPARE(colour(3, RegisterColumn::Deposit), positive.toUpper());
    QCOMPARE(colour(1, RegisterColumn::Deposit), QString());
    QCOMPARE(colour(2, RegisterColumn::Balance), negative.toUpper());
    QCOMPARE(colour(0, RegisterColumn::Balance), QString());
    QCOMPARE(colour(0, RegisterColumn::Clr), u"#6E8A7E"_s);
    QCOMPARE(colour(0, RegisterColumn::Payee), QString());
    QCOMPARE(colour(4, RegisterColumn::Balance, Qt::BackgroundRole), edited.toUpper());
    model.setEditRow(0);
    QCOMPARE(colour(0, RegisterColumn::Date, Qt::BackgroundRole), edited.toUpper());
    model.setTwoLineMode(true);
    QCOMPARE(colour(0, RegisterColumn::Date, Qt::BackgroundRole), QString());
}

void RegisterModelTest::fontsAndAlignment()
{
    RegisterModel model;
    model.setRows(sample());
    for (int column = 0; column < RegisterColumn::kCount; ++column) {
        const bool money = column == RegisterColumn::Payment || column == RegisterColumn::Deposit
            || column == RegisterColumn::Balance;
        QCOMPARE(model.index(0, column).data(Qt::FontRole).isValid(), money);
        const Qt::Alignment wanted = money  ? Qt::AlignRight | Qt::AlignVCenter
            : column == RegisterColumn::Clr ? Qt::Alignment(Qt::AlignCenter)
                                            : Qt::AlignLeft | Qt::AlignVCenter;
        QCOMPARE(Qt::Alignment(model.index(0, column).data(Qt::TextAlignmentRole).toInt()), wanted);
        QVERIFY(!model.index(4, column).data(Qt::TextAlignmentRole).isValid());
        QVERIFY(!model.index(4, column).data(Qt::FontRole).isValid());
    }
    fontScale() = 150;
    QCOMPARE(model.index(0, 5).data(Qt::FontRole).value<QFont>().pointSize(),
             baseFont().pointSize() * 150 / 100);
    fontScale() = 100;
}

void RegisterModelTest::setDataTakesEditsOnly()
{
    RegisterModel model;
    QSignalSpy changed(&model, &RegisterModel::dataChanged);
    QVERIFY(!model.setData(model.index(0, 2), u"x"_s, Qt::DisplayRole));
    QCOMPARE(model.buffers().payee, QString());
    for (int column = 0; column < RegisterColumn::kCount; ++column) {
        QVERIFY(model.setData(model.index(0, column), u"%1"_s));
        if (column != RegisterColumn::Balance)
            QCOMPARE(model.index(0, column).data(Qt::EditRole).toString(), u"%1"_s);
    }
    QCOMPARE(changed.size(), int(RegisterColumn::kCount));
}

void RegisterModelTest::headers()
{
    RegisterModel model;
    QCOMPARE(model.headerData(2, Qt::Horizontal).toString(), u"Payee"_s);
    model.setTwoLineMode(true);
    QCOMPARE(model.headerData(2, Qt::Horizontal).toString(), u"Payee / Memo"_s);
    QCOMPARE(model.headerData(8, Qt::Horizontal).toString(), u"Balance"_s);
    QVERIFY(!model.headerData(2, Qt::Vertical).isValid());
    QVERIFY(!model.headerData(2, Qt::Horizontal, Qt::EditRole).isValid());
    QVERIFY(!model.headerData(9, Qt::Horizontal).isValid());
}

PURSEWELL_TEST_MAIN(RegisterModelTest)
#include "RegisterModelTest.moc"
