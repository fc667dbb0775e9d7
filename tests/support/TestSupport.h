#pragma once

#include <QStringList>
#include <QTemporaryDir>
#include <QWidget>

// Points the settings, the data directory and the locale of this process at a scratch directory,
// so that no test reads or writes a person's data. Construct it before the QApplication.
class TestEnvironment
{
public:
    TestEnvironment();
    QString path(const QString &name) const; // a path inside the scratch directory

private:
    QTemporaryDir m_directory;
};

// Collects the log lines of its lifetime instead of printing them.
class LogCatcher
{
public:
    LogCatcher();
    ~LogCatcher();
    LogCatcher(const LogCatcher &) = delete;
    LogCatcher &operator=(const LogCatcher &) = delete;

    static QStringList warnings(); // warning level only
    static QStringList criticals(); // critical level only
    static QStringList infos();
};

// For its lifetime the process lives in that time zone.
class ZoneChange
{
public:
    explicit ZoneChange(const QByteArray &zone);
    ~ZoneChange();
    ZoneChange(const ZoneChange &) = delete;
    ZoneChange &operator=(const ZoneChange &) = delete;

private:
    QByteArray m_before = qgetenv("TZ");
};

void showActive(QWidget *window, QSize size = {}); // its own size if none is given

// The one of that name that can be seen, or null.
template <typename Type> Type *visibleChild(const QWidget &parent, const QString &name)
{
    for (Type *child : parent.findChildren<Type *>(name)) {
        if (child->isVisible())
            return child;
    }
    return nullptr;
}

// The statement of a trigger that fails with the word "refused": "UPDATE ON accounts".
QString refusing(const QString &event);

// Runs one test class in a scratch environment with a QApplication. More arguments are statements
// that run before.
#define PURSEWELL_TEST_MAIN(TestClass, ...)                                                        \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        __VA_ARGS__;                                                                               \
        TestEnvironment environment;                                                               \
        QApplication application(argc, argv);                                                      \
        QCoreApplication::setOrganizationName(QStringLiteral("Kestrelwood"));                      \
        QCoreApplication::setApplicationName(QStringLiteral("Pursewell"));                         \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
