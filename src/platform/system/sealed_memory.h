#pragma once

#include "platform/system/file_descriptor.h"

#include <QByteArray>

#include <optional>

/// Bytes that one process hands to another through a descriptor: memory without a name that nobody
/// can change any more. Reading it waits for no disk, and for no other process.
namespace corvane::sealed_memory {

/// Memory with these bytes; not open on failure.
FileDescriptor holding(const QByteArray &bytes);

/// The bytes behind a descriptor that another process sent. None if it is no such memory, can still
/// be changed, or holds more than `limit` bytes.
std::optional<QByteArray> contents(int descriptor, qint64 limit);

} // namespace corvane::sealed_memory
