#include "platform/wayland/base/eager_compositor.h"
#include "platform/wayland/base/wayland_globals.h"

#include <gtest/gtest.h>
#include <wayland-client.h>

namespace corvane::test {

namespace {

constexpr wl_seat_listener seatListener
    = {.capabilities = [](void *data, wl_seat *,
                          std::uint32_t devices) { *static_cast<std::uint32_t *>(data) = devices; },
       .name = [](void *, wl_seat *, const char *) {}};

} // namespace

TEST(WaylandGlobalsTest, whatACompositorTellsAtOnceIsNotLost)
{
    const EagerCompositor compositor;
    ASSERT_TRUE(compositor.display());
    wl_seat *seat = nullptr;
    bindGlobals(compositor.display(), {{&wl_seat_interface, 3, placeOf(seat)}});
    ASSERT_TRUE(seat);
    std::uint32_t devices = 0;
    wl_seat_add_listener(seat, &seatListener, &devices);
    wl_display_roundtrip(compositor.display());
    EXPECT_EQ(devices, EagerCompositor::devices);
    wl_seat_destroy(seat);
}

TEST(WaylandGlobalsTest, whatACompositorDoesNotHaveStaysAsItIs)
{
    const EagerCompositor compositor;
    ASSERT_TRUE(compositor.display());
    wl_seat *seat = nullptr;
    wl_shm *shm = nullptr;
    bindGlobals(compositor.display(),
                {{&wl_shm_interface, 1, placeOf(shm)}, {&wl_seat_interface, 9, placeOf(seat)}});
    EXPECT_FALSE(shm);
    ASSERT_TRUE(seat);
    // As it has it.
    EXPECT_EQ(wl_seat_get_version(seat), 3U);
    wl_seat_destroy(seat);
}

} // namespace corvane::test
