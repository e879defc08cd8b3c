#pragma once

#include <QByteArray>

#include <optional>

namespace corvane {

/// In bytes; longer drawings are not read.
inline constexpr qsizetype maximumDrawingBytes = 16'000'000;

/// The drawing without references to files, which Qt would open, pipes and devices included.
/// Embedded bitmaps stay. None if it is no XML, is too long, or becomes too long by entities. Any
/// thread.
std::optional<QByteArray> svgWithoutReferences(const QByteArray &svg);

} // namespace corvane
