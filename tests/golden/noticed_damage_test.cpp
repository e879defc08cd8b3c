// The comparison of pictures compared with what it is for: whatever an eye would see is noticed,
// whether pictures are compared exactly or by tiles.

#include "fakes/layer_walk.h"
#include "golden/damage.h"
#include "golden/panel_stage.h"
#include "golden/window_stage.h"

#include <QCoreApplication>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace corvane::test {

namespace {

// The sanitizers make every painting many times slower, and tell as much by one look of each state.
#ifdef __SANITIZE_ADDRESS__
constexpr std::size_t maximumLooks = 1;
#else
constexpr std::size_t maximumLooks = 1000;
#endif

/// The first of `looks`, as many as there is time for.
template<typename Looks>
auto thoseTried(const Looks &looks)
{
    const std::size_t count = std::min(std::size(looks), maximumLooks);
    return std::span(std::data(looks), count);
}

class PanelDamage : public testing::TestWithParam<PanelState> { };
class WindowDamage : public testing::TestWithParam<WindowState> { };

std::string isOverlooked(const QImage &whole, const Picture &damaged)
{
    std::string by;
    if (!difference(whole, damaged, Comparison::Exact))
        by += "exactly ";
    if (!difference(whole, damaged, Comparison::Tiles))
        by += "by tiles";
    return by;
}

/// What is erased at an opacity that is 0.1 lower.
QImage slightlyTowards(const QImage &erased, QImage before)
{
    before.setDevicePixelRatio(1);
    QImage plain = erased;
    plain.setDevicePixelRatio(1);
    QPainter painter(&before);
    painter.setOpacity(0.1);
    painter.drawImage(0, 0, plain);
    return before;
}

} // namespace

TEST_P(PanelDamage, IsNoticed)
{
    const auto stage = GetParam().make(TextWidths::Measured);
    stage->holdStill();
    const std::vector<Damage> damages = damagesOf(stage->roots());
    EXPECT_GE(damages.size(), 10U);
    for (const PanelState::Shot &shot : thoseTried(GetParam().shots)) {
        const QImage whole = stage->picture(shot.wallpaper, shot.scale).image;
        for (const Damage &damage : damages) {
            damage.make();
            EXPECT_EQ(isOverlooked(whole, stage->picture(shot.wallpaper, shot.scale)), "")
                << damage.name.toStdString() << " at " << shot.scale;
            damage.mend();
        }
        EXPECT_EQ(difference(whole, stage->picture(shot.wallpaper, shot.scale), Comparison::Exact),
                  std::nullopt);
    }
}

// Black on black, it is seen by what it darkens alone.
TEST(FadeDamage, IsNoticedWhereTheFadeCoversSomething)
{
    const auto states = panelStates();
    const auto state = std::find_if(states.begin(), states.end(), [](const PanelState &one) {
        return one.name == std::string_view("receptive-six");
    });
    const auto stage = state->make(TextWidths::Measured);
    stage->holdStill();
    const QImage whole = stage->picture(Wallpaper::Light, 2).image;
    const auto seen = seenLayers(stage->roots());
    const auto fade = std::find_if(seen.begin(), seen.end(), [](const SeenLayer &one) {
        return kindOf(*one.layer) == fadeKind;
    });
    ASSERT_NE(fade, seen.end());
    for (const double opacity : {0.0, 0.9}) {
        fade->layer->setOpacity(opacity);
        EXPECT_EQ(isOverlooked(whole, stage->picture(Wallpaper::Light, 2)), "") << opacity;
    }
    fade->layer->setOpacity(1);
    fade->layer->setTransform({1, 0});
    EXPECT_EQ(isOverlooked(whole, stage->picture(Wallpaper::Light, 2)), "");
}

INSTANTIATE_TEST_SUITE_P(EveryState, PanelDamage, testing::ValuesIn(picturedPanelStates()),
                         [](const auto &given) { return testName(given.param.name); });

TEST_P(WindowDamage, IsNoticed)
{
    const WindowLookForPictures look(Scheme::Light);
    const auto stage = GetParam().make();
    QWidget &window = stage->window();
    const std::array looks{std::pair(Scheme::Light, 1), std::pair(Scheme::Dark, 2)};
    for (const auto &[scheme, scale] : thoseTried(looks)) {
        WindowLookForPictures::use(scheme);
        const QImage whole = pictureOf(window, scale).image;
        const std::vector<Damage> damages = damagesOf(window);
        EXPECT_GE(damages.size(), 10U);
        for (const Damage &damage : damages) {
            const QImage before = pictureOf(window, scale, damage.part).image;
            damage.make();
            Picture damaged = pictureOf(window, scale, damage.part);
            EXPECT_EQ(isOverlooked(before, damaged), "")
                << damage.name.toStdString() << " at " << scale;
            if (damage.isErasure) {
                damaged.image = slightlyTowards(damaged.image, before);
                EXPECT_EQ(isOverlooked(before, damaged), "")
                    << damage.name.toStdString() << " by a tenth at " << scale;
            }
            damage.mend();
            // A layout that waits for its turn would undo the next damage.
            QCoreApplication::sendPostedEvents();
        }
        EXPECT_EQ(difference(whole, pictureOf(window, scale), Comparison::Exact), std::nullopt);
    }
}

INSTANTIATE_TEST_SUITE_P(EveryState, WindowDamage, testing::ValuesIn(windowStates()),
                         [](const auto &given) { return testName(given.param.name); });

} // namespace corvane::test
