// Space on the shelf: the preview's window, its keys, and what it leaves behind.

#include "e2e/desktop_test.h"

#include <QBuffer>
#include <QDir>
#include <QImage>

#include <sys/stat.h>
#include <unistd.h>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

QByteArray pngOf(QSize size, QColor color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QBuffer::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

class PreviewTest : public DesktopTest {
protected:
    using DesktopTest::DesktopTest;

    std::optional<WindowFacts> preview() { return corvane().window(); }
    QByteArray title()
    {
        const auto window = preview();
        return window ? server().property(window->id, "_NET_WM_NAME") : QByteArray();
    }
    bool waitForPreview(const QByteArray &expected)
    {
        return eventually([&] {
            const auto window = preview();
            return window && title() == expected && server().focusedWindow() == window->id;
        });
    }
    bool waitUntilClosed()
    {
        return eventually([&] { return !preview(); });
    }
    /// Whether the window shows so much of the color somewhere.
    bool shows(QColor color)
    {
        return eventually([&] {
            const auto window = preview();
            if (!window)
                return false;
            const QImage picture = server().picture(window->frame);
            constexpr int enough = 100;
            int found = 0;
            for (int y = 0; y < picture.height(); y += 2) {
                for (int x = 0; x < picture.width(); x += 2)
                    found += picture.pixelColor(x, y) == color ? 1 : 0;
            }
            return found > enough;
        });
    }
    QStringList scratchFiles()
    {
        return QDir(m_desktop.environment().value(u"TMPDIR"_s))
            .entryList({u"Corvane-Preview-*"_s}, QDir::Files);
    }
    /// A shelf with that one file on it, which has the keyboard.
    void hold(const QString &path)
    {
        start();
        ASSERT_TRUE(dropFiles({path}));
        focusOnlyItem();
    }
    void holdOffer(const XdndSource::Offer &offer)
    {
        start();
        ASSERT_TRUE(dropOffers({offer}));
        focusOnlyItem();
    }
    void focusOnlyItem()
    {
        ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
        focusShelf(corvane().at(38, 22));
        m_shelf = corvane().panel().value_or(WindowFacts{}).id;
    }

    QByteArray display() const { return m_desktop.environment().value(u"DISPLAY"_s).toLatin1(); }

    /// Of a key that is held down.
    static constexpr int repetitions = 10;

    xcb_window_t m_shelf = noWindow;
};

class PreviewOnEveryDesktop : public PreviewTest, public testing::WithParamInterface<DesktopKind> {
protected:
    PreviewOnEveryDesktop()
        : PreviewTest(GetParam())
    {
    }
};
INSTANTIATE_TEST_SUITE_P(, PreviewOnEveryDesktop, twoDesktops(), nameOf);

TEST_P(PreviewOnEveryDesktop, spaceOpensTheFocusedFileInTheMiddleAndSpaceClosesIt)
{
    hold(makeFile(u"letter.txt"_s, "dear reader"));
    hands().key(keys::space);
    ASSERT_TRUE(waitForPreview("letter.txt"));
    const QPoint middle = preview().value_or(WindowFacts{}).frame.center();
    EXPECT_LT((middle - QRect({0, 0}, server().size()).center()).manhattanLength(), 60);
    hands().key(keys::space);
    EXPECT_TRUE(waitUntilClosed());
    EXPECT_TRUE(eventually([&] { return server().focusedWindow() == m_shelf; }))
        << "the shelf has the keyboard again";
    hands().key(keys::space);
    EXPECT_TRUE(waitForPreview("letter.txt"));
}

TEST_P(PreviewOnEveryDesktop, escapeClosesItAndHeldDownItRemovesNothing)
{
    const QString file = makeFile(u"letter.txt"_s, "dear reader");
    hold(file);
    hands().key(keys::space);
    ASSERT_TRUE(waitForPreview("letter.txt"));
    KeyLog log(display(), m_shelf);
    hands().keyDown(keys::escape);
    ASSERT_TRUE(waitUntilClosed());
    EXPECT_TRUE(eventually([&] { return log.presses() >= repetitions; }))
        << "the shelf has the keyboard, and is told of the key again and again";
    hands().keyUp(keys::escape);
    hands().key('c', {keys::control});
    EXPECT_EQ(clipboardText(file.toUtf8()), file.toUtf8()) << "the item is still there";
    hands().key(keys::escape);
    EXPECT_TRUE(corvane().waitUntilHidden()) << "pressed anew it removes the item";
}

TEST_P(PreviewOnEveryDesktop, aHeldSpaceOpensItOnceAndLeavesItOpen)
{
    hold(makeFile(u"letter.txt"_s, "dear reader"));
    hands().keyDown(keys::space);
    ASSERT_TRUE(waitForPreview("letter.txt"));
    KeyLog log(display(), preview().value_or(WindowFacts{}).id);
    EXPECT_TRUE(eventually([&] { return log.presses() >= repetitions; }));
    hands().keyUp(keys::space);
    // What it was told before has been dealt with.
    EXPECT_TRUE(corvane().waitUntilReady());
    EXPECT_TRUE(preview().has_value());
}

class Preview : public PreviewTest { };

TEST_F(Preview, itsWindowCarriesTheProgramsIcon)
{
    hold(makeFile(u"letter.txt"_s, "dear reader"));
    hands().key(keys::space);
    ASSERT_TRUE(waitForPreview("letter.txt"));
    const xcb_window_t window = preview().value_or(WindowFacts{}).id;
    EXPECT_TRUE(eventually([&] { return !server().property(window, "_NET_WM_ICON").isEmpty(); }));
}

TEST_F(Preview, showsAPictureThatHasNoFile)
{
    holdOffer({"image/png", pngOf({200, 100}, QColor(1, 200, 3))});
    hands().key(keys::space);
    EXPECT_TRUE(shows(QColor(1, 200, 3)));
}

TEST_F(Preview, showsATextAndItsScratchFileGoesWithTheWindow)
{
    holdOffer({"text/plain", "just some words"});
    EXPECT_TRUE(scratchFiles().isEmpty());
    hands().key(keys::space);
    ASSERT_TRUE(waitForPreview("just some words"));
    ASSERT_EQ(scratchFiles().size(), 1);
    EXPECT_TRUE(scratchFiles().constFirst().endsWith(u".txt"));
    hands().key(keys::escape);
    EXPECT_TRUE(eventually([&] { return scratchFiles().isEmpty(); }));
}

TEST_F(Preview, showsALinkAsALineOfText)
{
    holdOffer({"text/x-moz-url", QByteArray::fromRawData("h\0t\0t\0p\0:\0/\0/\0x\0.\0y\0/\0", 22)});
    hands().key(keys::space);
    ASSERT_TRUE(eventually([&] { return preview().has_value(); }));
    const QStringList files = scratchFiles();
    ASSERT_EQ(files.size(), 1);
    QFile file(m_desktop.environment().value(u"TMPDIR"_s) + u'/' + files.constFirst());
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_EQ(file.readAll(), "http://x.y/");
}

TEST_F(Preview, quittingWithItOpenLeavesNoScratchFile)
{
    holdOffer({"text/plain", "just some words"});
    hands().key(keys::space);
    ASSERT_TRUE(waitForPreview("just some words"));
    ASSERT_EQ(scratchFiles().size(), 1);
    corvane().program().signal(SIGTERM);
    EXPECT_EQ(corvane().program().waitForEnd(), 0);
    EXPECT_TRUE(scratchFiles().isEmpty());
}

TEST_F(Preview, theButtonOfTheShelfHidesWhatIsOpen)
{
    hold(makeFile(u"letter.txt"_s, "dear reader"));
    const double right = corvane().size().width() - 23;
    const QPoint button = corvane().at(right - 63 + 9, 22);
    hands().click(button);
    ASSERT_TRUE(waitForPreview("letter.txt"));
    hands().click(button);
    EXPECT_TRUE(waitUntilClosed());
}

struct Stranger {
    const char *name;
    QByteArray contents;
};
void PrintTo(const Stranger &stranger, std::ostream *out)
{
    *out << stranger.name;
}

/// Promises 30,000 by 30,000 pixels, with the check sum that belongs to that.
QByteArray hugeHeader()
{
    QByteArray png = pngOf({1, 1}, Qt::red);
    png.replace(16, 8, QByteArray("\0\0\x75\x30\0\0\x75\x30", 8));
    png.replace(29, 4, "\xe9\x45\x6f\xed");
    return png;
}

class PreviewOfStrangers : public PreviewTest, public testing::WithParamInterface<Stranger> { };
INSTANTIATE_TEST_SUITE_P(, PreviewOfStrangers,
                         testing::Values(Stranger{"huge.png", hugeHeader()},
                                         Stranger{"endless.txt", QByteArray(10'500'000, 'x')},
                                         Stranger{"markup.html",
                                                  "<h1>A</h1><img src='file:///dev/zero'>"},
                                         Stranger{"deep.svg",
                                                  "<svg xmlns='http://www.w3.org/2000/svg'>"
                                                      + QByteArray("<g>").repeated(100'000)},
                                         Stranger{"broken.pdf", "%PDF-1.7\n1 0 obj"},
                                         Stranger{"<b>[*].txt", "x"}, Stranger{"empty", ""}),
                         [](const testing::TestParamInfo<Stranger> &stranger) {
                             return "number" + std::to_string(stranger.index);
                         });

TEST_P(PreviewOfStrangers, opensAndClosesAndTheShelfGoesOn)
{
    const QByteArray name = GetParam().name;
    hold(makeFile(QString::fromLatin1(name), GetParam().contents));
    hands().key(keys::space);
    ASSERT_TRUE(waitForPreview(name));
    const auto window = preview().value_or(WindowFacts{});
    m_desktop.pictureAtRest(window.frame);
    hands().key(keys::escape);
    ASSERT_TRUE(waitUntilClosed());
    hands().key(keys::space);
    EXPECT_TRUE(waitForPreview(name));
}

TEST_F(Preview, waitsForNoPipeAndReadsNoDevice)
{
    const QString folder = makeFolder(u"odd"_s);
    ASSERT_EQ(::mkfifo((folder + u"/pipe.txt"_s).toUtf8().constData(), 0600), 0);
    ASSERT_EQ(::symlink("/dev/zero", (folder + u"/zero.png"_s).toUtf8().constData()), 0);
    for (const char *name : {"pipe.txt", "zero.png"}) {
        hold(folder + u'/' + QString::fromLatin1(name));
        hands().key(keys::space);
        ASSERT_TRUE(waitForPreview(name));
        hands().key(keys::space);
        ASSERT_TRUE(waitUntilClosed());
        m_corvane.reset();
    }
}

} // namespace
} // namespace corvane::e2e
