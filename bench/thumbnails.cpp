// The thumbnails of a thousand mixed files, with nothing and with everything in the desktop's
// cache, beside the decoding of the same pictures in as many threads.

#include "app/composition_root.h"
#include "fakes/in_process_codec.h"
#include "support/mixed_files.h"
#include "support/table.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace corvane::bench {

namespace {

constexpr int thumbnailPixels = 60;

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
    const MixedFiles files = makeMixedFiles(folder.path());
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
           "ms", 1.7});
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
