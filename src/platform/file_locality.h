#pragma once

#include <QByteArray>

namespace corvane {

/// Tells files on this machine's disks from those that another machine or program serves.
class FileLocality {
public:
    virtual ~FileLocality() = default;

    /// Whether reaching `path` (absolute, as bytes) leads through a file system that may never
    /// answer. Nothing on such a file system is touched to find out. Any thread.
    virtual bool isRemote(const QByteArray &path) const = 0;
};

} // namespace corvane
