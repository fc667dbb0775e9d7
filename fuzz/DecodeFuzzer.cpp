#include "Require.h"

#include "services/TextDecoding.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

namespace {

struct Lead
{
    size_t length;
    uint32_t bits;
};

Lead leadOf(uint8_t byte)
{
    if (byte < 0x80)
        return {1, byte};
    if ((byte & 0xE0) == 0xC0)
        return {2, byte & 0x1FU};
    if ((byte & 0xF0) == 0xE0)
        return {3, byte & 0x0FU};
    if ((byte & 0xF8) == 0xF0)
        return {4, byte & 0x07U};
    return {0, 0};
}

bool isShortestForm(uint32_t point, size_t length)
{
    constexpr uint32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    return point >= kSmallest[length];
}

// The code point at the position, which moves on. Nothing where the bytes are no UTF-8.
std::optional<uint32_t> nextCodePoint(const std::vector<uint8_t> &bytes, size_t &position)
{
    const Lead lead = leadOf(bytes[position]);
    if (lead.length == 0 || bytes.size() - position < lead.length)
        return std::nullopt;
    uint32_t point = lead.bits;
    for (size_t i = 1; i < lead.length; ++i) {
        const uint8_t byte = bytes[position + i];
        if ((byte & 0xC0) != 0x80)
            return std::nullopt;
        point = (point << 6) | (byte & 0x3FU);
    }
    position += lead.length;
    const bool surrogate = point >= 0xD800 && point <= 0xDFFF;
    if (!isShortestForm(point, lead.length) || surrogate || point > 0x10FFFF)
        return std::nullopt;
    return point;
}

std::optional<std::u16string> strictUtf8(const std::vector<uint8_t> &bytes)
{
    std::u16string text;
    for (size_t position = 0; position < bytes.size();) {
        const std::optional<uint32_t> point = nextCodePoint(bytes, position);
        if (!point)
            return std::nullopt;
        if (*point < 0x10000) {
            text += char16_t(*point);
        } else {
            text += char16_t(0xD800 + ((*point - 0x10000) >> 10));
            text += char16_t(0xDC00 + ((*point - 0x10000) & 0x3FF));
        }
    }
    return text;
}

std::u16string utf16(const std::vector<uint8_t> &bytes, size_t high, size_t low)
{
    std::u16string text;
    for (size_t i = 0; i + 1 < bytes.size(); i += 2)
        text += char16_t((bytes[i + high] << 8) | bytes[i + low]);
    return text;
}

bool beginsWith(const std::vector<uint8_t> &bytes, const std::vector<uint8_t> &mark)
{
    return bytes.size() >= mark.size() && std::equal(mark.begin(), mark.end(), bytes.begin());
}

// Each byte became one character; those outside 0x80 to 0x9F kept their number, and no two of the
// rest became the same.
void checkSingleByte(const std::vector<uint8_t> &bytes, const std::u16string &text)
{
    require(text.size() == bytes.size());
    char16_t seen[32] = {};
    for (size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] < 0x80 || bytes[i] > 0x9F) {
            require(text[i] == bytes[i]);
            continue;
        }
        require(text[i] > 0xFF || text[i] == bytes[i]);
        seen[bytes[i] - 0x80] = text[i];
    }
    for (size_t i = 0; i < 32; ++i) {
        for (size_t k = i + 1; k < 32; ++k)
            require(seen[i] == 0 || seen[i] != seen[k]);
    }
}

void checkUtf16(const std::vector<uint8_t> &bytes, const std::u16string &text, bool littleEndian)
{
    const std::vector<uint8_t> units(bytes.begin() + 2, bytes.end());
    const std::u16string expected = littleEndian ? utf16(units, 1, 0) : utf16(units, 0, 1);
    require(text.substr(0, expected.size()) == expected);
    require(text.size() <= expected.size() + units.size() % 2); // half a unit may leave its mark
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::vector<uint8_t> bytes(data, data + size);
    const std::u16string text =
        decodeText(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)))
            .toStdU16String();
    if (beginsWith(bytes, {0xEF, 0xBB, 0xBF})) {
        const auto expected = strictUtf8({bytes.begin() + 3, bytes.end()});
        require(expected ? text == *expected : text.find(u'\xFFFD') != std::u16string::npos);
    } else if (beginsWith(bytes, {0xFF, 0xFE}) || beginsWith(bytes, {0xFE, 0xFF})) {
        checkUtf16(bytes, text, bytes[0] == 0xFF);
    } else if (const auto expected = strictUtf8(bytes)) {
        require(text == *expected);
    } else {
        checkSingleByte(bytes, text);
    }
    return 0;
}
