#include "BackupBenches.h"

#include "ImportStage.h"
#include "PairedBench.h"
#include "PlainBackup.h"
#include "PlainSqlite.h"

#include "data/Database.h"
#include "services/BackupService.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *kOnce = "--backup-once";
constexpr int kSmall = 10000;
constexpr int kLarge = 100000;

enum class Work {
    Export,
    Add, // into an empty register
    Replace, // what is there already
    KeepNewer, // what is there already, and older
};

constexpr const char *kNames[]{"export a backup of", "restore, all new,", "restore, all replaced,",
                               "restore, all newer,"};

BackupMergeMode modeOf(Work work)
{
    switch (work) {
    case Work::Export:
    case Work::Add:
        return BackupMergeMode::Skip;
    case Work::Replace:
        return BackupMergeMode::Replace;
    case Work::KeepNewer:
        return BackupMergeMode::KeepNewer;
    }
    Q_UNREACHABLE();
}

// An imported household and its archive, and copies of its register to work on.
class BackupStage
{
public:
    explicit BackupStage(int records)
    {
        {
            ImportStage household(ImportStage::Format::Qif, records);
            household.openRegister(false);
            household.import();
            QSqlQuery query(household.state()->database()->connection());
            if (!query.exec(u"VACUUM INTO '%1'"_s.arg(path("filled"))))
                qFatal("bench database: not copied");
        }
        open("empty", "empty"); // migrates it
        open("filled", "program");
        m_archive = exportOnce();
        m_archiveBytes = double(m_archive.size());
        m_rows = service().importBackup(m_archive, BackupMergeMode::Skip).skipped.total();
        m_tableBytes = largestTable();
    }

    void prepare(Work work)
    {
        const char *from = work == Work::Add ? "empty" : "filled";
        open(from, "program");
        copy(from, "plain");
        m_plain = std::make_unique<PlainSqlite>(path("plain"));
        if (work != Work::KeepNewer)
            return;
        for (const char *table : {"accounts", "categories", "transactions", "split_lines"}) {
            const QByteArray age = QByteArray("UPDATE ") + table + " SET updated_at = '2000'";
            m_plain->execute(age);
            PlainSqlite(path("program")).execute(age);
        }
    }

    QByteArray exportOnce() { return service().exportBackup(); }

    void run(Work work)
    {
        if (work == Work::Export) {
            if (double(exportOnce().size()) < m_archiveBytes * 0.9)
                qFatal("bench: an archive of less");
            return;
        }
        const BackupImportResult result = service().importBackup(m_archive, modeOf(work));
        if (result.imported.total() != m_rows || !result.errors.isEmpty())
            qFatal("bench: %d of %d rows restored", result.imported.total(), m_rows);
    }

    void runPlainly(Work work)
    {
        if (work == Work::Export)
            benchmark::DoNotOptimize(plainExport(*m_plain));
        else if (plainRestore(*m_plain, m_archive) != m_rows)
            qFatal("bench: not all rows restored");
    }

    // So that memory measured afterwards holds no archive but the new one.
    void forgetArchive() { m_archive = {}; }

    double archiveBytes() const { return m_archiveBytes; }
    double tableBytes() const { return m_tableBytes; }

private:
    BackupService service() { return BackupService(m_database.get()); }
    QString path(const char *name) const
    {
        return m_directory.filePath(QString::fromLatin1(name) + u".db"_s);
    }
    void copy(const char *from, const char *to)
    {
        m_plain.reset();
        for (const QString &left : {u""_s, u"-wal"_s, u"-shm"_s})
            QFile::remove(path(to) + left);
        if (!QFile::copy(path(from), path(to)))
            qFatal("bench database: not copied");
    }
    void open(const char *from, const char *name)
    {
        m_database.reset();
        if (qstrcmp(from, name) != 0)
            copy(from, name);
        m_database = std::make_unique<Database>();
        if (!m_database->open(path(name)) || !m_database->migrate())
            qFatal("bench database: not opened");
    }
    double largestTable() const
    {
        const QByteArray sizes = "SELECT SUM(pgsize) FROM dbstat WHERE name = 'transactions'";
        return PlainSqlite(path("filled")).firstColumn(sizes).value(0).toDouble();
    }

    QTemporaryDir m_directory{};
    std::unique_ptr<Database> m_database{};
    std::unique_ptr<PlainSqlite> m_plain{};
    QByteArray m_archive{};
    double m_archiveBytes = 0;
    int m_rows = 0;
    double m_tableBytes = 0;
};

struct Memory
{
    double peak = 0; // all in kilobytes
    double archive = 0;
    double table = 0;
};

// Asked of a process of its own, since the others hold what is measured beside it.
Memory memoryOf(Work work, int records)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(
        QCoreApplication::applicationFilePath(),
        {QString::fromLatin1(kOnce), QString::number(int(work)), QString::number(records)});
    process.waitForFinished(-1);
    const QList<QByteArray> words = process.readAllStandardOutput().simplified().split(' ');
    if (words.size() != 3)
        qFatal("bench: no figures");
    return {words.at(0).toDouble(), words.at(1).toDouble(), words.at(2).toDouble()};
}

Pair pairOf(Work work, int records)
{
    const auto stage = std::make_shared<BackupStage>(records);
    return {
        .prepare = [stage, work] { stage->prepare(work); },
        .program = [stage, work] { stage->run(work); },
        .counterpart = [stage, work] { stage->runPlainly(work); },
        .peakKilobytes = [work, records] { return memoryOf(work, records).peak; },
        .megabytes = stage->archiveBytes() / 1e6,
    };
}

void printMemory(benchmark::State &state)
{
    std::printf("\n%-50s %9s %9s %9s %9s\n", "memory of a backup, MB", "archive", "table", "wanted",
                "peak");
    for ([[maybe_unused]] auto _ : state) {
        for (const Work work : {Work::Export, Work::Add}) {
            const Memory memory = memoryOf(work, kLarge);
            std::printf("%-22s %27d %9.1f %9.1f %9.1f %9.1f\n", kNames[int(work)], kLarge,
                        memory.archive / 1024, memory.table / 1024,
                        (3 * memory.archive + memory.table) / 1024, memory.peak / 1024);
            std::fflush(stdout);
        }
    }
}

} // namespace

void registerBackupBenches()
{
    for (const Work work : {Work::Export, Work::Add, Work::Replace, Work::KeepNewer}) {
        for (const int records : {kSmall, kLarge}) {
            const std::string name =
                std::string(kNames[int(work)]) + ' ' + std::to_string(records) + " records";
            registerPair({name, 2.5, records == kLarge ? 3 : 7},
                         [work, records] { return pairOf(work, records); });
        }
    }
    benchmark::RegisterBenchmark("memory of a backup", printMemory)->Iterations(1);
}

bool backupOnce(int count, char *arguments[])
{
    if (count != 3 || std::strcmp(arguments[0], kOnce) != 0)
        return false;
    const Work work = Work(std::atoi(arguments[1]));
    BackupStage stage(std::atoi(arguments[2]));
    stage.prepare(work);
    if (work == Work::Export)
        stage.forgetArchive();
    resetPeakMemory();
    stage.run(work);
    std::printf("%.0f %.0f %.0f\n", peakKilobytes(), stage.archiveBytes() / 1024,
                stage.tableBytes() / 1024);
    return true;
}
