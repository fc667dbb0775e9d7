#pragma once

#include "core/Language.h"

#include <QTest>

// One row for each language of the program, in the column "language".
inline void addLanguageRows()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : Language::supported())
        QTest::newRow(qPrintable(language)) << language;
}
