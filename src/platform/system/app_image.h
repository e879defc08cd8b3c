#pragma once

#include <QByteArray>

/// AppImages: files that hold a program, which runs from a folder where the file is mounted.
namespace corvane::app_image {

/// What a process knows about where it was started from; native paths.
struct Evidence {
    QByteArray executable;
    /// Variables of the environment (APPIMAGE and APPDIR); any program may have set them.
    QByteArray file;
    QByteArray folder;

    static Evidence ofThisProcess();
};

/// The AppImage that the program runs from; empty when there is none. A program started by another
/// AppImage inherits its variables, so they count only if the executable lies inside the folder
/// that they name.
QByteArray containing(const Evidence &evidence);

/// The path with all symbolic links resolved; empty when it does not exist.
QByteArray canonical(const QByteArray &path);
bool isBelow(const QByteArray &path, const QByteArray &folder);

} // namespace corvane::app_image
