#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

/// File addresses and the paths behind them.
///
/// A native path is bytes. `QUrl::toLocalFile` goes through text and turns a byte that is no UTF-8
/// into another file's name, so paths are taken from the encoded address here and nowhere else.
namespace corvane::file_url {

/// The path's exact bytes; empty when `url` is no file address. "file://host/path" names the path
/// on this machine, as the desktop's programs mean it.
QByteArray nativePath(const QUrl &url);

/// The address of a path given as bytes, every byte kept.
QUrl fromNativePath(const QByteArray &path);

/// The address of a file as it is sent, as `QUrl::toEncoded` gives it, but for an encoded slash,
/// which becomes one; `nativePath` is its path. Quicker for nearly all files, of which thousands
/// may be handed over at once.
QByteArray encoded(const QUrl &url, const QByteArray &nativePath);

/// The name after the last slash, one trailing slash not counting; what cannot be shown as text is
/// replaced, so this is for people, not for opening files.
QString lastPathComponent(const QUrl &url);

/// The same of a native path.
QString lastPathComponent(const QByteArray &nativePath);

/// What stands after the last dot of the name, as it is written; "" when there is no dot, when the
/// only dot leads the name (".bashrc"), or when nothing follows it.
QString pathExtension(const QUrl &url);

/// The same of a name alone.
QString pathExtension(const QString &name);

/// The name without the extension and its dot.
QString stem(const QUrl &url);

} // namespace corvane::file_url
