#include "platform/wayland/base/eager_compositor.h"
#include "platform/wayland/base/handled_mark.h"

#include <gtest/gtest.h>
#include <wayland-client.h>

#include <memory>

namespace corvane::test {

TEST(HandledMarkTest, tellsOnceWhenEverythingBeforeItIsHandled)
{
    const EagerCompositor compositor;
    ASSERT_TRUE(compositor.display());
    int told = 0;
    std::unique_ptr<HandledMark> mark;
    // Whoever is told may have no more use for it.
    mark = std::make_unique<HandledMark>(compositor.display(), [&] {
        ++told;
        mark.reset();
    });
    EXPECT_EQ(told, 0);
    wl_display_roundtrip(compositor.display());
    EXPECT_EQ(told, 1);
    wl_display_roundtrip(compositor.display());
    EXPECT_EQ(told, 1);
}

TEST(HandledMarkTest, tellsNothingOnceItIsGone)
{
    const EagerCompositor compositor;
    ASSERT_TRUE(compositor.display());
    int told = 0;
    {
        const HandledMark mark(compositor.display(), [&] { ++told; });
    }
    wl_display_roundtrip(compositor.display());
    EXPECT_EQ(told, 0);
}

TEST(HandledMarkTest, tellsNothingWithoutAConnection)
{
    int told = 0;
    const HandledMark mark(nullptr, [&] { ++told; });
    EXPECT_EQ(told, 0);
}

} // namespace corvane::test
