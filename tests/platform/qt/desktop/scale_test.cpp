// The panel on desktops that draw everything larger: what Qt counts in points, the server counts in
// pixels.

#include "platform/panel_scene.h"
#include "platform/scene.h"
#include "platform/two_monitors.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

struct Desktop {
    const char *name;
    double scale;
    /// Where the scale comes from: a variable of Qt's, or else the desktop's dots per inch.
    const char *factor;
};

class PanelScaleTest : public testing::TestWithParam<Desktop> {
protected:
    PanelScaleTest()
    {
        environment.remove(QStringLiteral("QT_SCALE_FACTOR"));
        if (GetParam().factor)
            environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QLatin1String(GetParam().factor));
        else
            setResource("Xft.dpi: " + QByteArray::number(qRound(96 * GetParam().scale)));
    }
    ~PanelScaleTest() override
    {
        if (!GetParam().factor)
            setResource("");
    }

    static void setResource(const QByteArray &line)
    {
        QProcess xrdb;
        xrdb.start(QStringLiteral("xrdb"), {QStringLiteral("-load"), QStringLiteral("-nocpp")});
        xrdb.write(line + '\n');
        xrdb.closeWriteChannel();
        EXPECT_TRUE(xrdb.waitForFinished() && xrdb.exitCode() == 0);
    }
    /// The pixels that a rectangle in points covers, each edge on the nearest one.
    static QRect pixels(const QRect &points)
    {
        const double scale = GetParam().scale;
        const int left = qRound(points.x() * scale);
        const int top = qRound(points.y() * scale);
        return {left, top, qRound((points.x() + points.width()) * scale) - left,
                qRound((points.y() + points.height()) * scale) - top};
    }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    Display display;
};

} // namespace

TEST_P(PanelScaleTest, standsAndTakesClicksOnExactPixels)
{
    Scene scene("panel", environment);
    ASSERT_TRUE(scene.waitFor("\n"));
    const auto window = scene.output.mid(6).trimmed().toUInt();
    ASSERT_TRUE(eventually([&] {
        const auto facts = display.server.facts(window);
        return facts && facts->isViewable;
    }));
    EXPECT_EQ(display.server.facts(window)->frame, pixels(panelSceneFrame));
    EXPECT_EQ(display.server.inputShape(window), QList<QRect>{pixels(panelSceneBody)});
    EXPECT_EQ(display.server.boundingShape(window), QList<QRect>{pixels(panelSceneBody)});
}

TEST_P(PanelScaleTest, hangsInTheMiddleOfItsScreenOnExactPixels)
{
    environment.insert(QLatin1String(panelSceneHangs), QStringLiteral("1"));
    Scene scene("panel", environment);
    ASSERT_TRUE(scene.waitFor("\n"));
    const auto window = scene.output.mid(6).trimmed().toUInt();
    const QSize size = panelSceneFrame.size();
    // The panel is an odd number of points wide and the screen an even one: half a point is rounded
    // to the right.
    const double left = (1512 / GetParam().scale - size.width()) / 2 + 0.5;
    const QRect frame = pixels({QPoint(static_cast<int>(left), panelSceneFromTop), size});
    EXPECT_TRUE(eventually([&] {
        const auto facts = display.server.facts(window);
        return facts && facts->isViewable && facts->frame == frame;
    }));
}

INSTANTIATE_TEST_SUITE_P(, PanelScaleTest,
                         testing::Values(Desktop{"One", 1, "1"}, Desktop{"OneAndAHalf", 1.5, "1.5"},
                                         Desktop{"Two", 2, "2"},
                                         Desktop{"OneAndAHalfByDotsPerInch", 1.5, nullptr},
                                         Desktop{"TwoByDotsPerInch", 2, nullptr}),
                         [](const auto &desktop) { return desktop.param.name; });

TEST(PanelOnScreensOfTwoScales, takesTheScaleOfTheScreenThatItMovesTo)
{
    const TwoMonitors monitors;
    Display display;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCREEN_SCALE_FACTORS"), QStringLiteral("left=1;right=2"));
    environment.insert(QLatin1String(panelSceneMove), QStringLiteral("650"));
    Scene scene("panel", environment);
    ASSERT_TRUE(scene.waitFor("\n"));
    const auto window = scene.output.mid(6).trimmed().toUInt();
    // The right screen begins at 700, in points as in pixels.
    const QRect frame(700 + 2 * 50, 2 * 100, 602, 202);
    EXPECT_TRUE(eventually([&] { return display.server.facts(window)->frame == frame; }));
    const QList<QRect> body{QRect(100, 0, 400, 120)};
    EXPECT_TRUE(eventually([&] { return display.server.inputShape(window) == body; }));
    EXPECT_TRUE(eventually([&] { return display.server.boundingShape(window) == body; }));
}

} // namespace corvane::test
