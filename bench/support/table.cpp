#include "support/table.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace corvane::bench {

namespace {

double milliseconds(clockid_t clock)
{
    timespec time = {};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
}

std::string text(double value, const std::string &unit)
{
    char buffer[64];
    const int decimals = unit.empty() ? 0 : value < 10 ? 3 : 1;
    std::snprintf(buffer, sizeof buffer, "%.*f%s%s", decimals, value, unit.empty() ? "" : " ",
                  unit.c_str());
    return buffer;
}

std::string times(double ratio)
{
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.2fx", ratio);
    return buffer;
}

} // namespace

void print(const Row &row)
{
    const bool isMultiple = row.bound == Row::Bound::TimesFloor;
    const double ratio = row.floor > 0 ? row.measured / row.floor : 0;
    const bool isReached = (isMultiple ? ratio : row.measured) <= row.toReach;
    std::printf("%s\t%s\t%s\t%s\t%s\t%s\n", row.figure.c_str(), text(row.floor, row.unit).c_str(),
                text(row.measured, row.unit).c_str(), row.floor > 0 ? times(ratio).c_str() : "-",
                isMultiple ? times(row.toReach).c_str() : text(row.toReach, row.unit).c_str(),
                isReached ? "yes" : "NO");
    std::fflush(stdout);
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const auto middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double now()
{
    return milliseconds(CLOCK_MONOTONIC);
}

double processTime()
{
    return milliseconds(CLOCK_PROCESS_CPUTIME_ID);
}

double threadTime()
{
    return milliseconds(CLOCK_THREAD_CPUTIME_ID);
}

double cpuTimeOf(const std::function<void()> &work)
{
    constexpr int batches = 101;
    constexpr double batchTime = 4;
    // Warms the caches, and finds how many calls a batch needs to be measurable.
    int calls = 0;
    for (const double start = threadTime(); threadTime() - start < batchTime * 5; ++calls)
        work();
    const int callsPerBatch = std::max(1, calls / 5);
    std::vector<double> times;
    for (int batch = 0; batch < batches; ++batch) {
        const double start = processTime();
        for (int i = 0; i < callsPerBatch; ++i)
            work();
        times.push_back((processTime() - start) / callsPerBatch);
    }
    return median(times);
}

} // namespace corvane::bench
