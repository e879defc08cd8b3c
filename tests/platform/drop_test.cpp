#include "platform/panel_fixture.h"
#include "platform/x11_client.h"

#include <QFile>
#include <QTemporaryDir>

namespace corvane::test {

namespace {

class DropTest : public PanelFixture {
protected:
    /// A source over the middle of the panel, and what it was answered.
    std::optional<DragSource::Answer> hover(DragSource &source)
    {
        source.pickUp();
        source.enter(id());
        source.moveTo(id(), at(150, 30));
        return source.waitForStatus();
    }
    std::optional<DragSource::Answer> dropFrom(DragSource &source)
    {
        source.drop(id());
        return source.waitForFinish();
    }

    const QByteArray text = "text/plain";
    const QByteArray save = "XdndDirectSave0";
};

class DirectSaveTest : public DropTest {
protected:
    /// What came of asking the source to save its file.
    void dropAndReceive(DragSource &source)
    {
        content.onPerform = [this](Pasteboard &pasteboard) {
            name = pasteboard.promisedFileName();
            received = pasteboard.receivePromisedFile(
                QUrl::fromLocalFile(folder.filePath(QStringLiteral("a picture.png"))));
            return received;
        };
        show();
        ASSERT_TRUE(hover(source));
        ASSERT_TRUE(dropFrom(source));
    }
    QByteArray bytes() const
    {
        QFile file(folder.filePath(QStringLiteral("a picture.png")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    bool isEmptyFolder() const
    {
        return QDir(folder.path())
            .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    QTemporaryDir folder;
    std::optional<QString> name;
    bool received = false;
};

} // namespace

TEST_F(DropTest, anAcceptedDropIsCopiedAndFinished)
{
    show();
    DragSource source({{text, "hello"}, {"text/uri-list", "file:///a%20b\r\n"}}, "XdndActionCopy");
    const auto status = hover(source);
    ASSERT_TRUE(status);
    EXPECT_TRUE(status->accepts);
    EXPECT_EQ(status->action, "XdndActionCopy");
    EXPECT_TRUE(content.log.contains(QStringLiteral("drag entered 150 70")));
    EXPECT_FALSE(content.isOwn);
    EXPECT_TRUE(content.types.contains(QStringLiteral("text/uri-list")));
    EXPECT_TRUE(source.asked().isEmpty());

    QList<QUrl> urls;
    std::optional<QString> string;
    content.onPerform = [&](Pasteboard &pasteboard) {
        urls = pasteboard.fileUrls();
        string = pasteboard.string();
        return true;
    };
    const auto finish = dropFrom(source);
    ASSERT_TRUE(finish);
    EXPECT_TRUE(finish->accepts);
    EXPECT_EQ(finish->action, "XdndActionCopy");
    EXPECT_EQ(urls, QList<QUrl>{QUrl(QStringLiteral("file:///a%20b"))});
    EXPECT_EQ(string, QStringLiteral("hello"));
    EXPECT_EQ(content.log.mid(1),
              QStringList({QStringLiteral("perform"), QStringLiteral("drag ended")}));
}

TEST_F(DropTest, isAnsweredWithCopyWhateverWasProposed)
{
    show();
    for (const char *proposed : {"XdndActionLink", "XdndActionAsk", "XdndActionPrivate"}) {
        DragSource source({{text, "hello"}}, proposed);
        const auto status = hover(source);
        ASSERT_TRUE(status) << proposed;
        EXPECT_FALSE(status->accepts && status->action != "XdndActionCopy")
            << proposed << " " << status->action.constData();
        source.leave(id());
        settle();
    }
}

TEST_F(DropTest, nothingIsMovedAwayFromItsSource)
{
    show();
    DragSource source({{text, "hello"}}, "XdndActionMove");
    const auto status = hover(source);
    ASSERT_TRUE(status);
    EXPECT_NE(status->action, "XdndActionMove");
    if (!status->accepts)
        return;
    const auto finish = dropFrom(source);
    ASSERT_TRUE(finish);
    EXPECT_EQ(finish->action, "XdndActionCopy");
}

TEST_F(DropTest, aRefusedDragStaysRefusedUntilItLeaves)
{
    show();
    content.accepts = false;
    DragSource source({{text, "hello"}}, "XdndActionCopy");
    EXPECT_FALSE(hover(source)->accepts);
    content.accepts = true;
    source.moveTo(id(), at(100, 30));
    EXPECT_FALSE(source.waitForStatus()->accepts);
    EXPECT_EQ(content.updates, 0);
    source.leave(id());
    EXPECT_TRUE(eventually([&] { return content.count("drag ended") == 1; }));
    EXPECT_TRUE(hover(source)->accepts);
}

TEST_F(DropTest, aDragThatLeavesExitsAndEnds)
{
    show();
    DragSource source({{text, "hello"}}, "XdndActionCopy");
    ASSERT_TRUE(hover(source));
    source.leave(id());
    EXPECT_TRUE(eventually([&] { return content.count("drag ended") == 1; }));
    EXPECT_EQ(content.count("drag exited"), 1);
    EXPECT_EQ(content.count("perform"), 0);
}

TEST_F(DropTest, aDropThatComesToNothingIsFinishedAllTheSame)
{
    show();
    content.onPerform = [](Pasteboard &) { return false; };
    DragSource source({{text, "hello"}}, "XdndActionCopy");
    ASSERT_TRUE(hover(source));
    const auto finish = dropFrom(source);
    ASSERT_TRUE(finish);
    EXPECT_FALSE(finish->accepts);
    EXPECT_EQ(content.count("drag ended"), 1);
}

TEST_F(DropTest, aDropThatThrowsIsFinishedAllTheSame)
{
    show();
    content.onPerform = [](Pasteboard &) -> bool { throw std::runtime_error("no room"); };
    DragSource source({{text, "hello"}}, "XdndActionCopy");
    ASSERT_TRUE(hover(source));
    EXPECT_TRUE(dropFrom(source));
    EXPECT_EQ(content.count("drag ended"), 1);
}

TEST_F(DropTest, aPanelThatHidesInTheDropFinishesIt)
{
    show();
    content.onPerform = [this](Pasteboard &) {
        panel.orderOut();
        return true;
    };
    DragSource source({{text, "hello"}}, "XdndActionCopy");
    ASSERT_TRUE(hover(source));
    EXPECT_TRUE(dropFrom(source)->accepts);
}

TEST_F(DropTest, contentThatGoesInTheDropIsNotToldMore)
{
    show();
    content.onPerform = [this](Pasteboard &) {
        panel.setContent(nullptr);
        return true;
    };
    DragSource source({{text, "hello"}}, "XdndActionCopy");
    ASSERT_TRUE(hover(source));
    EXPECT_TRUE(dropFrom(source));
    EXPECT_EQ(content.count("drag ended"), 0);
}

TEST_F(DirectSaveTest, bringsTheOriginalFile)
{
    DragSource source({{save, ""}, {text, "address"}}, "XdndActionCopy");
    dropAndReceive(source);
    EXPECT_EQ(name, QStringLiteral("a picture.png"));
    EXPECT_TRUE(received);
    EXPECT_EQ(bytes(), "promised");
}

TEST_F(DirectSaveTest, waitsForASourceThatCreatesTheFileFirst)
{
    DragSource source({{save, ""}}, "XdndActionCopy");
    source.directSave = DragSource::DirectSave::WritesTwice;
    source.promisedBytes = QByteArray(3'000'000, 'x');
    dropAndReceive(source);
    EXPECT_TRUE(received);
    EXPECT_EQ(bytes().size(), 3'000'000);
}

TEST_F(DirectSaveTest, aRefusalLeavesNothing)
{
    DragSource source({{save, ""}}, "XdndActionCopy");
    source.directSave = DragSource::DirectSave::Refuses;
    dropAndReceive(source);
    EXPECT_FALSE(received);
    EXPECT_TRUE(isEmptyFolder());
}

TEST_F(DirectSaveTest, aSourceThatNeverWritesIsGivenUp)
{
    DragSource source({{save, ""}}, "XdndActionCopy");
    source.directSave = DragSource::DirectSave::AnswersOnly;
    dropAndReceive(source);
    EXPECT_FALSE(received);
    EXPECT_TRUE(isEmptyFolder());
}

TEST_F(DirectSaveTest, aLinkIsNoFile)
{
    DragSource source({{save, ""}}, "XdndActionCopy");
    source.directSave = DragSource::DirectSave::WritesLink;
    dropAndReceive(source);
    EXPECT_FALSE(received);
    EXPECT_TRUE(isEmptyFolder());
}

TEST_F(DirectSaveTest, nothingIsPromisedWhereItIsNotOffered)
{
    DragSource source({{text, "hello"}}, "XdndActionCopy");
    dropAndReceive(source);
    EXPECT_FALSE(name);
    EXPECT_FALSE(received);
}

} // namespace corvane::test
