// Pictures that come from elsewhere: decoded in processes of their own, whatever they are.

#include "e2e/desktop_test.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QUrl>

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>

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
    // One at a time is waited for to the end of its time: had the ordinary ones waited for that,
    // all would have been given up.
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

} // namespace
} // namespace corvane::e2e
