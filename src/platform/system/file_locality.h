#pragma once

#include "platform/system/file_version.h"

#include <QByteArray>
#include <QList>

#include <optional>
#include <vector>

namespace corvane {

/// Distinguishes files on this machine's disks from those that another machine or program serves.
class FileLocality {
public:
    virtual ~FileLocality() = default;

    /// Whether the way to `path` (absolute, native) leads through a file system that may never
    /// answer. To find out, nothing on such a file system is touched. Any thread.
    virtual bool isRemote(const QByteArray &path) const = 0;

    struct Inspection {
        bool isRemote = false;
        /// What is there, with links followed; none for a remote file.
        std::optional<FileVersion> version;
    };
    /// For each path the answer of `isRemote`, and for a local file its version. For many files in
    /// one folder this costs little more than reading their versions. Any thread.
    virtual std::vector<Inspection> inspect(const QList<QByteArray> &paths) const = 0;
};

} // namespace corvane
