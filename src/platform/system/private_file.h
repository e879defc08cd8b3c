#pragma once

#include "platform/system/file_descriptor.h"

#include <QByteArray>

/// Whole files that only the user may see, by their native paths. A failure leaves nothing behind.
/// The folder may be everybody's: until a file is whole it has no name there, or, where the file
/// system needs one, one that nobody can foresee. Any thread.
namespace corvane::private_file {

/// Creates `path` with all the bytes, or not at all. What is there already stays, and makes it
/// fail.
bool create(const QByteArray &path, const QByteArray &data);

/// The same, and gives the file locked (`flock`) from before it had its name: whoever can lock it
/// knows that its maker is gone. Not open where it failed.
FileDescriptor createLocked(const QByteArray &path, const QByteArray &data);

/// Writes `folder`/`name`; readers see the old file or the new one. Makes `folder` and what is
/// missing of the way to it from `base` on, all closed to others.
bool replace(const QByteArray &base, const QByteArray &folder, const QByteArray &name,
             const QByteArray &data);

} // namespace corvane::private_file
