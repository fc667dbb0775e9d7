#include "services/TextDecoding.h"

#include <QByteArrayView>
#include <QStringConverter>

#include <array>

namespace {

// What Windows-1252 has at 0x80 to 0x9F. Five of these bytes are not defined; they stay as they
// are.
constexpr std::array<char16_t, 32> kWindowsCharacters{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// Stateless: the bytes are all there are, so that a character cut off at their end is shown as one
// that could not be read. A second byte order mark is text like any other.
QString decodeAs(QStringConverter::Encoding encoding, QByteArrayView bytes)
{
    QStringDecoder decoder(
        encoding, QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
    return decoder.decode(bytes);
}

QString decodeWindows1252(const QByteArray &bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar &character : text) {
        if (character >= u'\x80' && character <= u'\x9F')
            character = kWindowsCharacters[character.unicode() - 0x80U];
    }
    return text;
}

} // namespace

QString decodeText(const QByteArray &bytes)
{
    const QByteArrayView view(bytes);
    if (bytes.startsWith("\xEF\xBB\xBF"))
        return decodeAs(QStringConverter::Utf8, view.sliced(3));
    if (bytes.startsWith("\xFF\xFE"))
        return decodeAs(QStringConverter::Utf16LE, view.sliced(2));
    if (bytes.startsWith("\xFE\xFF"))
        return decodeAs(QStringConverter::Utf16BE, view.sliced(2));
    if (bytes.isValidUtf8())
        return QString::fromUtf8(bytes);
    return decodeWindows1252(bytes);
}
