// Large TIFF pictures, which take seconds to be converted.

#include "e2e/desktop_test.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QUrl>

#include <sys/stat.h>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

/// A scanned page, as large as converting it must take longer than answering a drop.
class Conversion : public DesktopTest {
protected:
    Conversion()
    {
        m_page.fill(qRgb(235, 232, 223));
        // Noise, which makes it slow to pack.
        std::uint32_t state = 1;
        for (int y = 0; y < m_page.height(); ++y) {
            auto *line = reinterpret_cast<QRgb *>(m_page.scanLine(y));
            for (int x = 0; x < m_page.width(); ++x) {
                state = state * 1664525U + 1013904223U;
                line[x] ^= state >> 28U;
            }
        }
    }

    QString makePage(const QString &name)
    {
        const QString path = makeFile(name, {});
        EXPECT_TRUE(m_page.save(path, "tiff"));
        return path;
    }
    bool isThePage(const QString &path) const
    {
        return QImage(path, "png").convertToFormat(m_page.format()) == m_page;
    }

    /// Drops something, and whether no picture was there when the drop had been answered.
    testing::AssertionResult dropAndLook(const QList<XdndSource::Offer> &offers)
    {
        XdndSource source(m_desktop, offers);
        source.pickUp();
        if (!corvane().waitForSize(CorvaneProgram::empty))
            return testing::AssertionFailure() << "the shelf did not open";
        const auto status = source.hover(corvane().panel().value_or(WindowFacts{}).id, dropPoint());
        if (!status || !status->accepts)
            return testing::AssertionFailure() << "the shelf refused";
        source.drop();
        const auto finish = source.waitForFinish();
        if (!finish || !finish->accepts)
            return testing::AssertionFailure() << "the drop was not finished well";
        const QStringList there = corvane().spooled();
        return there.isEmpty()
            ? testing::AssertionSuccess()
            : testing::AssertionFailure() << there.join(u' ').toStdString() << " was there first";
    }

    /// Starts the program where no file below the folder can be opened before the disk wakes.
    void startWithSleepingDisk(const QString &folder)
    {
        m_pipe = makeFolder(u"pipes"_s) + u"/waking"_s;
        ASSERT_EQ(::mkfifo(QFile::encodeName(m_pipe).constData(), 0600), 0);
        CorvaneProgram::Start how;
        how.environment = m_desktop.environment();
        how.environment.insert(u"LD_PRELOAD"_s,
                               QCoreApplication::applicationDirPath()
                                   + u"/corvane_hanging_disk.so"_s);
        how.environment.insert(u"CORVANE_SLEEPING_FOLDER"_s, folder);
        how.environment.insert(u"CORVANE_WAKING_PIPE"_s, m_pipe);
        start(how);
    }
    void wakeDisk()
    {
        // For reading as well, so that this waits for nobody; it stays open until the test ends.
        m_waking.setFileName(m_pipe);
        ASSERT_TRUE(m_waking.open(QFile::ReadWrite | QFile::Unbuffered));
    }

    QImage m_page{2480, 3508, QImage::Format_RGB32};

private:
    QString m_pipe;
    QFile m_waking;
};

TEST_F(Conversion, aLargeTiffIsAnsweredAtOnceAndBecomesAPngLater)
{
    const QString page = makePage(u"page.tiff"_s);
    start();
    ASSERT_TRUE(dropAndLook({{"text/uri-list", uriList({page})}}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight)) << "it stands there";
    // It can be used like any other: its name is the final one.
    focusShelf(corvane().at(38, 22));
    hands().key('c', {keys::control});
    const QByteArray made = QString(corvane().spool() + u"/page.png").toUtf8();
    EXPECT_EQ(clipboardText(made), made);
    ASSERT_TRUE(eventually([&] { return corvane().spooled() == QStringList{u"page.png"_s}; }));
    EXPECT_TRUE(isThePage(QString::fromUtf8(made)));
}

TEST_F(Conversion, aPictureThatIsRemovedBeforeItIsReadyLeavesNothing)
{
    const QString page = makePage(u"page.tiff"_s);
    start();
    ASSERT_TRUE(dropAndLook({{"text/uri-list", uriList({page})}}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    focusShelf(corvane().at(38, 22));
    hands().key(keys::forwardDelete);
    ASSERT_TRUE(corvane().waitUntilHidden());
    const QString last = makePage(u"last.tiff"_s);
    ASSERT_TRUE(dropFiles({last}));
    ASSERT_TRUE(eventually([&] { return corvane().spooled().contains(u"last.png"_s); }));
    EXPECT_EQ(corvane().spooled(), QStringList{u"last.png"_s});
}

TEST_F(Conversion, theProgramEndsWhileAPictureIsConverted)
{
    const QString page = makePage(u"page.tiff"_s);
    start();
    const QString spool = corvane().spool();
    ASSERT_TRUE(dropAndLook({{"text/uri-list", uriList({page})}}));
    corvane().program().signal(SIGTERM);
    EXPECT_EQ(corvane().program().waitForEnd(std::chrono::seconds{5}), 0);
    EXPECT_FALSE(QFile::exists(spool));
}

TEST_F(Conversion, aPictureThatIsCopiedBeforeItIsReadyIsThereWhenItIsPasted)
{
    // The last one is focused, and made last.
    QStringList pages;
    for (int i = 0; i < 3; ++i)
        pages << makePage(u"page %1.tiff"_s.arg(i));
    start();
    ASSERT_TRUE(dropAndLook({{"text/uri-list", uriList(pages)}}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    focusShelf(corvane().at(70, 22));
    hands().key('c', {keys::control});
    const QString made = corvane().spool() + u"/page 2.png"_s;
    std::optional<QByteArray> copied;
    ASSERT_TRUE(
        eventually([&] { return (copied = m_desktop.clipboard(u"UTF8_STRING"_s)).has_value(); }));
    EXPECT_TRUE(QFile::exists(made)) << "a paste would find nothing";
    EXPECT_EQ(copied, made.toUtf8());
}

TEST_F(Conversion, aPictureThatIsCopiedAndRemovedIsThereWhenItIsPasted)
{
    const QString page = makePage(u"page.tiff"_s);
    start();
    ASSERT_TRUE(dropAndLook({{"text/uri-list", uriList({page})}}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    focusShelf(corvane().at(38, 22));
    hands().key('c', {keys::control});
    hands().key(keys::forwardDelete);
    ASSERT_TRUE(corvane().waitUntilHidden());
    const QString made = corvane().spool() + u"/page.png"_s;
    ASSERT_TRUE(eventually([&] { return m_desktop.clipboard(u"UTF8_STRING"_s) == made.toUtf8(); }));
    EXPECT_TRUE(isThePage(made));
}

TEST_F(Conversion, aLargeTiffFromMemoryIsAnsweredAtOnce)
{
    QByteArray tiff;
    QBuffer buffer(&tiff);
    ASSERT_TRUE(m_page.save(&buffer, "tiff"));
    start();
    ASSERT_TRUE(dropAndLook({{"image/tiff", tiff}}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    ASSERT_TRUE(eventually([&] { return corvane().spooled() == QStringList{u"Image.png"_s}; }));
    EXPECT_TRUE(isThePage(corvane().spool() + u"/Image.png"_s));
}

TEST_F(Conversion, aDragOutThatBeginsBeforeThePictureIsReadyHandsOverTheFinishedPng)
{
    m_page = m_page.copy(0, 0, 300, 400);
    const QString page = makePage(u"asleep/page.tiff"_s);
    XdndTarget target(m_desktop, QRect(900, 400, 200, 200), true, "text/uri-list");
    startWithSleepingDisk(QFileInfo(page).path());
    ASSERT_TRUE(dropAndLook({{"text/uri-list", uriList({page})}}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));

    const QPoint place = target.frame().center();
    hands().beginDrag(corvane().at(38, 22), place);
    hands().glideTo(place);
    hands().aim(place);
    ASSERT_TRUE(target.pumpUntil([&] { return target.isHovered(); }));
    hands().release();
    ASSERT_TRUE(target.pumpUntil([&] { return target.wasDroppedOn(); }));
    const QString made = corvane().spool() + u"/page.png"_s;
    EXPECT_FALSE(QFile::exists(made));
    EXPECT_FALSE(target.hasDrop());
    wakeDisk();
    ASSERT_TRUE(target.pumpUntil([&] { return target.hasDrop(); }));
    EXPECT_EQ(target.data().trimmed(), uriList({made}).trimmed());
    EXPECT_TRUE(isThePage(made));
}

TEST_F(Conversion, whatIsRemovedMeanwhileLeavesNothing)
{
    const QString page = makePage(u"page.tiff"_s);
    const QString next = makePage(u"next.tiff"_s);
    start();
    ASSERT_TRUE(dropAndLook({{"text/uri-list", uriList({page})}}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    focusShelf(corvane().at(38, 22));
    hands().key(keys::forwardDelete);
    ASSERT_TRUE(corvane().waitUntilHidden());
    ASSERT_TRUE(dropFiles({next}));
    // What was begun before has ended by then, one way or another.
    ASSERT_TRUE(eventually([&] { return corvane().spooled().contains(u"next.png"_s); }));
    EXPECT_TRUE(eventually([&] { return corvane().spooled() == QStringList{u"next.png"_s}; }));
    EXPECT_TRUE(QFile::exists(page));
}

TEST_F(Conversion, aBrokenTiffStaysWhatItIs)
{
    const QString broken = makeFile(u"broken.tiff"_s, QByteArray("II*\0\x08\0\0\0 broken", 15));
    start();
    ASSERT_TRUE(dropFiles({broken}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    focusShelf(corvane().at(38, 22));
    EXPECT_TRUE(eventually([&] {
        hands().key('c', {keys::control});
        return m_desktop.clipboard(u"text/plain"_s) == broken.toUtf8();
    }));
    EXPECT_EQ(corvane().spooled(), QStringList());
}

} // namespace
} // namespace corvane::e2e
