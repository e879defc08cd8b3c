#pragma once

#include "platform/system/file_version.h"

#include <QByteArray>
#include <QList>

#include <optional>
#include <vector>

namespace corvane {

/// Tells files on this machine's disks from those that another machine or program serves.
class FileLocality {
public:
    virtual ~FileLocality() = default;

    /// Whether reaching `path` (absolute, as bytes) leads through a file system that may never
    /// answer. Nothing on such a file system is touched to find out. Any thread.
    virtual bool isRemote(const QByteArray &path) const = 0;

    struct Inspection {
        bool isRemote = false;
        /// What is there, links followed; none of what is remote.
        std::optional<FileVersion> version;
    };
    /// For each path what `isRemote` says, and what a local one leads to. Costs little more than to
    /// look at the files where many lie in one folder. Any thread.
    virtual std::vector<Inspection> inspect(const QList<QByteArray> &paths) const = 0;
};

} // namespace corvane
