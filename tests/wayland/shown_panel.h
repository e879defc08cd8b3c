#pragma once

#include "e2e/desktop/eventually.h"
#include "platform/desktop/screens.h"
#include "platform/wayland/windows/layer_panel_surface.h"
#include "wayland/fake_compositor.h"

#include <QBackingStore>
#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace corvane::test {

/// A panel that the compositor shows.
struct ShownPanel {
    explicit ShownPanel(LayerPanelSurface &panels)
        : surface(panels)
    {
        window.setSurfaceType(QSurface::RasterSurface);
        surface.adopt(window);
        placeAt(0);
        surface.willShow(window);
        window.show();
        paint();
        EXPECT_TRUE(e2e::eventually([this] { return seen().has_value(); }));
    }
    ~ShownPanel()
    {
        window.hide();
        surface.didHide(window);
        window.destroy();
        EXPECT_TRUE(e2e::eventually([this] { return !seen(); }));
    }
    ShownPanel(const ShownPanel &) = delete;
    ShownPanel &operator=(const ShownPanel &) = delete;

    static ScreenPointer screen()
    {
        Screen values;
        values.nativeFrame = QGuiApplication::primaryScreen()->geometry();
        values.frame = values.availableFrame = values.nativeFrame;
        return std::make_shared<Screen>(values);
    }
    /// As the compositor shows it.
    std::optional<FakeCompositor::Surface> seen() const
    {
        for (const auto &shown : compositor().shown()) {
            if (shown.size == space)
                return shown;
        }
        return std::nullopt;
    }
    /// So far to the right of the screen's middle.
    void placeAt(double fromMiddle)
    {
        space = surface
                    .place(window,
                           {.screen = screen(), .size = QSizeF(292, 56), .fromMiddle = fromMiddle})
                    .window;
    }
    /// These points of the window take clicks.
    void takeClicks(const QRect &points)
    {
        surface.setInputRegion(
            window,
            QRect(points.topLeft() * FakeCompositor::scale, points.size() * FakeCompositor::scale));
    }
    void paint()
    {
        // As panels are told to.
        QEvent update(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(&window, &update);
        const QRect all({}, window.size());
        store.resize(window.size());
        store.beginPaint(all);
        QPainter(store.paintDevice()).fillRect(all, Qt::red);
        store.endPaint();
        store.flush(all);
    }

    LayerPanelSurface &surface;
    QWindow window;
    /// Strips have the same label, but not its size.
    QSize space;
    QBackingStore store{&window};
};

} // namespace corvane::test
