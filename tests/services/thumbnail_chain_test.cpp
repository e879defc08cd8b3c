#include "fakes/fake_external_thumbnailers.h"
#include "fakes/fake_file_locality.h"
#include "fakes/fake_image_codec.h"
#include "fakes/fake_thumbnail_cache.h"
#include "fakes/fake_work_queue.h"
#include "fakes/in_process_codec.h"
#include "platform/system/file_url.h"
#include "services/thumbnail_chain.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace corvane::test {

namespace {

using Outcome = ExternalThumbnailers::Result::Outcome;

QImage plain(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image;
}

QByteArray written(const QImage &image, const char *format = "png")
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

class ThumbnailChainTest : public testing::Test {
protected:
    QByteArray save(const char *name, const QByteArray &data) const
    {
        QFile file(folder.filePath(QLatin1String(name)));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(data);
        file.close();
        return QFile::encodeName(file.fileName());
    }
    ThumbnailAnswer ask(const QByteArray &path)
    {
        ThumbnailAnswer result;
        int completions = 0;
        request.url = file_url::fromNativePath(path);
        chain.generateBestRepresentation(request, [&](const ThumbnailAnswer &answer) {
            ++completions;
            result = answer;
        });
        EXPECT_EQ(completions, 0);
        work.runAll();
        EXPECT_EQ(completions, 1);
        return result;
    }

    QTemporaryDir folder;
    FakeFileLocality locality;
    FakeThumbnailCache cache;
    test::InProcessCodec codec;
    FakeExternalThumbnailers thumbnailers;
    FakeWorkQueue work;
    ThumbnailChain chain{{locality, cache, codec, thumbnailers, work}};
    ThumbnailRequest request{{}, {30, 30}, 2};
};

} // namespace

TEST_F(ThumbnailChainTest, theCacheIsAskedFirst)
{
    const QByteArray path = save("a.png", written(plain(400, 400)));
    cache.keep(*FileVersion::at(path), plain(60, 20));
    EXPECT_EQ(ask(path).picture->size(), QSize(60, 20));
    EXPECT_TRUE(thumbnailers.asked.empty());
}

TEST_F(ThumbnailChainTest, pictureFilesAreDecodedAndKeptAtTheCachesSize)
{
    const QByteArray path = save("a.png", written(plain(400, 100)));
    EXPECT_EQ(ask(path).picture->size(), QSize(60, 15));
    EXPECT_TRUE(thumbnailers.asked.empty());
    ASSERT_EQ(cache.pictures.size(), 1);
    EXPECT_EQ(cache.pictures.values().value(0).size(), QSize(128, 32));
}

TEST_F(ThumbnailChainTest, aPictureBelowTheCachesSizeIsNotKept)
{
    EXPECT_EQ(ask(save("a.png", written(plain(100, 50)))).picture->size(), QSize(60, 30));
    EXPECT_EQ(ask(save("b.png", written(plain(20, 10)))).picture->size(), QSize(20, 10));
    EXPECT_TRUE(cache.pictures.isEmpty());
}

TEST_F(ThumbnailChainTest, otherFilesGoToTheInstalledPrograms)
{
    thumbnailers.result = {Outcome::Made, written(plain(128, 64))};
    const QByteArray path = save("a.avi", "film");
    EXPECT_EQ(ask(path).picture->size(), QSize(60, 30));
    ASSERT_EQ(thumbnailers.asked.size(), 1U);
    EXPECT_EQ(thumbnailers.asked[0].path, path);
    EXPECT_EQ(thumbnailers.asked[0].pixels, 128);
    EXPECT_EQ(cache.pictures.size(), 1);
    EXPECT_TRUE(cache.failures.isEmpty());
}

TEST_F(ThumbnailChainTest, aPictureThatBreaksTheBoundsOfDecodingIsRememberedAndGoesToNoProgram)
{
    FakeImageCodec bounded;
    bounded.bombs << "bomb";
    ThumbnailChain strict{{locality, cache, bounded, thumbnailers, work}};
    thumbnailers.result = {Outcome::Made, written(plain(128, 64))};
    request.url = file_url::fromNativePath(save("a.svg", "bomb"));
    std::optional<ThumbnailAnswer> answer;
    strict.generateBestRepresentation(request,
                                      [&](const ThumbnailAnswer &given) { answer = given; });
    work.runAll();
    EXPECT_FALSE(answer->picture);
    EXPECT_FALSE(answer->isSlow);
    EXPECT_TRUE(thumbnailers.asked.empty());
    EXPECT_EQ(cache.failures.size(), 1);
}

TEST_F(ThumbnailChainTest, whatCouldNotBeTriedIsNoFailureOfTheFile)
{
    FakeImageCodec interrupted;
    const QByteArray png = written(plain(128, 64));
    interrupted.unavailable << png << "unavailable";
    ThumbnailChain chainOfIt{{locality, cache, interrupted, thumbnailers, work}};
    thumbnailers.result = {Outcome::Made, png};
    for (const char *contents : {"film", "unavailable"}) {
        request.url = file_url::fromNativePath(save("a.avi", contents));
        chainOfIt.generateBestRepresentation(
            request, [](const ThumbnailAnswer &answer) { EXPECT_FALSE(answer.picture); });
        work.runAll();
        EXPECT_TRUE(cache.failures.isEmpty()) << contents;
    }
    EXPECT_EQ(thumbnailers.asked.size(), 1U) << "the film was tried";
}

TEST_F(ThumbnailChainTest, aSlowPictureIsNoFailureUntilItWasTriedPatiently)
{
    FakeImageCodec slowly;
    slowly.teach("slow", {100, 50});
    slowly.slow << "slow";
    ThumbnailChain chainOfIt{{locality, cache, slowly, thumbnailers, work}};
    request.url = file_url::fromNativePath(save("a.svg", "slow"));
    std::optional<ThumbnailAnswer> answer;
    const auto keep = [&](const ThumbnailAnswer &given) { answer = given; };
    chainOfIt.generateBestRepresentation(request, keep);
    work.runAll();
    EXPECT_TRUE(answer->isSlow);
    EXPECT_TRUE(cache.failures.isEmpty());
    request.isPatient = true;
    chainOfIt.generateBestRepresentation(request, keep);
    work.runAll();
    EXPECT_TRUE(answer->picture);
}

TEST_F(ThumbnailChainTest, aFileThatNobodyKnowsHasNoPicture)
{
    const ThumbnailAnswer answer = ask(save("a.txt", "text"));
    EXPECT_FALSE(answer.picture);
    EXPECT_FALSE(answer.isFolder);
    EXPECT_FALSE(answer.isRemote);
    EXPECT_TRUE(cache.failures.isEmpty()) << "nobody has tried";
}

TEST_F(ThumbnailChainTest, aProgramsFailureIsRememberedForThatVersionOfTheFile)
{
    thumbnailers.result = {Outcome::Failed, {}};
    const QByteArray path = save("a.avi", "broken");
    EXPECT_FALSE(ask(path).picture);
    EXPECT_FALSE(ask(path).picture);
    EXPECT_EQ(thumbnailers.asked.size(), 1U);
    const timespec times[] = {{1, 0}, {1, 0}};
    ::utimensat(AT_FDCWD, path.constData(), times, 0);
    ask(path);
    EXPECT_EQ(thumbnailers.asked.size(), 2U);
}

TEST_F(ThumbnailChainTest, aProgramThatWasStoppedIsNoFailureOfTheFile)
{
    thumbnailers.result = {Outcome::Stopped, {}};
    const QByteArray path = save("a.avi", "slow");
    EXPECT_FALSE(ask(path).picture);
    EXPECT_TRUE(cache.failures.isEmpty());
}

TEST_F(ThumbnailChainTest, whatAProgramMadeMustBeAPngOfModestSize)
{
    const QByteArray path = save("a.avi", "film");
    for (const QByteArray &made :
         {QByteArray(), QByteArray("no picture"), written(plain(8, 8), "jpg"),
          QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='8' height='4'/>"),
          written(plain(5000, 1)), written(plain(64, 64)).first(60)}) {
        cache.failures.clear();
        thumbnailers.result = {Outcome::Made, made};
        EXPECT_FALSE(ask(path).picture) << made.left(8).toHex().constData();
        EXPECT_EQ(cache.failures.size(), 1);
    }
    EXPECT_TRUE(cache.pictures.isEmpty());
}

TEST_F(ThumbnailChainTest, remoteFilesAreNotTouched)
{
    locality.remoteFolder = "/nowhere";
    EXPECT_TRUE(ask("/nowhere/a.png").isRemote);
    EXPECT_EQ(cache.asked, 0);
}

TEST_F(ThumbnailChainTest, foldersAreToldAlsoBehindLinks)
{
    const QByteArray link = folder.path().toUtf8() + "/link";
    ASSERT_EQ(::symlink(folder.path().toUtf8().constData(), link.constData()), 0);
    EXPECT_TRUE(ask(link).isFolder);
    EXPECT_EQ(cache.asked, 0);
}

TEST_F(ThumbnailChainTest, whatIsNoRegularFileIsNeverOpened)
{
    const QByteArray pipe = folder.path().toUtf8() + "/pipe.png";
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    for (const QByteArray &path : {pipe, QByteArray("/dev/zero"), QByteArray("/gone.png")})
        EXPECT_FALSE(ask(path).picture) << path.constData();
    EXPECT_TRUE(thumbnailers.asked.empty());
}

TEST_F(ThumbnailChainTest, anAddressThatIsNoFileHasNoPicture)
{
    ThumbnailAnswer result{plain(1, 1)};
    request.url = QUrl(QStringLiteral("https://example.org/a.png"));
    chain.generateBestRepresentation(request,
                                     [&](const ThumbnailAnswer &answer) { result = answer; });
    work.runAll();
    EXPECT_FALSE(result.picture);
}

TEST_F(ThumbnailChainTest, whatIsNoLongerWantedIsNotMade)
{
    request.cancellation->cancel();
    EXPECT_FALSE(ask(save("a.avi", "film")).picture);
    EXPECT_TRUE(thumbnailers.asked.empty());
    EXPECT_EQ(cache.asked, 0);
}

TEST_F(ThumbnailChainTest, aWidePictureFitsIntoSixtyPixelsOnAScreenOfScaleTwo)
{
    EXPECT_EQ(ask(save("a.png", written(plain(4000, 1000)))).picture->size(), QSize(60, 15));
}

} // namespace corvane::test
