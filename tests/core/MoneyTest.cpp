#include "core/Money.h"

#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

#include <rapidcheck.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kSmallest = std::numeric_limits<qint64>::min();
constexpr qint64 kLargest = std::numeric_limits<qint64>::max();

constexpr std::array kCurrencies{Currency::USD, Currency::EUR, Currency::GBP,
                                 Currency::CAD, Currency::AUD, Currency::JPY};

} // namespace

class MoneyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void formats_data();
    void formats();
    void parses_data();
    void parses();
    void whatIsFormattedCanBeRead();
    void sumsAndSignsStayInRange_data();
    void sumsAndSignsStayInRange();
};

// No language of the interface may change how money is written.
void MoneyTest::init()
{
    QLocale::setDefault(QLocale(QLocale::German));
}

void MoneyTest::formats_data()
{
    QTest::addColumn<qint64>("amount");
    QTest::addColumn<Currency>("currency");
    QTest::addColumn<QString>("money");
    QTest::addColumn<QString>("plain");

    QTest::newRow("zero") << qint64(0) << Currency::USD << u"$0.00"_s << u"0.00"_s;
    QTest::newRow("minus under one unit")
        << qint64(-5) << Currency::CAD << u"-$0.05"_s << u"-0.05"_s;
    QTest::newRow("grouping") << qint64(123456) << Currency::USD << u"$1,234.56"_s << u"1,234.56"_s;
    QTest::newRow("minus before the symbol")
        << qint64(-123456) << Currency::EUR << u"-€1,234.56"_s << u"-1,234.56"_s;
    QTest::newRow("yen have no cents")
        << qint64(1234) << Currency::JPY << u"¥1,234"_s << u"1,234"_s;
    QTest::newRow("smallest") << kSmallest << Currency::AUD << u"-$92,233,720,368,547,758.08"_s
                              << u"-92,233,720,368,547,758.08"_s;
    QTest::newRow("unknown currency")
        << qint64(1) << static_cast<Currency>(99) << u"$0.01"_s << u"0.01"_s;
}

void MoneyTest::formats()
{
    QFETCH(qint64, amount);
    QFETCH(Currency, currency);
    QTEST(formatMoney(amount, currency), "money");
    QTEST(formatAmount(amount, currency), "plain");
}

void MoneyTest::parses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Currency>("currency");
    QTest::addColumn<qint64>("amount");

    const auto row = [](const char *name, const QString &text, Currency currency, qint64 amount) {
        QTest::newRow(name) << text << currency << amount;
    };
    row("symbol and group", u"$1,234.56"_s, Currency::USD, 123456);
    row("one decimal", u"-1234.5"_s, Currency::USD, -123450);
    row("half a cent goes away from zero", u"12.345"_s, Currency::USD, 1235);
    row("nothing", u""_s, Currency::USD, 0);
    row("brackets", u"(12.00)"_s, Currency::USD, 0);
    row("decimal comma is dropped", u"€1,00"_s, Currency::EUR, 10000);
    row("symbol of another currency", u"€5"_s, Currency::USD, 0);
    row("minus before the symbol", u"-$5"_s, Currency::USD, -500);
    row("space behind the minus", u"- 5"_s, Currency::USD, -500);
    row("two minus signs", u"--5"_s, Currency::USD, 0);
    row("two minus signs apart", u"- -5"_s, Currency::USD, 0);
    row("a minus alone", u"-"_s, Currency::USD, 0);
    row("exponent", u"1e2"_s, Currency::USD, 10000);
    row("infinite", u"inf"_s, Currency::USD, 0);
    row("not a number", u"nan"_s, Currency::USD, 0);
    row("hexadecimal", u"0x10"_s, Currency::USD, 0);
    row("a minus alone, yen", u"-"_s, Currency::JPY, 0);
    row("hexadecimal fraction", u"0x1p4"_s, Currency::USD, 0);
    row("beyond floating point", u"1e400"_s, Currency::USD, 0);
    row("beyond 64 bits", u"1e300"_s, Currency::USD, 0);
    row("2^63 cents", u"92233720368547758.08"_s, Currency::USD, 0);
    row("-2^63 cents", u"-92233720368547758.08"_s, Currency::USD, kSmallest);
    row("more than -2^63 cents", u"-92233720368547800"_s, Currency::USD, 0);
    row("largest double below 2^63", u"92233720368547747.84"_s, Currency::USD, 9223372036854774784);
    row("yen", u"¥1,234"_s, Currency::JPY, 1234);
    row("a fraction of a yen", u"12.5"_s, Currency::JPY, 0);
    row("two minus signs, yen", u"--5"_s, Currency::JPY, 0);
    row("2^63 yen", u"9223372036854775808"_s, Currency::JPY, 0);
}

void MoneyTest::parses()
{
    QFETCH(QString, text);
    QFETCH(Currency, currency);
    QTEST(parseMoney(text, currency), "amount");
}

void MoneyTest::whatIsFormattedCanBeRead()
{
    // Up to here a cent survives the way through floating point; whole yen do not take it.
    constexpr qint64 kExactCents = qint64(1) << 51;
    const bool holds = rc::check("parse(format(x)) == x", [] {
        const Currency currency = *rc::gen::elementOf(kCurrencies);
        const qint64 amount = currency == Currency::JPY
            ? *rc::gen::arbitrary<qint64>()
            : *rc::gen::inRange<qint64>(-kExactCents, kExactCents);
        RC_PRE(amount != kSmallest);
        RC_ASSERT(parseMoney(formatMoney(amount, currency), currency) == amount);
        RC_ASSERT(parseMoney(formatAmount(amount, currency), currency) == amount);
    });
    QVERIFY(holds);
}

void MoneyTest::sumsAndSignsStayInRange_data()
{
    QTest::addColumn<qint64>("left");
    QTest::addColumn<qint64>("right");
    QTest::addColumn<qint64>("sum");
    QTest::addColumn<qint64>("negated"); // of the left one
    QTest::addColumn<qint64>("absolute");
    QTest::addColumn<quint64>("magnitude");

    QTest::newRow("plain") << qint64(-5) << qint64(7) << qint64(2) << qint64(5) << qint64(5)
                           << quint64(5);
    QTest::newRow("largest, up") << kLargest << qint64(1) << kLargest << -kLargest << kLargest
                                 << quint64(kLargest);
    QTest::newRow("smallest, down")
        << kSmallest << qint64(-1) << kSmallest << kLargest << kLargest << (quint64(1) << 63);
    QTest::newRow("smallest and largest")
        << kSmallest << kLargest << qint64(-1) << kLargest << kLargest << (quint64(1) << 63);
}

void MoneyTest::sumsAndSignsStayInRange()
{
    QFETCH(qint64, left);
    QFETCH(qint64, right);
    QTEST(addMoney(left, right), "sum");
    QTEST(addMoney(right, left), "sum");
    QTEST(negateMoney(left), "negated");
    QTEST(absoluteMoney(left), "absolute");
    QTEST(moneyMagnitude(left), "magnitude");
}

PURSEWELL_TEST_MAIN(MoneyTest)
#include "MoneyTest.moc"
