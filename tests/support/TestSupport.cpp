#include "support/TestSupport.h"

#include <QDir>
#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct CaughtLines
{
    QStringList warnings;
    QStringList criticals;
    QStringList infos;
};

CaughtLines &caughtLines()
{
    static CaughtLines lines;
    return lines;
}

QtMessageHandler previousHandler = nullptr;

void catchMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    switch (type) {
    case QtWarningMsg:
        caughtLines().warnings << text;
        return;
    case QtCriticalMsg:
    case QtFatalMsg:
        caughtLines().criticals << text;
        return;
    case QtInfoMsg:
    case QtDebugMsg:
        caughtLines().infos << text;
        return;
    }
}

} // namespace

TestEnvironment::TestEnvironment()
{
    for (const char *variable :
         {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "HOME", "PURSEWELL_DATA_DIR"}) {
        const QString directory = path(QString::fromLatin1(variable).toLower());
        QDir().mkpath(directory);
        qputenv(variable, directory.toUtf8());
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:"); // nor the keyring of the session
    qputenv("UPDATE_BASE_URL", "http://127.0.0.1:9/"); // where nobody answers
    qunsetenv("PURSEWELL_DEV");
    qunsetenv("PURSEWELL_VERBOSE");
}

QString TestEnvironment::path(const QString &name) const
{
    return m_directory.filePath(name);
}

ZoneChange::ZoneChange(const QByteArray &zone)
{
    qputenv("TZ", zone); // read anew at each conversion
}

ZoneChange::~ZoneChange()
{
    if (m_before.isNull())
        qunsetenv("TZ");
    else
        qputenv("TZ", m_before);
}

void showActive(QWidget *window, QSize size)
{
    if (size.isValid())
        window->resize(size);
    window->show();
    window->activateWindow();
    QVERIFY2(QTest::qWaitForWindowActive(window), qPrintable(window->objectName()));
}

QString refusing(const QString &event)
{
    return u"CREATE TRIGGER refusing BEFORE %1 BEGIN SELECT RAISE(ABORT, 'refused'); END"_s.arg(
        event);
}

LogCatcher::LogCatcher()
{
    caughtLines() = {};
    previousHandler = qInstallMessageHandler(catchMessage);
}

LogCatcher::~LogCatcher()
{
    qInstallMessageHandler(previousHandler);
}

QStringList LogCatcher::warnings()
{
    return caughtLines().warnings;
}

QStringList LogCatcher::criticals()
{
    return caughtLines().criticals;
}

QStringList LogCatcher::infos()
{
    return caughtLines().infos;
}
