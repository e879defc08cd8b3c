#pragma once

#include "platform/system/file_descriptor.h"

#include <QByteArray>

#include <optional>

class QFile;

/// Reads files that come from elsewhere, by their exact native paths. Only regular files: reading a
/// named pipe or a device could block for ever. Any thread.
namespace corvane::regular_file {

/// Opens for reading; not open if there is no regular file.
FileDescriptor open(const QByteArray &path);
/// The same for a `QFile`; false if there is no regular file.
bool open(QFile &file, const QByteArray &path);

/// All bytes of the file; none if there are more than `limit`, or they cannot be read.
std::optional<QByteArray> contents(const QByteArray &path, qint64 limit);
/// The first bytes of the file, at most `limit`, as far as they can be read; none if it cannot be
/// opened.
std::optional<QByteArray> beginning(const QByteArray &path, qint64 limit);

} // namespace corvane::regular_file
