// What is on the shelf at the end of the program, and at its next start.

#include "e2e/desktop_test.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QUrl>

#include <csignal>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

constexpr int inView = 6;

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray png()
{
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "png");
    return bytes;
}

class KeptItems : public DesktopTest {
protected:
    void SetUp() override
    {
        DesktopTest::SetUp();
        QDir(data()).removeRecursively();
    }
    void TearDown() override
    {
        DesktopTest::TearDown();
        QDir(data()).removeRecursively();
    }

    QString data() const
    {
        return m_desktop.environment().value(u"XDG_DATA_HOME"_s) + u"/corvane"_s;
    }
    void startAnew(const QByteArray &settings = {})
    {
        start({inView, settings + "settings.linkPreviews=false\n", {}});
    }
    void startAgain()
    {
        CorvaneProgram::Start how;
        how.keepsSettings = true;
        start(how);
    }
    void waitForItems(int count)
    {
        ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(inView, count)));
    }
    /// A file, a link, a picture and a text.
    void dropOneOfEach()
    {
        ASSERT_TRUE(dropFiles({m_file}));
        ASSERT_NO_FATAL_FAILURE(waitForItems(1));
        ASSERT_TRUE(dropOffers({{"text/uri-list", m_link + "\r\n"}}));
        ASSERT_NO_FATAL_FAILURE(waitForItems(2));
        ASSERT_TRUE(dropOffers({{"image/png", m_picture}}));
        ASSERT_NO_FATAL_FAILURE(waitForItems(3));
        ASSERT_TRUE(dropOffers({{"text/plain;charset=utf-8", m_text}}));
        ASSERT_NO_FATAL_FAILURE(waitForItems(4));
        ASSERT_TRUE(eventually([&] { return corvane().spooled() == QStringList{u"Image.png"_s}; }));
    }
    void endBySignal()
    {
        corvane().program().signal(SIGTERM);
        ASSERT_EQ(corvane().program().waitForEnd(), 0);
        EXPECT_FALSE(QFile::exists(corvane().spool()));
    }
    /// Drags the first of so many items to a target that wants that type, and gives what it got.
    QByteArray dragOutFirstOf(int count, const QByteArray &type)
    {
        XdndTarget target(m_desktop, QRect(900, 400, 200, 200), true, type);
        const QPoint cell = CorvaneProgram::cell(inView, count, 0);
        const QPoint from = corvane().at(cell.x(), cell.y());
        hands().beginDrag(from, target.frame().center());
        hands().glideTo(target.frame().center());
        hands().aim(target.frame().center());
        EXPECT_TRUE(target.pumpUntil([&] { return target.isHovered(); }));
        hands().release();
        EXPECT_TRUE(target.pumpUntil([&] { return target.hasDrop() && target.hasFinished(); }));
        // The target's last message goes out while it lives.
        if (count > 1)
            waitForItems(count - 1);
        else
            EXPECT_TRUE(corvane().waitUntilHidden());
        return target.data();
    }
    QByteArray list()
    {
        return outputOf(CorvaneProgram::path(), {u"--list"_s}, m_desktop.environment())
            .value_or(QByteArray());
    }

    const QByteArray m_contents = QByteArray("\0\1\2 report", 10);
    const QString m_file = makeFile(u"report 1.bin"_s, m_contents);
    const QByteArray m_link = "https://x.example/a%20b?c#d";
    const QByteArray m_picture = png();
    const QByteArray m_text = "two lines\nof \xc3\xa4 text";
};

TEST_F(KeptItems, areThereAtTheNextStartAndGoOutByteForByte)
{
    startAnew("settings.keepItems=true\n");
    ASSERT_NO_FATAL_FAILURE(dropOneOfEach());
    ASSERT_NO_FATAL_FAILURE(endBySignal());
    EXPECT_TRUE(QFile::exists(data() + u"/kept/items"_s));

    startAgain();
    ASSERT_NO_FATAL_FAILURE(waitForItems(4));
    EXPECT_TRUE(eventually([&] {
        return QDir(data() + u"/kept"_s).entryList(QDir::Files | QDir::Hidden).isEmpty();
    })) << "what is on the shelf again is kept no longer";
    EXPECT_EQ(corvane().spooled(), QStringList{u"Image.png"_s});

    EXPECT_EQ(dragOutFirstOf(4, "text/uri-list").trimmed(), uriList({m_file}).trimmed());
    EXPECT_EQ(bytesOf(m_file), m_contents);
    EXPECT_EQ(dragOutFirstOf(3, "text/uri-list").trimmed(), m_link);
    const QUrl picture = QUrl::fromEncoded(dragOutFirstOf(2, "text/uri-list").trimmed());
    EXPECT_EQ(bytesOf(picture.toLocalFile()), m_picture);
    EXPECT_EQ(dragOutFirstOf(1, "text/plain;charset=utf-8"), m_text);

    endBySignal();
    EXPECT_FALSE(QFile::exists(data() + u"/kept"_s));
}

TEST_F(KeptItems, areLostAndNowhereWrittenAsLongAsNobodyWantsThemKept)
{
    startAnew();
    ASSERT_NO_FATAL_FAILURE(dropOneOfEach());
    ASSERT_NO_FATAL_FAILURE(endBySignal());
    EXPECT_FALSE(QFile::exists(data()));
    startAgain();
    EXPECT_EQ(list(), "");
    EXPECT_FALSE(corvane().isShown());
}

TEST_F(KeptItems, areKeptWhenAnotherProgramAsksForTheEnd)
{
    startAnew("settings.keepItems=true\n");
    ASSERT_TRUE(dropFiles({m_file}));
    ASSERT_NO_FATAL_FAILURE(waitForItems(1));
    Program quit(CorvaneProgram::path(), {u"--quit"_s}, m_desktop.environment());
    EXPECT_EQ(quit.waitForEnd(), 0);
    EXPECT_EQ(corvane().program().waitForEnd(), 0);
    startAgain();
    EXPECT_EQ(list(), m_file.toUtf8() + '\n');
}

TEST_F(KeptItems, comeBeforeWhatTheCommandLineAddsAndAreNotReadByASecondStart)
{
    startAnew("settings.keepItems=true\n");
    ASSERT_TRUE(dropFiles({m_file}));
    ASSERT_NO_FATAL_FAILURE(waitForItems(1));
    endBySignal();
    const QString other = makeFile(u"other"_s, "x");
    CorvaneProgram::Start how;
    how.keepsSettings = true;
    how.arguments = QStringList{other};
    start(how);
    const QByteArray both = m_file.toUtf8() + '\n' + other.toUtf8() + '\n';
    EXPECT_EQ(list(), both);
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_EQ(list(), both);
}

TEST(KeptItemsOnADesktopThatEnds, areKeptWhenTheXServerGoesAway)
{
    XDesktop desktop({WindowManager::Openbox, Compositor::None});
    ASSERT_EQ(desktop.problem(), QString());
    CorvaneProgram corvane(desktop, {inView, "settings.keepItems=true\n", desktop.environment()});
    ASSERT_TRUE(corvane.waitUntilReady());
    {
        XdndSource source(desktop, {{"image/png", png()}});
        source.pickUp();
        ASSERT_TRUE(corvane.waitForSize(CorvaneProgram::empty));
        ASSERT_TRUE(
            source.hover(corvane.panel().value_or(WindowFacts{}).id, corvane.body().center()));
        source.drop();
        ASSERT_TRUE(source.waitForFinish());
    }
    ASSERT_TRUE(eventually([&] { return !corvane.spooled().isEmpty(); }));

    desktop.endServer();
    EXPECT_TRUE(corvane.program().waitForEnd());
    const QDir kept(desktop.environment().value(u"XDG_DATA_HOME"_s) + u"/corvane/kept"_s);
    const QStringList pictures = kept.entryList({u"*.png"_s}, QDir::Files);
    ASSERT_EQ(pictures.size(), 1);
    EXPECT_EQ(bytesOf(kept.filePath(pictures.first())), png());
    EXPECT_TRUE(kept.exists(u"items"_s));
}

} // namespace
} // namespace corvane::e2e
