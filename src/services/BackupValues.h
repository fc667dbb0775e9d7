#pragma once

#include <QJsonValue>
#include <QVariant>

// A column's value as a backup holds it, and the other way round.
QJsonValue backupValue(const QVariant &column);

// To be bound to a statement. A list or an object becomes the empty text there.
QVariant columnValue(const QJsonValue &value);
