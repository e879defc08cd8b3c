// Opening and paging the view-all bar among many items, beside the same among few: a page shows the
// same number of them.

#include "fakes/fake_drag_desktop.h"
#include "fakes/shelf_model.h"
#include "input/monitored_clicks.h"
#include "shelf/bar/view_all_controller.h"
#include "support/table.h"

#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <optional>

namespace corvane::bench {

namespace {

constexpr double scale = 2;

struct Bar : test::ShelfModel {
    explicit Bar(int count)
    {
        screen->frame = {0, 0, 750, 982};
        pointer.position = QPointF(300, 900);
        bar.emplace(
            ViewAllController::Context{{panel, desk.clock, desk.motion, desk.theme, desk.keyboard,
                                        desk.dragWriter, desk.savedPictures, desk.preparation},
                                       store,
                                       quickActions,
                                       clicks,
                                       feedback});
        HUDController::Context context = controllerContext();
        context.viewAll = &*bar;
        shelf.emplace(context);
        QList<DropItem> items;
        for (int i = 0; i < count; ++i)
            items << test::ShelfDesk::fileItem(QStringLiteral("holiday picture %1.jpg").arg(i));
        store.accept(items);
    }

    void setOpen(bool open)
    {
        if (store.isViewAllOpen() != open)
            store.toggleViewAll();
        desk.clock.advance(3);
    }
    void paint()
    {
        // The stand-ins remember everything.
        forget(desk.panel);
        forget(panel);
        const QSizeF size = panel.frame().size();
        QPainter painter(&m_pixels);
        painter.translate(0, size.height());
        painter.scale(1, -1);
        panel.content->paint(painter, size, scale);
    }

    test::FakePanelWindow panel;
    test::FakeDragDesktop desktop;
    MonitoredClicks clicks{desktop, desktop.pointer};
    std::optional<ViewAllController> bar;
    std::optional<HUDController> shelf;

private:
    static void forget(test::FakePanelWindow &window)
    {
        window.frames.clear();
        window.log.clear();
    }
    static QImage makePixels()
    {
        QImage pixels(QSize(600, 132) * scale, QImage::Format_ARGB32_Premultiplied);
        pixels.setDevicePixelRatio(scale);
        pixels.fill(Qt::transparent);
        return pixels;
    }
    QImage m_pixels = makePixels();
};

double opening(int count)
{
    Bar bar(count);
    return cpuTimeOf([&] {
        bar.setOpen(true);
        bar.paint();
        bar.setOpen(false);
    });
}

double paging(int count)
{
    Bar bar(count);
    bar.setOpen(true);
    int step = 1;
    return cpuTimeOf([&] {
        bar.bar->view().onScroll(step);
        step = -step;
        bar.paint();
    });
}

/// A thumbnail arrives while the bar is open.
double publication(int count)
{
    Bar bar(count);
    bar.setOpen(true);
    QImage bitmap(60, 45, QImage::Format_RGB32);
    bitmap.fill(Qt::darkCyan);
    std::size_t index = 0;
    return cpuTimeOf([&] {
        bar.thumbnails.requests[index++ % bar.thumbnails.requests.size()].completion(
            Image{bitmap, {30, 30}});
        bar.setOpen(true);
    });
}

/// The same among few items and among many, each the least disturbed of several that alternate:
/// what differs is small beside what a busy machine adds.
void compare(const char *name, double (*figure)(int))
{
    constexpr int few = 10;
    constexpr int many = 10'000;
    constexpr int rounds = 5;
    double floor = figure(few);
    double measured = figure(many);
    for (int i = 1; i < rounds; ++i) {
        floor = std::min(floor, figure(few));
        measured = std::min(measured, figure(many));
    }
    print({name, floor * 1000, measured * 1000, "us", 1.5});
}

} // namespace

} // namespace corvane::bench

int main(int argc, char **argv)
{
    using namespace corvane::bench;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    compare("opening the view-all bar, 10,000 items", opening);
    compare("paging it by one", paging);
    compare("publishing a thumbnail while it is open", publication);
}
