#pragma once

#include "core/phosphor_icon.h"
#include "shelf/drawing/icon_path.h"

#include <QColor>
#include <QImage>

namespace corvane::phosphor_icon {

/// The icon's outline in unit coordinates.
const std::vector<PathCommand> &commands(PhosphorIcon icon);

/// The outline as a path in the rectangle, y upward.
QPainterPath cgPath(PhosphorIcon icon, const QRectF &fitting);

/// The filled icon in a square of `pointSize` points less `inset` on each side, at `scale` pixels
/// per point. Made once for each combination of arguments. Main thread only.
QImage image(PhosphorIcon icon, double pointSize, const QColor &tint, double inset, double scale);

} // namespace corvane::phosphor_icon
