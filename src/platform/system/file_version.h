#pragma once

#include <QByteArray>

#include <optional>

struct stat;

namespace corvane {

/// A file as it was at one moment: a picture of it holds as long as none of this differs.
struct FileVersion {
    enum class Kind { Regular, Folder, Other };

    /// Absolute, as bytes.
    QByteArray path;
    Kind kind = Kind::Other;
    /// Whole seconds since 1970.
    qint64 modificationTime = 0;
    qint64 size = 0;

    /// What is at `path`, links followed; none when nothing is. May wait for the disk.
    static std::optional<FileVersion> at(const QByteArray &path);
    /// What the system said of it.
    static FileVersion of(const QByteArray &path, const struct stat &status);
};

} // namespace corvane
