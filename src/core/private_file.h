#pragma once

#include <QByteArray>

#include <optional>

/// Whole files by their native paths. Failures leave nothing behind and are not told apart.
namespace corvane::private_file {

/// Creates `path` with all the bytes, or not at all; only the user may read it. What is there
/// already stays, and makes it fail.
bool create(const QByteArray &path, const QByteArray &data);

/// The contents of a regular file of less than `limit` bytes; none for anything else.
std::optional<QByteArray> read(const QByteArray &path, qint64 limit);

} // namespace corvane::private_file
