#include "services/NameFolding.h"

QString foldedName(QStringView name)
{
    QString folded;
    folded.reserve(name.size());
    for (qsizetype i = 0; i < name.size(); ++i) {
        const QChar unit = name.at(i);
        if (unit.isHighSurrogate() && i + 1 < name.size() && name.at(i + 1).isLowSurrogate())
            folded +=
                QChar::fromUcs4(QChar::toCaseFolded(QChar::surrogateToUcs4(unit, name.at(++i))));
        else
            folded += unit.toCaseFolded();
    }
    return folded;
}
