#include "core/Ids.h"

using namespace Qt::StringLiterals;

QString newId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

QString deterministicId(const QUuid &nameSpace, const QString &seed)
{
    return QUuid::createUuidV5(nameSpace, seed.toUtf8()).toString(QUuid::WithoutBraces);
}

const QUuid &categoryNamespace()
{
    static const QUuid dns(u"{6ba7b810-9dad-11d1-80b4-00c04fd430c8}"_s); // of RFC 4122
    return dns;
}

const QUuid &occurrenceNamespace()
{
    static const QUuid own(u"{3f6c1e52-8a4d-4b17-a2c9-5e70d1b8c346}"_s);
    return own;
}
