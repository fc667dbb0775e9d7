#include "core/program/Application.h"

#include "data/DataDirectory.h"
#include "shell/MainWindow.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

namespace {

const QString kLogArgument = u"--write-log"_s;

void writeLog()
{
    qDebug("traced");
    qInfo("told");
    qWarning("careful %%s");
    qCritical("broken");
}

}

// Runs inside the real Application, and the real program beside it.
class ApplicationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void logReachesTheErrorStream_data();
    void logReachesTheErrorStream();
    void programTellsWhatFailed_data();
    void programTellsWhatFailed();
    void languageIsChosen_data();
    void languageIsChosen();
    void identityAndResourcesStand();
    void unusableDirectoryIsReported();
    void windowOpensAndTheLastOneEndsTheRun();

private:
    QProcessEnvironment environmentWith(const QString &verbose) const;
    QString unusableDirectory() const { return m_directory->filePath(u"file/below"_s); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void ApplicationTest::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QFile file(m_directory->filePath(u"file"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

QProcessEnvironment ApplicationTest::environmentWith(const QString &verbose) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_RUNTIME_DIR"_s, m_directory->path()); // Qt warns without one
    if (!verbose.isNull())
        environment.insert(u"PURSEWELL_VERBOSE"_s, verbose);
    return environment;
}

void ApplicationTest::logReachesTheErrorStream_data()
{
    QTest::addColumn<QString>("verbose");
    QTest::addColumn<QByteArray>("log");

    QTest::newRow("unset") << QString() << QByteArray("WARN: careful %s\nbroken\n");
    QTest::newRow("empty") << u""_s << QByteArray("WARN: careful %s\nbroken\n");
    QTest::newRow("set") << u"0"_s << QByteArray("traced\ntold\ncareful %s\nbroken\n");
}

void ApplicationTest::logReachesTheErrorStream()
{
    QFETCH(QString, verbose);
    QFETCH(QByteArray, log);

    QProcess process;
    process.setProcessEnvironment(environmentWith(verbose));
    process.start(QCoreApplication::applicationFilePath(), {kLogArgument});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardError(), log);
}

void ApplicationTest::programTellsWhatFailed_data()
{
    QTest::addColumn<QString>("verbose");
    QTest::addColumn<bool>("infoShown");

    QTest::newRow("unset") << QString() << false;
    QTest::newRow("set") << u"0"_s << true;
}

void ApplicationTest::programTellsWhatFailed()
{
    QFETCH(QString, verbose);
    QFETCH(bool, infoShown);

    QProcess program;
    QProcessEnvironment environment = environmentWith(verbose);
    environment.insert(u"PURSEWELL_DATA_DIR"_s, unusableDirectory());
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(PURSEWELL_PROGRAM), QStringList());
    QVERIFY(program.waitForStarted());
    QByteArray log;
    const auto hasFailed = [&] {
        log += program.readAllStandardError();
        return log.contains("Failed to open database:");
    };
    QTRY_VERIFY_WITH_TIMEOUT(hasFailed(), 30000);
    QCOMPARE(program.state(), QProcess::Running); // its message box waits for a person
    program.kill();
    program.waitForFinished();
    QCOMPARE(log.contains("Opening database at:"), infoShown);
}

void ApplicationTest::languageIsChosen_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("resolved");

    QTest::newRow("system, supported") << u"system"_s << u"de_AT"_s << u"de"_s;
    QTest::newRow("system, not supported") << u"system"_s << u"pt_BR"_s << u"en"_s;
    QTest::newRow("a code") << u"fr"_s << u"de_DE"_s << u"fr"_s;
    QTest::newRow("a code without a translation") << u"pt"_s << u"de_DE"_s << u"pt"_s;
    QTest::newRow("another case") << u"System"_s << u"de_DE"_s << u"System"_s;
}

void ApplicationTest::languageIsChosen()
{
    QFETCH(QString, stored);
    QFETCH(QString, locale);
    QFETCH(QString, resolved);

    const QLocale before;
    QLocale::setDefault(QLocale(locale));
    Application::setLanguage(stored);
    QCOMPARE(Application::currentLanguage(false), stored);
    QCOMPARE(Application::currentLanguage(true), resolved);
    QLocale::setDefault(before);
    QSettings().remove(u"ui/language"_s);
    QCOMPARE(Application::currentLanguage(false), u"system"_s);
}

void ApplicationTest::identityAndResourcesStand()
{
    QCOMPARE(QSettings().organizationName() + u'/' + QSettings().applicationName(),
             u"Kestrelwood/Pursewell"_s);
    QVERIFY(!QApplication::windowIcon().pixmap(64, 64).isNull());
    QVERIFY(QFontDatabase::families().contains(u"Material Icons"_s));
    // English plurals come from the installed translation.
    QCOMPARE(QCoreApplication::translate("StatusBar", "%n account(s)", nullptr, 1), u"1 account"_s);
}

void ApplicationTest::unusableDirectoryIsReported()
{
    qputenv("PURSEWELL_DATA_DIR", unusableDirectory().toUtf8());
    QString text;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || box->objectName() != u"databaseErrorBox"_s)
            return;
        timer.stop();
        text = box->text();
        QTest::keyClick(box, Qt::Key_Return);
    });
    timer.start(10);
    QCOMPARE(qobject_cast<Application *>(qApp)->run(), 1);
    QVERIFY2(text.contains(u"\n\nData directory: %1\n\n"_s.arg(unusableDirectory())),
             qPrintable(text));
    for (const QWidget *widget : QApplication::topLevelWidgets())
        QVERIFY(!qobject_cast<const MainWindow *>(widget));
}

void ApplicationTest::windowOpensAndTheLastOneEndsTheRun()
{
    qputenv("PURSEWELL_DATA_DIR", m_directory->path().toUtf8());
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&timer] {
        QWidget *window = QApplication::activeWindow();
        if (!window || !window->isVisible())
            return;
        timer.stop();
        window->close();
    });
    timer.start(10);
    QCOMPARE(qobject_cast<Application *>(qApp)->run(), 0);
    QVERIFY(QFile::exists(databasePath()));
}

int main(int argc, char *argv[])
{
    if (argc > 1 && argv[1] == kLogArgument.toLatin1()) { // started by the test of the log
        const Application application(argc, argv);
        writeLog();
        return 0;
    }
    const TestEnvironment environment;
    Application application(argc, argv);
    ApplicationTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "ApplicationTest.moc"
