#include "fakes/fake_preview_documents.h"
#include "fakes/test_clock.h"
#include "preview/manual_loading.h"
#include "preview/picture_view.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QPointingDevice>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <optional>

namespace corvane::test {

namespace {

/// Counts how often a widget is painted.
class Paintings : public QObject {
public:
    explicit Paintings(QWidget &widget) { widget.installEventFilter(this); }

    int count = 0;

private:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(object, event);
    }
};

/// A view of 100 by 100.
struct PictureViewTest : testing::Test {
    /// A picture that has more pixels than were fitted into the view.
    static PreviewContent::Picture picture(const QImage &fitted, int side)
    {
        PreviewContent::Picture picture;
        picture.pixelSize = {side, side};
        picture.fitted = fitted;
        picture.document = std::make_shared<FakePreviewDocuments::Document>();
        return picture;
    }
    static QImage square(const QColor &color)
    {
        QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
        image.fill(color);
        return image;
    }
    void show(const PreviewContent::Picture &picture, const QColor &base = Qt::white)
    {
        view.emplace(picture, loading, clock);
        QPalette palette = view->palette();
        palette.setColor(QPalette::Base, base);
        view->setPalette(palette);
        view->resize(100, 100);
        view->show();
    }
    QColor shownAt(int x, int y) { return view->grab().toImage().pixelColor(x, y); }
    void mouse(QEvent::Type type, QPointF point, Qt::MouseButtons held = Qt::LeftButton)
    {
        QMouseEvent event(type, point, point, Qt::LeftButton, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&*view, &event);
    }
    static void settle()
    {
        for (int turn = 0; turn < 50; ++turn)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    }

    ManualLoading loading;
    TestClock clock;
    std::optional<PictureView> view;
};

} // namespace

TEST_F(PictureViewTest, WhatIsTransparentShowsASquaredGround)
{
    for (const QColor &base : {QColor(Qt::white), QColor(160, 160, 160), QColor(40, 40, 40)}) {
        show(picture(square(Qt::transparent), 100), base);
        const QColor other = base.lightness() < 100 ? base.lighter(125) : base.darker(106);
        for (const int row : {0, 1, 2, 3, 4, 5}) {
            for (const int column : {0, 1, 2, 3})
                EXPECT_EQ(shownAt(8 * column, 8 * row).rgb(),
                          ((row + column) % 2 == 0 ? other : base).rgb())
                    << row << ' ' << column << ' ' << base.lightness();
        }
    }
}

TEST_F(PictureViewTest, IsAPictureToScreenReaders)
{
    show(picture(square(Qt::red), 100));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&*view)->role(), QAccessible::Graphic);
}

TEST_F(PictureViewTest, MovesAndZoomsByItsKeysAndLeavesOthers)
{
    show(picture(square(Qt::red), 400));
    for (const int key :
         {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_0, Qt::Key_1, Qt::Key_Left, Qt::Key_Right,
          Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown})
        EXPECT_TRUE(view->handleKey(key)) << key;
    EXPECT_FALSE(view->handleKey(Qt::Key_A));
}

TEST_F(PictureViewTest, IsPaintedAgainOnceItHasMorePixels)
{
    show(picture(square(Qt::red).scaled(50, 50), 100));
    settle();
    ASSERT_EQ(loading.rendered, QList<QSize>{QSize(100, 100)});
    const Paintings paintings(*view);
    loading.giveRendering(Qt::blue);
    settle();
    EXPECT_GE(paintings.count, 1);
    EXPECT_EQ(shownAt(50, 50), QColor(Qt::blue));
}

TEST_F(PictureViewTest, APictureThatLacksOnePixelIsShownAsItIs)
{
    QImage stripes(99, 100, QImage::Format_RGB32);
    for (int x = 0; x < stripes.width(); ++x)
        QPainter(&stripes).fillRect(x, 0, 1, 100, x % 2 == 0 ? Qt::red : Qt::blue);
    show(picture(stripes, 400));
    settle();
    EXPECT_EQ(loading.rendered, QList<QSize>());
    const QImage shown = view->grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_TRUE(shown.copy(0, 0, 99, 100) == stripes || shown.copy(1, 0, 99, 100) == stripes);
    view->handleKey(Qt::Key_Plus);
    settle();
    EXPECT_EQ(loading.rendered, QList<QSize>{QSize(125, 125)}) << "larger it is decoded again";
}

TEST_F(PictureViewTest, IsPaintedAgainWhereTheWheelHasMovedIt)
{
    show(picture(square(Qt::red), 100));
    view->handleKey(Qt::Key_Plus);
    settle();
    const Paintings paintings(*view);
    QWheelEvent event({50, 50}, {50, 50}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&*view, &event);
    settle();
    EXPECT_GE(paintings.count, 1);
}

TEST_F(PictureViewTest, NeverAsksForMorePixelsThanThereAre)
{
    show(picture(square(Qt::red), 150));
    for (int i = 0; i < 4; ++i) {
        view->handleKey(Qt::Key_Plus);
        loading.giveRendering(Qt::red);
    }
    EXPECT_EQ(loading.rendered.last(), QSize(150, 150));
}

TEST_F(PictureViewTest, FingersThatSpreadMakeItLarger)
{
    PreviewContent::Picture drawing = picture(square(Qt::red), 100);
    drawing.isVector = true;
    show(drawing);
    QNativeGestureEvent event(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2,
                              {50, 50}, {50, 50}, {50, 50}, 0.5, {});
    QCoreApplication::sendEvent(&*view, &event);
    ASSERT_FALSE(loading.rendered.isEmpty());
    EXPECT_EQ(loading.rendered.last(), QSize(150, 150));
}

TEST_F(PictureViewTest, IsHeldAndMovedByTheMouse)
{
    QImage halves = square(Qt::red);
    QPainter(&halves).fillRect(50, 0, 50, 100, Qt::blue);
    show(picture(halves, 100));
    view->handleKey(Qt::Key_Plus);
    EXPECT_EQ(view->cursor().shape(), Qt::OpenHandCursor);
    EXPECT_EQ(shownAt(55, 50), QColor(Qt::blue));
    mouse(QEvent::MouseButtonPress, {20, 20});
    EXPECT_EQ(view->cursor().shape(), Qt::ClosedHandCursor);
    mouse(QEvent::MouseMove, {30, 20});
    mouse(QEvent::MouseButtonRelease, {30, 20}, Qt::NoButton);
    EXPECT_EQ(view->cursor().shape(), Qt::OpenHandCursor);
    EXPECT_EQ(shownAt(55, 50), QColor(Qt::red));
}

TEST_F(PictureViewTest, ADoubleClickShowsWhatIsUnderThePointerAtItsOwnSize)
{
    QImage quarters = square(Qt::blue);
    QPainter(&quarters).fillRect(0, 0, 50, 50, Qt::red);
    show(picture(quarters, 400));
    mouse(QEvent::MouseButtonDblClick, {0, 0});
    EXPECT_EQ(shownAt(90, 90), QColor(Qt::red));
    mouse(QEvent::MouseButtonDblClick, {0, 0});
    EXPECT_EQ(shownAt(90, 90), QColor(Qt::blue)) << "the whole again";
}

} // namespace corvane::test
