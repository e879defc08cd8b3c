#pragma once

#include <QByteArray>
#include <QList>

#include <optional>
#include <utility>

/// The texts that a PNG file carries beside its pixels. The bytes are a stranger's; the pixels are
/// never decoded, and what a text unpacks to is bounded.
namespace corvane::png_text {

using Texts = QList<std::pair<QByteArray, QByteArray>>;

/// The texts whose key begins with "Thumb::", plain, compressed or international; none when `png`
/// is no PNG.
std::optional<Texts> thumbnailTexts(const QByteArray &png);

/// `png` with the texts added right behind its head, uncompressed, which is how every program can
/// read them; `png` itself when it is no PNG. The texts must be Latin-1 without null bytes.
QByteArray withTexts(const QByteArray &png, const Texts &texts);

} // namespace corvane::png_text
