#pragma once

#include "platform/pictures/image.h"

#include <QUrl>

namespace corvane {

/// The icon that the desktop's theme shows for a file.
class FileIcons {
public:
    virtual ~FileIcons() = default;

    /// Always an image, `side` points square at `scale` pixels per point; an icon of our own where
    /// the theme has none. Main thread only; does not wait for the file's disk.
    virtual Image iconForFile(const QUrl &url, double side, double scale) = 0;
    /// The same for a folder.
    virtual Image iconForFolder(double side, double scale) = 0;
};

} // namespace corvane
