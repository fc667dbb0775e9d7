#pragma once

#include <QString>
#include <QUuid>

QString newId(); // 36 characters, lower case, no braces

// The same id on every device for the same name space and seed.
QString deterministicId(const QUuid &nameSpace, const QString &seed);

const QUuid &categoryNamespace();
const QUuid &occurrenceNamespace();
