#include "preview/manual_loading.h"
#include "preview/pages_view.h"
#include "preview/preview_geometry.h"

#include <QAccessible>
#include <QPainter>
#include <QScrollBar>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// Six pages, of which a little more than one is seen at a time.
struct PagesViewTest : testing::Test {
    PagesViewTest()
    {
        view.resize(400, 600);
        view.show();
    }

    static PreviewContent::Pages pages() { return {QList<QSize>(6, QSize(600, 800)), 6, {}}; }
    QList<QRectF> rects() const
    {
        return preview_geometry::pageRects(pages().sizes, view.viewport()->width());
    }
    QImage shown() { return view.viewport()->grab().toImage(); }
    /// Until nothing more is asked for.
    void giveEverything()
    {
        for (qsizetype given = 0; given < loading.rendered.size(); ++given)
            loading.giveRendering(Qt::red);
    }

    ManualLoading loading;
    PagesView view{pages(), loading};
};

} // namespace

TEST_F(PagesViewTest, IsAPictureToScreenReadersAsThereIsNoTextToRead)
{
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&view)->role(), QAccessible::Graphic);
}

TEST_F(PagesViewTest, AsksForOnePageAtATimeInTheSizeThatItHas)
{
    EXPECT_EQ(loading.renderedPages, QList<int>{0});
    EXPECT_EQ(loading.rendered.last(), rects()[0].size().toSize());
    loading.giveRendering(Qt::red);
    EXPECT_EQ(loading.renderedPages, (QList<int>{0, 1}));
}

TEST_F(PagesViewTest, ShowsAPageWhiteAndThenAsItIs)
{
    const QPoint middle = rects()[0].center().toPoint();
    EXPECT_EQ(shown().pixelColor(middle), QColor(Qt::white));
    loading.giveRendering(Qt::red);
    EXPECT_EQ(shown().pixelColor(middle), QColor(Qt::red));
}

TEST_F(PagesViewTest, EachPageHasAFaintEdge)
{
    const QColor ground = view.palette().color(QPalette::Window);
    QImage expected(1, 1, QImage::Format_RGB32);
    expected.fill(ground);
    QPainter(&expected).fillRect(0, 0, 1, 1, QColor::fromRgb(0, 0, 0, 40));
    const QPoint corner = rects()[0].topLeft().toPoint();
    EXPECT_EQ(shown().pixelColor(corner - QPoint(1, 1)), expected.pixelColor(0, 0));
    EXPECT_EQ(shown().pixelColor(corner - QPoint(2, 2)), ground);
}

TEST_F(PagesViewTest, ScrollsToTheEndOfTheLastPageAndNoFurther)
{
    EXPECT_EQ(view.verticalScrollBar()->maximum(),
              static_cast<int>(rects().last().bottom() + preview_geometry::pageMargin)
                  - view.viewport()->height());
}

TEST_F(PagesViewTest, ForgetsPagesThatAreFarAway)
{
    giveEverything();
    QScrollBar &bar = *view.verticalScrollBar();
    bar.setValue(bar.maximum());
    EXPECT_GE(loading.renderedPages.last(), 3);
    giveEverything();
    bar.setValue(0);
    EXPECT_EQ(loading.renderedPages.last(), 0);
}

TEST_F(PagesViewTest, KeepsItsPlaceWhenItIsMadeLarger)
{
    QScrollBar &bar = *view.verticalScrollBar();
    bar.setValue(bar.maximum() / 2);
    view.resize(800, 600);
    EXPECT_NEAR(bar.value(), bar.maximum() / 2, 2);
}

} // namespace corvane::test
