// One animation frame of the shelf beside a bare fill of its pixels, and the publication of one
// thumbnail among many items beside the same among few.

#include "core/feedback.h"
#include "core/quick_actions.h"
#include "core/settings.h"
#include "core/shelf_store.h"
#include "fakes/fake_general_pasteboard.h"
#include "fakes/fake_login_items.h"
#include "fakes/fake_pointer.h"
#include "fakes/fake_screens.h"
#include "fakes/memory_user_defaults.h"
#include "fakes/recording_item_loading.h"
#include "fakes/shelf_desk.h"
#include "input/screen_locator.h"
#include "platform/qt/qt_text_measurer.h"
#include "shelf/hud_controller.h"
#include "support/table.h"

#include <QGuiApplication>
#include <QPainter>

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
        settings.registerDefaults();
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
    ScreenLocator locator{screens, pointer};
    test::FakeGeneralPasteboard clipboard;
    QuickActions quickActions{clipboard, feedback};
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

/// Six items change places with the drop target around them, over and over: body, ring and cells
/// all move, in every frame.
double animationFrame()
{
    Shelf shelf(6);
    for (std::size_t i = 0; i < 6; ++i)
        shelf.giveThumbnail(i);
    QImage pixels = panelPixels();
    bool isReceptive = false;
    int frame = 0;
    return cpuTimeOf([&] {
        constexpr int framesBetweenChanges = 8;
        if (frame++ % framesBetweenChanges == 0) {
            isReceptive = !isReceptive;
            shelf.store.setDragInFlight(isReceptive);
            shelf.store.publishItems();
            shelf.desk.panel.setFrame({{0, 0}, QSizeF(panelSize)});
        }
        shelf.desk.clock.advance(1.0 / 60);
        paintFrame(pixels, *shelf.desk.panel.content);
        shelf.desk.panel.frames.clear();
        shelf.desk.panel.log.clear();
    });
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
    print({"CPU of an animation frame, 560x136 at scale 2", bareFill() * 1000,
           animationFrame() * 1000, "us", 4});
    print({"publishing a thumbnail, 10,000 items", publication(10) * 1000,
           publication(10'000) * 1000, "us", 2});
}
