// Large TIFF pictures: how long a drop of one takes, and how long the main thread is away from its
// event loop while ten are converted.

#include "app/composition_root.h"
#include "platform/qt/pasteboard/qt_pasteboard.h"
#include "support/heartbeat.h"
#include "support/table.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QMimeData>
#include <QTemporaryDir>

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace corvane::bench {

namespace {

constexpr int pageCount = 10;

/// An A4 page of 600 dpi: paper with some noise, and lines of letters.
QImage scannedPage()
{
    QImage page(4960, 7016, QImage::Format_RGB32);
    std::uint32_t state = 1;
    for (int y = 0; y < page.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(page.scanLine(y));
        const bool isLine = (y / 28) % 3 == 0;
        for (int x = 0; x < page.width(); ++x) {
            state = state * 1664525U + 1013904223U;
            const int noise = static_cast<int>(state >> 29U);
            const bool isInk = isLine && (x / 9) % 4 != 0 && ((x / 60) * 7919 % 11) > 2;
            const int level = (isInk ? 40 : 230) + noise;
            line[x] = qRgb(level, level, level - 8);
        }
    }
    return page;
}

/// The same with nothing to do but as many threads at work: what this machine does to anybody.
Heartbeat undisturbed()
{
    std::atomic<bool> isOver = false;
    std::vector<std::thread> busy;
    for (int i = 0; i < QtWorkQueue::maximumThreads; ++i) {
        busy.emplace_back([&] {
            while (!isOver) { }
        });
    }
    Heartbeat heartbeat;
    const double end = now() + 3000;
    heartbeat.runUntil([&] { return now() > end; });
    isOver = true;
    for (std::thread &thread : busy)
        thread.join();
    return heartbeat;
}

/// From the drop's data to the answer that the source waits for, in milliseconds.
double drop(CompositionRoot &root, const QList<QUrl> &files)
{
    QMimeData data;
    data.setUrls(files);
    const double start = now();
    QtPasteboard pasteboard(&data);
    root.store.accept(root.ingest.readAll(pasteboard));
    return now() - start;
}

bool areReady(const QList<DropItem> &items)
{
    return std::all_of(items.begin(), items.end(), [](const DropItem &item) {
        return !item.isBeingMade() && item.thumbnail().has_value();
    });
}

void measure(CompositionRoot &root)
{
    const QTemporaryDir folder;
    QList<QUrl> pages;
    const QImage page = scannedPage();
    page.save(folder.filePath(QStringLiteral("page 0.tiff")), "tiff");
    for (int i = 0; i < pageCount; ++i) {
        const QString path = folder.filePath(QStringLiteral("page %1.tiff").arg(i));
        if (i > 0)
            QFile::copy(folder.filePath(QStringLiteral("page 0.tiff")), path);
        pages << QUrl::fromLocalFile(path);
    }
    const Heartbeat floor = undisturbed();
    const auto untilReady = [&] { return areReady(root.store.items()); };

    const double plain = drop(root, {QUrl::fromLocalFile(folder.path())});
    Heartbeat().runUntil(untilReady);
    const double one = drop(root, pages.first(1));
    Heartbeat().runUntil(untilReady);
    root.store.clearAll();
    drop(root, pages);
    Heartbeat heartbeat;
    heartbeat.runUntil(untilReady);
    root.store.clearAll();

    print({"drop of a 600 dpi A4 TIFF, until the source is answered", plain, one, "ms", 20,
           Row::Bound::Value});
    printStalls("longest turn while ten of them are converted", floor, heartbeat);
}

} // namespace

} // namespace corvane::bench

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    corvane::CompositionRoot root(corvane::SessionKind::X11, [] {});
    root.delegate.applicationDidFinishLaunching();
    corvane::bench::measure(root);
    root.delegate.applicationWillTerminate();
}
