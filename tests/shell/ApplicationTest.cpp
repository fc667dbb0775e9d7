#include "core/program/Application.h"

#include "support/DialogAnswer.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

namespace {

const QString kChildArgument = u"--log-and-language"_s;
const QString kUnusable = u"/proc/pursewell"_s;

QString translatedCount()
{
    return QCoreApplication::translate("StatusBar", "%n account(s)", nullptr, 1);
}

// From Qt's own catalogue.
QString translatedButton()
{
    return QCoreApplication::translate("QPlatformTheme", "Cancel");
}

}

// Runs inside the real Application, and others beside it.
class ApplicationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void logReachesTheErrorStream_data();
    void logReachesTheErrorStream();
    void programTellsWhatFailed();
    void languageIsChosen_data();
    void languageIsChosen();
    void identityAndResourcesStand();
    void unusableDirectoryIsReported();

private:
    // A process that writes a line of each kind to the log, and its language to its output.
    static void runChild(QProcess &child, const QString &variable, const QString &value);
};

void ApplicationTest::runChild(QProcess &child, const QString &variable, const QString &value)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!value.isNull())
        environment.insert(variable, value);
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(), {kChildArgument});
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.exitCode(), 0);
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
    QProcess child;
    runChild(child, u"PURSEWELL_VERBOSE"_s, verbose);
    QTEST(child.readAllStandardError(), "log");
}

void ApplicationTest::programTellsWhatFailed()
{
    qputenv("PURSEWELL_DATA_DIR", kUnusable.toUtf8());
    QProcess program;
    program.start(QStringLiteral(PURSEWELL_PROGRAM), QStringList());
    QByteArray log;
    QTRY_VERIFY_WITH_TIMEOUT(
        (log += program.readAllStandardError()).contains("Failed to open database:"), 30000);
    QVERIFY(!log.contains("Opening database at:"));
    QCOMPARE(program.state(), QProcess::Running); // its message box waits for a person
    program.kill();
    program.waitForFinished();
}

void ApplicationTest::languageIsChosen_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QByteArray>("chosen");
    QTest::newRow("system") << u"system"_s << u"de_AT.UTF-8"_s
                            << QByteArray("de 1 Konto Abbrechen");
    QTest::newRow("not supported")
        << u"system"_s << u"pt_BR.UTF-8"_s << QByteArray("en 1 account Cancel");
    QTest::newRow("a code") << u"fr"_s << u"en_US.UTF-8"_s << QByteArray("fr 1 compte Annuler");
}

void ApplicationTest::languageIsChosen()
{
    QFETCH(QString, stored);
    QFETCH(QString, locale);
    Application::setLanguage(stored);
    QProcess child;
    runChild(child, u"LC_ALL"_s, locale);
    QTEST(child.readAllStandardOutput(), "chosen");
}

void ApplicationTest::identityAndResourcesStand()
{
    QCOMPARE(QSettings().organizationName() + u'/' + QSettings().applicationName(),
             u"Kestrelwood/Pursewell"_s);
    QVERIFY(!QApplication::windowIcon().pixmap(64, 64).isNull());
    QVERIFY(QFontDatabase::families().contains(u"Material Icons"_s));
    QCOMPARE(translatedCount(), u"1 account"_s); // English plurals are a translation too
}

void ApplicationTest::unusableDirectoryIsReported()
{
    qputenv("PURSEWELL_DATA_DIR", kUnusable.toUtf8());
    QString text;
    const DialogAnswer answer(u"databaseErrorBox"_s, [&text](QDialog *box) {
        text = qobject_cast<QMessageBox *>(box)->text();
        QTest::keyClick(box, Qt::Key_Return);
    });
    QCOMPARE(qobject_cast<Application *>(qApp)->run(), 1);
    QVERIFY2(text.contains(u"\n\nData directory: %1\n\n"_s.arg(kUnusable)), qPrintable(text));
}

int main(int argc, char *argv[])
{
    if (argc > 1 && argv[1] == kChildArgument.toLatin1()) {
        const Application application(argc, argv);
        qDebug("traced");
        qInfo("told");
        qWarning("careful %%s");
        qCritical("broken");
        QTextStream(stdout) << Application::currentLanguage(true) << ' ' << translatedCount() << ' '
                            << translatedButton();
        return 0;
    }
    const TestEnvironment environment;
    qputenv("XDG_RUNTIME_DIR", environment.path(u"."_s).toUtf8()); // Qt warns without one
    Application application(argc, argv);
    ApplicationTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "ApplicationTest.moc"
