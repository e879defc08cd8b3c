// Ten thousand ticked items that are removed at once, with an icon in a tray that tells how many
// there are: what it costs the main thread, and for how long it is away from its event loop.

#include "app/composition_root.h"
#include "support/child.h"
#include "support/heartbeat.h"
#include "support/table.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QWidget>

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace corvane::bench {

namespace {

constexpr int itemCount = 10'000;

/// A panel with nothing in it but a tray.
void configureTray()
{
    const QString folder
        = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/tint2";
    QDir().mkpath(folder);
    QFile file(folder + u"/tint2rc");
    file.open(QFile::WriteOnly);
    file.write("panel_items = S\npanel_size = 300 32\nsystray_icon_size = 24\n");
}

void runUntil(const std::function<bool()> &isDone)
{
    const double patience = now() + 30'000;
    Heartbeat().runUntil([&] { return isDone() || now() > patience; });
    if (!isDone())
        throw std::runtime_error("waited in vain");
}

void rest(double milliseconds)
{
    const double end = now() + milliseconds;
    Heartbeat().runUntil([&] { return now() > end; });
}

bool isInTray()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    return std::any_of(widgets.begin(), widgets.end(), [](const QWidget *widget) {
        return widget->inherits("QSystemTrayIconSys") && widget->isVisible();
    });
}

/// Spooled files, so that each has to be deleted too.
QList<DropItem> makeItems(ScratchSpool &spool)
{
    QList<DropItem> items;
    for (int i = 0; i < itemCount; ++i) {
        const QString name = QStringLiteral("some note %1").arg(i);
        const auto url = spool.store("text", name, QStringLiteral("txt"));
        if (!url)
            throw std::runtime_error("there is no spool");
        items << DropItem(DropItem::File{*url}, name, QStringLiteral("TXT · 4 bytes"), true);
    }
    return items;
}

bool isSpoolEmpty(const ScratchSpool &spool)
{
    return QDir(spool.directory().toLocalFile()).isEmpty();
}

double emptyTurns()
{
    const double start = threadTime();
    rest(1000);
    return threadTime() - start;
}

void measure(CompositionRoot &root)
{
    runUntil(isInTray);
    std::vector<double> times;
    Heartbeat heartbeat;
    constexpr int runs = 5;
    for (int i = 0; i < runs; ++i) {
        root.store.accept(makeItems(root.spool));
        runUntil([&] {
            return std::all_of(root.store.items().begin(), root.store.items().end(),
                               [](const DropItem &item) { return item.thumbnail().has_value(); });
        });
        root.store.toggleViewAll();
        rest(1000);
        // What the beat itself costs in the same time.
        const double idle = emptyTurns();
        const double start = threadTime();
        const double end = now() + 1000;
        root.mainQueue.async([&] { root.store.removeSelected(); });
        heartbeat.runUntil([&] { return now() > end; });
        times.push_back(threadTime() - start - idle);
        runUntil([&] { return root.store.items().isEmpty() && isSpoolEmpty(root.spool); });
    }
    print({"removing 10,000 ticked items, with a tray, CPU", 0,
           *std::min_element(times.begin(), times.end()), "ms", 50, Row::Bound::Value});
    printStalls("longest stall of five times", {}, heartbeat);
}

} // namespace

} // namespace corvane::bench

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    corvane::bench::configureTray();
    const corvane::bench::Child tray("/usr/bin/tint2");
    corvane::CompositionRoot root(corvane::SessionKind::X11, [] {});
    root.delegate.applicationDidFinishLaunching();
    corvane::bench::measure(root);
    root.delegate.applicationWillTerminate();
}
