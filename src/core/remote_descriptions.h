#pragma once

#include "platform/base/lifetime.h"

#include <QByteArray>
#include <QString>
#include <QUuid>

#include <functional>

namespace corvane {

class RemoteFiles;

/// Finds out later what there is to say about files that a server may keep to itself: until then
/// their names have to do. Main thread only.
class RemoteDescriptions {
public:
    /// `files` must outlive it.
    explicit RemoteDescriptions(RemoteFiles &files);
    RemoteDescriptions(const RemoteDescriptions &) = delete;
    RemoteDescriptions &operator=(const RemoteDescriptions &) = delete;
    ~RemoteDescriptions();

    /// Called later for each file that was reached, never for others, nor once this is gone.
    std::function<void(const QUuid &item, const QString &description)> onFound;

    void find(const QUuid &item, const QByteArray &path);

private:
    RemoteFiles &m_files;
    Lifetime m_lifetime;
};

} // namespace corvane
