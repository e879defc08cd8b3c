#pragma once

#include "platform/system/file_descriptor.h"

#include <QByteArray>

#include <functional>

/// Writes files that only the user may read, by their native paths, completely or not at all. The
/// folder may be shared by all users: until a file is complete it has no name there or, where the
/// file system does not support that, an unpredictable one. Any thread.
namespace corvane::private_file {

/// Creates `path` with all the bytes. False, and nothing is created, if that fails or there is
/// something at `path`.
bool create(const QByteArray &path, const QByteArray &data);
/// The same with what `fill` writes into the empty file. It may be called a second time, for
/// another file, where the first cannot be given its name.
bool create(const QByteArray &path, const std::function<bool(const FileDescriptor &file)> &fill);

/// The same, and returns the open file. It has been locked (`flock`) since before it had its name,
/// so a program that can lock it knows that its maker has ended. Not open on failure.
FileDescriptor createLocked(const QByteArray &path, const QByteArray &data);

/// Writes `folder`/`name`, replacing a file atomically. Creates `folder` and missing folders
/// between it and `base`, closed to other users.
bool replace(const QByteArray &base, const QByteArray &folder, const QByteArray &name,
             const QByteArray &data);

} // namespace corvane::private_file
