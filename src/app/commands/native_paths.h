#pragma once

#include <QByteArray>

/// Paths as a shell passes them: bytes, relative to the folder in which it stands.
namespace corvane::native_paths {

/// The folder of this process, by the name under which its shell went there; empty if it is gone.
QByteArray currentFolder();

/// Whether there is a file, folder or link at the path.
bool exists(const QByteArray &path);

/// The absolute path, without "." and "..", and without a slash at its end; empty for a relative
/// one without a folder.
QByteArray absolute(const QByteArray &path, const QByteArray &folder);

/// Whether it has the form of an address, such as "https://a.example/b" or "file:/a".
bool isAddress(const QByteArray &place);

} // namespace corvane::native_paths
