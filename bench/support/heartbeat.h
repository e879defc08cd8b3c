#pragma once

#include "support/table.h"

#include <QEventLoop>
#include <QFile>
#include <QTimer>

#include <algorithm>
#include <string>

namespace corvane::bench {

/// How long, in milliseconds, the main thread has waited for a CPU while others ran.
inline double waitForProcessor()
{
    QFile file(QStringLiteral("/proc/self/schedstat"));
    file.open(QFile::ReadOnly);
    return file.readAll().split(' ').value(1).toDouble() * 1e-6;
}

/// Runs the event loop until `isDone`, with a timer of one millisecond, and measures the longest
/// gap between two ticks, less that millisecond. In milliseconds.
struct Heartbeat {
    double longestGap = 0;
    /// The longest gap without the time in which others had the CPU.
    double longestOwnGap = 0;

    template<typename Condition>
    void runUntil(Condition isDone)
    {
        double last = now();
        double lastWait = waitForProcessor();
        QEventLoop loop;
        QTimer beat;
        beat.setTimerType(Qt::PreciseTimer);
        QObject::connect(&beat, &QTimer::timeout, &loop, [&] {
            const double wait = waitForProcessor();
            const double gap = now() - last - 1;
            longestGap = std::max(longestGap, gap);
            longestOwnGap = std::max(longestOwnGap, gap - (wait - lastWait));
            last = now();
            lastWait = wait;
            if (isDone())
                loop.quit();
        });
        beat.start(1);
        loop.exec();
    }
};

/// Prints two rows of the longest gap; it should be at most 16 ms.
inline void printStalls(const std::string &figure, const Heartbeat &floor,
                        const Heartbeat &measured)
{
    constexpr auto value = Row::Bound::Value;
    print({figure, floor.longestGap, measured.longestGap, "ms", 16, value});
    print({"the same less waits for a processor", floor.longestOwnGap, measured.longestOwnGap, "ms",
           16, value});
}

} // namespace corvane::bench
