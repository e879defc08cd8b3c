#include "platform/base/cancellation.h"
#include "platform/freedesktop/decoding/decoder_documents.h"
#include "platform/freedesktop/decoding/decoder_image_codec.h"
#include "platform/freedesktop/sandbox/sandbox.h"
#include "platform/freedesktop/thumbnails/thumbnailer_registry.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <thread>

namespace corvane {
namespace {

using Outcome = DecodingAttempt::Outcome;

QByteArray written(QSize size, const char *format)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

/// A drawing that takes minutes: a long path with thick, dashed, half transparent strokes, again
/// and again.
QByteArray bomb()
{
    QByteArray points;
    for (int i = 0; i < 20'000; ++i)
        points += QByteArray::number(i * 7'919 % 600) + ','
            + QByteArray::number(i * 104'729LL % 600) + ' ';
    const QByteArray path
        = "<polyline id='a' fill='none' stroke='#123456' stroke-opacity='.5' "
          "stroke-width='9' stroke-dasharray='1 2' stroke-linejoin='round' points='"
        + points + "'/>";
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
           "width='600' height='600'>"
        + path + QByteArray("<use xlink:href='#a' x='1'/>").repeated(2'000) + "</svg>";
}

/// The real decoder, in its sandbox where that can be had.
struct DecoderImageCodecTest : testing::Test {
    QUrl saved(const QByteArray &name, const QByteArray &bytes) const
    {
        QFile file(folder.filePath(QString::fromUtf8(name)));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
        return QUrl::fromLocalFile(file.fileName());
    }
    FileDescriptor target() const
    {
        const QByteArray path = folder.filePath(QStringLiteral("target")).toUtf8();
        return FileDescriptor(::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600));
    }
    QByteArray madeFile() const
    {
        QFile file(folder.filePath(QStringLiteral("target")));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    Sandbox sandbox{ThumbnailerRegistry::environmentProgramFolders()};
    DecoderProgram program{sandbox};
    DecoderPool pool{program};
    DecoderImageCodec codec{pool};
    Cancellation never;
    QTemporaryDir folder;
};

TEST_F(DecoderImageCodecTest, MakesThumbnailsOfFilesAndOfBytes)
{
    const QByteArray png = written({400, 100}, "png");
    EXPECT_EQ(codec.thumbnail(png, 60)->size(), QSize(60, 15));
    const auto picture = codec.fileThumbnail(saved("a b#c.png", png), 200);
    ASSERT_TRUE(picture.has_value());
    EXPECT_EQ(picture->size(), QSize(200, 50));
    EXPECT_EQ(picture->pixelColor(100, 25), QColor(Qt::red));
    EXPECT_EQ(codec.pixelSize(png), QSize(400, 100));
}

TEST_F(DecoderImageCodecTest, ReadsEveryKindThroughItsOwnPlugin)
{
    for (const char *format : {"png", "jpeg", "bmp", "webp", "tiff", "ppm", "ico", "xpm"})
        EXPECT_TRUE(codec.thumbnail(written({40, 20}, format), 10).has_value()) << format;
    const QByteArray text = "<svg xmlns='http://www.w3.org/2000/svg' width='60' height='60'>"
                            "<text x='0' y='55' font-size='70'>MMM</text></svg>";
    const auto drawn = codec.thumbnail(text, 60);
    ASSERT_TRUE(drawn.has_value());
    bool isWritten = false;
    for (int x = 0; x < drawn->width(); ++x)
        isWritten = isWritten || drawn->pixelColor(x, drawn->height() / 2).alpha() > 200;
    EXPECT_TRUE(isWritten) << "there are fonts";
}

TEST_F(DecoderImageCodecTest, HandsTheFormatsThatAreAllowedToTheDecoder)
{
    const QByteArray drawing = "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'/>";
    const auto isRead = [this](const QByteArray &bytes, DecodingAttempt::Formats formats) {
        DecodingAttempt attempt;
        attempt.formats = formats;
        return codec.thumbnail(bytes, 10, attempt).has_value();
    };
    using Formats = DecodingAttempt::Formats;
    const QByteArray png = written({40, 20}, "png");
    const QByteArray jpeg = written({40, 20}, "jpeg");
    const QByteArray tiff = written({40, 20}, "tiff");
    EXPECT_TRUE(isRead(png, Formats::Web));
    EXPECT_TRUE(isRead(jpeg, Formats::Web));
    for (const QByteArray &bytes : {tiff, written({40, 20}, "bmp"), drawing}) {
        EXPECT_TRUE(isRead(bytes, Formats::Any));
        EXPECT_FALSE(isRead(bytes, Formats::Web)) << bytes.left(8).constData();
    }
    EXPECT_TRUE(isRead(png, Formats::Png));
    EXPECT_FALSE(isRead(jpeg, Formats::Png));
}

TEST_F(DecoderImageCodecTest, TellsWhatIsNoPicture)
{
    for (const QByteArray &bytes :
         {QByteArray(), QByteArray("no picture"), QByteArray(1'000, '\0')}) {
        DecodingAttempt attempt;
        EXPECT_FALSE(codec.thumbnail(bytes, 60, attempt).has_value());
        EXPECT_EQ(attempt.outcome, Outcome::Unreadable);
    }
    DecodingAttempt attempt;
    EXPECT_FALSE(codec.fileThumbnail(QUrl(QStringLiteral("file:///dev/zero")), 60, attempt));
    EXPECT_EQ(attempt.outcome, Outcome::Unreadable);
}

TEST_F(DecoderImageCodecTest, AFileThatShrinksAndGrowsMeanwhileEndsNoDecoder)
{
    QImage noise(1'500, 1'000, QImage::Format_RGB32);
    std::uint32_t state = 1;
    for (int y = 0; y < noise.height(); ++y) {
        auto *const line = reinterpret_cast<QRgb *>(noise.scanLine(y));
        for (int x = 0; x < noise.width(); ++x)
            line[x] = state = state * 1664525U + 1013904223U;
    }
    for (const char *format : {"png", "jpeg", "tiff", "webp", "bmp"}) {
        const QString path = folder.filePath(QStringLiteral("changing"));
        ASSERT_TRUE(noise.save(path, format));
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::ReadWrite));
        const qint64 whole = file.size();
        std::atomic<bool> isOver = false;
        std::thread changing([&] {
            for (qint64 i = 0; !isOver; ++i)
                file.resize(whole * (i % 7) / 3);
        });
        constexpr int times = 20;
        for (int i = 0; i < times; ++i) {
            DecodingAttempt attempt;
            codec.fileThumbnail(QUrl::fromLocalFile(path), 100, attempt);
            EXPECT_NE(attempt.outcome, Outcome::OverBounds) << format;
            EXPECT_NE(attempt.outcome, Outcome::Interrupted) << format;
        }
        isOver = true;
        changing.join();
    }
    EXPECT_TRUE(codec.thumbnail(written({40, 20}, "png"), 10).has_value());
}

TEST_F(DecoderImageCodecTest, DecodesLargePhotographsAndScans)
{
    struct Large {
        QSize size;
        const char *format;
    };
    // A telephone's photograph, a picture of a screen, and a page scanned at 600 points an inch.
    for (const Large &large : {Large{{8'000, 6'000}, "jpeg"}, Large{{4'000, 3'000}, "png"},
                               Large{{4'960, 7'016}, "tiff"}}) {
        const QUrl file = saved("large", written(large.size, large.format));
        DecodingAttempt attempt;
        attempt.patience = DecodingAttempt::Patience::Alone;
        EXPECT_TRUE(codec.fileThumbnail(file, 256, attempt).has_value()) << large.format;
        DecoderDocuments documents(pool);
        EXPECT_TRUE(documents.open(file, {1'600, 1'000}, never).has_value()) << large.format;
        EXPECT_TRUE(codec.transcodeFile(file, UTType::png(), target(), never)) << large.format;
    }
}

TEST_F(DecoderImageCodecTest, EndsADrawingThatTakesMinutes)
{
    const QByteArray drawing = bomb();
    DecodingAttempt brief;
    brief.patience = DecodingAttempt::Patience::Brief;
    EXPECT_FALSE(codec.thumbnail(drawing, 60, brief).has_value());
    EXPECT_EQ(brief.outcome, Outcome::TooSlow);
    DecodingAttempt whole;
    EXPECT_FALSE(codec.thumbnail(drawing, 60, whole).has_value());
    EXPECT_EQ(whole.outcome, Outcome::OverBounds);
    EXPECT_TRUE(codec.thumbnail(written({40, 20}, "png"), 10).has_value()) << "the next is served";
}

TEST_F(DecoderImageCodecTest, SaysNothingAboutAFileThatCannotBeOpened)
{
    DecodingAttempt attempt;
    const QUrl gone = QUrl::fromLocalFile(folder.filePath(QStringLiteral("gone.png")));
    EXPECT_FALSE(codec.fileThumbnail(gone, 60, attempt).has_value());
    EXPECT_EQ(attempt.outcome, Outcome::Interrupted);
}

TEST_F(DecoderImageCodecTest, WritesAnotherTypeIntoTheFileThatIsGiven)
{
    const QByteArray tiff = written({40, 20}, "tiff");
    ASSERT_TRUE(codec.transcode(tiff, UTType::png(), target(), never));
    EXPECT_EQ(QImage::fromData(madeFile(), "PNG").size(), QSize(40, 20));
    ASSERT_TRUE(codec.transcodeFile(saved("a.tiff", tiff), UTType(QStringLiteral("image/jpeg")),
                                    target(), never));
    EXPECT_EQ(QImage::fromData(madeFile(), "JPEG").size(), QSize(40, 20));
    EXPECT_FALSE(codec.transcode("no picture", UTType::png(), target(), never));
    EXPECT_FALSE(codec.transcode(tiff, UTType(QStringLiteral("application/pdf")), target(), never));
    EXPECT_FALSE(codec.transcode(tiff, UTType::png(), FileDescriptor(), never));
}

TEST_F(DecoderImageCodecTest, DecodesWithoutTheSandboxToo)
{
    const Sandbox none{QByteArrayList()};
    const DecoderProgram bare(none);
    DecoderPool decoders(bare);
    const DecoderImageCodec unshut(decoders);
    EXPECT_TRUE(unshut.thumbnail(written({40, 20}, "jpeg"), 10).has_value());
}

} // namespace
} // namespace corvane
