#pragma once

#include "core/drop_item.h"

#include <QString>

#include <functional>
#include <optional>

namespace corvane {

class FileLocality;
class MainQueue;
class RemoteFiles;
class WorkQueue;

/// Makes data URIs of items' contents. Reading and encoding happen on other threads, so a disk or
/// server that never answers does not stop the main thread. Main thread only; everything that it is
/// given must outlive it.
class DataUris {
public:
    /// Contents of this many bytes or more make no data URI.
    static constexpr qint64 limit = 8'388'608;

    using Made = std::function<void(const std::optional<QString> &uri)>;

    DataUris(const FileLocality &locality, RemoteFiles &remoteFiles, WorkQueue &workQueue,
             MainQueue &mainQueue);

    /// Calls `made` once, later, on the main thread. Links, contents that are too large, and files
    /// that cannot be read give no URI.
    void make(const DropItem &item, Made made);

private:
    /// Reads on another thread. None for what cannot be read.
    using Read = std::function<std::optional<QByteArray>()>;
    void encode(Read read, const QString &mediaType, Made made);
    void makeOfFile(const DropItem::File &file, Made made);

    const FileLocality &m_locality;
    RemoteFiles &m_remoteFiles;
    WorkQueue &m_workQueue;
    MainQueue &m_mainQueue;
};

} // namespace corvane
