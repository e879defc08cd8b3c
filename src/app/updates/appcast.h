#pragma once

#include "app/updates/claimed_release.h"

#include <QByteArray>
#include <QList>

#include <optional>

/// A feed of versions: RSS 2.0 with elements and attributes of the Sparkle namespace, and with
/// statements of the makers in a namespace of our own.
namespace corvane::appcast {

inline constexpr auto sparkleNamespace = "http://www.andymatuschak.org/xml-namespaces/sparkle";
inline constexpr auto statementNamespace = "urn:corvane:releases";

/// Ten times as much as a feed of many years.
inline constexpr qint64 maximumBytes = 1024LL * 1024;
inline constexpr qsizetype maximumItems = 1000;
/// Of the whole feed: checking a signature takes as long as reading a page of text.
inline constexpr qsizetype maximumStatements = 1000;

/// None where it is no feed, is broken off, exceeds a limit, here or in `feed_bounds`, is written
/// in anything but UTF-8 or Latin-1, or begins with a document type: a feed needs none, and the
/// entities that one declares grow without end. What is not known is passed over. Takes time and
/// memory linear in the feed. Any thread.
std::optional<QList<ClaimedRelease>> read(const QByteArray &feed);

} // namespace corvane::appcast
