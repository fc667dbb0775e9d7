#pragma once

#include "services/QifRecords.h"

#include <QString>
#include <QStringView>

// What a category line names: a category, or the other account of a transfer. One of them is empty.
struct QifCategoryField
{
    QString category{};
    QString transferAccount{};

    bool operator==(const QifCategoryField &) const = default;
};

// Reads a Quicken Interchange Format file that was decoded with decodeText(). Never fails: what it
// cannot use it counts.
QifParseResult parseQif(const QString &text, QifDateOrder order);

QifCategoryField parseCategoryField(QStringView text);

// What the lines under this header line belong to.
QifSection classifyHeader(QStringView line);
QifAccountKind accountKindOf(QStringView line);
