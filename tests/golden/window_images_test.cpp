// Pictures of the preferences, of the guide and of updates, light and dark, at several scales, as
// people read them in English.

#include "app/base/translations.h"
#include "golden/golden.h"
#include "golden/panel_stage.h"
#include "golden/window_stage.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

class WindowImages : public testing::TestWithParam<WindowState> { };

} // namespace

TEST_P(WindowImages, AreAsKept)
{
    const Translations english({QStringLiteral("en")});
    const WindowLookForPictures look(Scheme::Light);
    const auto stage = GetParam().make();
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        WindowLookForPictures::use(scheme);
        for (const int scale : {1, 2}) {
            EXPECT_TRUE(matchesGoldenImage(GetParam().fileName(scheme, scale),
                                           pictureOf(stage->window(), scale)));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(EveryState, WindowImages, testing::ValuesIn(windowStates()),
                         [](const auto &given) { return testName(given.param.name); });

} // namespace corvane::test
