#pragma once

#include <QByteArray>

/// Whole files by their native paths. A failure leaves nothing behind.
namespace corvane::private_file {

/// Creates `path` with all the bytes, or not at all; only the user may read it. What is there
/// already stays, and makes it fail.
bool create(const QByteArray &path, const QByteArray &data);

} // namespace corvane::private_file
