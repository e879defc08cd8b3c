#include "fakes/test_clock.h"
#include "preview/manual_loading.h"
#include "preview/preview_geometry.h"
#include "preview/preview_window.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

struct PreviewWindowTest : testing::Test {
    PreviewWindowTest()
    {
        PreviewContent content;
        content.details
            = {QStringLiteral("a.txt"), QStringLiteral("Text"), QStringLiteral("5 bytes"), {}};
        content.body = PreviewContent::Text{QStringLiteral("hello"), false, false};
        window.setContent(content, {});
        window.resize(600, 400);
        window.show();
    }

    const QWidget *named(const QString &name) const
    {
        for (const QWidget *widget : window.findChildren<QWidget *>()) {
            if (widget->accessibleName() == name)
                return widget;
        }
        return nullptr;
    }

    ManualLoading loading;
    TestClock clock;
    PreviewWindow window{loading, clock};
};

} // namespace

TEST_F(PreviewWindowTest, WhatIsSaidStandsBelowTheContentAndWhereATextBegins)
{
    const QWidget *line = named(QStringLiteral("Text  ·  5 bytes"));
    ASSERT_TRUE(line);
    const QPoint place = line->mapTo(&window, QPoint(0, line->height() / 2));
    EXPECT_EQ(place.x(), 18);
    EXPECT_NEAR(place.y(), window.height() - preview_geometry::barHeight / 2, 1);
}

TEST_F(PreviewWindowTest, TheContentIsDescribedByWhatStandsBelowIt)
{
    const QWidget *text = named(QStringLiteral("Text"));
    ASSERT_TRUE(text);
    EXPECT_EQ(text->accessibleDescription(), QStringLiteral("Text, 5 bytes"))
        << "the name is the window's title";
}

TEST_F(PreviewWindowTest, ItsButtonSaysWhatItOpens)
{
    EXPECT_NE(named(QStringLiteral("Open a.txt")), nullptr);
}

TEST_F(PreviewWindowTest, AThinLineStandsBetweenThem)
{
    const QImage shown = window.grab().toImage();
    const QColor ground = window.palette().color(QPalette::Window);
    const int top = window.height() - preview_geometry::barHeight;
    EXPECT_NE(shown.pixelColor(300, top), ground);
    EXPECT_EQ(shown.pixelColor(300, top + 1), ground);
}

} // namespace corvane::test
