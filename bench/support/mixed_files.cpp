#include "support/mixed_files.h"

#include "fakes/film.h"

#include <QBuffer>
#include <QFile>
#include <QImage>

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <vector>

namespace corvane::bench {

namespace {

constexpr int fileCount = 1'000;
/// One of them in each hundred; the others are pictures and texts in turn.
constexpr int filmShare = 100;

} // namespace

QByteArray makePicture(const char *format)
{
    QImage picture(1280, 960, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x * 255 / 1280, y * 255 / 960, (x * y / 64) & 255));
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, format);
    return bytes;
}

MixedFiles makeMixedFiles(const QString &folder)
{
    constexpr std::array formats = {"jpg", "png", "webp", "bmp"};
    std::vector<QByteArray> pictures;
    for (const char *format : formats)
        pictures.push_back(makePicture(format));
    MixedFiles files;
    for (int i = 0; i < fileCount; ++i) {
        const bool isFilm = i % filmShare == 0;
        const bool isPicture = !isFilm && i % 2 == 0;
        const std::size_t kind = static_cast<std::size_t>(i / 2) % pictures.size();
        const QString extension
            = QString::fromLatin1(isFilm ? "avi" : (isPicture ? formats[kind] : "txt"));
        QFile file(QStringLiteral("%1/some file %2.%3").arg(folder).arg(i).arg(extension));
        file.open(QFile::WriteOnly);
        file.write(isFilm ? test::film() : (isPicture ? pictures[kind] : QByteArray(1 + i, 'a')));
        file.close();
        const QByteArray path = QFile::encodeName(file.fileName());
        constexpr timespec longAgo = {1'000'000'000, 0};
        const std::array times = {longAgo, longAgo};
        ::utimensat(AT_FDCWD, path.constData(), times.data(), 0);
        files.all << QUrl::fromLocalFile(file.fileName());
        if (isPicture)
            files.pictures << files.all.constLast();
    }
    return files;
}

} // namespace corvane::bench
