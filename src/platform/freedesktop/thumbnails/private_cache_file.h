#pragma once

#include <QByteArray>

#include <optional>

/// Files that only the user may see, by their native paths. Failures leave nothing behind and are
/// not told apart.
namespace corvane::private_cache_file {

/// Writes `folder`/`name` whole or not at all; readers see the old file or the new one. Makes
/// `folder` and what is missing of the way to it from `base` on, all closed to others.
bool write(const QByteArray &base, const QByteArray &folder, const QByteArray &name,
           const QByteArray &data);

} // namespace corvane::private_cache_file
