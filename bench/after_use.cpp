// What a thousand thumbnails leave behind, seen from outside: memory of the program, and wake-ups
// while the decoders end by themselves and after that.

#include "support/child.h"
#include "support/mixed_files.h"
#include "support/simple_drop.h"
#include "support/table.h"
#include "support/x_desk.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include <chrono>
#include <map>
#include <stdexcept>
#include <string>
#include <thread>

namespace {

using namespace corvane::bench;
using namespace std::chrono_literals;

std::string addressesOf(const MixedFiles &files)
{
    std::string addresses;
    for (const QUrl &url : files.all)
        addresses += url.toEncoded().toStdString() + "\r\n";
    return addresses;
}

/// Of the build that is measured; others may run as well.
int runningDecoders()
{
    const QString decoder = QCoreApplication::applicationDirPath() + u"/corvane-decoder";
    int count = 0;
    const auto processes = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString &process : processes) {
        if (QFile::symLinkTarget(u"/proc/" + process + u"/exe") == decoder)
            ++count;
    }
    return count;
}

int keptThumbnails(const QString &cacheFolder)
{
    int count = 0;
    for (QDirIterator it(cacheFolder + u"/thumbnails/normal", QDir::Files); it.hasNext(); it.next())
        ++count;
    return count;
}

double megabytes(const Child &child)
{
    constexpr double kilobytesPerMegabyte = 1000.0 / 1.024;
    return child.residentKilobytes() / kilobytesPerMegabyte;
}

/// Of the threads that are still there. One that ends takes its own along, many of them from
/// before.
long switchesSince(const std::map<std::string, long> &before, const Child &child)
{
    long sum = 0;
    for (const auto &[thread, count] : child.contextSwitchesByThread()) {
        const auto earlier = before.find(thread);
        sum += count - (earlier == before.end() ? 0 : earlier->second);
    }
    return sum;
}

void measure(const QString &cacheFolder)
{
    const QTemporaryDir folder;
    const MixedFiles files = makeMixedFiles(folder.path());
    XDesk desk;
    desk.moveTo(100, desk.height() - 10);
    const Child empty("empty_widgets");
    const Child corvane("corvane");
    empty.waitUntilQuiet();
    corvane.waitUntilQuiet();
    const double idle = megabytes(corvane);

    desk.watchWindows();
    dropFiles(desk, addressesOf(files));
    desk.moveTo(100, desk.height() - 10);
    corvane.waitUntilQuiet();
    if (keptThumbnails(cacheFolder) < files.pictures.size())
        throw std::runtime_error("not all pictures have thumbnails");
    desk.pressHotKey();
    desk.releaseHotKey();
    if (!desk.waitForPanel(false))
        throw std::runtime_error("the shelf does not hide");
    corvane.waitUntilQuiet();
    print({"resident memory after 1,000 thumbnails", idle, megabytes(corvane), "MB", 1.3});

    const auto emptyBefore = empty.contextSwitchesByThread();
    const auto before = corvane.contextSwitchesByThread();
    if (runningDecoders() == 0)
        throw std::runtime_error("the decoders have ended before they are watched");
    std::this_thread::sleep_for(30s);
    if (runningDecoders() > 0)
        throw std::runtime_error("the decoders stay");
    print({"wake-ups in 30 s after that, while the decoders end",
           static_cast<double>(switchesSince(emptyBefore, empty)),
           static_cast<double>(switchesSince(before, corvane)), "", 0, Row::Bound::Value});
}

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir cache;
    qputenv("XDG_CACHE_HOME", QFile::encodeName(cache.path()));
    const QCoreApplication application(argc, argv);
    measure(cache.path());
}
