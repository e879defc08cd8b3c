// The layers of the shelf and of the view-all bar in every state as text, kept in the source tree.

#include "golden/golden.h"
#include "golden/scene_text.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

class Scenes : public testing::TestWithParam<PanelState> { };

} // namespace

TEST_P(Scenes, AreAsKept)
{
    const auto stage = GetParam().make(TextWidths::Fixed);
    EXPECT_TRUE(matchesGoldenText(
        QStringLiteral("scene-%1.txt").arg(QLatin1String(GetParam().name)), sceneText(*stage)));
}

INSTANTIATE_TEST_SUITE_P(EveryState, Scenes, testing::ValuesIn(panelStates()),
                         [](const auto &given) { return testName(given.param.name); });

} // namespace corvane::test
