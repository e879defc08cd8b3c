#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace corvane::bench {

/// One line of the table. What is to be reached is a multiple of the floor, or a value of its own.
struct Row {
    enum class Bound { TimesFloor, Value };

    std::string figure;
    double floor = 0;
    double measured = 0;
    std::string unit;
    double toReach = 0;
    Bound bound = Bound::TimesFloor;
};

/// Writes the row to the standard output, its columns separated by tabs.
void print(const Row &row);

/// Of at least one value.
double median(std::vector<double> values);

/// Milliseconds of a clock that only goes forward, the same in every process.
double now();
/// Milliseconds of CPU that this process, or this thread, has used.
double processTime();
double threadTime();

/// Milliseconds of CPU time that one call of `work` takes, on all threads: the median of many
/// batches.
double cpuTimeOf(const std::function<void()> &work);

} // namespace corvane::bench
