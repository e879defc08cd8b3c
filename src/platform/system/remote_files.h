#pragma once

#include "platform/system/file_version.h"

#include <QByteArray>

#include <functional>
#include <optional>

namespace corvane {

/// Reads files whose file system may never answer. Whoever asks always gets an answer: none once it
/// has taken too long.
class RemoteFiles {
public:
    virtual ~RemoteFiles() = default;

    /// Both call `completion` exactly once, later, on the main thread, unless this object is
    /// destroyed before. Main thread only; they do not block it.
    virtual void inspect(const QByteArray &path,
                         std::function<void(std::optional<FileVersion>)> completion)
        = 0;
    /// The contents of a regular file of at most `limit` bytes; none for anything else.
    virtual void read(const QByteArray &path, qint64 limit,
                      std::function<void(std::optional<QByteArray>)> completion)
        = 0;
};

} // namespace corvane
