// Pictures that come from elsewhere: decoded in processes of their own, whatever they are.

#include "e2e/desktop/memory_watch.h"
#include "e2e/desktop_test.h"
#include "platform/qt/web/http_server.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSet>
#include <QUrl>

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdint>
#include <iostream>
#include <thread>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class StrangersPictures : public DesktopTest {
protected:
    ~StrangersPictures() override { QDir(thumbnails()).removeRecursively(); }

    QString thumbnails() const
    {
        return m_desktop.environment().value(u"XDG_CACHE_HOME"_s) + u"/thumbnails"_s;
    }
    /// Whether the desktop's cache has something of that file in one of these folders.
    bool isKept(const QString &path, const QStringList &folders) const
    {
        const QByteArray address = QUrl::fromLocalFile(path).toEncoded();
        const QString name = QString::fromLatin1(
            QCryptographicHash::hash(address, QCryptographicHash::Md5).toHex() + ".png");
        return std::ranges::any_of(folders, [&](const QString &folder) {
            return QFile::exists(thumbnails() + u'/' + folder + u'/' + name);
        });
    }
    bool hasThumbnail(const QString &path) const
    {
        return isKept(path, {u"normal"_s, u"large"_s, u"x-large"_s});
    }

    /// A file that was not changed just now: of others no thumbnail is kept.
    QString aged(const QString &path) const
    {
        constexpr timespec longAgo = {1'000'000'000, 0};
        const std::array times = {longAgo, longAgo};
        ::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times.data(), 0);
        return path;
    }
    /// Larger than what the cache keeps.
    QString makePicture(const QString &name, const char *format)
    {
        QImage picture(600, 600, QImage::Format_RGB32);
        picture.fill(qRgb(200, 60, 30));
        const QString path = makeFile(name, {});
        EXPECT_TRUE(picture.save(path, format)) << format;
        return aged(path);
    }
    QString makeDocument(const QString &name)
    {
        QString path = makeFile(name, {});
        QPdfWriter writer(path);
        QPainter(&writer).fillRect(0, 0, 50000, 50000, Qt::red);
        return path;
    }
    /// Whether the preview shows the document's page.
    bool showsRed()
    {
        const auto window = corvane().window();
        const QImage seen = window ? server().picture(window->frame) : QImage();
        return !seen.isNull() && seen.pixelColor(seen.rect().center()) == QColor(Qt::red);
    }
    QByteArray maps()
    {
        QFile file(u"/proc/%1/maps"_s.arg(corvane().program().pid()));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST_F(StrangersPictures, tenKindsOfFilesLoadNoDecoderIntoTheProgram)
{
    startWithInView(6);
    ASSERT_TRUE(dropFiles({makeDocument(u"document.pdf"_s)}));
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(6, 1)));
    const QPoint only = CorvaneProgram::cell(6, 1, 0);
    focusShelf(corvane().at(only.x(), only.y()));
    hands().key(keys::space);
    ASSERT_TRUE(eventually([&] { return showsRed(); })) << "the document's page";
    hands().key(keys::space);
    ASSERT_TRUE(eventually([&] { return !corvane().window(); }));
    QStringList files;
    for (const char *format : {"png", "jpg", "bmp", "ppm", "webp", "ico", "xpm"})
        files << makePicture(u"picture.%1"_s.arg(QLatin1String(format)), format);
    files << aged(makeFile(u"drawing.svg"_s,
                           "<svg xmlns='http://www.w3.org/2000/svg' width='600' height='600'>"
                           "<rect width='600' height='600' fill='#aa0000'/></svg>"));
    files << makePicture(u"page.tif"_s, "tiff");
    ASSERT_TRUE(dropFiles(files));
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(6, 10)));
    for (const QString &file : files.first(8))
        EXPECT_TRUE(eventually([&] { return hasThumbnail(file); })) << file.toStdString();
    EXPECT_TRUE(eventually([&] { return corvane().spooled().size() == 1; })) << "the page is a PNG";
    const QByteArray mapped = maps();
    EXPECT_TRUE(mapped.contains("libQt6Gui"));
    for (const char *name : {"/imageformats/", "libQt6Pdf", "libtiff", "libwebp", "libgif"})
        EXPECT_FALSE(mapped.contains(name)) << name;
}

/// With pictures that take their decoder seconds, and with others that are not even files.
class AmongHostilePictures : public StrangersPictures {
protected:
    /// What the build has made for all tests.
    static QString hostile(const QString &name)
    {
        return QStringLiteral(CORVANE_HOSTILE_PICTURES "/") + name;
    }
    static QStringList allHostile()
    {
        QStringList paths;
        const auto names = QDir(hostile({})).entryList(QDir::Files, QDir::Name);
        for (const QString &name : names)
            paths << hostile(name);
        return paths;
    }
    QStringList makeWhatIsNoFile()
    {
        const QString pipe = makeFolder(u"odd"_s) + u"/pipe.png"_s;
        EXPECT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        const QString device = makeFolder(u"odd"_s) + u"/device.png"_s;
        EXPECT_TRUE(QFile::link(u"/dev/zero"_s, device));
        return {pipe, device, makeFolder(u"odd/folder.png"_s)};
    }
    /// Drawings that take longer than they may, each another one.
    QStringList makeEndlessDrawings(int count)
    {
        QFile many(hostile(u"many-strokes.svg"_s));
        EXPECT_TRUE(many.open(QFile::ReadOnly));
        const QByteArray drawing = many.readAll();
        QStringList paths;
        for (int i = 0; i < count; ++i)
            paths << aged(makeFile(u"endless %1.svg"_s.arg(i), drawing));
        return paths;
    }
    /// Those of the files that are not to be tried again.
    qsizetype givenUp(const QStringList &paths) const
    {
        QStringList folders;
        const auto programs = QDir(thumbnails() + u"/fail"_s).entryList({u"corvane-*"_s});
        for (const QString &program : programs)
            folders << u"fail/"_s + program;
        return std::ranges::count_if(paths,
                                     [&](const QString &path) { return isKept(path, folders); });
    }
};

TEST_F(AmongHostilePictures, ordinaryOnesHaveTheirThumbnailsBeforeTheseAreGivenUp)
{
    startWithInView(3);
    QStringList ordinary;
    for (int i = 0; i < 10; ++i)
        ordinary << makePicture(u"ordinary %1.png"_s.arg(i), "png");
    const QStringList endless = makeEndlessDrawings(6);
    const QStringList hostile = allHostile();
    ASSERT_GT(hostile.size(), 20);
    // What comes last is the newest, which is tried first.
    ASSERT_TRUE(dropFiles(ordinary + makeWhatIsNoFile() + hostile + endless));
    for (const QString &file : ordinary)
        EXPECT_TRUE(eventually([&] { return hasThumbnail(file); })) << file.toStdString();
    // Had the ordinary ones waited for these, all would have been given up.
    EXPECT_LT(givenUp(endless), endless.size());
    EXPECT_TRUE(eventually([&] { return givenUp(endless) > 0; })) << "it is not tried again";
    corvane().program().signal(SIGTERM);
    EXPECT_EQ(corvane().program().waitForEnd(), 0);
}

TEST_F(AmongHostilePictures, theProgramEndsWhileOneIsDecoded)
{
    startWithInView(3);
    const QString first = makePicture(u"first.png"_s, "png");
    // The newest comes first.
    ASSERT_TRUE(dropFiles(makeEndlessDrawings(2) << first));
    ASSERT_TRUE(eventually([&] { return hasThumbnail(first); }));
    corvane().program().signal(SIGTERM);
    EXPECT_EQ(corvane().program().waitForEnd(), 0);
}

TEST_F(AmongHostilePictures, allProcessesTogetherTakeNoMoreMemoryThanASmallMachineHas)
{
    constexpr qint64 most = 600'000'000;
    startWithInView(3);
    const MemoryWatch watch(corvane().program().pid(),
                            "XDG_CACHE_HOME="
                                + m_desktop.environment().value(u"XDG_CACHE_HOME"_s).toUtf8());
    const QString last = makePicture(u"last.png"_s, "png");
    // Whatever is in view is a drawing that takes as much memory as it gets.
    const QStringList endless = makeEndlessDrawings(6);
    const QStringList all = endless.first(3) + QStringList{last} + allHostile() + endless.last(3);
    ASSERT_TRUE(dropFiles(all));
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, int(all.size()))));
    const QPoint first = CorvaneProgram::cell(3, int(all.size()), 0);
    focusShelf(corvane().at(first.x(), first.y()));
    hands().key(keys::space);
    ASSERT_TRUE(eventually([&] { return corvane().window(); }));
    EXPECT_TRUE(eventually([&] { return hasThumbnail(last); })) << "all were tried";
    EXPECT_TRUE(eventually([&] { return givenUp(endless) == endless.size(); }));
    for (const char *name : {"many-strokes.svg", "more-strokes.svg", "scans.jpg"})
        EXPECT_TRUE(eventually([&] { return givenUp({hostile(QLatin1String(name))}) == 1; }))
            << name;
    EXPECT_LT(watch.peak(), most);
    // It has seen them.
    EXPECT_GT(watch.processes(), 1);
    RecordProperty("peak", std::to_string(watch.peak()));
    std::cout << watch.peak() / 1'000'000 << " MB\n";
}

TEST_F(AmongHostilePictures, aFileThatNeverRestsKeepsNoOtherWaiting)
{
    startWithInView(3);
    QStringList ordinary;
    for (int i = 0; i < 10; ++i)
        ordinary << makePicture(u"ordinary %1.png"_s.arg(i), "png");
    QImage picture(3'000, 2'000, QImage::Format_RGB32);
    picture.fill(qRgb(30, 90, 200));
    const QString restless = makeFile(u"restless.bmp"_s, {});
    ASSERT_TRUE(picture.save(restless, "bmp"));
    std::atomic<bool> isOver = false;
    std::thread changer([&] {
        QFile file(restless);
        const bool isOpen = file.open(QFile::ReadWrite);
        const qint64 whole = file.size();
        for (qint64 i = 0; isOpen && !isOver; ++i)
            file.resize(whole * (i % 7) / 3);
        file.resize(0);
    });
    EXPECT_TRUE(dropFiles(QStringList(ordinary) << restless));
    for (const QString &file : ordinary)
        EXPECT_TRUE(eventually([&] { return hasThumbnail(file); })) << file.toStdString();
    isOver = true;
    changer.join();
    // At rest, and whole again, it is like any other.
    const QString rested = makePicture(u"restless.bmp"_s, "bmp");
    ASSERT_TRUE(dropFiles({rested}));
    EXPECT_TRUE(eventually([&] { return hasThumbnail(rested); }));
    corvane().program().signal(SIGTERM);
    EXPECT_EQ(corvane().program().waitForEnd(), 0);
}

TEST_F(AmongHostilePictures, theProgramEndsWhileOneIsBeingPreviewed)
{
    startWithInView(3);
    ASSERT_TRUE(dropFiles(makeEndlessDrawings(1)));
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 1)));
    const QPoint only = CorvaneProgram::cell(3, 1, 0);
    focusShelf(corvane().at(only.x(), only.y()));
    hands().key(keys::space);
    ASSERT_TRUE(eventually([&] { return corvane().window(); }));
    corvane().program().signal(SIGTERM);
    // The preview would take longer.
    EXPECT_EQ(corvane().program().waitForEnd(std::chrono::seconds{5}), 0);
}

/// When the program is told to end, after the hostile pictures were dropped.
enum class Moment { Dropped, FirstThumbnail, FirstGivenUp, Converting, AllTried };

class EndAmongHostilePictures : public AmongHostilePictures,
                                public testing::WithParamInterface<Moment> {
protected:
    /// A page that takes a second to convert.
    QString makeLargePage()
    {
        QImage page(4'960, 7'016, QImage::Format_Grayscale8);
        std::uint32_t state = 1;
        for (int y = 0; y < page.height(); ++y)
            std::ranges::generate_n(page.scanLine(y), page.width(), [&state] {
                return uchar((state = state * 1664525U + 1013904223U) >> 24U);
            });
        const QString path = makeFile(u"page.tif"_s, {});
        EXPECT_TRUE(page.save(path, "tiff"));
        return path;
    }
    /// What decodes for the program, and what that is shut in by.
    qsizetype decoders() const
    {
        const QByteArray mark
            = "XDG_CACHE_HOME=" + m_desktop.environment().value(u"XDG_CACHE_HOME"_s).toUtf8();
        const auto numbers = QDir(u"/proc"_s).entryList({u"[1-9]*"_s}, QDir::Dirs);
        return std::ranges::count_if(numbers, [&](const QString &number) {
            QFile name(u"/proc/"_s + number + u"/comm"_s);
            QFile environment(u"/proc/"_s + number + u"/environ"_s);
            if (!name.open(QFile::ReadOnly) || !environment.open(QFile::ReadOnly))
                return false;
            const QByteArray what = name.readAll().trimmed();
            return (what == "bwrap" || what == "corvane-decoder")
                && environment.readAll().split('\0').contains(mark);
        });
    }
};

TEST_P(EndAmongHostilePictures, waitsForNothingAndLeavesNothingBehind)
{
    startWithInView(3);
    const QString ordinary = makePicture(u"ordinary.png"_s, "png");
    const QString oldest = makePicture(u"oldest.png"_s, "png");
    const QStringList endless = makeEndlessDrawings(2);
    const QStringList hostile = allHostile();
    ASSERT_TRUE(dropFiles(QStringList(oldest) + makeWhatIsNoFile() + hostile + endless
                          + QStringList{makeLargePage(), ordinary}));
    const auto hasCome = [&](Moment moment) {
        switch (moment) {
        case Moment::Dropped:
            break;
        case Moment::FirstThumbnail:
            return hasThumbnail(ordinary);
        case Moment::FirstGivenUp:
            return givenUp(hostile + endless) > 0;
        case Moment::Converting:
            return !QDir(corvane().spool()).isEmpty();
        case Moment::AllTried:
            return hasThumbnail(oldest);
        }
        return true;
    };
    ASSERT_TRUE(eventually([&] { return hasCome(GetParam()); }));
    QElapsedTimer timer;
    timer.start();
    corvane().program().signal(SIGTERM);
    // Any of those pictures would take longer.
    EXPECT_EQ(corvane().program().waitForEnd(std::chrono::seconds{5}), 0);
    RecordProperty("milliseconds", std::to_string(timer.elapsed()));
    std::cout << timer.elapsed() << " ms\n";
    EXPECT_TRUE(eventually([&] { return decoders() == 0; })) << "they end with it";
    EXPECT_EQ(corvane().spooled(), QStringList());
    startWithInView(3);
    const QString next = makePicture(u"next.png"_s, "png");
    ASSERT_TRUE(dropFiles({next}));
    EXPECT_TRUE(eventually([&] { return hasThumbnail(next); })) << "another start serves";
}

INSTANTIATE_TEST_SUITE_P(AtEveryMoment, EndAmongHostilePictures,
                         testing::Values(Moment::Dropped, Moment::FirstThumbnail,
                                         Moment::FirstGivenUp, Moment::Converting,
                                         Moment::AllTried));

/// Links to pages of a server of this machine, whose cards have pictures.
class AmongHostileLinks : public AmongHostilePictures {
protected:
    static QRgb colourOf(int nth) { return qRgb(255 - 20 * nth, 20 * nth, 128); }
    static QByteArray ordinary(int nth)
    {
        QImage picture(64, 64, QImage::Format_RGB32);
        picture.fill(colourOf(nth));
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        picture.save(&buffer, "png");
        return bytes;
    }
    static QByteArray bytesOf(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::ReadOnly)) << path.toStdString();
        return file.readAll();
    }
    /// A page with that picture.
    QString serve(const QByteArray &picture)
    {
        const QByteArray name = QByteArray::number(++m_pages);
        m_server.answer(
            '/' + name,
            test::response(200, "<title>t</title><meta property=og:image content=/p" + name + ">"));
        m_server.answer("/p" + name, test::response(200, picture));
        return m_server.url(u'/' + QString::fromLatin1(name)).toString();
    }
    /// Puts links on the shelf, the last of them the newest.
    testing::AssertionResult put(const QStringList &links)
    {
        const auto putting = m_desktop.start(CorvaneProgram::path(), links);
        return putting->waitForEnd() == 0
            ? testing::AssertionSuccess()
            : testing::AssertionFailure() << putting->output().toStdString();
    }
    /// Which of the ordinary pictures the bar shows.
    qsizetype shown(Bar &bar, int count)
    {
        const QImage seen = server().picture(bar.frame());
        QSet<QRgb> colours;
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x)
                colours.insert(seen.pixel(x, y) | 0xff000000);
        }
        qsizetype found = 0;
        for (int i = 0; i < count; ++i)
            found += colours.contains(colourOf(i)) ? 1 : 0;
        return found;
    }

    test::HttpServer m_server;

private:
    int m_pages = 0;
};

TEST_F(AmongHostileLinks, ordinaryOnesHaveTheirPicturesBeforeTheseAreGivenUp)
{
    constexpr int count = 10;
    // Each of these takes its decoder to the end of its time; one after the other, longer than
    // anything is waited for here.
    constexpr int endless = 30;
    startWithInView(6);
    QStringList links;
    for (int i = 0; i < count; ++i)
        links << serve(ordinary(i));
    for (const QString &path : allHostile())
        links << serve(bytesOf(path));
    for (int i = 0; i < endless; ++i)
        links << serve(bytesOf(hostile(u"scans.jpg"_s)));
    ASSERT_TRUE(put(links));
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(6, int(links.size()))));
    Bar bar(m_desktop, corvane(), 6);
    ASSERT_TRUE(bar.open(int(links.size())));
    EXPECT_TRUE(eventually([&] { return shown(bar, count) == count; }))
        << shown(bar, count) << " of " << count << ", " << bar.tilesOnAPage() << " on a page";
    corvane().program().signal(SIGTERM);
    EXPECT_EQ(corvane().program().waitForEnd(), 0);
}

} // namespace
} // namespace corvane::e2e
