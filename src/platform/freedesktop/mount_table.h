#pragma once

#include "platform/system/file_locality.h"

#include <QByteArray>

#include <map>
#include <memory>
#include <mutex>

namespace corvane {

/// Where what is mounted, as the kernel tells it without asking any of the file systems.
///
/// A path is followed one component at a time, links too, and each is looked at only after the
/// table said that it lies on a local disk. Read when it is first asked, and again when the kernel
/// says that it changed.
class MountTable : public FileLocality {
public:
    MountTable();
    /// Another table in the format of /proc/self/mountinfo.
    explicit MountTable(QByteArray tablePath);
    MountTable(const MountTable &) = delete;
    MountTable &operator=(const MountTable &) = delete;
    ~MountTable() override;

    bool isRemote(const QByteArray &path) const override;
    std::vector<Inspection> inspect(const QList<QByteArray> &paths) const override;

private:
    /// Mount points by their paths, and whether they are remote. Of several at one place the last
    /// counts, which covers the rest.
    using Mounts = std::map<QByteArray, bool>;

    std::shared_ptr<const Mounts> mounts() const;
    bool hasChanged() const;
    Mounts readTable() const;

    QByteArray m_tablePath;
    mutable std::mutex m_mutex;
    mutable int m_descriptor = -1;
    mutable std::shared_ptr<const Mounts> m_mounts;
};

} // namespace corvane
