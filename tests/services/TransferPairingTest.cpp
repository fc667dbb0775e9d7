#include "services/TransferPairing.h"

#include "core/Money.h"
#include "services/AccountImportCache.h"
#include "services/ImportRow.h"
#include "services/NameFolding.h"
#include "services/TransferHint.h"
#include "support/TestSupport.h"

#include <rapidcheck.h>

using namespace Qt::StringLiterals;

namespace {

// Two that differ in case alone, two that toLower() keeps apart, and others.
const std::vector<QString> kNames{u"Bank"_s, u"BANK"_s, u"ΟΔΟΣ"_s, u"οδος"_s, u"Straße"_s, u""_s};

bool sameName(const QString &left, const QString &right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

bool takesPart(const ImportRow &row)
{
    return row.pairIndex < 0 && !row.transferAccount.isEmpty() && !row.sourceAccount.isEmpty()
        && !sameName(row.transferAccount, row.sourceAccount) && !row.targetAccountId.isEmpty();
}

bool areSides(const ImportRow &row, const ImportRow &other)
{
    return row.targetAccountId != other.targetAccountId && row.date == other.date
        && row.amount == negateMoney(other.amount)
        && sameName(row.sourceAccount, other.transferAccount)
        && sameName(row.transferAccount, other.sourceAccount);
}

// The rule as one would tell it, which takes quadratic time.
int pairOneByOne(QList<ImportRow> &rows)
{
    int pairs = 0;
    for (int i = 0; i < rows.size(); ++i) {
        for (int j = i + 1; takesPart(rows[i]) && j < rows.size(); ++j) {
            if (!takesPart(rows[j]) || !areSides(rows[i], rows[j]))
                continue;
            rows[i].pairIndex = j;
            rows[j].pairIndex = i;
            ++pairs;
        }
    }
    return pairs;
}

QDate anyDay()
{
    return QDate(2024, 2, 28).addDays(*rc::gen::inRange(0, 2));
}

// The least one has no opposite.
qint64 anyAmount()
{
    return *rc::gen::element<qint64>(-1, 0, 1, std::numeric_limits<qint64>::min());
}

ImportRow anyRow()
{
    ImportRow row;
    row.date = anyDay();
    row.amount = anyAmount();
    row.sourceAccount = *rc::gen::elementOf(kNames);
    row.transferAccount = *rc::gen::elementOf(kNames);
    row.targetAccountId = *rc::gen::element(u"a"_s, u"b"_s, u"c"_s, u""_s);
    return row;
}

QList<int> pairIndexes(const QList<ImportRow> &rows)
{
    QList<int> indexes;
    for (const ImportRow &row : rows)
        indexes << row.pairIndex;
    return indexes;
}

} // namespace

class TransferPairingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pairsAsTheRuleTells();
    void waitingRowsComeInTheirOrder();
    void foldsAsComparisonsDo();
    void hints_data();
    void hints();
};

void TransferPairingTest::pairsAsTheRuleTells()
{
    const bool holds = rc::check("same pairs as one by one", [] {
        QList<ImportRow> rows;
        for (int count = *rc::gen::inRange(0, 60); count > 0; --count)
            rows << anyRow();
        QList<ImportRow> expected = rows;
        RC_ASSERT(pairRows(rows) == pairOneByOne(expected));
        RC_ASSERT(pairIndexes(rows) == pairIndexes(expected));
    });
    QVERIFY(holds);
}

void TransferPairingTest::waitingRowsComeInTheirOrder()
{
    const bool holds = rc::check("the first that fits, each once", [] {
        QList<Transaction> waiting;
        for (int id = *rc::gen::inRange(0, 30); id > 0; --id) {
            const QString name = *rc::gen::elementOf(kNames);
            waiting << Transaction{.id = QString::number(id),
                                   .date = anyDay(),
                                   .memo = memoWithHint(name, u"memo"_s),
                                   .amount = anyAmount(),
                                   .transfer_link_id = *rc::gen::element(u""_s, u""_s, u"x"_s)};
        }
        AccountImportCache cache(waiting);
        for (int asks = 0; asks < 30; ++asks) {
            const QDate day = anyDay();
            const qint64 amount = anyAmount();
            const QString name = *rc::gen::elementOf(kNames);
            const auto fits = std::ranges::find_if(waiting, [&](const Transaction &row) {
                const std::optional<TransferHint> hint = parseTransferHint(row.memo);
                return row.transfer_link_id.isEmpty() && row.date == day
                    && row.amount == negateMoney(amount) && hint
                    && sameName(hint->accountName, name);
            });
            const Transaction *found = cache.waitingFor(day, amount, name);
            RC_ASSERT((found ? found->id : QString())
                      == (fits == waiting.end() ? QString() : fits->id));
            if (found) {
                cache.takeWaitingFor(day, amount, name);
                waiting.erase(fits);
            }
        }
    });
    QVERIFY(holds);
}

void TransferPairingTest::foldsAsComparisonsDo()
{
    const auto check = [](const QString &left, const QString &right) {
        return (foldedName(left) == foldedName(right)) == sameName(left, right);
    };
    for (char32_t character = 1; character <= QChar::LastValidCodePoint; ++character) {
        const QString text = QString::fromUcs4(&character, 1);
        QVERIFY2(check(text, text.toLower()) && check(text, text.toUpper())
                     && check(text, text.toCaseFolded()),
                 qPrintable(QString::number(uint(character), 16)));
    }
    const QString half = QChar(0xd801); // what is left of a character cut in two
    QVERIFY(check(half, QChar(0xd802)));
    QVERIFY(check(u"x"_s + half, u"X"_s + half));
    QVERIFY(check(half + u"x"_s, half));
}

void TransferPairingTest::hints_data()
{
    QTest::addColumn<QString>("memo");
    QTest::addColumn<QString>("name"); // empty: no hint
    QTest::addColumn<QString>("rest");

    QTest::newRow("alone") << u"[→ Savings]"_s << u"Savings"_s << u""_s;
    QTest::newRow("one blank goes") << u"[→ Savings]  x"_s << u"Savings"_s << u" x"_s;
    QTest::newRow("no blank") << u"[→ %1 \"x\"]y"_s << u"%1 \"x\""_s << u"y"_s;
    QTest::newRow("hint behind a hint") << u"[→ A] [→ B] x"_s << u"A"_s << u"[→ B] x"_s;
    QTest::newRow("no name") << u"[→ ]] x"_s << u""_s << u""_s;
    QTest::newRow("not closed") << u"[→ Savings"_s << u""_s << u""_s;
    QTest::newRow("not at the start") << u"x [→ Savings]"_s << u""_s << u""_s;
    QTest::newRow("another arrow") << u"[-> Savings] x"_s << u""_s << u""_s;
}

void TransferPairingTest::hints()
{
    QFETCH(QString, memo);
    const std::optional<TransferHint> hint = parseTransferHint(memo);
    QTEST(hint ? hint->accountName : u""_s, "name");
    QTEST(hint ? hint->memo : u""_s, "rest");
}

PURSEWELL_TEST_MAIN(TransferPairingTest)
#include "TransferPairingTest.moc"
