#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

/// File addresses and the paths behind them.
///
/// A native path is bytes. `QUrl::toLocalFile` converts to text, so a name that is not UTF-8
/// becomes the name of another file. So only these functions convert between addresses and paths.
namespace corvane::file_url {

/// The exact bytes of the path; empty when `url` is no file address. The host of "file://host/path"
/// is ignored, as other programs of the desktop do.
QByteArray nativePath(const QUrl &url);

/// The address of a native path, with every byte kept.
QUrl fromNativePath(const QByteArray &path);

/// The same as `QUrl::toEncoded`, except that an encoded slash becomes a slash. `nativePath` must
/// be the path of `url`. Faster for nearly all files; thousands may be handed over at once.
QByteArray encoded(const QUrl &url, const QByteArray &nativePath);

/// The name after the last slash, without a trailing slash. Bytes that are not text are replaced,
/// so it is for display, not for opening files.
QString lastPathComponent(const QUrl &url);

/// The same for a native path.
QString lastPathComponent(const QByteArray &nativePath);

/// The part after the last dot of the name, as it is written; empty when there is no dot, when
/// nothing follows it, or when only dots at the beginning of the name come before (".bashrc").
QString pathExtension(const QUrl &url);

/// The same for a name.
QString pathExtension(const QString &name);

/// The name without the extension and its dot.
QString stem(const QUrl &url);

} // namespace corvane::file_url
