#pragma once

#include "platform/base/cancellation.h"

#include <QByteArray>
#include <QUrl>

#include <functional>

namespace corvane {

class FileDescriptor;

/// A file name in the spool that is kept for a file still being made: while this exists, the name
/// is given to no other file. Any thread.
class SpoolPlace {
public:
    explicit SpoolPlace(QUrl url);

    const QUrl &url() const { return m_url; }
    /// False once the file was discarded or given up: making it can stop.
    bool isWanted() const { return !m_cancellation.isCancelled(); }
    void giveUp() { m_cancellation.cancel(); }
    /// Cancelled when the file is not wanted any more: for one piece of work at a time that makes
    /// it.
    Cancellation &cancellation() const { return m_cancellation; }
    /// Writes the file, which appears complete or not at all. False, and no file is left, when it
    /// is not wanted any more or cannot be written.
    bool write(const QByteArray &data) const;
    /// The same with what `fill` writes into the empty file; false when that fails, too.
    bool write(const std::function<bool(const FileDescriptor &file)> &fill) const;

private:
    bool keep(bool isCreated) const;

    const QUrl m_url;
    mutable Cancellation m_cancellation;
};

} // namespace corvane
