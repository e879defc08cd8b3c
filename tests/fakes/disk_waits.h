#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <functional>

namespace corvane::test {

/// While it lives it notes which files and folders were waited for until the disk had them
/// (`fsync`), by their paths. One at a time.
class DiskWaits {
public:
    DiskWaits();
    DiskWaits(const DiskWaits &) = delete;
    DiskWaits &operator=(const DiskWaits &) = delete;
    ~DiskWaits();

    QByteArrayList paths;
    /// Called with each, before it is waited for. May be empty.
    std::function<void(const QByteArray &path)> onWait;
};

} // namespace corvane::test
