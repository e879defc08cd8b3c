// From the press of the hot key to the panel's window, beside a bare X11 program that grabs the
// same key and maps an empty window.

#include "support/child.h"
#include "support/table.h"
#include "support/x_desk.h"

#include <chrono>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace corvane::bench;
using namespace std::chrono_literals;

double millisecondsToMap(XDesk &desk)
{
    const double start = now();
    desk.pressHotKey();
    if (!desk.waitForPanel(true))
        throw std::runtime_error("no panel");
    const double mapped = now() - start;
    desk.releaseHotKey();
    // Pressed again in the same millisecond it would be a key that repeats.
    std::this_thread::sleep_for(50ms);
    desk.pressHotKey();
    if (!desk.waitForPanel(false))
        throw std::runtime_error("the panel stays");
    desk.releaseHotKey();
    // Whoever listens has gone back to sleep when the next one comes.
    std::this_thread::sleep_for(50ms);
    return mapped;
}

double medianToMap(XDesk &desk, const std::string &program)
{
    constexpr int presses = 31;
    const Child child(program);
    child.waitUntilQuiet();
    std::vector<double> mapped;
    // The first one makes what the others find ready.
    for (int i = 0; i <= presses; ++i) {
        const double milliseconds = millisecondsToMap(desk);
        if (i > 0)
            mapped.push_back(milliseconds);
    }
    return median(mapped);
}

} // namespace

int main()
{
    XDesk desk;
    desk.watchWindows();
    const double floor = medianToMap(desk, "bare_hot_key");
    const double corvane = medianToMap(desk, "corvane");
    print({"hot key to panel mapped", floor, corvane, "ms", 10, Row::Bound::Value});
}
