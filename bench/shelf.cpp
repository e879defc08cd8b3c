// One animation frame of the shelf beside a bare fill of its pixels, and the publication of one
// thumbnail among many items beside the same among few.

#include "core/data_uris.h"
#include "core/feedback.h"
#include "core/quick_actions.h"
#include "core/settings.h"
#include "core/shelf_store.h"
#include "fakes/fake_clipboard.h"
#include "fakes/fake_login_items.h"
#include "fakes/fake_pointer.h"
#include "fakes/fake_screens.h"
#include "fakes/fake_work_queue.h"
#include "fakes/memory_user_defaults.h"
#include "fakes/recording_sources.h"
#include "fakes/shelf_desk.h"
#include "input/pointer_screen_locator.h"
#include "platform/qt/pictures/qt_text_measurer.h"
#include "shelf/hud_controller.h"
#include "support/table.h"

#include <QGuiApplication>
#include <QPainter>

#include <functional>
#include <optional>

namespace corvane::bench {

namespace {

constexpr QSize panelSize(560, 136);
constexpr double panelScale = 2;

Image picture(int index)
{
    QImage bitmap(60, 45, QImage::Format_RGB32);
    bitmap.fill(QColor::fromHsv(index * 50 % 360, 160, 220));
    return {bitmap, {30, 30}};
}

/// The whole shelf above the window system: store, controller and view on stand-ins.
struct Shelf {
    explicit Shelf(int count)
    {
        desk.panel.setFrame({{0, 0}, QSizeF(panelSize)});
        settings.setInViewCount(6);
        const auto screen = screens.attach(QRectF(0, 0, 1512, 982));
        pointer.position = QPointF(700, 900);
        controller.emplace(HUDController::Context{desk.context(), store, settings, feedback,
                                                  screens, locator, quickActions});
        QList<DropItem> items;
        for (int i = 0; i < count; ++i)
            items << test::ShelfDesk::fileItem(QStringLiteral("holiday picture %1.jpg").arg(i),
                                               QStringLiteral("JPG · 2.1 MB"));
        store.accept(items);
    }

    void giveThumbnail(std::size_t index)
    {
        thumbnails.requests[index].completion(picture(static_cast<int>(index)));
    }

    QtTextMeasurer measurer;
    test::ShelfDesk desk{QGuiApplication::font(), &measurer};
    test::MemoryUserDefaults defaults;
    test::FakeLoginItems loginItems;
    Settings settings{defaults, loginItems};
    Feedback feedback;
    test::RecordingThumbnails thumbnails;
    test::RecordingLinkPreviews linkPreviews;
    ShelfStore store{settings, desk.spool, thumbnails, linkPreviews, feedback};
    test::FakeScreens screens;
    test::FakePointer pointer;
    PointerScreenLocator locator{screens, pointer};
    test::FakeClipboard clipboard;
    test::FakeWorkQueue work;
    DataUris dataUris{desk.locality, desk.remoteFiles, work, desk.clock};
    QuickActions quickActions{clipboard, feedback, dataUris, desk.preparation, desk.savedPictures};
    std::optional<HUDController> controller;
};

QImage panelPixels()
{
    QImage pixels(panelSize * panelScale, QImage::Format_ARGB32_Premultiplied);
    pixels.setDevicePixelRatio(panelScale);
    return pixels;
}

/// What the panel's window does for one frame.
void paintFrame(QImage &pixels, PanelContent &content)
{
    QPainter painter(&pixels);
    const QRect everything({}, panelSize);
    painter.setClipRegion(everything);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(everything, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.translate(0, panelSize.height());
    painter.scale(1, -1);
    content.paint(painter, panelSize, panelScale);
}

/// The CPU time of a frame while six items on their shelf move; `change` sets them in motion anew.
double animationFrame(const std::function<void(Shelf &)> &change)
{
    Shelf shelf(6);
    for (std::size_t i = 0; i < 6; ++i)
        shelf.giveThumbnail(i);
    QImage pixels = panelPixels();
    int frame = 0;
    return cpuTimeOf([&] {
        constexpr int framesBetweenChanges = 15;
        if (frame++ % framesBetweenChanges == 0) {
            change(shelf);
            shelf.desk.panel.setFrame({{0, 0}, QSizeF(panelSize)});
        }
        shelf.desk.clock.advance(1.0 / 60);
        paintFrame(pixels, *shelf.desk.panel.content);
        shelf.desk.panel.frames.clear();
        shelf.desk.panel.log.clear();
    });
}

void slide(Shelf &shelf)
{
    shelf.store.toggleManually();
}

/// The body springs to another width, and its cells with it.
void changeWidth(Shelf &shelf)
{
    shelf.settings.setInViewCount(11 - shelf.settings.inViewCount());
}

/// The same, and the dashed ring comes and goes.
void becomeDropTarget(Shelf &shelf)
{
    if (shelf.store.isDragInFlight())
        shelf.store.dragEnded();
    else
        shelf.store.dragBegan();
}

double bareFill()
{
    QImage pixels = panelPixels();
    return cpuTimeOf([&] { QPainter(&pixels).fillRect(QRect({}, panelSize), Qt::black); });
}

double publication(int count)
{
    Shelf shelf(count);
    shelf.desk.clock.advance(3);
    std::size_t index = 0;
    return cpuTimeOf([&] {
        shelf.giveThumbnail(index++ % shelf.thumbnails.requests.size());
        shelf.desk.clock.advance(3);
        shelf.desk.panel.frames.clear();
        shelf.desk.panel.log.clear();
    });
}

} // namespace

} // namespace corvane::bench

int main(int argc, char **argv)
{
    using namespace corvane::bench;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    print({"CPU of a frame, 560x136 at scale 2, sliding", bareFill() * 1000,
           animationFrame(slide) * 1000, "us", 4});
    print({"CPU of a frame, changing its width", bareFill() * 1000,
           animationFrame(changeWidth) * 1000, "us", 4});
    print({"CPU of a frame, becoming a drop target", bareFill() * 1000,
           animationFrame(becomeDropTarget) * 1000, "us", 4});
    print({"publishing a thumbnail, 10,000 items", publication(10) * 1000,
           publication(10'000) * 1000, "us", 2});
}
