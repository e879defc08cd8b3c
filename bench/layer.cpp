// The shelf in a Wayland session, seen from outside: from a drag's notice, and from a call, to its
// first pixels, beside a bare layer surface; wake-ups beside that, and memory beside an empty
// program of the same toolkit.
//
//     bench_layer sway|kwin [--no-xwayland]

#include "e2e/desktop/gtk_peer.h"
#include "support/child.h"
#include "support/layer_desk.h"
#include "support/table.h"

#include <QCoreApplication>

#include <chrono>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace corvane::bench;
using namespace std::chrono_literals;
using corvane::e2e::GtkPeer;

constexpr int runs = 15;
constexpr double mostTimes = 2;

struct Panel {
    std::string program;
    QString service;
};

const Panel &bare()
{
    static const Panel panel{"bare_layer", QStringLiteral("example.bare.Layer")};
    return panel;
}

const Panel &corvanePanel()
{
    static const Panel panel{"corvane", QStringLiteral(CORVANE_APPLICATION_ID)};
    return panel;
}

double reactionToDrag(LayerDesk &desk, const GtkPeer &source, const DragNotices &notices)
{
    auto &hands = desk.hands();
    hands.moveTo(source.source());
    std::this_thread::sleep_for(50ms);
    const double before = notices.latest();
    const double start = now();
    hands.press();
    for (double moved = now(); !desk.showsSomething();) {
        if (now() - start > 10'000)
            throw std::runtime_error("nothing is shown for a drag");
        if (notices.latest() == before && now() - moved > 5) {
            hands.moveBy({2, 1});
            moved = now();
        }
    }
    const double seen = now() - notices.latest();

    hands.release();
    std::this_thread::sleep_for(50ms);
    // With nothing in the hand over it, the drag is known to be over.
    const int middle = desk.desktop().server().size().width() / 2;
    for (int y = 20; desk.showsSomething(); y = 40 - y - 1) {
        if (now() - start > 20'000)
            throw std::runtime_error("the panel stays after a drag");
        hands.moveTo({middle, y});
        std::this_thread::sleep_for(5ms);
    }
    hands.moveTo({middle, 500});
    std::this_thread::sleep_for(100ms);
    return seen;
}

double medianReactionToDrag(LayerDesk &desk, const GtkPeer &source, const Panel &panel)
{
    const Child child(panel.program);
    child.waitUntilQuiet();
    const DragNotices notices;
    std::vector<double> seen;
    // The first one makes what the others find ready.
    for (int i = 0; i <= runs; ++i) {
        const double milliseconds = reactionToDrag(desk, source, notices);
        if (i > 0)
            seen.push_back(milliseconds);
    }
    return median(seen);
}

double medianReactionToCall(LayerDesk &desk, const Panel &panel)
{
    const Child child(panel.program);
    child.waitUntilQuiet();
    std::vector<double> seen;
    for (int i = 0; i <= runs; ++i) {
        const double start = now();
        desk.toggle(panel.service);
        const double milliseconds = desk.waitUntilItShows(true) - start;
        if (i > 0)
            seen.push_back(milliseconds);
        std::this_thread::sleep_for(500ms);
        desk.toggle(panel.service);
        desk.waitUntilItShows(false);
        std::this_thread::sleep_for(100ms);
    }
    return median(seen);
}

void measureReactions(LayerDesk &desk, const std::string &where)
{
    {
        GtkPeer source(desk.desktop(), {.text = QStringLiteral("text")}, {60, 400, 400, 200});
        if (!source.problem().isEmpty())
            throw std::runtime_error(source.problem().toStdString());
        const double floor = medianReactionToDrag(desk, source, bare());
        print({where + "drag noticed to first pixels", floor,
               medianReactionToDrag(desk, source, corvanePanel()), "ms", mostTimes});
    }
    desk.hands().moveTo({100, 900});
    const double floor = medianReactionToCall(desk, bare());
    print({where + "action to first pixels", floor, medianReactionToCall(desk, corvanePanel()),
           "ms", mostTimes});
}

/// Without what Qt loads for a graphics card, which would more than double it.
double memoryOfEmptyProgram()
{
    qputenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION", "none");
    const Child empty("empty_widgets");
    qunsetenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION");
    empty.waitUntilQuiet();
    return empty.residentKilobytes();
}

void measureAtRest(LayerDesk &desk, const std::string &where)
{
    const double empty = memoryOfEmptyProgram();
    const Child floor("bare_layer");
    const Child corvane("corvane");
    floor.waitUntilQuiet();
    corvane.waitUntilQuiet();
    constexpr double kilobytesPerMegabyte = 1000.0 / 1.024;
    print({where + "resident memory, shelf hidden", empty / kilobytesPerMegabyte,
           corvane.residentKilobytes() / kilobytesPerMegabyte, "MB", 1.3});

    const auto printSwitches = [&](const std::string &figure, const auto &meanwhile) {
        const long floorBefore = floor.contextSwitches();
        const long before = corvane.contextSwitches();
        meanwhile();
        print({where + figure, static_cast<double>(floor.contextSwitches() - floorBefore),
               static_cast<double>(corvane.contextSwitches() - before), "", 0, Row::Bound::Value});
    };
    printSwitches("wake-ups in 20 s idle", [] { std::this_thread::sleep_for(20s); });
    printSwitches("wake-ups in 1000 pointer moves elsewhere", [&] { desk.moveOften(); });
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const std::string compositor = arguments.value(1).toStdString();
    const bool hasXWayland = !arguments.contains(QStringLiteral("--no-xwayland"));
    LayerDesk desk(compositor, hasXWayland);
    const std::string where = compositor + (hasXWayland ? ": " : " without XWayland: ");
    if (hasXWayland)
        measureReactions(desk, where);
    measureAtRest(desk, where);
}
