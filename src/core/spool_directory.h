#pragma once

#include <QByteArray>

#include <vector>

/// Names, finds and deletes the directories of spools on disk. Paths are native. Any
/// thread.
namespace corvane::spool_directory {

/// The name for a process: "Corvane-4711".
QByteArray name(qint64 processIdentifier);

/// The same path without slashes at its end, but for the root itself.
QByteArray withoutTrailingSlashes(QByteArray path);

/// The paths in `temporaryDirectory` that are named like a spool.
std::vector<QByteArray> candidates(const QByteArray &temporaryDirectory);

/// Renames the spool at `path`, if there is one that no process holds, to another spool name, under
/// which `candidates` finds it.
void setAside(const QByteArray &path);

/// Deletes the spool at `path` unless a process holds it.
void removeLeftover(const QByteArray &path);

/// How many files a process that is ending deletes itself.
inline constexpr int mostRemovedAtEnd = 1'000;

/// The same as `remove`, but a directory with more than `mostRemovedAtEnd` files is left to a child
/// process, which nothing waits for.
void removeAtEnd(const QByteArray &path);

/// Deletes what is at `path`, a directory with everything in it. Of a symbolic link only the link
/// is deleted. Failures are ignored.
void remove(const QByteArray &path);

} // namespace corvane::spool_directory
