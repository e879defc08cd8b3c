#pragma once

#include "platform/pictures/file_icons.h"

#include <QHash>
#include <QMimeDatabase>

namespace corvane {

class FileLocality;

/// Icons of the desktop's theme, chosen by a file's name; contents are never read. Local disks are
/// asked whether something is a folder; elsewhere a folder is recognised by a trailing slash.
class QtFileIcons : public FileIcons {
public:
    /// `locality` must outlive this.
    explicit QtFileIcons(const FileLocality &locality);

    Image iconForFile(const QUrl &url, double side, double scale) override;
    Image iconForFolder(double side, double scale) override;

private:
    Image icon(const QMimeType &type, bool asFolder, double side, double scale);
    bool isFolder(const QUrl &url) const;

    struct Key {
        QString iconName;
        int pixels = 0;
        friend bool operator==(const Key &, const Key &) = default;
        friend size_t qHash(const Key &key, size_t seed = 0)
        {
            return qHashMulti(seed, key.iconName, key.pixels);
        }
    };

    const FileLocality &m_locality;
    QMimeDatabase m_database;
    QHash<Key, QImage> m_cache;
};

} // namespace corvane
