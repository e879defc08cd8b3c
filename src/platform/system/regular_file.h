#pragma once

#include "platform/system/file_descriptor.h"

#include <QByteArray>

#include <optional>

class QFile;

/// Reads files that are strangers', by their exact native paths. What is no regular file is not
/// waited for: a named pipe or a device could keep its reader for ever. Any thread.
namespace corvane::regular_file {

/// For reading; not open where there is none.
FileDescriptor open(const QByteArray &path);
/// The same by Qt's means, which gives false where there is none.
bool open(QFile &file, const QByteArray &path);

/// All its bytes; none where there are more than `limit`, or they cannot be read.
std::optional<QByteArray> contents(const QByteArray &path, qint64 limit);
/// Its first bytes, `limit` at the most, as far as they can be read; none where it cannot be
/// opened.
std::optional<QByteArray> beginning(const QByteArray &path, qint64 limit);

} // namespace corvane::regular_file
