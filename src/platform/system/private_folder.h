#pragma once

#include <QByteArray>

/// Folders that this user alone can look into, and that one process holds. Paths are native. Any
/// thread.
namespace corvane::private_folder {

/// Opens and locks a folder if it is a real folder (no link), owned by this user, closed to others
/// and locked by no other process; -1 otherwise. The lock lasts until the descriptor is closed or
/// the process ends.
int openAndLock(const QByteArray &path);

/// Whether `path` still names the folder that `descriptor` has open.
bool isAt(const QByteArray &path, int descriptor);

/// Makes `folder` and missing folders between it and `base`, closed to other users, and waits until
/// the disk has those that are new. True if they are there now, whatever they are.
bool make(const QByteArray &base, const QByteArray &folder);

/// Waits until the disk has the names that are in a folder now, and no others.
void sync(const QByteArray &path);

} // namespace corvane::private_folder
