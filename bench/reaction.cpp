// From the first dragged event after the drag pasteboard changed to the panel's window and its
// first pixels, beside a bare X11 program that maps and fills a window on the same event.

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

struct Reaction {
    double mapped;
    double seen;
};

Reaction reactionToDrag(XDesk &desk)
{
    const int x = desk.width() / 2;
    const int y = desk.height() / 2;
    desk.moveTo(x, y);
    desk.press();
    desk.takeDragSelection();
    // Whoever listens has gone back to sleep when the pointer moves on.
    std::this_thread::sleep_for(20ms);

    const double start = now();
    desk.moveTo(x + 12, y);
    if (!desk.waitForPanel(true))
        throw std::runtime_error("no panel");
    const double mapped = now() - start;
    while (!desk.showsSomething()) {
        if (now() - start > 2000)
            throw std::runtime_error("the panel shows nothing");
    }
    const double seen = now() - start;

    desk.release();
    desk.waitForPanel(false);
    while (desk.showsSomething()) { }
    std::this_thread::sleep_for(50ms);
    return {mapped, seen};
}

Reaction medianReaction(XDesk &desk, const std::string &program)
{
    constexpr int drags = 31;
    const Child child(program);
    child.waitUntilQuiet();
    std::vector<double> mapped;
    std::vector<double> seen;
    // The first one makes what the others find ready.
    for (int i = 0; i <= drags; ++i) {
        const Reaction reaction = reactionToDrag(desk);
        if (i > 0) {
            mapped.push_back(reaction.mapped);
            seen.push_back(reaction.seen);
        }
    }
    return {median(mapped), median(seen)};
}

} // namespace

int main()
{
    XDesk desk;
    const std::string where = desk.isComposited() ? ", composited" : ", not composited";
    desk.coverWithWhite();
    desk.watchWindows();
    const Reaction floor = medianReaction(desk, "bare_panel");
    const Reaction corvane = medianReaction(desk, "corvane");
    constexpr auto value = Row::Bound::Value;
    print({"drag noticed to panel mapped" + where, floor.mapped, corvane.mapped, "ms", 5, value});
    print({"drag noticed to first pixels" + where, floor.seen, corvane.seen, "ms", 16, value});
}
