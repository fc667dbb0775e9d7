#include "core/program/MessageHandler.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <cstdio>

namespace {

void writeMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtDebugMsg || type == QtInfoMsg)
        return;
    const char *prefix = type == QtWarningMsg ? "WARN: " : "";
    std::fprintf(stderr, "%s%s\n", prefix, text.toLocal8Bit().constData());
}

}

void installMessageHandler()
{
    if (qEnvironmentVariableIsEmpty("PURSEWELL_VERBOSE"))
        qInstallMessageHandler(writeMessage);
}
