// Twenty thousand files that are copied at once, and dragged out at once until the drag begins,
// beside looking at each of them.

#include "core/data_uris.h"
#include "core/drag_set.h"
#include "core/drag_writer.h"
#include "core/feedback.h"
#include "core/item_preparation.h"
#include "core/quick_actions.h"
#include "core/saved_pictures.h"
#include "core/temporary_spool.h"
#include "fakes/fake_remote_files.h"
#include "fakes/fake_work_queue.h"
#include "fakes/test_clock.h"
#include "platform/freedesktop/mount_table.h"
#include "platform/qt/pasteboard/mime_encoding.h"
#include "platform/qt/pasteboard/qt_clipboard.h"
#include "platform/system/file_url.h"
#include "support/table.h"

#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QTemporaryDir>

#include <sys/stat.h>

#include <vector>

namespace corvane::bench {

namespace {

constexpr int fileCount = 20'000;
constexpr int runs = 5;

QList<DropItem> makeFiles(const QString &folder)
{
    QList<DropItem> items;
    for (int i = 0; i < fileCount; ++i) {
        const QString name = QStringLiteral("some document %1.txt").arg(i);
        QFile file(folder + QLatin1Char('/') + name);
        file.open(QFile::WriteOnly);
        items << DropItem(DropItem::File{QUrl::fromLocalFile(file.fileName())}, name,
                          QStringLiteral("TXT"), false);
    }
    return items;
}

double statCalls(const QList<DropItem> &items)
{
    std::vector<QByteArray> paths;
    for (const DropItem &item : items)
        paths.push_back(file_url::nativePath(std::get<DropItem::File>(item.payload()).url));
    const double start = threadTime();
    for (const QByteArray &path : paths) {
        struct stat status = {};
        ::stat(path.constData(), &status);
    }
    return threadTime() - start;
}

void measure()
{
    const QTemporaryDir folder;
    const QList<DropItem> items = makeFiles(folder.path());
    const MountTable mounts;
    test::FakeRemoteFiles remoteFiles;
    test::FakeWorkQueue work;
    test::TestClock clock;
    DataUris dataUris(mounts, remoteFiles, work, clock);
    QtClipboard pasteboard;
    const Feedback feedback;
    test::TemporarySpool temporary;
    ItemPreparation preparation(temporary.spool, clock, work);
    SavedPictures pictures(temporary.spool, preparation);
    QuickActions quickActions(pasteboard, feedback, dataUris, preparation, pictures);
    const DragWriter writer(Qt::gray, {}, mounts);

    std::vector<double> floors;
    std::vector<double> copies;
    std::vector<double> drags;
    for (int i = 0; i < runs; ++i) {
        floors.push_back(statCalls(items));
        double start = threadTime();
        quickActions.copy(items);
        copies.push_back(threadTime() - start);
        start = threadTime();
        const DragSet set = makeDragSet(items, writer, pictures);
        const auto mimeData = mimeDataFor(formsOf(set.contents, PasteboardKind::Drag));
        drags.push_back(threadTime() - start);
    }
    constexpr auto value = Row::Bound::Value;
    print({"copying 20,000 files", median(floors), median(copies), "ms", 60, value});
    print({"dragging them out, until the drag begins", median(floors), median(drags), "ms", 60,
           value});
}

} // namespace

} // namespace corvane::bench

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    corvane::bench::measure();
}
