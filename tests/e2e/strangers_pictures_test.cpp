// Pictures that come from elsewhere: decoded in processes of their own, whatever they are.

#include "e2e/desktop_test.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QUrl>

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>

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
        const timespec times[] = {longAgo, longAgo};
        ::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0);
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
        const QString path = makeFile(name, {});
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
    for (const char *plugin : {"libqjpeg", "libqgif", "libqwebp", "libqtiff", "libqico.",
                               "libqicns", "libqpdf", "libQt6Pdf", "libtiff", "libwebp"})
        EXPECT_FALSE(mapped.contains(plugin)) << plugin;
}

TEST_F(StrangersPictures, hostileOnesKeepNoOrdinaryOneFromItsThumbnail)
{
    startWithInView(3);
    const QString folder = makeFolder(u"hostile"_s);
    ASSERT_EQ(
        QProcess::execute(QStringLiteral(CORVANE_TEST_DATA "/hostile_pictures/make"), {folder}), 0);
    QStringList ordinary;
    for (int i = 0; i < 10; ++i)
        ordinary << makePicture(u"ordinary %1.png"_s.arg(i), "png");
    QStringList all = ordinary;
    const auto hostile = QDir(folder).entryList(
        QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &name : hostile)
        all << folder + u'/' + name;
    ASSERT_GT(all.size(), 30);
    ASSERT_TRUE(dropFiles(all));
    for (const QString &file : ordinary)
        EXPECT_TRUE(eventually([&] { return hasThumbnail(file); })) << file.toStdString();
    const QString bomb = folder + u"/many-strokes.svg"_s;
    EXPECT_TRUE(eventually([&] {
        const QStringList programs = QDir(thumbnails() + u"/fail"_s).entryList({u"corvane-*"_s});
        return programs.size() == 1 && isKept(bomb, {u"fail/"_s + programs.first()});
    })) << "it is not tried again";
    corvane().program().signal(SIGTERM);
    EXPECT_EQ(corvane().program().waitForEnd(), 0);
}

TEST_F(StrangersPictures, theProgramEndsWhileOneIsDecoded)
{
    startWithInView(3);
    const QString folder = makeFolder(u"hostile"_s);
    ASSERT_EQ(
        QProcess::execute(QStringLiteral(CORVANE_TEST_DATA "/hostile_pictures/make"), {folder}), 0);
    const QString first = makePicture(u"first.png"_s, "png");
    // The newest comes first.
    ASSERT_TRUE(
        dropFiles({folder + u"/many-strokes.svg"_s, folder + u"/more-strokes.svg"_s, first}));
    ASSERT_TRUE(eventually([&] { return hasThumbnail(first); }));
    corvane().program().signal(SIGTERM);
    EXPECT_EQ(corvane().program().waitForEnd(), 0);
}

} // namespace
} // namespace corvane::e2e
