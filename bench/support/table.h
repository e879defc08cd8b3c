#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace corvane::bench {

/// One row of the table. The bound is a multiple of the floor, or a value.
struct Row {
    enum class Bound { TimesFloor, Value };

    std::string figure;
    double floor = 0;
    double measured = 0;
    std::string unit;
    double toReach = 0;
    Bound bound = Bound::TimesFloor;
};

/// Prints the row to standard output, with tabs between its columns.
void print(const Row &row);

/// The median; `values` must not be empty.
double median(std::vector<double> values);

/// In milliseconds, on a monotonic clock that is the same in all processes.
double now();
/// The CPU time, in milliseconds, that this process or this thread has used.
double processTime();
double threadTime();

/// The CPU time in milliseconds, on all threads, of one call of `work`: the median of many batches.
double cpuTimeOf(const std::function<void()> &work);

} // namespace corvane::bench
