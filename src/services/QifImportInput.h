#pragma once

#include "services/ImportRecords.h"
#include "services/ImportRow.h"

#include <QStringList>

#include <optional>

// Where the sources of an import go, found by a name in any case; but a.qif and A.qif are two
// files.
class QifTargets
{
public:
    explicit QifTargets(const QifAccountMapping &mapping);
    QString accountFor(const QString &sourceKey) const; // empty: skipped, or not mapped

private:
    QifAccountMapping m_accountByKey;
    QHash<QString, QString> m_accountByLoweredKey{};
};

// All that the files of one import hold.
struct QifImportInput
{
    QList<ImportRow> rows{}; // in the order of the files
    QList<QifCategory> categories{}; // each name once
    int malformed = 0;
    int skipped = 0;
};

std::optional<QifParseResult> readQifFile(const QString &path); // absent: does not open

QifImportInput readQifFiles(const QStringList &paths, const QifTargets &targets);
