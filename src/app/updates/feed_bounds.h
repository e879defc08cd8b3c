#pragma once

#include <QStringView>

/// What a feed may ask of its reader. Some of what a reader of XML does grows with the square of
/// the attributes, or with the depth, so both are counted beforehand.
namespace corvane::feed_bounds {

inline constexpr int mostAttributes = 24;
inline constexpr int mostNamespaces = 64;
inline constexpr int deepest = 32;
inline constexpr qsizetype longestTag = 16'384;

/// Whether the feed keeps within them, and has no document type. One that is no XML may be within
/// them. Takes time linear in the feed. Any thread.
bool holds(QStringView feed);

} // namespace corvane::feed_bounds
