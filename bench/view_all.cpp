// Opening and paging the view-all bar among many items, beside the same among few: a page shows the
// same number of them.

#include "fakes/fake_drag_desktop.h"
#include "fakes/shelf_model.h"
#include "shelf/view_all_controller.h"
#include "support/table.h"

#include <QGuiApplication>
#include <QPainter>

#include <optional>

namespace corvane::bench {

namespace {

constexpr double scale = 2;

struct Bar : test::ShelfModel {
    explicit Bar(int count)
    {
        settings.registerDefaults();
        screen->frame = {0, 0, 750, 982};
        pointer.position = QPointF(300, 900);
        bar.emplace(ViewAllController::Context{{panel, desk.clock, desk.motion, desk.theme,
                                                desk.keyboard, desk.dragWriter, desk.spool},
                                               store,
                                               quickActions,
                                               desktop,
                                               pointer,
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
        store.setViewAllOpen(open);
        store.publishItems();
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

} // namespace

} // namespace corvane::bench

int main(int argc, char **argv)
{
    using namespace corvane::bench;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    print({"opening the view-all bar, 10,000 items", opening(10) * 1000, opening(10'000) * 1000,
           "us", 1.5});
    print({"paging it by one", paging(10) * 1000, paging(10'000) * 1000, "us", 1.5});
    print({"publishing a thumbnail while it is open", publication(10) * 1000,
           publication(10'000) * 1000, "us", 1.5});
}
