#include "ImportBenches.h"

#include "ImportStage.h"
#include "PairedBench.h"

#include <QCoreApplication>
#include <QProcess>

#include <cstdio>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

using Format = ImportStage::Format;

constexpr const char *kOnce = "--import-once";
constexpr int kSmall = 10000;
constexpr int kLarge = 100000;

const char *nameOf(Format format)
{
    return format == Format::Qif ? "QIF" : "CSV";
}

// Each measurement begins with an empty register, so the large ones are few.
int repetitionsOf(int records)
{
    return records == kLarge ? 3 : 7;
}

double peakOfImport(Format format, int records)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(),
                  {QString::fromLatin1(kOnce), QString::fromLatin1(nameOf(format)),
                   QString::number(records)});
    process.waitForFinished(-1);
    return process.readAllStandardOutput().toDouble();
}

Pair importPair(Format format, int records)
{
    auto stage = std::make_shared<ImportStage>(format, records);
    stage->openRegister(false);
    stage->import();
    stage->readRows();
    Pair pair;
    pair.prepare = [stage] {
        stage->openRegister(false);
        stage->openPlain();
    };
    pair.program = [stage] { stage->import(); };
    pair.counterpart = [stage] { stage->writeRows(); };
    pair.peakKilobytes = [format, records] { return peakOfImport(format, records); };
    return pair;
}

Pair windowPair(Format format, int records)
{
    auto stage = std::make_shared<ImportStage>(format, records);
    Pair pair;
    pair.prepare = [stage] { stage->openRegister(true); };
    pair.program = [stage] { stage->import(); };
    pair.restore = [stage] { stage->openRegister(false); };
    pair.counterpart = pair.program;
    return pair;
}

} // namespace

void registerImportBenches()
{
    for (const Format format : {Format::Qif, Format::Csv}) {
        for (const int records : {kSmall, kLarge}) {
            const std::string name = std::string("import ") + std::to_string(records) + " "
                + nameOf(format) + " records";
            registerPair({name, 2.5, repetitionsOf(records)},
                         [format, records] { return importPair(format, records); });
            registerPair({name + ", window open", 1.1, repetitionsOf(records)},
                         [format, records] { return windowPair(format, records); });
        }
    }
}

bool importOnce(int count, char *arguments[])
{
    if (count != 3 || std::strcmp(arguments[0], kOnce) != 0)
        return false;
    const Format format =
        std::strcmp(arguments[1], nameOf(Format::Csv)) == 0 ? Format::Csv : Format::Qif;
    ImportStage stage(format, std::atoi(arguments[2]));
    stage.openRegister(false);
    resetPeakMemory();
    stage.import();
    std::printf("%.0f\n", peakKilobytes());
    return true;
}
