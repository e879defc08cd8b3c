// Programs that misbehave, and data that nobody would drop on purpose.

#include "e2e/desktop_test.h"

#include <QFile>
#include <QUrl>

#include <fcntl.h>
#include <unistd.h>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class Hostile : public DesktopTest {
protected:
    /// A shelf that shows up to three, with one file on it that must not be lost.
    void startWithOne()
    {
        startWithInView(3);
        m_kept = makeFile(u"kept.txt"_s, "x");
        ASSERT_TRUE(dropFiles({m_kept}));
        ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 1)));
    }

    /// Lets a source take its drag over the shelf; whether the shelf would take it.
    bool hover(XdndSource &source)
    {
        source.pickUp();
        if (!corvane().waitForHeight(CorvaneProgram::empty.height()))
            return false;
        const auto status = source.hover(corvane().panel().value_or(WindowFacts{}).id, dropPoint());
        return status && status->accepts;
    }

    /// The one item of a shelf that shows one, as it is copied.
    QByteArray copied(const QByteArray &expected)
    {
        focusShelf(corvane().at(38, 22));
        hands().key('c', {keys::control});
        return clipboardText(expected);
    }

    /// The path of the nth item of a shelf that shows three.
    QByteArray copiedCell(int total, int nth, const QByteArray &expected)
    {
        const QPoint cell = CorvaneProgram::cell(3, total, nth);
        focusShelf(corvane().at(cell.x(), cell.y()));
        hands().key('c', {keys::control});
        return clipboardText(expected);
    }

    QString m_kept;
};

TEST_F(Hostile, aSourceThatDiesInTheMiddleOfADropLeavesTheShelfAsItWas)
{
    startWithOne();
    {
        XdndSource source(m_desktop, {{"text/uri-list", "", true}, {"text/plain", "", true}});
        source.pickUp();
        ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::empty.height()));
        source.send(corvane().panel().value_or(WindowFacts{}).id, "XdndEnter",
                    {source.window(), 5U << 24, 0, 0, 0});
        hands().glideTo(dropPoint());
        source.die();
    }
    hands().release();
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 1)));
    ASSERT_TRUE(dropFiles({makeFile(u"next.txt"_s, "x")}));
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 2)));
}

TEST_F(Hostile, aSourceThatDiesAfterTheDropLosesOnlyItsOwnData)
{
    startWithOne();
    {
        XdndSource source(m_desktop, {{"text/plain", "", true}});
        ASSERT_TRUE(hover(source));
        source.drop();
        ASSERT_TRUE(source.pumpUntil([&] { return source.asked().contains("text/plain"); }));
        source.die();
    }
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 1)));
    ASSERT_TRUE(dropFiles({makeFile(u"next.txt"_s, "x")}));
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 2)));
}

TEST_F(Hostile, aSourceThatProposesMovingIsAnsweredWithCopying)
{
    start();
    XdndSource source(m_desktop, {{"text/plain", "moved?"}}, "XdndActionMove");
    source.pickUp();
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::empty));
    const auto status = source.hover(corvane().panel().value_or(WindowFacts{}).id, dropPoint());
    ASSERT_TRUE(status);
    EXPECT_TRUE(status->accepts);
    EXPECT_EQ(status->action, "XdndActionCopy");
    source.drop();
    const auto finish = source.waitForFinish();
    ASSERT_TRUE(finish);
    EXPECT_TRUE(finish->accepts);
    EXPECT_EQ(finish->action, "XdndActionCopy");
}

TEST_F(Hostile, aDragWithNothingForTheShelfIsRefusedAndTheShelfCloses)
{
    start();
    XdndSource source(m_desktop, {{"application/x-nobody-knows", "x"}});
    EXPECT_FALSE(hover(source));
    source.letGo();
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_F(Hostile, aDropThatYieldsNothingIsFinishedAsRefused)
{
    startWithOne();
    XdndSource source(m_desktop, {{"text/plain", " \n\t "}});
    if (hover(source)) {
        source.drop();
        const auto finish = source.waitForFinish();
        ASSERT_TRUE(finish);
        EXPECT_FALSE(finish->accepts);
    } else {
        source.letGo();
    }
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 1)));
}

TEST_F(Hostile, nothingIsFetchedFromAPictureBeforeItIsDropped)
{
    start();
    XdndSource source(m_desktop, {{"image/png", "not fetched"}, {"text/html", "<img>"}});
    ASSERT_TRUE(hover(source));
    ASSERT_TRUE(
        source.hover(corvane().panel().value_or(WindowFacts{}).id, dropPoint() + QPoint(9, 0)));
    EXPECT_FALSE(source.asked().contains("image/png"));
    source.leave(corvane().panel().value_or(WindowFacts{}).id);
    source.letGo();
    EXPECT_TRUE(corvane().waitUntilHidden());
    source.pump();
    EXPECT_FALSE(source.asked().contains("image/png"));
}

TEST_F(Hostile, listsOfFilesAreReadAsProgramsReallyWriteThem)
{
    startWithInView(6);
    const QString hash = makeFile(u"a # 100 % é 😀.txt"_s, "x");
    const QString plain = makeFile(u"plain.txt"_s, "x");
    const QByteArray withHost = "file://localhost" + QUrl::fromLocalFile(plain).toEncoded().mid(7);
    const QByteArray list = "# a comment\n" + QUrl::fromLocalFile(hash).toEncoded() + "\n\n"
        + withHost + "\r\n" + QUrl::fromLocalFile(plain).toEncoded() + "\nhttp://corvane.example/";
    ASSERT_TRUE(dropOffers({{"text/uri-list", list}}));
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(6, 3)));
    const QList<QString> expected{hash, plain, plain};
    for (int i = 0; i < 3; ++i) {
        const QPoint cell = CorvaneProgram::cell(6, 3, i);
        focusShelf(corvane().at(cell.x(), cell.y()));
        hands().key('c', {keys::control});
        const QByteArray path = expected[i].toUtf8();
        EXPECT_EQ(clipboardText(path), path);
    }
}

TEST_F(Hostile, aNameWhoseBytesAreNoTextIsHandedOnExactly)
{
    // The address decides which file is meant, so it is compared, not the name.
    const QByteArray folder = QFile::encodeName(makeFolder(u"bytes"_s));
    const QByteArray path = folder + "/bad\xff\xfe.txt";
    const int file = ::open(path.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
    ASSERT_GE(file, 0);
    ::close(file);
    const QByteArray address = "file://" + folder.toPercentEncoding("/") + "/bad%FF%FE.txt";
    start();
    ASSERT_TRUE(dropOffers({{"text/uri-list", address + "\r\n"}}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));

    XdndTarget target(m_desktop, QRect(900, 400, 200, 200), true, "text/uri-list");
    hands().beginDrag(corvane().at(38, 22), target.frame().center());
    hands().glideTo(target.frame().center());
    ASSERT_TRUE(target.pumpUntil([&] { return target.isHovered(); }));
    hands().aim(target.frame().center());
    target.pump();
    hands().release();
    ASSERT_TRUE(target.pumpUntil([&] { return target.hasDrop(); }));
    EXPECT_EQ(target.data().trimmed().toUpper(), address.toUpper());
}

TEST_F(Hostile, addressesInUtf16AreReadAsLinks)
{
    start();
    const QString pair = u"http://corvane.example/a/b\na title"_s;
    const QByteArray utf16(reinterpret_cast<const char *>(pair.utf16()), pair.size() * 2);
    ASSERT_TRUE(dropOffers({{"text/x-moz-url", utf16}}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    EXPECT_EQ(copied("http://corvane.example/a/b"), "http://corvane.example/a/b");
}

TEST_F(Hostile, tenThousandFilesInOneDropAreAllKept)
{
    startWithInView(2);
    const QString folder = makeFolder(u"many"_s);
    QStringList paths;
    for (int i = 0; i < 10000; ++i)
        paths.append(folder + u"/%1.txt"_s.arg(i));
    // Most of them are gone already: the list is taken at its word.
    paths.last() = makeFile(u"many/last.txt"_s, "x");
    ASSERT_TRUE(dropFiles(paths));
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(2, 10000)));
    const QPoint cell = CorvaneProgram::cell(2, 10000, 1);
    focusShelf(corvane().at(cell.x(), cell.y()));
    hands().key('c', {keys::control});
    EXPECT_EQ(clipboardText(paths.last().toUtf8()), paths.last().toUtf8());
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_F(Hostile, aTextOfTwoHundredMegabytesIsKeptWhole)
{
    start();
    QByteArray text(200'000'000, 'x');
    text.replace(0, 5, "first");
    XdndSource source(m_desktop, {{"text/plain", text}});
    ASSERT_TRUE(hover(source));
    source.drop();
    // Piece by piece through the X server: this takes as long as it takes.
    ASSERT_TRUE(source.pumpUntil([&] { return source.hasFinished(); }, std::chrono::minutes{2}));
    EXPECT_TRUE(source.waitForFinish()->accepts)
        << source.asked().join(' ').toStdString() << ", left to send: " << source.unsent();
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));

    XdndTarget target(m_desktop, QRect(900, 400, 200, 200), true, "text/plain");
    hands().beginDrag(corvane().at(38, 22), target.frame().center());
    hands().glideTo(target.frame().center());
    ASSERT_TRUE(target.pumpUntil([&] { return target.isHovered(); }));
    hands().key(keys::escape);
    hands().release();
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
}

TEST_F(Hostile, aNameOf255BytesIsKept)
{
    start();
    const QString file = makeFile(QString(251, u'n') + u".txt"_s, "x");
    ASSERT_TRUE(dropFiles({file}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    EXPECT_LE(corvane().size().width(), 347) << "a long title does not make the shelf wider";
    EXPECT_EQ(copied(file.toUtf8()), file.toUtf8());
}

TEST_F(Hostile, namesOfMarkupAndControlCharactersAreKeptAsTheyAre)
{
    start();
    const QString file = makeFile(u"<b>x<\u2044b>\u202Egpj.\u0007\nexe"_s, "x");
    ASSERT_TRUE(dropFiles({file}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    EXPECT_EQ(copied(file.toUtf8()), file.toUtf8());
}

TEST_F(Hostile, aFileThatIsGoneIsNotDraggedOutAndTakesNothingElseWithIt)
{
    startWithOne();
    const QString gone = makeFile(u"gone.txt"_s, "x");
    ASSERT_TRUE(dropFiles({gone}));
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 2)));
    ASSERT_TRUE(eventually([&] { return server().selectionOwner("XdndSelection") == noWindow; }));
    ASSERT_TRUE(QFile::remove(gone));

    const QPoint cell = CorvaneProgram::cell(3, 2, 1);
    const QImage before = server().picture(corvane().body());
    hands().beginDrag(corvane().at(cell.x(), cell.y()), QPoint(900, 400));
    EXPECT_TRUE(eventually([&] { return server().picture(corvane().body()) != before; }))
        << "the shelf says why nothing is dragged";
    EXPECT_EQ(server().selectionOwner("XdndSelection"), noWindow);
    hands().release();
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 2)));
    EXPECT_EQ(copiedCell(2, 0, m_kept.toUtf8()), m_kept.toUtf8());
}

TEST_F(Hostile, withAFileForATemporaryFolderPicturesAreKeptInMemory)
{
    auto environment = m_desktop.environment();
    environment.insert(u"TMPDIR"_s, makeFile(u"no-folder"_s, "x"));
    start({{}, {}, environment});
    const QByteArray png = QByteArray::fromBase64("iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAA"
                                                  "DUlEQVR42mNk+M9QDwADhgGAWjR9awAAAABJRU5ErkJg"
                                                  "gg==");
    ASSERT_TRUE(dropOffers({{"image/png", png}}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    focusShelf(corvane().at(38, 22));
    hands().key('c', {keys::control});
    EXPECT_TRUE(eventually([&] { return m_desktop.clipboard(u"image/png"_s) == png; }));
}

} // namespace
} // namespace corvane::e2e
