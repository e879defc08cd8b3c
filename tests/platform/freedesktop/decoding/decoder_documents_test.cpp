#include "fakes/turned_jpeg.h"
#include "platform/base/cancellation.h"
#include "platform/freedesktop/decoding/decoder_documents.h"
#include "platform/freedesktop/decoding/decoder_image_codec.h"
#include "platform/freedesktop/sandbox/sandbox.h"
#include "platform/freedesktop/thumbnails/thumbnailer_registry.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace corvane::test {
namespace {

QByteArray encoded(QSize size, const char *format, QColor color = Qt::red)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QBuffer::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

QByteArray svg(const QByteArray &inside)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink'"
           " width='40' height='20'>"
        + inside + "</svg>";
}

/// Two frames of one pixel that stay for `delay` hundredths of a second each; `rounds` is the
/// number of repeats, 0 for ever.
QByteArray animation(char delay, char rounds)
{
    QByteArray gif("GIF89a\1\0\1\0\x80\0\0", 13);
    gif += QByteArray("\xFF\0\0\0\0\xFF", 6);
    gif += QByteArray("!\xFF\x0BNETSCAPE2.0\3\1", 16) + rounds + QByteArray("\0\0", 2);
    for (const char pixel : {char(0x44), char(0x4C)})
        gif += QByteArray("!\xF9\4\0", 4) + delay + QByteArray("\0\0\0", 3)
            + QByteArray(",\0\0\0\0\1\0\1\0\0\2\2", 12) + pixel + QByteArray("\1\0", 2);
    return gif + ';';
}

struct Folder {
    QByteArray path(const QByteArray &name) const
    {
        return directory.filePath(QString::fromUtf8(name)).toUtf8();
    }
    QUrl url(const QByteArray &name) const
    {
        return QUrl::fromLocalFile(QString::fromUtf8(path(name)));
    }
    QUrl write(const QByteArray &name, const QByteArray &contents) const
    {
        QFile file(QString::fromUtf8(path(name)));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(contents);
        return url(name);
    }

    QTemporaryDir directory;
};

struct DecoderDocumentsTest : testing::Test {
    std::optional<PreviewContent::Picture> picture(const QByteArray &name, const QByteArray &bytes,
                                                   QSize wanted = {200, 100})
    {
        auto opened = documents.open(folder.write(name, bytes), wanted, never);
        if (!opened || !std::holds_alternative<PreviewContent::Picture>(*opened))
            return std::nullopt;
        return std::get<PreviewContent::Picture>(*opened);
    }
    QUrl writePdf(int pages) const
    {
        QUrl url = folder.url("a.pdf");
        QPdfWriter writer(url.toLocalFile());
        writer.setPageSize(QPageSize(QPageSize::A4));
        QPainter painter(&writer);
        for (int page = 1; page < pages; ++page)
            writer.newPage();
        painter.end();
        return url;
    }
    /// The middle of the rendered drawing.
    QColor middle(const QByteArray &drawing)
    {
        const auto drawn = picture("a.svg", drawing);
        return drawn ? drawn->fitted.pixelColor(drawn->fitted.rect().center()) : QColor();
    }

    Folder folder;
    Sandbox sandbox{ThumbnailerRegistry::environmentProgramFolders()};
    DecoderProgram program{sandbox};
    DecoderPool pool{program};
    DecoderImageCodec codec{pool};
    DecoderDocuments documents{pool};
    Cancellation never;
};

TEST_F(DecoderDocumentsTest, FitsALargePictureAndRendersMoreOfItOnDemand)
{
    const auto large = picture("a.jpg", encoded({800, 400}, "jpeg"));
    ASSERT_TRUE(large.has_value());
    EXPECT_EQ(large->pixelSize, QSize(800, 400));
    EXPECT_EQ(large->fitted.size(), QSize(200, 100));
    EXPECT_EQ(large->document->render(0, {800, 400}, never)->size(), QSize(800, 400));
    EXPECT_EQ(large->document->render(0, {333, 77}, never)->size(), QSize(333, 77));
}

TEST_F(DecoderDocumentsTest, FitsAPictureToTheNearestPixel)
{
    // 151.5 and 100 would fit exactly, and 44.7 and 100.
    EXPECT_EQ(picture("a.jpg", encoded({300, 198}, "jpeg"))->fitted.size(), QSize(152, 100));
    EXPECT_EQ(picture("b.png", encoded({170, 380}, "png"))->fitted.size(), QSize(45, 100));
    EXPECT_EQ(picture("c.png", encoded({4000, 1}, "png"))->fitted.size(), QSize(200, 1));
}

TEST_F(DecoderDocumentsTest, KeepsASmallPictureAsItIs)
{
    EXPECT_EQ(picture("a.png", encoded({20, 10}, "png"))->fitted.size(), QSize(20, 10));
}

TEST_F(DecoderDocumentsTest, HasTheUprightSizeOfATurnedPicture)
{
    QImage image(400, 100, QImage::Format_RGB32);
    image.fill(Qt::red);
    const auto turned = picture("a.jpg", turnedJpeg(image), {50, 200});
    ASSERT_TRUE(turned.has_value());
    EXPECT_EQ(turned->pixelSize, QSize(100, 400));
    EXPECT_EQ(turned->fitted.size(), QSize(50, 200));
}

TEST_F(DecoderDocumentsTest, RefusesToRenderMorePixelsThanMayBeDecoded)
{
    const auto small = picture("a.png", encoded({20, 10}, "png"));
    EXPECT_FALSE(small->document->render(0, {30'000, 30'000}, never).has_value());
    EXPECT_FALSE(small->document->render(0, {0, 10}, never).has_value());
}

TEST_F(DecoderDocumentsTest, RefusesAPictureWhoseHeaderPromisesGigabytes)
{
    QByteArray header = encoded({1, 1}, "png");
    // Width and height stand behind the signature and the chunk's head; its check sum is right.
    header.replace(16, 8, QByteArray("\0\0\x75\x30\0\0\x75\x30", 8));
    header.replace(29, 4, "\xe9\x45\x6f\xed");
    ASSERT_EQ(QImageReader(folder.write("b.png", header).toLocalFile()).size(),
              QSize(30'000, 30'000));
    EXPECT_FALSE(picture("a.png", header).has_value());
}

TEST_F(DecoderDocumentsTest, IsNotMisledByAName)
{
    EXPECT_TRUE(picture("a.png", encoded({20, 10}, "jpeg")).has_value());
    EXPECT_FALSE(picture("a.png", "no picture").has_value());
    EXPECT_FALSE(picture("a.svgz", QByteArray("\x1f\x8b\x08\0\0\0\0\0", 8)).has_value());
}

TEST_F(DecoderDocumentsTest, RendersADrawingSharpAtEverySize)
{
    const auto drawing = picture("a.svg", svg("<rect width='40' height='20' fill='#ff0000'/>"));
    ASSERT_TRUE(drawing.has_value());
    EXPECT_TRUE(drawing->isVector);
    EXPECT_EQ(drawing->pixelSize, QSize(40, 20));
    EXPECT_EQ(drawing->fitted.size(), QSize(200, 100));
    EXPECT_EQ(drawing->document->render(0, {400, 200}, never)->pixelColor(399, 199),
              QColor(Qt::red));
}

TEST_F(DecoderDocumentsTest, FollowsNoReferenceOfADrawing)
{
    const QByteArray other = folder.path("other.png");
    folder.write("other.png", encoded({40, 20}, "png"));
    folder.write("inner.svg", svg("<rect width='40' height='20' fill='#ff0000'/>"));
    const auto image = [](const QByteArray &attributes) {
        return svg("<rect width='40' height='20' fill='#0000ff'/><image width='40' height='20' "
                   + attributes + "/>");
    };
    const QByteArray innerDrawing
        = svg("<image width='40' height='20' xlink:href='" + other + "'/>");
    for (const QByteArray &reference :
         {other, QByteArray("other.png"), QByteArray("file://" + other), folder.path("inner.svg"),
          QByteArray("data:image/svg+xml;base64," + innerDrawing.toBase64())}) {
        EXPECT_EQ(middle(image("xlink:href='" + reference + "'")), QColor(Qt::blue))
            << reference.constData();
        EXPECT_EQ(middle(image("href='" + reference + "'")), QColor(Qt::blue));
        const auto decoded = codec.thumbnail(image("xlink:href='" + reference + "'"), 40);
        ASSERT_TRUE(decoded.has_value());
        EXPECT_EQ(decoded->pixelColor(20, 10), QColor(Qt::blue)) << "on the shelf neither";
    }
    const QByteArray inside = "data:image/png;base64," + encoded({40, 20}, "png").toBase64();
    EXPECT_EQ(middle(image("xlink:href='" + inside + "'")), QColor(Qt::red))
        << "a bitmap that is part of the drawing stays";
}

TEST_F(DecoderDocumentsTest, RefusesADrawingThatGrowsByEntities)
{
    QByteArray bomb = "<?xml version='1.0'?><!DOCTYPE svg [<!ENTITY a0 'aaaaaaaaaa'>";
    for (int i = 1; i < 10; ++i) {
        const QByteArray inner = "&a" + QByteArray::number(i - 1) + ';';
        bomb += "<!ENTITY a" + QByteArray::number(i) + " '" + inner.repeated(10) + "'>";
    }
    EXPECT_FALSE(picture("a.svg", bomb + "]>" + svg("<text>&a9;</text>")).has_value());
}

TEST_F(DecoderDocumentsTest, SurvivesADrawingOfEndlessDepth)
{
    constexpr int depth = 100'000;
    picture("a.svg", svg(QByteArray("<g>").repeated(depth) + QByteArray("</g>").repeated(depth)));
}

TEST_F(DecoderDocumentsTest, PlaysAnAnimationWithItsDelaysAndRounds)
{
    const auto moving = picture("a.gif", animation(5, 1));
    ASSERT_TRUE(moving.has_value());
    EXPECT_TRUE(moving->isAnimated);
    std::vector<double> durations;
    for (int i = 0; i < 4; ++i) {
        const auto frame = moving->document->nextFrame({10, 10}, never);
        ASSERT_TRUE(frame.has_value()) << i;
        durations.push_back(frame->duration);
    }
    EXPECT_EQ(durations, std::vector<double>(4, 0.05));
    EXPECT_FALSE(moving->document->nextFrame({10, 10}, never).has_value()) << "it repeats once";
}

TEST_F(DecoderDocumentsTest, PlaysAnEndlessAnimationFrameByFrame)
{
    const auto moving = picture("a.gif", animation(0, 0));
    ASSERT_TRUE(moving.has_value());
    for (int i = 0; i < 20; ++i) {
        const auto frame = moving->document->nextFrame({10, 10}, never);
        ASSERT_TRUE(frame.has_value());
        EXPECT_EQ(frame->duration, 0.1) << "nobody means no time at all";
    }
}

TEST_F(DecoderDocumentsTest, ASinglePictureIsNoAnimation)
{
    const QByteArray whole = animation(5, 0);
    const qsizetype second = whole.lastIndexOf("!\xF9");
    const auto still = picture("a.gif", whole.left(second) + ';');
    ASSERT_TRUE(still.has_value());
    still->document->nextFrame({10, 10}, never);
    EXPECT_FALSE(still->document->nextFrame({10, 10}, never).has_value());
}

TEST_F(DecoderDocumentsTest, RendersThePagesOfADocument)
{
    // Whether the decoder can read them is what is tried here; where it has no plug-in, this has
    // none either.
    if (!QImageReader::supportedImageFormats().contains("pdf"))
        GTEST_SKIP() << "there is no reader of documents here";
    const auto opened = documents.open(writePdf(3), {200, 100}, never);
    ASSERT_TRUE(opened.has_value());
    const auto &pages = std::get<PreviewContent::Pages>(*opened);
    EXPECT_EQ(pages.count, 3);
    EXPECT_EQ(pages.sizes, QList<QSize>(3, QSize(595, 842)));
    const auto page = pages.document->render(2, {300, 424}, never);
    ASSERT_TRUE(page.has_value());
    EXPECT_EQ(page->size(), QSize(300, 424));
    EXPECT_EQ(page->pixelColor(1, 1), QColor(Qt::white)) << "paper is white";
    EXPECT_FALSE(pages.document->render(3, {300, 424}, never).has_value());
}

TEST_F(DecoderDocumentsTest, OfAFileThatShrinksOrGrowsWhileItIsShownTheRestIsGone)
{
    for (const char *format : {"png", "jpeg", "tiff", "webp", "bmp"}) {
        const QByteArray whole = encoded({800, 400}, format);
        const auto shown = picture("a", whole);
        ASSERT_TRUE(shown.has_value()) << format;
        // What was opened stays open, so it is the same file.
        QFile file(folder.url("a").toLocalFile());
        ASSERT_TRUE(file.open(QFile::ReadWrite));
        file.resize(whole.size() + 1'000'000);
        EXPECT_TRUE(shown->document->render(0, {400, 200}, never).has_value()) << format;
        file.resize(20);
        EXPECT_FALSE(shown->document->render(0, {400, 200}, never).has_value()) << format;
        file.resize(0);
        EXPECT_FALSE(shown->document->render(0, {400, 200}, never).has_value()) << format;
        EXPECT_TRUE(codec.thumbnail(whole, 40).has_value()) << "others are not concerned";
    }
}

TEST_F(DecoderDocumentsTest, RefusesABrokenDocument)
{
    EXPECT_FALSE(documents.open(folder.write("b.pdf", "%PDF-1.4\ngarbage"), {200, 100}, never));
}

TEST_F(DecoderDocumentsTest, OpensNoPipeAndNoDevice)
{
    ASSERT_EQ(::mkfifo(folder.path("pipe.png").constData(), 0600), 0);
    EXPECT_FALSE(documents.open(folder.url("pipe.png"), {200, 100}, never));
    ASSERT_EQ(::symlink("/dev/zero", folder.path("zero.png").constData()), 0);
    EXPECT_FALSE(documents.open(folder.url("zero.png"), {200, 100}, never));
    EXPECT_FALSE(documents.open(folder.url("nowhere.png"), {200, 100}, never));
}

} // namespace
} // namespace corvane::test
