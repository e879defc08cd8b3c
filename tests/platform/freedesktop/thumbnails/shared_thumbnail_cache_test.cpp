#include "fakes/in_process_codec.h"
#include "platform/base/cancellation.h"
#include "platform/freedesktop/sandbox/bounded_process.h"
#include "platform/freedesktop/thumbnails/png_text.h"
#include "platform/freedesktop/thumbnails/shared_thumbnail_cache.h"
#include "platform/freedesktop/thumbnails/thumbnail_uri.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>
#include <optional>

namespace corvane::test {

namespace {

QImage plain(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image;
}

/// What another program prints; the cache is where the tests have it.
QByteArray output(const QByteArray &cacheFolder, const QByteArrayList &command)
{
    Cancellation never;
    const QByteArrayList all
        = QByteArrayList{"/usr/bin/env", "XDG_CACHE_HOME=" + cacheFolder} + command;
    return bounded_process::run(all, {30, 100'000}, never).output;
}

const QByteArrayList oddNames = {"plain.png",
                                 "two words.png",
                                 "a#b?c.png",
                                 "100%.png",
                                 "%41.png",
                                 "a+b&c=d,e;f:g@h.png",
                                 "it's (1) [2] {3}!.png",
                                 "~tilde_under-minus.png",
                                 "quote\"back\\slash|pipe<>^`$*.png",
                                 "Żółw \xf0\x9f\x90\xa2.png",
                                 "broken\xff\xc3(.png",
                                 "new\nline\ttab.png"};

class SharedThumbnailCacheTest : public testing::Test {
protected:
    SharedThumbnailCacheTest()
    {
        ::mkdir(path("files").constData(), 0700);
        ::mkdir(path("spool").constData(), 0700);
    }
    ~SharedThumbnailCacheTest() override
    {
        // Qt cannot remove what it cannot spell.
        for (const QByteArray &file : files)
            ::unlink(file.constData());
    }

    QByteArray path(const QByteArray &name) const { return top + '/' + name; }
    /// A file that has rested since that second.
    FileVersion file(const QByteArray &name, qint64 time = 1'000'000'000)
    {
        const QByteArray full = path(name);
        files << full;
        FILE *stream = std::fopen(full.constData(), "w");
        std::fputs("contents", stream);
        std::fclose(stream);
        const timespec times[] = {{time, 0}, {time, 0}};
        ::utimensat(AT_FDCWD, full.constData(), times, 0);
        return FileVersion::at(full).value();
    }
    QByteArrayList kept() const
    {
        QByteArrayList names;
        QDirIterator found(QFile::decodeName(path("cache")), QDir::Files | QDir::Hidden,
                           QDirIterator::Subdirectories);
        while (found.hasNext())
            names << QFile::encodeName(found.next()).mid(path("cache/").size());
        return names;
    }
    static QByteArray nameOf(const FileVersion &file)
    {
        return QCryptographicHash::hash(thumbnailUri(file.path), QCryptographicHash::Md5).toHex()
            + ".png";
    }
    void put(const QByteArray &size, const FileVersion &file, const QImage &picture,
             const png_text::Texts &texts) const
    {
        QDir().mkpath(QFile::decodeName(path("cache/thumbnails/" + size)));
        QFile out(QFile::decodeName(path("cache/thumbnails/" + size + '/' + nameOf(file))));
        ASSERT_TRUE(out.open(QFile::WriteOnly));
        out.write(png_text::withTexts(*codec.encode(picture, UTType::png()), texts));
    }
    static png_text::Texts textsOf(const FileVersion &file)
    {
        return {{"Thumb::URI", thumbnailUri(file.path)},
                {"Thumb::MTime", QByteArray::number(file.modificationTime)}};
    }

    QTemporaryDir folder;
    QByteArray top = QFile::encodeName(folder.path());
    QByteArrayList files;
    test::InProcessCodec codec;
    SharedThumbnailCache cache{codec, {path("cache"), "corvane-1.2", {path("spool")}}};
};

} // namespace

TEST(ThumbnailUri, escapesAsTheDesktopsProgramsDo)
{
    EXPECT_EQ(thumbnailUri("/a b/c"), "file:///a%20b/c");
    EXPECT_EQ(thumbnailUri("/!$&'()*+,-./09:=@AZ_az~"), "file:///!$&'()*+,-./09:=@AZ_az~");
    EXPECT_EQ(thumbnailUri("/\"#%;<>?[\\]^`{|}"),
              "file:///%22%23%25%3B%3C%3E%3F%5B%5C%5D%5E%60%7B%7C%7D");
    EXPECT_EQ(thumbnailUri("/\xc3\xa9\xff\x01\x7f"), "file:///%C3%A9%FF%01%7F");
}

TEST(ThumbnailUri, hasOneSpellingForEachFile)
{
    EXPECT_EQ(thumbnailUri("/a//b/./c/../d/"), "file:///a/b/d");
    EXPECT_EQ(thumbnailUri("/../a"), "file:///a");
    EXPECT_EQ(thumbnailUri("/..a/...b"), "file:///..a/...b");
}

TEST(SharedThumbnailCache, liesInTheUsersCacheFolder)
{
    const QByteArray cache = qgetenv("XDG_CACHE_HOME");
    const QByteArray home = qgetenv("HOME");
    qputenv("XDG_CACHE_HOME", "/cache");
    qputenv("HOME", "/home/me");
    EXPECT_EQ(SharedThumbnailCache::environmentCacheFolder(), "/cache");
    for (const char *unusable : {"", "cache"}) {
        qputenv("XDG_CACHE_HOME", unusable);
        EXPECT_EQ(SharedThumbnailCache::environmentCacheFolder(), "/home/me/.cache");
    }
    qputenv("HOME", "me");
    EXPECT_EQ(SharedThumbnailCache::environmentCacheFolder(), QByteArray());
    qputenv("XDG_CACHE_HOME", cache);
    qputenv("HOME", home);
}

TEST_F(SharedThumbnailCacheTest, findsWhatItKept)
{
    const FileVersion shown = file("files/a.png");
    EXPECT_FALSE(cache.find(shown, 60).picture);
    cache.keep(shown, plain(128, 64));
    const auto found = cache.find(shown, 60);
    ASSERT_TRUE(found.picture);
    EXPECT_EQ(found.picture->size(), QSize(60, 30));
    EXPECT_FALSE(found.hasFailed);
    EXPECT_EQ(kept(), QByteArrayList{"thumbnails/normal/" + nameOf(shown)});
}

TEST_F(SharedThumbnailCacheTest, keepsNothingThatOthersCouldSee)
{
    const FileVersion shown = file("files/a.png");
    ::umask(0);
    cache.keep(shown, plain(128, 64));
    ::umask(022);
    struct stat status = {};
    for (const char *name : {"cache", "cache/thumbnails", "cache/thumbnails/normal"}) {
        ASSERT_EQ(::stat(path(name).constData(), &status), 0) << name;
        EXPECT_EQ(status.st_mode & 0777, 0700U) << name;
    }
    ASSERT_EQ(::stat(path("cache/" + kept().value(0)).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(SharedThumbnailCacheTest, theJudgeOfTheDesktopFindsWhatIsKeptForEveryName)
{
    if (::access("/usr/bin/gio", X_OK) != 0)
        GTEST_SKIP() << "gio is not installed";
    for (const QByteArray &name : oddNames) {
        const FileVersion shown = file("files/" + name);
        cache.keep(shown, plain(128, 64));
        const QByteArray told
            = output(path("cache"), {"/usr/bin/gio", "info", "-a", "thumbnail::*", shown.path});
        EXPECT_TRUE(told.contains(path("cache/thumbnails/normal/" + nameOf(shown))))
            << name.constData() << '\n'
            << told.constData();
        EXPECT_TRUE(told.contains("thumbnail::is-valid: TRUE")) << name.constData();
        EXPECT_TRUE(cache.find(shown, 60).picture) << name.constData();
    }
}

TEST_F(SharedThumbnailCacheTest, failuresAreFiledUnderThisProgramsName)
{
    const FileVersion shown = file("files/a.avi");
    cache.keepFailure(shown);
    EXPECT_EQ(kept(), QByteArrayList{"thumbnails/fail/corvane-1.2/" + nameOf(shown)});
    EXPECT_TRUE(cache.find(shown, 60).hasFailed);
}

TEST_F(SharedThumbnailCacheTest, readsWhatProgramsOfTheToolkitWrite)
{
    // They let the toolkit write the texts, which compresses long ones.
    for (const QByteArray &name : oddNames) {
        const FileVersion shown = file("files/" + name);
        QImage picture = plain(128, 64);
        picture.setText(QStringLiteral("Thumb::URI"),
                        QString::fromLatin1(thumbnailUri(shown.path)));
        picture.setText(QStringLiteral("Thumb::MTime"), QString::number(shown.modificationTime));
        QDir().mkpath(QFile::decodeName(path("cache/thumbnails/normal")));
        ASSERT_TRUE(picture.save(
            QFile::decodeName(path("cache/thumbnails/normal/" + nameOf(shown))), "png"));
        const auto found = cache.find(shown, 60);
        ASSERT_TRUE(found.picture) << name.constData();
        EXPECT_EQ(found.picture->size(), QSize(60, 30));
    }
}

TEST_F(SharedThumbnailCacheTest, takesTheSmallestSizeThatIsLargeEnough)
{
    const FileVersion shown = file("files/a.png");
    cache.keep(shown, plain(128, 128));
    cache.keep(shown, plain(256, 128));
    cache.keep(shown, plain(512, 64));
    cache.keep(shown, plain(1024, 128));
    EXPECT_EQ(kept().size(), 4);
    EXPECT_EQ(cache.find(shown, 60).picture->size(), QSize(60, 60));
    EXPECT_EQ(cache.find(shown, 128).picture->size(), QSize(128, 128));
    EXPECT_EQ(cache.find(shown, 129).picture->size(), QSize(129, 64));
    EXPECT_EQ(cache.find(shown, 300).picture->size(), QSize(300, 37));
    EXPECT_EQ(cache.find(shown, 1024).picture->size(), QSize(1024, 128));
    EXPECT_FALSE(cache.find(shown, 1025).picture);
    EXPECT_EQ(cache.pixelsToMake(shown, 60), 128);
    EXPECT_EQ(cache.pixelsToMake(shown, 129), 256);
    EXPECT_EQ(cache.pixelsToMake(shown, 1500), 1500);
}

TEST_F(SharedThumbnailCacheTest, aPictureOfAnotherVersionOrAnotherFileIsNotTaken)
{
    const FileVersion shown = file("files/a.png");
    const FileVersion other = file("files/b.png");
    cache.keep(shown, plain(128, 64));
    const FileVersion changed = file("files/a.png", 1'000'000'001);
    EXPECT_FALSE(cache.find(changed, 60).picture);
    put("normal", shown, plain(128, 64), textsOf(other));
    EXPECT_FALSE(cache.find(shown, 60).picture);
    put("normal", shown, plain(128, 64), {textsOf(shown)[0]});
    EXPECT_FALSE(cache.find(shown, 60).picture) << "it does not say of which version";
    put("normal", shown, plain(128, 64), textsOf(shown));
    EXPECT_TRUE(cache.find(shown, 60).picture);
    put("normal", shown, plain(128, 64), textsOf(shown) + png_text::Texts{{"Thumb::Size", "7"}});
    EXPECT_FALSE(cache.find(shown, 60).picture);
}

TEST_F(SharedThumbnailCacheTest, failuresHoldForOneVersionAndForThisProgram)
{
    const FileVersion shown = file("files/a.avi");
    put("fail/other-1.0", shown, plain(1, 1), textsOf(shown));
    EXPECT_FALSE(cache.find(shown, 60).hasFailed);
    cache.keepFailure(shown);
    EXPECT_TRUE(cache.find(shown, 60).hasFailed);
    EXPECT_FALSE(cache.find(file("files/a.avi", 1'000'000'001), 60).hasFailed);
    const SharedThumbnailCache later(codec, {path("cache"), "corvane-1.3", {}});
    EXPECT_FALSE(later.find(shown, 60).hasFailed) << "a later version tries again";
}

TEST_F(SharedThumbnailCacheTest, aFileThatChangedJustNowIsNotKept)
{
    const FileVersion fresh = file("files/a.png", std::time(nullptr));
    cache.keep(fresh, plain(128, 64));
    cache.keepFailure(fresh);
    EXPECT_EQ(kept(), QByteArrayList());
}

TEST_F(SharedThumbnailCacheTest, nothingPrivateIsKeptOrLookedUp)
{
    const FileVersion spooled = file("spool/a.png");
    const FileVersion neighbour = file("spool.png");
    cache.keep(spooled, plain(128, 64));
    cache.keepFailure(spooled);
    EXPECT_EQ(kept(), QByteArrayList());
    EXPECT_EQ(cache.pixelsToMake(spooled, 60), 60);
    put("normal", spooled, plain(128, 64), textsOf(spooled));
    EXPECT_FALSE(cache.find(spooled, 60).picture);
    cache.keep(neighbour, plain(128, 64));
    EXPECT_TRUE(cache.find(neighbour, 60).picture);
}

TEST_F(SharedThumbnailCacheTest, aPrivateFolderMayBeNamedWithASlash)
{
    SharedThumbnailCache slashed(codec, {path("cache"), "corvane-1.2", {path("spool") + '/'}});
    slashed.keep(file("spool/a.png"), plain(128, 64));
    EXPECT_EQ(kept(), QByteArrayList());
}

TEST_F(SharedThumbnailCacheTest, noThumbnailsOfThumbnails)
{
    const FileVersion shown = file("files/a.png");
    cache.keep(shown, plain(128, 64));
    FileVersion thumbnail = FileVersion::at(path("cache/" + kept().value(0))).value();
    thumbnail.modificationTime = 1;
    cache.keep(thumbnail, plain(128, 64));
    EXPECT_EQ(kept().size(), 1);
}

TEST_F(SharedThumbnailCacheTest, strangersInTheCacheDoNoHarm)
{
    const FileVersion shown = file("files/a.png");
    QDir().mkpath(QFile::decodeName(path("cache/thumbnails/normal")));
    const QByteArray entry = path("cache/thumbnails/normal/" + nameOf(shown));
    ASSERT_EQ(::mkfifo(entry.constData(), 0600), 0);
    EXPECT_FALSE(cache.find(shown, 60).picture);
    cache.keep(shown, plain(128, 64));
    EXPECT_TRUE(cache.find(shown, 60).picture) << "a file stands in its place now";
    put("normal", shown, plain(128, 64), {});
    QFile broken(QFile::decodeName(entry));
    ASSERT_TRUE(broken.open(QFile::WriteOnly));
    broken.write(png_text::withTexts(*codec.encode(plain(128, 64), UTType::png()), textsOf(shown))
                     .chopped(60));
    broken.close();
    EXPECT_FALSE(cache.find(shown, 60).picture);
}

TEST_F(SharedThumbnailCacheTest, aCacheThatCannotBeWrittenIsNone)
{
    const FileVersion shown = file("files/a.png");
    for (const QByteArray &place : {QByteArray(), QByteArray("/proc/nowhere"), shown.path}) {
        const SharedThumbnailCache none(codec, {place, "corvane-1.2", {}});
        none.keep(shown, plain(128, 64));
        none.keepFailure(shown);
        EXPECT_FALSE(none.find(shown, 60).picture);
    }
    EXPECT_EQ(kept(), QByteArrayList());
}

TEST_F(SharedThumbnailCacheTest, leavesNothingUnfinishedBehind)
{
    const FileVersion shown = file("files/a.png");
    QDir().mkpath(QFile::decodeName(path("cache/thumbnails/normal/" + nameOf(shown))));
    cache.keep(shown, plain(128, 64));
    EXPECT_EQ(kept(), QByteArrayList()) << "a folder stands where the file should";
}

} // namespace corvane::test
