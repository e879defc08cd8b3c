#pragma once

#include <QString>
#include <QStringList>

namespace corvane::own_command {

/// The file that starts this program: of an AppImage that one, since what runs then is a temporary
/// copy.
QString file();

/// What starts this program in a shell: its name where that is enough.
QString inShell();
/// The same for a program in that file, with the names of programs looked up in those folders.
QString inShell(const QString &file, const QStringList &folders);

} // namespace corvane::own_command
