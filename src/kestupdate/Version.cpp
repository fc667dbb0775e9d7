#include "kestupdate/Version.h"

#include <QStringList>

#include <array>

namespace KestUpdate {

Version parseVersion(const QString &text)
{
    const QStringList parts = text.split(u'.');
    std::array<int, 3> numbers{};
    if (parts.size() > qsizetype(numbers.size()))
        return {};
    for (qsizetype index = 0; index < parts.size(); ++index) {
        bool isNumber = false;
        numbers[std::size_t(index)] = parts.at(index).toInt(&isNumber, 10);
        if (!isNumber)
            return {};
    }
    return {.major = numbers[0], .minor = numbers[1], .patch = numbers[2]};
}

} // namespace KestUpdate
