#pragma once

#include <QLatin1StringView>
#include <QString>

#include <array>
#include <cstddef>

// The stored words of an enumeration, at the index that each enumerator has as a number. What
// stands outside the table on either side becomes the given fallback: another version of the
// program may have written it.
template <std::size_t Size> using EnumWords = std::array<QLatin1StringView, Size>;

template <typename Enum, std::size_t Size>
QString enumToWord(const EnumWords<Size> &words, Enum value, Enum fallback)
{
    const auto index = static_cast<std::size_t>(value);
    return index < Size ? words[index] : words[static_cast<std::size_t>(fallback)];
}

// Compares exactly, case included.
template <typename Enum, std::size_t Size>
Enum enumFromWord(const EnumWords<Size> &words, const QString &word, Enum fallback)
{
    for (std::size_t index = 0; index < Size; ++index) {
        if (words[index] == word)
            return static_cast<Enum>(index);
    }
    return fallback;
}
