#pragma once

#include "platform/display.h"
#include "platform/qt/base/qt_main_queue.h"
#include "platform/qt/desktop/qt_panel_window.h"
#include "platform/qt/desktop/qt_screens.h"
#include "platform/recording_content.h"
#include "platform/x11/base/x11_connection.h"
#include "platform/x11/drags/x11_drag_support.h"
#include "platform/x11/drags/x11_drop_support.h"
#include "platform/x11/windows/x11_panels.h"

#include <gtest/gtest.h>

namespace corvane::test {

/// A panel of 300 by 100 in the middle of a screen of 1512 by 982, its body 200 by 60 at the top.
class PanelFixture : public testing::Test {
protected:
    PanelFixture()
    {
        display.hands.moveTo({5, 900});
        panel.setContent(&content);
        panel.place(placementFor({600, 482, 300, 100}));
    }
    ~PanelFixture() override { panel.setContent(nullptr); }

    /// In global points, as `PanelWindow::frame`.
    PanelPlacement placementFor(const QRectF &frame) const
    {
        return placementOn(screens.mainScreen(), frame);
    }
    void show()
    {
        panel.orderFrontRegardless();
        ASSERT_TRUE(eventually([&] { return facts().isViewable && content.paints > 0; }));
    }
    void setBody()
    {
        QPainterPath outline;
        outline.addRect(body);
        panel.setBody(body, outline);
    }
    xcb_window_t id() { return static_cast<xcb_window_t>(panel.window().winId()); }
    e2e::WindowFacts facts() { return display.server.facts(id()).value_or(e2e::WindowFacts{}); }
    /// In Qt's coordinates, from the panel's top left.
    QPoint at(int x, int y) const { return QPoint(600, 400) + QPoint(x, y); }
    QColor colorAt(QPoint point) const
    {
        return display.server.picture({point, QSize(1, 1)}).pixelColor(0, 0);
    }

    const QRectF body{50, 40, 200, 60};
    Display display;
    QtMainQueue queue;
    QtScreens screens{queue};
    X11Connection connection;
    X11Panels panels{connection, queue};
    X11DropSupport dropSupport{connection, queue};
    X11DragSupport dragSupport{connection, queue};
    RecordingContent content;
    QtPanelWindow panel{panels.desktop(), queue, &dropSupport, &dragSupport};
};

} // namespace corvane::test
