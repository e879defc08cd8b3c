#pragma once

#include "golden/panel_stage.h"

#include <QString>

namespace corvane::test {

/// Everything that a panel is painted with, one layer a line, from below upward, what a layer
/// contains indented below it. Layers that cannot be seen are left out. Says the same wherever it
/// runs: neither a font nor a rasteriser has a part in it.
QString sceneText(PanelStage &stage);

} // namespace corvane::test
