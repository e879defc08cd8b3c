// Larger texts and more contrast, as the desktop's settings ask for them while the program runs.

#include "e2e/desktop/settings_portal.h"
#include "e2e/wayland_session.h"

#include <algorithm>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

const SettingsPortal::Key gnomeScale{u"org.gnome.desktop.interface"_s, u"text-scaling-factor"_s};
const SettingsPortal::Key kdeFont{u"org.kde.kdeglobals.General"_s, u"font"_s};
const SettingsPortal::Key contrast{u"org.freedesktop.appearance"_s, u"contrast"_s};

class Appearance : public EveryDesktop {
protected:
    static constexpr int usual = CorvaneProgram::empty.height();
    static constexpr int enlarged = usual * 3 / 2;

    /// As the settings of one desktop or another. GNOME's scale is in the screens' under X11.
    void setTextPercent(int percent)
    {
        if (GetParam().windowManager == WindowManager::Sway)
            m_portal.set(gnomeScale, percent / 100.0);
        else
            m_portal.set(kdeFont, u"Noto Sans,%1,-1,5,50,0,0,0,0,0"_s.arg(percent / 10));
    }
    /// The shelf, empty and at rest.
    void showShelf(int height)
    {
        start();
        ASSERT_TRUE(corvane().activateAction(u"toggle"_s));
        ASSERT_TRUE(corvane().waitForHeight(height));
    }
    /// Whether the shelf, which is black, ends in a light line.
    bool hasEdge()
    {
        constexpr int width = 20;
        constexpr int height = 3;
        constexpr int light = 170;
        const QRect body = corvane().body();
        const QImage end = server().picture(
            {body.center().x() - width / 2, body.bottom() + 1 - height, width, height});
        for (int x = 0; x < width; ++x) {
            int lightest = 0;
            for (int y = 0; y < height; ++y)
                lightest = std::max(lightest, qGray(end.pixel(x, y)));
            if (lightest < light)
                return false;
        }
        return true;
    }

    SettingsPortal m_portal{m_desktop};
};

INSTANTIATE_TEST_SUITE_P(, Appearance,
                         testing::Values(DesktopKind{WindowManager::Openbox, Compositor::Picom},
                                         DesktopKind{WindowManager::Xfwm4, Compositor::None},
                                         sessionOf(WindowManager::Sway)),
                         nameOf);

TEST_P(Appearance, theShelfGrowsWithLargerTextsAndReturns)
{
    ASSERT_NO_FATAL_FAILURE(showShelf(usual));
    setTextPercent(150);
    EXPECT_TRUE(corvane().waitForHeight(enlarged));
    setTextPercent(100);
    EXPECT_TRUE(corvane().waitForHeight(usual));
}

TEST_P(Appearance, theShelfIsLargeFromTheStartWhereTextsAre)
{
    setTextPercent(150);
    ASSERT_NO_FATAL_FAILURE(showShelf(enlarged));
}

TEST_P(Appearance, theShelfHasAnEdgeWhileContrastIsWanted)
{
    ASSERT_NO_FATAL_FAILURE(showShelf(usual));
    EXPECT_FALSE(hasEdge());
    m_portal.set(contrast, 1U);
    EXPECT_TRUE(eventually([this] { return hasEdge(); }));
    m_portal.set(contrast, 0U);
    EXPECT_TRUE(eventually([this] { return !hasEdge(); }));
}

} // namespace
} // namespace corvane::e2e
