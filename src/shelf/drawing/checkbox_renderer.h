#pragma once

#include <QImage>

namespace corvane::checkbox_renderer {

/// A checkbox, `size` points square. Made once for each combination of arguments. Main thread only.
QImage image(bool checked, double size, double scale);

} // namespace corvane::checkbox_renderer
