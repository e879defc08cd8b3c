// Start, memory and wake-ups, seen from outside, beside an empty program with Qt Widgets.

#include "support/child.h"
#include "support/simple_drop.h"
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

double startOf(const std::string &program)
{
    Child child(program);
    const std::string line = child.readLine();
    return std::stod(line) - child.startTime();
}

void measureStart()
{
    constexpr int runs = 31;
    std::vector<double> empty;
    std::vector<double> corvane;
    // The first of each only warms the disk cache.
    for (int i = 0; i <= runs; ++i) {
        empty.push_back(startOf("empty_widgets_start"));
        corvane.push_back(startOf("corvane_start"));
    }
    empty.erase(empty.begin());
    corvane.erase(corvane.begin());
    print({"start to first event loop, warm", median(empty), median(corvane), "ms", 1.5});
}

struct Switches {
    long empty;
    long corvane;
};

/// The shelf then waits for the pointer at the top edge.
void hideWithSomething(XDesk &desk)
{
    desk.watchWindows();
    dropText(desk);
    desk.moveTo(100, desk.height() - 10);
    desk.pressHotKey();
    desk.releaseHotKey();
    if (!desk.waitForPanel(false))
        throw std::runtime_error("the shelf does not hide");
}

void moveOften(XDesk &desk)
{
    for (int i = 0; i < 1000; ++i) {
        desk.moveBy(i < 500 ? 2 : -2, i % 2 == 0 ? 3 : -3);
        // Apart, so that a program which hears them has to wake up for each.
        std::this_thread::sleep_for(2ms);
    }
    desk.sync();
    std::this_thread::sleep_for(100ms);
}

void measureAtRest()
{
    XDesk desk;
    desk.moveTo(100, desk.height() - 10);
    const Child empty("empty_widgets");
    const Child corvane("corvane");
    empty.waitUntilQuiet();
    corvane.waitUntilQuiet();
    constexpr double kilobytesPerMegabyte = 1000.0 / 1.024;
    print({"resident memory, shelf hidden", empty.residentKilobytes() / kilobytesPerMegabyte,
           corvane.residentKilobytes() / kilobytesPerMegabyte, "MB", 1.3});

    const auto switches = [&] {
        return Switches{empty.contextSwitches(), corvane.contextSwitches()};
    };
    const auto printSince = [&](const Switches &before, const char *figure, double toReach) {
        const Switches after = switches();
        print({figure, static_cast<double>(after.empty - before.empty),
               static_cast<double>(after.corvane - before.corvane), "", toReach,
               Row::Bound::Value});
    };

    const Switches beforeRest = switches();
    std::this_thread::sleep_for(20s);
    printSince(beforeRest, "wake-ups in 20 s idle", 0);

    const Switches beforeMoves = switches();
    moveOften(desk);
    printSince(beforeMoves, "wake-ups in 1000 pointer moves, no button", 5);

    hideWithSomething(desk);
    empty.waitUntilQuiet();
    corvane.waitUntilQuiet();
    const Switches beforeWatched = switches();
    moveOften(desk);
    printSince(beforeWatched, "the same while the top edge is watched", 5);
}

} // namespace

int main()
{
    measureStart();
    measureAtRest();
}
