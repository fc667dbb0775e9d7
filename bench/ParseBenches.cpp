#include "ParseBenches.h"

#include "PairedBench.h"
#include "QifFile.h"

#include "core/Money.h"
#include "services/CsvReader.h"
#include "services/QifReader.h"
#include "services/TextDecoding.h"

#include <iconv.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace {

constexpr int kRecords = 300000;

QByteArray csvText()
{
    HouseholdRows rows(kRecords, {"Groceries", "Auto:Fuel", "Dining", "Utilities"});
    QByteArray text("Date,Payee,Amount,Memo,Category\r\n");
    for (int i = 0; i < kRecords; ++i) {
        const HouseholdRow row = rows.draw(i, 0);
        text += row.date.toString(Qt::ISODate).toLatin1() + ",\"" + row.payee + ", Ltd.\",\""
            + formatAmount(row.amount_cents).toLatin1() + "\"," + row.memo + ',' + row.category_id
            + "\r\n";
    }
    return text;
}

double megabytesOf(const QByteArray &text)
{
    return double(text.size()) / 1e6;
}

std::u16string plainDecode(const QByteArray &bytes)
{
    std::u16string text(size_t(bytes.size()), u'\0');
    const iconv_t converter = iconv_open("UTF-16LE", "UTF-8");
    QByteArray input = bytes;
    char *in = input.data();
    auto *out = reinterpret_cast<char *>(text.data());
    size_t in_left = size_t(input.size());
    size_t out_left = text.size() * sizeof(char16_t);
    if (iconv(converter, &in, &in_left, &out, &out_left) == size_t(-1))
        qFatal("parse bench: the text is no UTF-8");
    iconv_close(converter);
    text.resize(text.size() - out_left / sizeof(char16_t));
    return text;
}

// The least that a reader can do: find where the pieces end and keep each of them.
std::vector<std::u16string> plainPieces(const QString &text, QStringView ends)
{
    const std::u16string_view whole(reinterpret_cast<const char16_t *>(text.utf16()),
                                    size_t(text.size()));
    const std::u16string_view marks(ends.utf16(), size_t(ends.size()));
    std::vector<std::u16string> pieces;
    for (size_t begin = 0; begin < whole.size();) {
        const size_t end = std::min(whole.find_first_of(marks, begin), whole.size());
        pieces.emplace_back(whole.substr(begin, end - begin));
        begin = end + 1;
    }
    return pieces;
}

using Source = std::function<QByteArray()>; // of the file's bytes; called when its turn comes

void addDecode(const char *name, const Source &source)
{
    registerPair({name}, [source] {
        const QByteArray bytes = source();
        return Pair{.program = [bytes] { decodeText(bytes); },
                    .counterpart = [bytes] { plainDecode(bytes); },
                    .megabytes = megabytesOf(bytes)};
    });
}

void addParse(const char *name, const Source &source, QStringView ends,
              const std::function<void(const QString &)> &parse)
{
    registerPair({name}, [source, ends, parse] {
        const QByteArray bytes = source();
        const QString text = decodeText(bytes);
        return Pair{.program = [text, parse] { parse(text); },
                    .counterpart = [text, ends] { plainPieces(text, ends); },
                    .megabytes = megabytesOf(bytes)};
    });
}

} // namespace

void registerParseBenches()
{
    const Source qif = [] { return QifFile(kRecords).text(); };
    addDecode("parse: decode a QIF file of 300,000 records", qif);
    addParse("parse: QIF, 300,000 records", qif, u"\n",
             [](const QString &text) { parseQif(text, QifDateOrder::Auto); });
    addParse("parse: CSV, 300,000 rows", csvText, u",\n",
             [](const QString &text) { parseCsv(text); });
}
