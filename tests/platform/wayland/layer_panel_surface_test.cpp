// How panels are placed, and what is made of their windows' events. There is no compositor here.

#include "platform/desktop/screens.h"
#include "platform/wayland/base/wayland_connection.h"
#include "platform/wayland/windows/layer_panel_surface.h"
#include "platform/wayland/windows/layer_space.h"

#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QScreen>
#include <QWindow>

#include <gtest/gtest.h>

#include <memory>

namespace corvane::test {

namespace {

struct LayerPanelSurfaceTest : testing::Test {
    LayerPanelSurfaceTest()
    {
        surface.adopt(window);
        surface.adopt(other);
    }
    static ScreenPointer screenAt(QPoint topLeft)
    {
        Screen values;
        values.nativeFrame = QRect(topLeft, whole());
        values.frame = values.availableFrame = values.nativeFrame;
        return std::make_shared<Screen>(values);
    }
    static QSize whole() { return QGuiApplication::primaryScreen()->size(); }
    static QPoint origin() { return QGuiApplication::primaryScreen()->geometry().topLeft(); }
    static WindowNumber numberOf(const QWindow &window) { return WindowNumber{window.winId()}; }
    static void tell(QWindow &window, QEvent::Type type)
    {
        QEvent event(type);
        QCoreApplication::sendEvent(&window, &event);
    }

    ScreenPointer screen = screenAt(origin());
    WaylandConnection connection;
    LayerPanelSurface surface{connection};
    QWindow window;
    QWindow other;
};

} // namespace

TEST_F(LayerPanelSurfaceTest, aPanelHangsInTheMiddleOfItsScreenWithRoomToGrow)
{
    const PanelSpace space = surface.place(window, {.screen = screen, .size = QSizeF(292, 56)});
    EXPECT_EQ(space.window, QSize(292 + 2 * layer_space::roomAside, 56 + layer_space::roomBelow));
    EXPECT_EQ(space.panel, QPoint(layer_space::roomAside, 0));
    const int left = (whole().width() - 292) / 2 - layer_space::roomAside;
    EXPECT_EQ(window.geometry(), QRect(origin() + QPoint(left, 0), space.window));
    EXPECT_EQ(surface.screenOf(window), QGuiApplication::primaryScreen());
}

TEST_F(LayerPanelSurfaceTest, aPanelAwayFromTheMiddleAndTheEdgeHasItsPlaceInTheWindow)
{
    const PanelSpace space = surface.place(
        window, {.screen = screen, .fromTop = 40, .size = QSizeF(292, 56), .fromMiddle = -100});
    const QPoint topLeft = window.geometry().topLeft() - origin() + space.panel;
    EXPECT_EQ(topLeft, QPoint((whole().width() - 292) / 2 - 100, 40));
}

TEST_F(LayerPanelSurfaceTest, aHiddenPanelGetsNoMoreRoomThanItsNextPlaceNeeds)
{
    surface.place(window, {.screen = screen, .size = QSizeF(1000, 200)});
    const PanelSpace space = surface.place(window, {.screen = screen, .size = QSizeF(292, 56)});
    EXPECT_EQ(space.window.width(), 292 + 2 * layer_space::roomAside);
}

// As Qt does for windows that are hidden, and it shows what is painted in the size that they have.
TEST_F(LayerPanelSurfaceTest, aPanelIsShownAsLargeAsItWasPlacedWhateverItsWindowBecameMeanwhile)
{
    const PanelSpace space = surface.place(window, {.screen = screen, .size = QSizeF(292, 56)});
    const QRect placed = window.geometry();
    ASSERT_EQ(placed.size(), space.window);
    window.setGeometry(0, 0, 500, 500);
    surface.willShow(window);
    EXPECT_EQ(window.geometry(), placed);
}

TEST_F(LayerPanelSurfaceTest, aPanelThatIsShownAgainIsWhereItWasPlaced)
{
    surface.place(window, {.screen = screen, .fromTop = 54, .size = QSizeF(292, 56)});
    surface.willShow(window);
    const QRect placed = window.geometry();
    ASSERT_EQ(placed.top() - origin().y(), 54);
    surface.didHide(window);
    surface.willShow(window);
    EXPECT_EQ(window.geometry(), placed);
}

TEST_F(LayerPanelSurfaceTest, aPanelWithoutAScreenOrOnOneThatIsGoneIsOnTheMainOne)
{
    for (const ScreenPointer &nowhere : {ScreenPointer(), screenAt(origin() + QPoint(9000, 0))}) {
        surface.place(window, {.screen = nowhere, .size = QSizeF(292, 56)});
        EXPECT_EQ(surface.screenOf(window), QGuiApplication::primaryScreen());
    }
    const QWindow stranger;
    EXPECT_EQ(surface.screenOf(stranger), nullptr);
}

TEST_F(LayerPanelSurfaceTest, aPanelWithoutARegionTakesNoClicks)
{
    surface.place(window, {.screen = screen, .size = QSizeF(292, 56)});
    surface.setInputRegion(window, {});
    EXPECT_FALSE(window.mask().isEmpty());
    EXPECT_FALSE(window.mask().intersects(QRect({0, 0}, window.size())));
    surface.setInputRegion(window, QRect(160, 0, 292, 56));
    EXPECT_EQ(window.mask(), QRegion(160, 0, 292, 56));
}

TEST_F(LayerPanelSurfaceTest, onePanelAtATimeHasTheKeyboard)
{
    EXPECT_EQ(surface.panelWithKeyboard(), WindowNumber::None);
    surface.giveKeyboard(numberOf(window));
    EXPECT_EQ(surface.panelWithKeyboard(), numberOf(window));
    surface.giveKeyboard(numberOf(other));
    EXPECT_EQ(surface.panelWithKeyboard(), numberOf(other));
    surface.giveKeyboard(WindowNumber::None);
    EXPECT_EQ(surface.panelWithKeyboard(), WindowNumber::None);
}

TEST_F(LayerPanelSurfaceTest, thePointerThatLeavesAPanelAndTheEndOfThatTakeTheKeyboardFromIt)
{
    surface.giveKeyboard(numberOf(window));
    tell(other, QEvent::Leave);
    EXPECT_EQ(surface.panelWithKeyboard(), numberOf(window));
    tell(window, QEvent::Leave);
    EXPECT_EQ(surface.panelWithKeyboard(), WindowNumber::None);
    surface.giveKeyboard(numberOf(window));
    surface.didHide(window);
    EXPECT_EQ(surface.panelWithKeyboard(), WindowNumber::None);
}

TEST_F(LayerPanelSurfaceTest, dropsAndThePointerOnPanelsAreToldOf)
{
    int drops = 0;
    int pointers = 0;
    surface.onDropped = [&] { ++drops; };
    surface.onPointer = [&] { ++pointers; };
    const QMimeData contents;
    QDropEvent drop({}, Qt::CopyAction, &contents, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &drop);
    EXPECT_EQ(drops, 1);
    EXPECT_EQ(pointers, 0);
    tell(other, QEvent::Enter);
    EXPECT_EQ(drops, 1);
    EXPECT_EQ(pointers, 1);
}

TEST_F(LayerPanelSurfaceTest, aPanelMayGoBeforeTheSurface)
{
    auto gone = std::make_unique<QWindow>();
    surface.adopt(*gone);
    surface.giveKeyboard(numberOf(*gone));
    gone.reset();
    EXPECT_EQ(surface.panelWithKeyboard(), WindowNumber::None);
}

} // namespace corvane::test
