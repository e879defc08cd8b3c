#pragma once

#include "platform/system/file_version.h"

#include <QByteArray>

#include <functional>
#include <optional>

namespace corvane {

/// Reads files whose file system may never answer. Every question is answered; if it takes too
/// long, with none.
class RemoteFiles {
public:
    virtual ~RemoteFiles() = default;

    /// What is at the native path, links followed; none if it was not reached.
    ///
    /// Both functions call `completion` exactly once, later, on the main thread, unless this object
    /// is destroyed before. Main thread only; they do not block.
    virtual void inspect(const QByteArray &path,
                         std::function<void(std::optional<FileVersion>)> completion)
        = 0;
    /// The contents of a regular file of at most `limit` bytes; none for anything else.
    virtual void read(const QByteArray &path, qint64 limit,
                      std::function<void(std::optional<QByteArray>)> completion)
        = 0;
};

} // namespace corvane
