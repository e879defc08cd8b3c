#pragma once

#include "platform/file_icons.h"

#include <QHash>
#include <QMimeDatabase>

namespace corvane {

/// Icons of the desktop's theme, chosen by a file's name alone: its contents are never read.
class QtFileIcons : public FileIcons {
public:
    Image iconForFile(const QUrl &url, double side, double scale) override;

private:
    struct Key {
        QString iconName;
        int pixels = 0;
        friend bool operator==(const Key &, const Key &) = default;
        friend size_t qHash(const Key &key, size_t seed = 0)
        {
            return qHashMulti(seed, key.iconName, key.pixels);
        }
    };

    QMimeDatabase m_database;
    QHash<Key, QImage> m_cache;
};

} // namespace corvane
