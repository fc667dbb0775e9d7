#pragma once

#include <QString>
#include <QStringView>

// A key for names that are the same but for their case: two names have the same key exactly if
// QString::compare() with Qt::CaseInsensitive calls them equal. Neither toLower() nor
// QString::toCaseFolded() will do: the first keeps σ and ς apart, the second makes ss of ß.
QString foldedName(QStringView name);
