#pragma once

#include <QByteArray>

#include <vector>

/// A spool's directory on disk: whether it is safe, whose it is, and how it goes.
namespace corvane::spool_directory {

/// The name for a process: "Corvane-4711".
QByteArray name(qint64 processIdentifier);

/// The same path without slashes at its end, but for the root itself.
QByteArray withoutTrailingSlashes(QByteArray path);

/// Opens and locks a directory that is a real one, of this user, closed to others, and in nobody
/// else's use; -1 otherwise. The lock lasts until the descriptor is closed, or the process ends.
int openAndLock(const QByteArray &path);

/// Whether `path` still names the directory that `descriptor` has open.
bool isAt(const QByteArray &path, int descriptor);

/// The paths in `temporaryDirectory` that are named like a spool.
std::vector<QByteArray> candidates(const QByteArray &temporaryDirectory);

/// Gives a spool that nobody holds another name of the kind, where there is one at `path`.
void setAside(const QByteArray &path);

/// Deletes a spool that nobody holds; any other is left alone.
void removeLeftover(const QByteArray &path);

/// Files that a process which is ending deletes itself.
inline constexpr int mostRemovedAtEnd = 1'000;

/// The same as `remove`, but leaves a directory with more files than that to a process of its own,
/// which need not be waited for.
void removeAtEnd(const QByteArray &path);

/// Deletes what is at `path`, directories with all that is in them; a link goes, what it leads to
/// stays. Failures are ignored.
void remove(const QByteArray &path);

} // namespace corvane::spool_directory
