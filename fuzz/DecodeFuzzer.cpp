#include "Require.h"

#include "services/TextDecoding.h"

#include <iconv.h>

#include <array>
#include <optional>

namespace {

// The bytes as the C library reads them. Nothing, where they are not in this encoding.
std::optional<QString> readAs(const char *encoding, QByteArray bytes)
{
    constexpr bool littleEndian = Q_BYTE_ORDER == Q_LITTLE_ENDIAN;
    const iconv_t converter = iconv_open(littleEndian ? "UTF-16LE" : "UTF-16BE", encoding);
    QString text(bytes.size(), QChar());
    char *in = bytes.data();
    char *out = reinterpret_cast<char *>(text.data());
    auto inLeft = static_cast<size_t>(bytes.size());
    size_t outLeft = inLeft * sizeof(QChar);
    const size_t changed = iconv(converter, &in, &inLeft, &out, &outLeft);
    iconv_close(converter);
    if (changed != 0)
        return std::nullopt;
    text.chop(static_cast<qsizetype>(outLeft / sizeof(QChar)));
    return text;
}

// Here the C library refuses the five bytes that are not defined.
QString windows1252(const QByteArray &bytes)
{
    static const std::array<QChar, 256> characters = [] {
        std::array<QChar, 256> all;
        for (unsigned byte = 0; byte < all.size(); ++byte)
            all[byte] = readAs("CP1252", QByteArray(1, char(byte))).value_or(QChar(byte)).front();
        return all;
    }();
    QString text;
    for (const char byte : bytes)
        text += characters[static_cast<uint8_t>(byte)];
    return text;
}

void checkUtf16(const QByteArray &units, bool littleEndian, const QString &text)
{
    QString expected;
    for (qsizetype i = 0; i + 1 < units.size(); i += 2)
        expected += QChar(uchar(units[littleEndian ? i : i + 1]), uchar(units[i + littleEndian]));
    require(text.startsWith(expected));
    require(text.size() <= expected.size() + units.size() % 2); // half a unit may leave its mark
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString text = decodeText(bytes);
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        const std::optional<QString> expected = readAs("UTF-8", bytes.sliced(3));
        require(expected ? text == *expected : text.contains(QChar::ReplacementCharacter));
    } else if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF")) {
        checkUtf16(bytes.sliced(2), bytes.startsWith("\xFF\xFE"), text);
    } else {
        require(text == readAs("UTF-8", bytes).value_or(windows1252(bytes)));
    }
    return 0;
}
