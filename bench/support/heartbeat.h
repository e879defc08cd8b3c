#pragma once

#include "support/table.h"

#include <QEventLoop>
#include <QFile>
#include <QTimer>

#include <algorithm>
#include <string>

namespace corvane::bench {

/// Milliseconds that the main thread has waited for a processor which others had.
inline double waitForProcessor()
{
    QFile file(QStringLiteral("/proc/self/schedstat"));
    file.open(QFile::ReadOnly);
    return file.readAll().split(' ').value(1).toDouble() * 1e-6;
}

/// Runs the event loop until `isDone`, and measures the longest time from one look at what waits to
/// the next: a beat every millisecond, less that millisecond.
struct Heartbeat {
    double longestGap = 0;
    /// Without the time for which others had the processors.
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

/// Two rows of the longest stall, of what stands still for 16 ms at most.
inline void printStalls(const std::string &figure, const Heartbeat &floor,
                        const Heartbeat &measured)
{
    constexpr auto value = Row::Bound::Value;
    print({figure, floor.longestGap, measured.longestGap, "ms", 16, value});
    print({"the same less waits for a processor", floor.longestOwnGap, measured.longestOwnGap, "ms",
           16, value});
}

} // namespace corvane::bench
