#pragma once

#include <QIODevice>

namespace corvane {

/// In bytes, of each chunk of a PNG file that is not pixels: texts, profiles and the like.
inline constexpr qint64 maximumChunk = 16LL * 1024 * 1024;
/// Further ones, in one file, are taken for an attempt to cost time.
inline constexpr int maximumChunks = 1'000'000;

/// Whether the chunks of a PNG file state modest lengths. The library takes as much memory as is
/// stated, and clears it, before it notices that the file is shorter. The position is where it was.
bool hasModestChunks(QIODevice &png);
/// The same of each PNG file inside of a file of icons (ICO, ICNS).
bool hasModestIcons(QIODevice &icons);

} // namespace corvane
