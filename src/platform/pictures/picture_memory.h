#pragma once

#include "platform/system/file_descriptor.h"

#include <QByteArray>

#include <functional>

/// Memory that is handed from one process to another as a descriptor, and that nobody can change or
/// shorten any more. Any thread.
namespace corvane::picture_memory {

/// Memory with what `fill` writes, sealed. Not open if that fails.
FileDescriptor make(const std::function<bool(const FileDescriptor &memory)> &fill);
FileDescriptor of(const QByteArray &bytes);

/// Whether the descriptor, which another process sent, is memory of exactly that size that nobody
/// can change or shorten: only then may it be mapped.
bool isSound(const FileDescriptor &memory, qint64 bytes);

/// All of it, mapped for reading; null if it is not sound, or cannot be mapped. Unmapped by
/// `unmap`.
const uchar *map(const FileDescriptor &memory, qint64 bytes);
void unmap(const uchar *address, qint64 bytes);

} // namespace corvane::picture_memory
