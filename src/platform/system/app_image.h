#pragma once

#include <QByteArray>

/// AppImages: one file that holds a program, which runs from a temporary folder.
namespace corvane::app_image {

/// What a process is told about where it came from; native paths.
struct Evidence {
    QByteArray executable;
    /// Variables of the environment, which any program may have set.
    QByteArray file;
    QByteArray folder;

    static Evidence ofThisProcess();
};

/// The AppImage that the program runs from, as the environment names it; empty when there is none.
/// A program that another AppImage has started inherits that one's variables, so it has to lie
/// inside the folder that they name.
QByteArray containing(const Evidence &evidence);

/// A path with its links resolved; empty where there is nothing.
QByteArray canonical(const QByteArray &path);
bool isBelow(const QByteArray &path, const QByteArray &folder);

} // namespace corvane::app_image
