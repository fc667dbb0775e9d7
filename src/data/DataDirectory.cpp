#include "data/DataDirectory.h"

#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

QString dataDirectory()
{
    QString path = QString::fromUtf8(qgetenv("PURSEWELL_DATA_DIR"));
    if (path.isEmpty())
        path = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
            + u"/Kestrelwood/Pursewell"_s;
    QDir(path).mkpath(u"."_s);
    return path;
}

QString databasePath()
{
    return dataDirectory() + u"/pursewell.db"_s;
}
