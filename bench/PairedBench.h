#pragma once

#include <chrono>
#include <functional>
#include <string>

// Something the program does and its counterpart, which together make one line of the table.
struct Pair
{
    std::function<void()> prepare{}; // runs before each measurement, not measured; may be empty
    std::function<void()> program{};
    std::function<void()> restore{}; // runs before the counterpart, not measured; may be empty
    std::function<void()> counterpart{};
    // When the program had done what is measured, if that was before it returned; may be empty.
    std::function<std::chrono::steady_clock::time_point()> finished{};
    std::function<double()> peakKilobytes{}; // empty: that of this process
    double megabytes = 0; // that the program takes in; its line then tells MB/s as well
};

// A pair's line: what it is called, and the ratio wanted at most, 0 where none is.
struct PairLine
{
    std::string name{};
    double wanted_ratio = 0;
    int repetitions = 15;
};

// Registers a line. `build` runs when its turn comes, and what it returns lives until the line is
// measured. Program and counterpart take turns, so that a busy machine slows both alike.
void registerPair(const PairLine &line, std::function<Pair()> build);

// Runs what is registered and prints the table of medians.
void runPairs();

// Lets the kernel's high-water mark of resident memory start anew from what is resident now.
void resetPeakMemory();
double peakKilobytes();
