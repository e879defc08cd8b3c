#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

namespace corvane::bench {

/// A picture of 1280 x 960 pixels in that format.
QByteArray makePicture(const char *format);

/// A thousand files that a user may have: 490 pictures in four formats, 500 texts and 10 films.
struct MixedFiles {
    QList<QUrl> all;
    QList<QUrl> pictures;
};

/// Makes them in the folder. They have rested for long: of what changed just now no thumbnail is
/// kept in the cache.
MixedFiles makeMixedFiles(const QString &folder);

} // namespace corvane::bench
