#include "PairedBench.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <chrono>
#include <cstdio>
#include <fstream>

namespace {

using Seconds = std::chrono::duration<double>;

constexpr const char *kCounterpart = "counterpart"; // seconds
constexpr const char *kWanted = "wanted"; // ratio
constexpr const char *kPeak = "peak"; // kilobytes
constexpr const char *kInput = "input"; // megabytes

Seconds timed(const std::function<void()> &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::steady_clock::now() - start;
}

// Google Benchmark calls a bench anew for each repetition; what it measures is built once.
struct BuiltPair
{
    std::string name{};
    Pair pair{};
    double peak = 0; // kilobytes, 0: not asked yet
};

BuiltPair &builtPair()
{
    static BuiltPair built;
    return built;
}

const Pair &pairOf(const PairLine &line, const std::function<Pair()> &build)
{
    BuiltPair &built = builtPair();
    if (built.name != line.name) {
        built = {};
        built = {line.name, build(), 0};
        resetPeakMemory();
    }
    return built.pair;
}

// Of the process as a whole it grows with each run; asked of another process it stays the same.
double peakOf(const Pair &pair)
{
    if (!pair.peakKilobytes)
        return peakKilobytes();
    double &peak = builtPair().peak;
    if (peak == 0)
        peak = pair.peakKilobytes();
    return peak;
}

void measure(benchmark::State &state, const PairLine &line, const Pair &pair)
{
    Seconds counterpart{};
    for ([[maybe_unused]] auto _ : state) {
        if (pair.prepare)
            pair.prepare();
        const auto start = std::chrono::steady_clock::now();
        const Seconds whole = timed(pair.program);
        const Seconds program = pair.finished ? Seconds(pair.finished() - start) : whole;
        state.SetIterationTime(program.count());
        if (pair.restore)
            pair.restore();
        counterpart += timed(pair.counterpart);
    }
    state.counters[kCounterpart] = counterpart.count() / double(state.iterations());
    state.counters[kWanted] = line.wanted_ratio;
    state.counters[kPeak] = peakOf(pair);
    state.counters[kInput] = pair.megabytes;
}

class PairTable : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &context) override
    {
        std::printf("%d cores; medians of 15 runs, program and counterpart in turn; imports of "
                    "10,000 records 7 times, of 100,000 3 times\n\n",
                    context.cpu_info.num_cpus);
        std::printf("%-50s %11s %13s %7s %7s %9s\n", "what", "program ms", "counterpart ms",
                    "ratio", "wanted", "peak MB");
        return true;
    }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.aggregate_name == "median")
                printLine(run);
        }
    }

private:
    static void printLine(const Run &run)
    {
        const double program = run.GetAdjustedRealTime();
        const double counterpart = run.counters.at(kCounterpart) * 1000;
        const double wanted = run.counters.at(kWanted);
        std::printf("%-50s %11.3f %14.3f %7.2f ", run.run_name.function_name.c_str(), program,
                    counterpart, program / counterpart);
        if (wanted > 0)
            std::printf("%7.1f ", wanted);
        else
            std::printf("%7s ", "-");
        std::printf("%9.0f", run.counters.at(kPeak) / 1024);
        const double input = run.counters.at(kInput);
        if (input > 0)
            std::printf("  %.0f MB/s", input / program * 1000);
        std::printf("\n");
        std::fflush(stdout);
    }
};

} // namespace

void registerPair(const PairLine &line, std::function<Pair()> build)
{
    benchmark::RegisterBenchmark(line.name.c_str(),
                                 [line, build = std::move(build)](benchmark::State &state) {
                                     measure(state, line, pairOf(line, build));
                                 })
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(line.repetitions);
}

void resetPeakMemory()
{
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5";
}

double peakKilobytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        double kilobytes = 0;
        if (word == "VmHWM:" && status >> kilobytes)
            return kilobytes;
    }
    return 0;
}

void runPairs()
{
    PairTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    builtPair() = {};
}
