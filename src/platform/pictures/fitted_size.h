#pragma once

#include <QSize>

namespace corvane {

/// The pixels of a picture that is scaled into a room, as large as fits, at least one each way. The
/// nearest to its proportions, so that whoever computes them in fractions comes to the same ones.
QSize fittedSize(QSize picture, QSize room);

} // namespace corvane
