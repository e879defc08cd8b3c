#pragma once

#include <QByteArray>

#include <optional>

namespace corvane {

/// Drawings longer than this are not read.
inline constexpr qsizetype maximumDrawingBytes = 16'000'000;

/// The drawing without references to files: the toolkit would follow them, into pipes and devices
/// too. Bitmaps that are part of the drawing stay. None for what is no XML, is too long, or grows
/// by entities. Any thread.
std::optional<QByteArray> svgWithoutReferences(const QByteArray &svg);

} // namespace corvane
