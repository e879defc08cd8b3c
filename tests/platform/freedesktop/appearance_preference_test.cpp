#include "platform/display.h"
#include "platform/freedesktop/portal_appearance_preference.h"
#include "platform/freedesktop/settings_portal.h"

#include <QFont>
#include <QGuiApplication>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

const auto common = QStringLiteral("org.freedesktop.appearance");
const auto gnomeInterface = QStringLiteral("org.gnome.desktop.interface");
const auto gnomeAccess = QStringLiteral("org.gnome.desktop.a11y.interface");
const auto kdeGeneral = QStringLiteral("org.kde.kdeglobals.General");
const auto scaling = QStringLiteral("text-scaling-factor");

/// A preference, and how often it told of a change.
struct Watched {
    using TextScale = PortalAppearancePreference::TextScale;

    explicit Watched(TextScale scale = TextScale::OfItsOwn)
        : preference(scale)
    {
        preference.observeChanges([this] { ++changes; });
    }

    PortalAppearancePreference preference;
    int changes = 0;
};

} // namespace

TEST(AppearancePreference, isTheUsualOneWithoutAPortal)
{
    const Watched watched;
    settle();
    EXPECT_EQ(watched.preference.textScale(), 1);
    EXPECT_FALSE(watched.preference.wantsMoreContrast());
    EXPECT_EQ(watched.changes, 0);
}

TEST(AppearancePreference, enlargesAsGnomesTextsAreAndFollowsThem)
{
    SettingsPortal portal;
    portal.values = {{gnomeInterface + u'/' + scaling, 1.5}};
    const Watched watched;
    EXPECT_TRUE(eventually([&] { return watched.preference.textScale() == 1.5; }));
    settle();
    EXPECT_EQ(watched.changes, 1) << "answers that change nothing are not told";
    portal.change(gnomeInterface, scaling, 1.25);
    EXPECT_TRUE(eventually([&] { return watched.preference.textScale() == 1.25; }));
    EXPECT_EQ(watched.changes, 2);
}

TEST(AppearancePreference, enlargesWithinBounds)
{
    SettingsPortal portal;
    const Watched watched;
    settle();
    portal.change(gnomeInterface, scaling, 17.0);
    EXPECT_TRUE(eventually([&] { return watched.preference.textScale() == 2; }));
    portal.change(gnomeInterface, scaling, 0.5);
    EXPECT_TRUE(eventually([&] { return watched.preference.textScale() == 1; }));
    portal.change(gnomeInterface, scaling, QStringLiteral("large"));
    settle();
    EXPECT_EQ(watched.preference.textScale(), 1);
}

TEST(AppearancePreference, leavesGnomesScaleToScreensThatHaveIt)
{
    SettingsPortal portal;
    portal.values
        = {{gnomeInterface + u'/' + scaling, 1.5}, {common + QStringLiteral("/contrast"), 1U}};
    const Watched watched(Watched::TextScale::InScreens);
    EXPECT_TRUE(eventually([&] { return watched.preference.wantsMoreContrast(); }));
    settle();
    EXPECT_EQ(watched.preference.textScale(), 1);
}

TEST(AppearancePreference, enlargesAsKdesFontIsLargerThanItsUsualOne)
{
    SettingsPortal portal;
    portal.values = {
        {kdeGeneral + QStringLiteral("/font"), QStringLiteral("Noto Sans,14,-1,5,50,0,0,0,0,0")}};
    const Watched watched;
    EXPECT_TRUE(eventually([&] { return watched.preference.textScale() == 1.4; }));
    portal.change(kdeGeneral, QStringLiteral("font"),
                  QStringLiteral("Noto Sans,8,-1,5,50,0,0,0,0,0"));
    EXPECT_TRUE(eventually([&] { return watched.preference.textScale() == 1; }));
}

TEST(AppearancePreference, enlargesAsTheToolkitsFontIsLargerThanUsualOnes)
{
    const QFont before = QGuiApplication::font();
    const Watched watched;
    QFont font = before;
    font.setPixelSize(24);
    QGuiApplication::setFont(font);
    EXPECT_TRUE(eventually([&] { return watched.changes > 0; }));
    EXPECT_EQ(watched.preference.textScale(), 1.6);
    QGuiApplication::setFont(before);
    EXPECT_EQ(watched.preference.textScale(), 1);
}

TEST(AppearancePreference, isForContrastWhereOneOfTheDesktopsSettingsIs)
{
    SettingsPortal portal;
    const Watched watched;
    settle();
    struct Setting {
        QString group;
        QString name;
        QVariant yes;
        QVariant no;
    };
    for (const Setting &setting :
         {Setting{common, QStringLiteral("contrast"), 1U, 0U},
          Setting{gnomeAccess, QStringLiteral("high-contrast"), true, false},
          Setting{gnomeInterface, QStringLiteral("gtk-theme"),
                  QStringLiteral("HighContrastInverse"), QStringLiteral("Adwaita")},
          Setting{kdeGeneral, QStringLiteral("ColorScheme"), QStringLiteral("BreezeHighContrast"),
                  QStringLiteral("BreezeDark")}}) {
        portal.change(setting.group, setting.name, setting.yes);
        EXPECT_TRUE(eventually([&] { return watched.preference.wantsMoreContrast(); }))
            << qPrintable(setting.name);
        portal.change(setting.group, setting.name, setting.no);
        EXPECT_TRUE(eventually([&] { return !watched.preference.wantsMoreContrast(); }))
            << qPrintable(setting.name);
    }
    EXPECT_EQ(watched.changes, 8);
}

} // namespace corvane::test
