#pragma once

#include "platform/base/lifetime.h"

#include <QByteArray>
#include <QString>
#include <QUuid>

#include <functional>

namespace corvane {

class RemoteFiles;

/// Asks later for kind and size of files behind a network, whose servers may never answer; until
/// then their items show what the name tells. Main thread only.
class RemoteDescriptions {
public:
    /// `files` must outlive it.
    explicit RemoteDescriptions(RemoteFiles &files);
    RemoteDescriptions(const RemoteDescriptions &) = delete;
    RemoteDescriptions &operator=(const RemoteDescriptions &) = delete;
    ~RemoteDescriptions();

    /// Called later, on the main thread, for each file that was reached. Not called for others, nor
    /// after this is destroyed.
    std::function<void(const QUuid &item, const QString &description, bool isFolder)> onFound;

    /// Begins to ask for the file at `path`, a native path.
    void find(const QUuid &item, const QByteArray &path);

private:
    RemoteFiles &m_files;
    Lifetime m_lifetime;
};

} // namespace corvane
