#include "platform/x11/base/xwayland_probe.h"

#include <QByteArray>

#include <gtest/gtest.h>

namespace corvane::test {

TEST(XWaylandProbe, anXServerOfItsOwnIsNoneOfACompositor)
{
    EXPECT_FALSE(isXWayland());
}

TEST(XWaylandProbe, neitherIsOneThatIsNotThere)
{
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":4000");
    EXPECT_FALSE(isXWayland());
    qputenv("DISPLAY", display);
}

} // namespace corvane::test
