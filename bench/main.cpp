#include "BackupBenches.h"
#include "ImportBenches.h"
#include "PairedBench.h"
#include "ParseBenches.h"
#include "PayeeBenches.h"
#include "ReadBenches.h"
#include "ReconciliationBenches.h"
#include "RecurringBenches.h"
#include "ReportBenches.h"
#include "ScreenBenches.h"
#include "SyncBenches.h"

#include <QApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

// No bench reads or writes a person's settings.
void useScratchDirectory(const QTemporaryDir &directory)
{
    for (const char *variable :
         {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "HOME", "PURSEWELL_DATA_DIR"})
        qputenv(variable, directory.path().toUtf8());
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:"); // nor the keyring
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

// The table alone is wanted, not what the schema and the platform plugin have to say meanwhile.
void printFailuresAlone(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qUtf8Printable(text));
}

} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(printFailuresAlone);
    const QTemporaryDir scratch;
    useScratchDirectory(scratch);
    const QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(u"Kestrelwood"_s);
    QCoreApplication::setApplicationName(u"Pursewell"_s);
    if (importOnce(argc - 1, argv + 1) || backupOnce(argc - 1, argv + 1))
        return 0;
    benchmark::Initialize(&argc, argv);
    registerImportBenches(); // these two before a bench that keeps the program's one connection
    registerBackupBenches();
    registerReportBenches();
    for (const auto shape : {BenchDatabase::Shape::TenAccounts, BenchDatabase::Shape::OneAccount}) {
        registerReadBenches(shape);
        registerScreenBenches(shape);
        registerSyncBenches(shape);
    }
    registerParseBenches();
    registerRecurringBenches();
    registerReconciliationBenches();
    registerPayeeBenches();
    runPairs();
    return 0;
}
