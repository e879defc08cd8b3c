#pragma once

#include "platform/freedesktop/thumbnails/thumbnailer_entry.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QHash>

#include <mutex>
#include <optional>

namespace corvane {

/// The `.thumbnailer` files of the user and the system. Read when it is first asked, and again when
/// one of their folders has changed. Any thread.
class ThumbnailerRegistry {
public:
    struct Thumbnailer {
        /// An absolute path to something that can be executed.
        QByteArray program;
        ThumbnailerEntry entry;
    };

    /// `dataFolders`, the most important first; a file there covers those of its name in the
    /// others. `programFolders` are where programs without a path are looked for.
    ThumbnailerRegistry(QByteArrayList dataFolders, QByteArrayList programFolders);

    /// The folders that the environment names: XDG_DATA_HOME, XDG_DATA_DIRS, PATH.
    static QByteArrayList environmentDataFolders();
    static QByteArrayList environmentProgramFolders();

    /// The program for the first of the types that has one which is there.
    std::optional<Thumbnailer> find(const QByteArrayList &mimeTypes) const;

private:
    void readIfChanged() const;
    void readFolder(const QByteArray &folder, QByteArrayList &seen) const;
    QByteArray programPath(const QByteArray &name) const;

    QByteArrayList m_folders;
    QByteArrayList m_programFolders;
    mutable std::mutex m_mutex;
    /// When each folder changed; empty before the first reading.
    mutable QByteArrayList m_changes;
    mutable QHash<QByteArray, ThumbnailerEntry> m_entries;
};

} // namespace corvane
