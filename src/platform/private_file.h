#pragma once

#include <QByteArray>

/// Whole files that only the user may see, by their native paths. A failure leaves nothing behind.
/// Any thread.
namespace corvane::private_file {

/// Creates `path` with all the bytes, or not at all. What is there already stays, and makes it
/// fail.
bool create(const QByteArray &path, const QByteArray &data);

/// Writes `folder`/`name`; readers see the old file or the new one. Makes `folder` and what is
/// missing of the way to it from `base` on, all closed to others.
bool replace(const QByteArray &base, const QByteArray &folder, const QByteArray &name,
             const QByteArray &data);

} // namespace corvane::private_file
