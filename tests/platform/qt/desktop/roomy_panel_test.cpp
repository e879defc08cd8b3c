// A panel whose window is larger than itself.

#include "platform/panel_fixture.h"

namespace corvane::test {

namespace {

/// Leaves room at both sides of a panel and below it; the rest is done by another one.
class RoomySurface : public PanelSurface {
public:
    static constexpr int room = 20;

    explicit RoomySurface(PanelSurface &other)
        : m_other(other)
    {
    }
    void adopt(QWindow &window) override { m_other.adopt(window); }
    PanelSpace place(QWindow &window, const PanelPlacement &placement) override
    {
        PanelPlacement larger = placement;
        larger.size += QSizeF(2 * room, room);
        const PanelSpace space = m_other.place(window, larger);
        return {space.window, space.panel + QPoint(room, 0)};
    }
    QScreen *screenOf(const QWindow &window) const override { return m_other.screenOf(window); }
    void willShow(QWindow &window) override { m_other.willShow(window); }
    void didHide(QWindow &window) override { m_other.didHide(window); }
    void setInputRegion(QWindow &window, const QRegion &region) override
    {
        m_other.setInputRegion(window, region);
    }
    void setBoundingRegion(QWindow &window, const QRegion &region) override
    {
        m_other.setBoundingRegion(window, region);
    }

private:
    PanelSurface &m_other;
};

class RoomyPanelTest : public testing::Test {
protected:
    RoomyPanelTest() { panel.setContent(&content); }
    ~RoomyPanelTest() override { panel.setContent(nullptr); }

    PanelDesktop roomyDesktop()
    {
        const PanelDesktop desktop = panels.desktop();
        return {roomy, desktop.keyboard, desktop.compositing, desktop.pointingDevices};
    }

    Display display;
    QtMainQueue queue;
    QtScreens screens{queue};
    X11Connection connection;
    X11Panels panels{connection, queue};
    RoomySurface roomy{panels.desktop().surface};
    RecordingContent content;
    QtPanelWindow panel{roomyDesktop(), queue, nullptr, nullptr};
};

} // namespace

TEST_F(RoomyPanelTest, nothingIsPaintedBeyondThePanelAlsoWhenItBecomesLower)
{
    panel.place({screens.mainScreen(), 0, {300, 100}});
    panel.orderFrontRegardless();
    ASSERT_TRUE(eventually([&] { return content.paints > 0; }));
    EXPECT_EQ(content.clip, QRectF(0, 0, 300, 100));
    content.paints = 0;
    panel.place({screens.mainScreen(), 0, {300, 60}});
    ASSERT_TRUE(eventually([&] { return content.paints > 0; }));
    EXPECT_EQ(content.clip, QRectF(0, 0, 300, 60));
}

} // namespace corvane::test
