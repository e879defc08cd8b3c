#pragma once

#include <QByteArray>

#include <optional>

struct stat;

namespace corvane {

/// A file's state at one moment. A thumbnail or description of the file is valid as long as none of
/// these values changes.
struct FileVersion {
    enum class Kind { Regular, Folder, Other };

    /// Absolute, as bytes.
    QByteArray path;
    Kind kind = Kind::Other;
    /// Whole seconds since 1970.
    qint64 modificationTime = 0;
    qint64 size = 0;

    /// The state of what is at `path`, with links followed; none when nothing is there. May wait
    /// for the disk.
    static std::optional<FileVersion> at(const QByteArray &path);
    /// From the result of a `stat` call.
    static FileVersion of(const QByteArray &path, const struct stat &status);
};

} // namespace corvane
