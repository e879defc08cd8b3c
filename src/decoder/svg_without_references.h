#pragma once

#include <QByteArray>

#include <optional>

namespace corvane {

/// In bytes; longer drawings are not read.
inline constexpr qsizetype maximumDrawingBytes = 16'000'000;

/// What the pixels of all bitmaps that are embedded in a drawing may take together, in bytes.
inline constexpr qint64 maximumEmbeddedBytes = 64LL * 1024 * 1024;

/// The drawing without what refers to files, which Qt would open, pipes and devices included, and
/// without scripts, animations and foreign elements. Embedded bitmaps stay as long as they do not
/// take more than `maximumEmbeddedBytes`. None if it is no XML, is too long, or becomes too long by
/// entities. Any thread.
std::optional<QByteArray> svgWithoutReferences(const QByteArray &svg);

} // namespace corvane
