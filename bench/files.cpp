// Ten thousand files in one drop beside their stat calls, and how long the main thread is away from
// its event loop while their thumbnails arrive.

#include "app/composition_root.h"
#include "platform/qt/pasteboard/qt_pasteboard.h"
#include "platform/system/file_url.h"
#include "support/heartbeat.h"
#include "support/table.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QMimeData>
#include <QTemporaryDir>

#include <sys/stat.h>

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace corvane::bench {

namespace {

constexpr int fileCount = 10'000;
constexpr int pictureShare = 10;

QByteArray pictureBytes(const char *format)
{
    QImage picture(640, 480, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x * 255 / 640, y * 255 / 480, (x * y) & 255));
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, format);
    return bytes;
}

/// Native paths of small files of many kinds; one in ten is a picture.
std::vector<QByteArray> makeFiles(const QString &folder)
{
    const QByteArray jpeg = pictureBytes("JPG");
    const QByteArray png = pictureBytes("PNG");
    const char *const others[] = {"txt", "pdf", "cpp", "h", "odt", "html", "zip", "mp3", "unknown"};
    std::vector<QByteArray> paths;
    for (int i = 0; i < fileCount; ++i) {
        const bool isPicture = i % pictureShare == 0;
        const bool isJpeg = i % (2 * pictureShare) == 0;
        const QString extension = isPicture
            ? (isJpeg ? QStringLiteral("jpg") : QStringLiteral("png"))
            : QString::fromLatin1(others[i % pictureShare - 1]);
        QFile file(QStringLiteral("%1/some document %2.%3").arg(folder).arg(i).arg(extension));
        file.open(QFile::WriteOnly);
        file.write(isPicture ? (isJpeg ? jpeg : png) : QByteArray(1 + i, 'a'));
        paths.push_back(QFile::encodeName(file.fileName()));
    }
    return paths;
}

double statCalls(const std::vector<QByteArray> &paths)
{
    const double start = threadTime();
    for (const QByteArray &path : paths) {
        struct stat status = {};
        ::stat(path.constData(), &status);
    }
    return threadTime() - start;
}

QByteArray uriList(const std::vector<QByteArray> &paths)
{
    QByteArray list;
    for (const QByteArray &path : paths)
        list += file_url::fromNativePath(path).toEncoded() + "\r\n";
    return list;
}

/// A list of addresses as a drop offers it: bytes, which nobody has read yet.
class OfferedList : public QMimeData {
public:
    explicit OfferedList(const QByteArray &list)
        : m_list(list)
    {
    }
    bool hasFormat(const QString &type) const override { return formats().contains(type); }
    QStringList formats() const override { return {QStringLiteral("text/uri-list")}; }

protected:
    QVariant retrieveData(const QString &, QMetaType) const override { return m_list; }

private:
    QByteArray m_list;
};

/// From the drop's data to the answer that the source waits for.
double drop(CompositionRoot &root, const QByteArray &list)
{
    const OfferedList data(list);
    const double start = threadTime();
    QtPasteboard pasteboard(&data);
    root.store.accept(root.ingest.readAll(pasteboard));
    return threadTime() - start;
}

/// The event loop with nothing to do beside as many threads at work: what this machine does to
/// anybody.
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

bool haveThumbnails(const QList<DropItem> &items)
{
    return std::all_of(items.crbegin(), items.crend(),
                       [](const DropItem &item) { return item.thumbnail().has_value(); });
}

void measure(CompositionRoot &root)
{
    const QTemporaryDir folder;
    const std::vector<QByteArray> paths = makeFiles(folder.path());
    const QByteArray list = uriList(paths);
    const Heartbeat floor = undisturbed();

    std::vector<double> stats;
    std::vector<double> drops;
    Heartbeat heartbeat;
    constexpr int runs = 7;
    for (int i = 0; i < runs; ++i) {
        for (int j = 0; j < runs; ++j)
            stats.push_back(statCalls(paths));
        drops.push_back(drop(root, list));
        heartbeat.runUntil([&] { return haveThumbnails(root.store.items()); });
        root.store.clearAll();
        // The next drop is one in peace.
        const double rest = now() + 1000;
        Heartbeat().runUntil([&] { return now() > rest; });
    }
    // The least disturbed of each: who else is at work here slows memory more than system calls.
    print({"accepting 10,000 files in one drop, CPU", *std::min_element(stats.begin(), stats.end()),
           *std::min_element(drops.begin(), drops.end()), "ms", 3});
    printStalls("longest stall while their thumbnails arrive", floor, heartbeat);
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
