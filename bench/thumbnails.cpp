// The thumbnails of a thousand mixed files, with nothing and with everything in the desktop's
// cache, beside the decoding of the same pictures in as many threads.

#include "app/composition_root.h"
#include "fakes/film.h"
#include "fakes/in_process_codec.h"
#include "platform/system/file_url.h"
#include "support/table.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace corvane::bench {

namespace {

constexpr int fileCount = 1'000;
/// One of them in each hundred; the others are pictures and texts in turn.
constexpr int filmShare = 100;
constexpr int thumbnailPixels = 60;

QByteArray pictureBytes(const char *format)
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

struct Files {
    QList<QUrl> all;
    QList<QUrl> pictures;
};

/// Files that have rested for long: what changed just now is not kept in the cache.
Files makeFiles(const QString &folder)
{
    const char *const formats[] = {"jpg", "png", "webp", "bmp"};
    std::vector<QByteArray> pictures;
    for (const char *format : formats)
        pictures.push_back(pictureBytes(format));
    Files files;
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
        const timespec times[] = {{1'000'000'000, 0}, {1'000'000'000, 0}};
        ::utimensat(AT_FDCWD, path.constData(), times, 0);
        files.all << file_url::fromNativePath(path);
        if (isPicture)
            files.pictures << files.all.constLast();
    }
    return files;
}

/// Decoding alone, in as many threads as make thumbnails.
double decoding(const QList<QUrl> &pictures)
{
    const double start = now();
    const test::InProcessCodec codec;
    std::atomic<qsizetype> next = 0;
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < ThumbnailService::maximumRunning; ++i) {
        threads.emplace_back([&] {
            for (qsizetype at = next++; at < pictures.size(); at = next++)
                codec.fileThumbnail(pictures[at], thumbnailPixels);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    return now() - start;
}

/// From the drop to the last thumbnail.
double thumbnails(CompositionRoot &root, const QList<QUrl> &files)
{
    QList<DropItem> items;
    for (const QUrl &url : files)
        items << DropItem(DropItem::File{url}, {}, {}, false);
    const double start = now();
    root.store.accept(items);
    const auto isDone = [&] {
        const QList<DropItem> &held = root.store.items();
        return std::all_of(held.cbegin(), held.cend(),
                           [](const DropItem &item) { return item.thumbnail().has_value(); });
    };
    while (!isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const double time = now() - start;
    root.store.clearAll();
    return time;
}

void measure(CompositionRoot &root, const QString &cacheFolder)
{
    const QTemporaryDir folder;
    const Files files = makeFiles(folder.path());
    std::vector<double> floors;
    std::vector<double> cold;
    std::vector<double> warm;
    constexpr int runs = 3;
    for (int i = 0; i < runs; ++i) {
        QDir(cacheFolder + QLatin1String("/thumbnails")).removeRecursively();
        floors.push_back(decoding(files.pictures));
        cold.push_back(thumbnails(root, files.all));
        warm.push_back(thumbnails(root, files.all));
    }
    const double floor = *std::min_element(floors.begin(), floors.end());
    print({"1,000 thumbnails, cache empty", floor, *std::min_element(cold.begin(), cold.end()),
           "ms", 2});
    print({"1,000 thumbnails, all in the cache", floor, *std::min_element(warm.begin(), warm.end()),
           "ms", 1});
}

} // namespace

} // namespace corvane::bench

int main(int argc, char **argv)
{
    const QTemporaryDir cache;
    qputenv("XDG_CACHE_HOME", QFile::encodeName(cache.path()));
    const QApplication application(argc, argv);
    corvane::CompositionRoot root(corvane::SessionKind::X11, [] {});
    root.delegate.applicationDidFinishLaunching();
    corvane::bench::measure(root, cache.path());
    root.delegate.applicationWillTerminate();
}
