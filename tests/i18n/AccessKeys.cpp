#include "i18n/AccessKeys.h"

#include <QHash>
#include <QKeySequence>

using namespace Qt::StringLiterals;

QStringList accessKeyClashes(const QStringList &texts)
{
    QStringList clashes;
    QHash<QString, QString> takenBy;
    for (const QString &text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (key.isEmpty())
            continue;
        if (takenBy.contains(key))
            clashes << u"\"%1\" has the access key of \"%2\""_s.arg(text, takenBy.value(key));
        takenBy.insert(key, text);
    }
    return clashes;
}
