#include "PairedBench.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <chrono>
#include <cstdio>
#include <fstream>

namespace {

using Seconds = std::chrono::duration<double>;

constexpr int kRepetitions = 15;
constexpr const char *kCounterpart = "counterpart"; // seconds
constexpr const char *kWanted = "wanted"; // ratio
constexpr const char *kPeak = "peak"; // kilobytes

Seconds timed(const std::function<void()> &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::steady_clock::now() - start;
}

// Lets the kernel's high-water mark of resident memory start anew from what is resident now.
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

// Google Benchmark calls a bench anew for each repetition; what it measures is built once.
struct BuiltPair
{
    std::string name{};
    Pair pair{};
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
        built = {line.name, build()};
        resetPeakMemory();
    }
    return built.pair;
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
    state.counters[kPeak] = peakKilobytes();
}

class PairTable : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &context) override
    {
        std::printf("%d cores; medians of %d runs, program and counterpart in turn\n\n",
                    context.cpu_info.num_cpus, kRepetitions);
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
        std::printf("%9.0f\n", run.counters.at(kPeak) / 1024);
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
        ->Repetitions(kRepetitions);
}

void runPairs()
{
    PairTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    builtPair() = {};
}
