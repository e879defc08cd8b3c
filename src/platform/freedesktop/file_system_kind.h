#pragma once

#include <QByteArray>
#include <QList>

#include <functional>

/// Which file systems may keep whoever touches them waiting for another machine, by what the table
/// of mounts says about them.
namespace corvane::file_system_kind {

/// Whether a file system of that type, mounted at `point`, is another machine's, or a program's of
/// which nobody knows where it gets its files. One that is mounted only when it is touched counts
/// as remote, too.
bool isRemote(const QByteArray &type, const QByteArray &point);

/// Of a file system in user space: the folders that it shows in another way, as far as its source
/// names them. It is as remote as they are.
QList<QByteArray> shownFolders(const QByteArray &type, const QByteArray &source);

/// Whether it shows folders in another way and its source names none of them: they may be anywhere.
bool showsUnnamedFolders(const QByteArray &type, const QByteArray &source);

} // namespace corvane::file_system_kind
