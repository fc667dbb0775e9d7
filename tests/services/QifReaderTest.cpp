#include "services/QifReader.h"

#include "services/QifAmount.h"
#include "services/QifDate.h"
#include "services/TextDecoding.h"
#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

using Amount = std::optional<qint64>;
using Order = QifDateOrder;

class QifReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodes_data();
    void decodes();
    void readsAmounts_data();
    void readsAmounts();
    void readsDates_data();
    void readsDates();
    void readsFiles_data();
    void readsFiles();
    void readsFirstAndLastOfAHugeFile();
};

namespace {

// One line for all fields, so that a difference shows itself.
QString described(const QifTransaction &transaction)
{
    QString line =
        u"%1 %2|%3|%4|%5|[%6]|%7|%8|%9"_s.arg(
            transaction.date.toString(Qt::ISODate), QString::number(transaction.amount),
            transaction.payee, transaction.memo, transaction.category, transaction.transferAccount,
            transaction.number, transaction.security, transaction.reconciled ? u"R"_s : QString())
        + (transaction.cleared ? u"c"_s : QString());
    for (const QifSplit &split : transaction.splits)
        line += u" / %1|[%2]|%3|%4"_s.arg(split.category, split.transferAccount, split.memo,
                                          QString::number(split.amount));
    return line + u" @"_s + transaction.sourceAccount;
}

QStringList described(const QifParseResult &result)
{
    QStringList lines;
    for (const QifTransaction &transaction : result.transactions)
        lines << described(transaction);
    for (const QifCategory &category : result.categories)
        lines << u"category %1|%2|%3"_s.arg(category.name, category.description,
                                            category.isIncome ? u"income"_s : u"expense"_s);
    for (const QifAccount &account : result.accounts)
        lines << u"account %1 %2"_s.arg(account.name, QString::number(int(account.kind)));
    if (result.malformedCount > 0 || result.skippedCount > 0)
        lines << u"%1 malformed, %2 skipped"_s.arg(result.malformedCount).arg(result.skippedCount);
    return lines;
}

} // namespace

void QifReaderTest::decodes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    QTest::newRow("UTF-8, marked") << QByteArray("\xEF\xBB\xBF\xEF\xBB\xBF\xC3\xA9")
                                   << u"\uFEFFé"_s; // the second mark is text
    QTest::newRow("UTF-16 little-endian") << QByteArray("\xFF\xFE\xAC\x20\n\0", 6) << u"€\n"_s;
    QTest::newRow("UTF-16 big-endian") << QByteArray("\xFE\xFF\x20\xAC\0\n", 6) << u"€\n"_s;
    QTest::newRow("Windows-1252") << QByteArray("\x80 caf\xE9 \x9F") << u"€ café Ÿ"_s;
    QTest::newRow("Windows-1252, undefined bytes")
        << QByteArray("\x81\x8D\x8F\x90\x9D") << u"\u0081\u008D\u008F\u0090\u009D"_s;
}

void QifReaderTest::decodes()
{
    QFETCH(QByteArray, bytes);
    QTEST(decodeText(bytes), "text");
}

void QifReaderTest::readsAmounts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Amount>("cents");

    QTest::newRow("groups and point") << u"1,234.56"_s << Amount(123456);
    QTest::newRow("groups and comma") << u"1.234,56"_s << Amount(123456);
    QTest::newRow("comma") << u"12,34"_s << Amount(1234);
    QTest::newRow("lone group, comma") << u"1,234"_s << Amount(123400);
    QTest::newRow("lone group, point") << u"1.234"_s << Amount(123400);
    QTest::newRow("three decimals without units") << u".234"_s << Amount(23);
    QTest::newRow("several groups") << u"1.234.567"_s << Amount(123456700);
    QTest::newRow("two decimal points") << u"1,2.3.4"_s << Amount();
    QTest::newRow("half a cent") << u"-0.1250"_s << Amount(-13);
    QTest::newRow("parentheses") << u" ( $5.00 ) "_s << Amount(-500);
    QTest::newRow("parentheses and minus") << u"(-5.00)"_s << Amount(500);
    QTest::newRow("symbol, no-break space") << u"-€\u00A01\u202F234,50"_s << Amount(-123450);
    QTest::newRow("minus before plus") << u"-+5"_s << Amount();
    QTest::newRow("separator alone") << u","_s << Amount();
    QTest::newRow("NUL") << u"1\0"_s << Amount();
    QTest::newRow("beyond 64 bits") << u"92233720368547758.08"_s << Amount();
}

void QifReaderTest::readsAmounts()
{
    QFETCH(QString, text);
    QTEST(parseQifAmount(text), "cents");
}

void QifReaderTest::readsDates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Order>("order");
    QTest::addColumn<QDate>("date");

    QTest::newRow("small year") << u"5/6/24"_s << Order::MonthFirst << QDate(2024, 5, 6);
    QTest::newRow("year that could be a day") << u"1/2/31"_s << Order::Auto << QDate(2031, 1, 2);
    QTest::newRow("year that could not") << u"1/2/32"_s << Order::Auto << QDate(2032, 1, 2);
    QTest::newRow("first year of the last century")
        << u"1.2.70"_s << Order::DayFirst << QDate(1970, 2, 1);
    QTest::newRow("year of four digits below 100")
        << u"1/2/0007"_s << Order::MonthFirst << QDate(2007, 1, 2);
    QTest::newRow("year first") << u"2024-02-29"_s << Order::DayFirst << QDate(2024, 2, 29);
    QTest::newRow("day beyond 12, order open")
        << u"13-2-2024"_s << Order::Auto << QDate(2024, 2, 13);
    QTest::newRow("day beyond 12, month first") << u"13/2/2024"_s << Order::MonthFirst << QDate();
    QTest::newRow("word") << u"1/May/98"_s << Order::Auto << QDate();
}

void QifReaderTest::readsDates()
{
    QFETCH(QString, text);
    QFETCH(Order, order);
    QTEST(parseQifDate(text, order).value_or(QDate()), "date");
}

void QifReaderTest::readsFiles_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("content");

    QTest::newRow("no header, no last caret, CR only")
        << u"D1/2/98\rT5\rPShop\rMmemo\rN7\rYACME\rAStreet\rXjunk\rLFood/Home\rC*"_s
        << QStringList{u"1998-01-02 500|Shop|memo|Food|[]|7|ACME|c @"_s};
    QTest::newRow("marks and CR before the code")
        << u"\uFEFF!Type:Bank\r\r\n\r\uFEFF\uFEFF D 1/2/98 \r\r\nT5\r\n^"_s
        << QStringList{u"1998-01-02 500||||[]||| @"_s};
    QTest::newRow("one day beyond 12 turns all dates")
        << u"D1/2/98\nT1\n^\nD13/2/98\nT2\n^\nD2024-03-04\nT3"_s
        << QStringList{u"1998-02-01 100||||[]||| @"_s, u"1998-02-13 200||||[]||| @"_s,
                       u"2024-03-04 300||||[]||| @"_s};
    QTest::newRow("the last readable amount and date count")
        << u"D1/2/98\nDnever\nU1\nT2\n$3\nTmuch\nCr\nC\nC?\n^"_s
        << QStringList{u"1998-01-02 300||||[]|||Rc @"_s};
    QTest::newRow("splits")
        << u"D1/2/98\nT-3\nEnone open\nSFood/Home\n$-1\nEbread\n$x\nS[Savings]/x\n$-2\n^\nD1/2/98\nT1"_s
        << QStringList{u"1998-01-02 -300||||[]||| / Food|[]|bread|-100 / |[Savings]||-200 @"_s,
                       u"1998-01-02 100||||[]||| @"_s};
    QTest::newRow("a header ends record and split")
        << u"D1/2/98\nT1\nSFood\n$1\n!Type:Oth A\nT2\n^"_s
        << QStringList{u"1998-01-02 100||||[]||| / Food|[]||100 @"_s, u"1 malformed, 0 skipped"_s};
    QTest::newRow("brackets, and a year that is no day")
        << u"D1/2/98\nT1\nLFood\nL [ Joint account ] / Home\n^\nD2024-03-04\nT1\nL[Half/open]"_s
        << QStringList{u"1998-01-02 100||||[Joint account]||| @"_s,
                       u"2024-03-04 100|||[Half|[]||| @"_s};
    QTest::newRow("accounts")
        << u"!Account\nNUnused\n^\nNVisa\nTCCard\n^\n!TYPE: ccard "
           u"\nD1/2/98\nT1\n^\n!Account\nN\n^\n"
           "!Type:Cash\nD1/2/98\nT2\n^\n!Account\nNVISA\n^\n!Type:Bank\nD1/2/98\nT4\n^\n!Account\nNÉpargne\n!Type:Oth L\nD1/2/98\nT3"_s
        << QStringList{u"1998-01-02 100||||[]||| @Visa"_s,
                       u"1998-01-02 200||||[]||| @Visa"_s,
                       u"1998-01-02 400||||[]||| @VISA"_s,
                       u"1998-01-02 300||||[]||| @Épargne"_s,
                       u"account Visa 1"_s,
                       u"account Épargne 5"_s};
    QTest::newRow("an unknown type is a bank's, an unknown header no type")
        << u"!Type:Invst\n!Type:Mystery\n!Account\nNA\n!Type:\n!Hello\nD1/2/98\nT1\n^"_s
        << QStringList{u"1998-01-02 100||||[]||| @A"_s, u"account A 0"_s};
    QTest::newRow("investments keep action and security")
        << u"!Account\nNBroker\n!Type:Invst\nD1/2/98\nNBuy\nYACME\nI10\nQ5\nT50\n^"_s
        << QStringList{u"1998-01-02 5000||||[]|Buy|ACME| @Broker"_s, u"account Broker 2"_s};
    QTest::newRow("lists")
        << u"!Type:Cat\nNPay\nDWork\nI\n^\n^\nDnameless\nI\n^\nNFood\nI\nE\n^\n!Type:Tag\nNHome\n^"
           u"\n^\n"
           "!Option:X\nD1/2/98\nT1\n^\n!Clear:X\nD1/2/98\nT1\n^\n!type:PRICES\nACME\n!Type:Memorized\nK"_s
        << QStringList{u"category Pay|Work|income"_s, u"category Food||expense"_s,
                       u"0 malformed, 5 skipped"_s};
    QTest::newRow("junk") << u"^^\n!\n\0\n!Type:Bank\nx\n^\nD\nT\n^\nT1\n^\nD1/2/98\n^\n^"_s
                          << QStringList{u"5 malformed, 0 skipped"_s};
}

void QifReaderTest::readsFiles()
{
    QFETCH(QString, text);
    QTEST(described(parseQif(text, Order::Auto)), "content");
}

// In a time that a person waits for, and whatever stands between them.
void QifReaderTest::readsFirstAndLastOfAHugeFile()
{
    QString text = u"D1/2/98\nT5\n"_s;
    for (const QString &piece : {u"Mx"_s, u"\uFEFF"_s, u"T9"_s, u"D/"_s, u"L["_s, u"\n"_s})
        text += piece.repeated(1'000'000) + u'\n';
    text += u"SFood\n$1\n"_s.repeated(100'000) + u"^\n!Account\n"_s.repeated(500'000);
    const QifParseResult result = parseQif(text + u"!Type:Bank\nD1/3/98\nT6"_s, Order::Auto);
    QCOMPARE(result.transactions.size(), 2);
    QCOMPARE(result.transactions.front().splits.size(), 100'000);
    QCOMPARE(result.transactions.front().amount, 500);
    QCOMPARE(result.transactions.back().amount, 600);
}

PURSEWELL_TEST_MAIN(QifReaderTest)
#include "QifReaderTest.moc"
