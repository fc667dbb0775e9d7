#include "Require.h"

#include "services/QifLines.h"
#include "services/QifReader.h"
#include "services/TextDecoding.h"

#include <QHash>
#include <QStringList>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

bool isPlain(const QString &value)
{
    return value == value.trimmed() && !value.contains(u'\n') && !value.contains(u'\r');
}

void checkTransaction(const QifTransaction &transaction)
{
    require(transaction.date.isValid());
    require(transaction.cleared || !transaction.reconciled);
    require(transaction.category.isEmpty() || transaction.transferAccount.isEmpty());
    for (const QString &value :
         {transaction.payee, transaction.memo, transaction.category, transaction.transferAccount,
          transaction.number, transaction.security, transaction.sourceAccount})
        require(isPlain(value));
}

using Kinds = QHash<QString, QifAccountKind>; // by lower-case name

Kinds kindsOf(const QifParseResult &result)
{
    Kinds kinds;
    for (const QifAccount &account : result.accounts)
        kinds.insert(account.name.toLower(), account.kind);
    require(kinds.size() == result.accounts.size() && !kinds.contains(QString()));
    return kinds;
}

// Each record takes one line at least.
void checkCounts(const QifParseResult &result, qsizetype lines)
{
    qsizetype used = result.categories.size() + result.malformedCount + result.skippedCount;
    for (const QifTransaction &transaction : result.transactions)
        used += 2 + transaction.splits.size();
    require(used <= lines && result.malformedCount >= 0 && result.skippedCount >= 0);
    require(result.dateOrder != QifDateOrder::Auto);
}

QString fieldText(const QString &category, const QString &transferAccount)
{
    return transferAccount.isEmpty() ? category : u'[' + transferAccount + u']';
}

QString amountText(qint64 cents)
{
    const qint64 magnitude = std::abs(cents);
    return u"%1%2.%3"_s.arg(cents < 0 ? u"-"_s : QString())
        .arg(magnitude / 100)
        .arg(magnitude % 100, 2, 10, QLatin1Char('0'));
}

QString transactionText(const QifTransaction &transaction)
{
    const QDate date = transaction.date;
    QStringList lines{
        u"D%1/%2/%3"_s.arg(date.month()).arg(date.day()).arg(date.year()),
        u'T' + amountText(transaction.amount),
        u'P' + transaction.payee,
        u'M' + transaction.memo,
        u'N' + transaction.number,
        u'Y' + transaction.security,
        u'L' + fieldText(transaction.category, transaction.transferAccount),
        transaction.reconciled    ? u"CR"_s
            : transaction.cleared ? u"C*"_s
                                  : u"C"_s,
    };
    for (const QifSplit &split : transaction.splits)
        lines << u'S' + fieldText(split.category, split.transferAccount) << u'E' + split.memo
              << u'$' + amountText(split.amount);
    return lines.join(u'\n') + u"\n^\n"_s;
}

QString typeHeader(QifAccountKind kind)
{
    static const QStringList words{u"Bank"_s, u"CCard"_s, u"Invst"_s,
                                   u"Cash"_s, u"Oth A"_s, u"Oth L"_s};
    return u"!Type:"_s + words.at(int(kind)) + u'\n';
}

// The result as the tidiest of programs would have written it.
QString tidyText(const QifParseResult &result)
{
    const Kinds kinds = kindsOf(result);
    QString text = u"!Type:Cat\n"_s;
    for (const QifCategory &category : result.categories)
        text += u'N' + category.name + u"\nD"_s + category.description
            + (category.isIncome ? u"\nI\n^\n"_s : u"\nE\n^\n"_s);
    text += u"!Type:Bank\n"_s;
    QString account;
    for (const QifTransaction &transaction : result.transactions) {
        if (transaction.sourceAccount != account) {
            account = transaction.sourceAccount;
            text += u"!Account\nN"_s + account + u"\n^\n"_s
                + typeHeader(kinds.value(account.toLower()));
        }
        text += transactionText(transaction);
    }
    return text;
}

// Floating point, through which amounts are read, keeps the cents up to here.
bool hasExactAmounts(const QifParseResult &result)
{
    constexpr double kLimit = 1e15;
    for (const QifTransaction &transaction : result.transactions) {
        if (std::abs(double(transaction.amount)) > kLimit)
            return false;
        for (const QifSplit &split : transaction.splits) {
            if (std::abs(double(split.amount)) > kLimit)
                return false;
        }
    }
    return true;
}

void checkTidyText(const QifParseResult &result)
{
    if (!hasExactAmounts(result))
        return;
    const QifParseResult again = parseQif(tidyText(result), QifDateOrder::MonthFirst);
    require(again.transactions == result.transactions);
    require(again.categories == result.categories);
    require(again.accounts == result.accounts);
    require(again.malformedCount == 0 && again.skippedCount == 0);
}

// What marks the start of a line or ends it makes no difference.
void checkLineEnds(const QList<QStringView> &lines, QifDateOrder order,
                   const QifParseResult &result)
{
    QString text;
    for (const QStringView line : lines)
        text += u"\uFEFF"_s + line.toString() + u"\r\n"_s;
    require(parseQif(text, order) == result);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const auto order = static_cast<QifDateOrder>(data[0] % 3);
    const auto *bytes = reinterpret_cast<const char *>(data + 1);
    const QString text = decodeText(QByteArray(bytes, static_cast<qsizetype>(size - 1)));
    const QList<QStringView> lines = qifLines(text);
    const QifParseResult result = parseQif(text, order);
    require(order == QifDateOrder::Auto || order == result.dateOrder);
    checkCounts(result, lines.size());
    for (const QifTransaction &transaction : result.transactions)
        checkTransaction(transaction);
    checkLineEnds(lines, order, result);
    checkTidyText(result);
    return 0;
}
