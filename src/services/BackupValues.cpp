#include "services/BackupValues.h"

namespace {

// All columns of numbers hold integers. A fraction beyond 64 bits has none to become.
qint64 integerFrom(const QJsonValue &number)
{
    const QVariant value = number.toVariant();
    if (value.typeId() != QMetaType::Double)
        return value.toLongLong();
    return qAbs(value.toDouble()) < 9.2e18 ? qRound64(value.toDouble()) : 0;
}

} // namespace

QJsonValue backupValue(const QVariant &column)
{
    if (column.isNull())
        return QJsonValue::Null;
    switch (column.typeId()) {
    case QMetaType::Bool:
        return column.toBool() ? 1 : 0;
    case QMetaType::Int:
    case QMetaType::LongLong:
        return column.toLongLong();
    case QMetaType::Double:
        return column.toDouble();
    default:
        return column.toString();
    }
}

QVariant columnValue(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        return {};
    case QJsonValue::Double:
        return integerFrom(value);
    default:
        return value.toVariant();
    }
}
