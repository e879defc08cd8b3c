#pragma once

#include <QByteArray>
#include <QString>

/// The files that previews of what has no file are shown from. They lie in the temporary directory,
/// which may belong to everybody. Any thread.
namespace corvane::preview_scratch {

/// "Corvane-Preview-", a new UUID in upper case without braces, and the extension. A file of that
/// name is to be locked (`private_file::createLocked`) as long as it is in use.
QByteArray newPath(const QByteArray &folder, const QString &extension);

/// Removes what processes of this user that have died left in `folder`.
void removeLeftovers(const QByteArray &folder);

} // namespace corvane::preview_scratch
