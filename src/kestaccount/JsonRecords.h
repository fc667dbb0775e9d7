#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>

#include <type_traits>

namespace KestAccount {

// The records of an array, in its order. Anything but an array gives an empty list, an element that
// is no object a default record.
template <typename Parse> auto parseRecords(const QJsonValue &value, Parse parse)
{
    QList<std::invoke_result_t<Parse, const QJsonObject &>> records;
    const QJsonArray elements = value.toArray();
    records.reserve(elements.size());
    for (const QJsonValue &element : elements)
        records.append(parse(element.toObject()));
    return records;
}

} // namespace KestAccount
