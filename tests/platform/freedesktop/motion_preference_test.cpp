#include "platform/display.h"
#include "platform/freedesktop/portal_motion_preference.h"
#include "platform/freedesktop/settings_portal.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

const auto appearance = QStringLiteral("org.freedesktop.appearance");
const auto gnome = QStringLiteral("org.gnome.desktop.interface");
const auto kde = QStringLiteral("org.kde.kdeglobals.KDE");
const auto durationFactor = QStringLiteral("AnimationDurationFactor");

} // namespace

TEST(MotionPreference, followsTheToolkitWhereThereIsNoPortal)
{
    const PortalMotionPreference preference;
    settle();
    EXPECT_FALSE(preference.reducesMotion());
}

TEST(MotionPreference, asksThePortalAndFollowsIt)
{
    SettingsPortal portal;
    portal.values = {{gnome + QStringLiteral("/enable-animations"), false},
                     {appearance + QStringLiteral("/reduced-motion"), 1U},
                     {kde + u'/' + durationFactor, QStringLiteral("1")}};
    const PortalMotionPreference preference;
    EXPECT_TRUE(eventually([&] { return preference.reducesMotion(); }));
    EXPECT_TRUE(eventually([&] { return portal.reads == 3; }));
    settle();
    portal.change(appearance, QStringLiteral("reduced-motion"), 0U);
    EXPECT_TRUE(eventually([&] { return !preference.reducesMotion(); }));
    portal.change(appearance, QStringLiteral("color-scheme"), 1U);
    portal.change(gnome, QStringLiteral("enable-animations"), false);
    settle();
    EXPECT_FALSE(preference.reducesMotion());
}

TEST(MotionPreference, isForLessWhereKdeAnimatesAtOnce)
{
    SettingsPortal portal;
    // As a text, as it stands in that desktop's file.
    portal.values = {{gnome + QStringLiteral("/enable-animations"), true},
                     {appearance + QStringLiteral("/reduced-motion"), 0U},
                     {kde + u'/' + durationFactor, QStringLiteral("0")}};
    const PortalMotionPreference preference;
    EXPECT_TRUE(eventually([&] { return preference.reducesMotion(); }));
    portal.change(kde, durationFactor, QStringLiteral("0.5"));
    EXPECT_TRUE(eventually([&] { return !preference.reducesMotion(); }));
    portal.change(kde, durationFactor, 0);
    EXPECT_TRUE(eventually([&] { return preference.reducesMotion(); }));
    portal.change(kde, durationFactor, QStringLiteral("none"));
    EXPECT_TRUE(eventually([&] { return !preference.reducesMotion(); }))
        << "what is no number says nothing";
}

} // namespace corvane::test
