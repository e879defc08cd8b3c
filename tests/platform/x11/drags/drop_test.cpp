#include "platform/panel_fixture.h"
#include "platform/x11/drags/x11_incoming_drag.h"
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

    /// A drop that was answered so ended so: as a copy, or as nothing at all.
    void expectCopyOrNothing(DragSource &source, const DragSource::Answer &status)
    {
        const QByteArray expected = status.accepts ? "XdndActionCopy" : "";
        EXPECT_EQ(status.action, expected);
        const auto finish = dropFrom(source);
        ASSERT_TRUE(finish);
        EXPECT_EQ(finish->accepts, status.accepts);
        EXPECT_EQ(finish->action, expected);
        EXPECT_EQ(content.count("perform"), status.accepts ? 1 : 0);
    }

    const QByteArray text = "text/plain";
    const QByteArray save = "XdndDirectSave0";
};

class DirectSaveTest : public DropTest {
protected:
    /// What came of asking the source to save its file.
    void dropAndReceive(DragSource &source)
    {
        content.place = QUrl::fromLocalFile(folder.filePath(QStringLiteral("a picture.png")));
        content.onPerform = [this](Pasteboard &pasteboard) {
            received = pasteboard.promisedFile() == content.place;
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
    content.onPerform = [&](Pasteboard &pasteboard) {
        urls = pasteboard.fileUrls();
        return true;
    };
    const auto finish = dropFrom(source);
    ASSERT_TRUE(finish);
    EXPECT_TRUE(finish->accepts);
    EXPECT_EQ(finish->action, "XdndActionCopy");
    EXPECT_EQ(urls, QList<QUrl>{QUrl(QStringLiteral("file:///a%20b"))});
    EXPECT_EQ(content.log.mid(1),
              QStringList({QStringLiteral("awaited"), QStringLiteral("perform"),
                           QStringLiteral("drag ended")}));
}

TEST_F(DropTest, isMadeWhereThePointerWasLast)
{
    show();
    DragSource source({{text, "hello"}}, "XdndActionCopy");
    ASSERT_TRUE(hover(source));
    source.moveTo(id(), at(100, 40));
    ASSERT_TRUE(source.waitForStatus());
    ASSERT_TRUE(dropFrom(source));
    EXPECT_EQ(content.performedAt, QPointF(100, 60));
}

TEST_F(DropTest, isACopyOrNothingWhateverWasProposed)
{
    show();
    for (const char *proposed : {"XdndActionLink", "XdndActionAsk", "XdndActionPrivate"}) {
        DragSource source({{text, "hello"}}, proposed);
        const auto status = hover(source);
        ASSERT_TRUE(status) << proposed;
        content.log.clear();
        SCOPED_TRACE(proposed);
        expectCopyOrNothing(source, *status);
    }
}

TEST_F(DropTest, nothingIsMovedAwayFromItsSource)
{
    show();
    DragSource source({{text, "hello"}}, "XdndActionMove");
    const auto status = hover(source);
    ASSERT_TRUE(status);
    expectCopyOrNothing(source, *status);
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

TEST_F(DropTest, aPositionThatComesAfterItsDragHasLeftBeginsNothing)
{
    show();
    DragSource source({{text, "hello"}}, "XdndActionCopy");
    ASSERT_TRUE(hover(source));
    source.leave(id());
    ASSERT_TRUE(eventually([&] { return content.count("drag ended") == 1; }));
    source.moveTo(id(), at(150, 30));
    settle();
    EXPECT_EQ(content.count("drag entered"), 1);
    EXPECT_EQ(content.count("drag ended"), 1);
}

TEST_F(DropTest, aPositionThatComesAfterItsDropBeginsNothing)
{
    show();
    DragSource source({{text, "hello"}}, "XdndActionCopy");
    ASSERT_TRUE(hover(source));
    ASSERT_TRUE(dropFrom(source)->accepts);
    source.moveTo(id(), at(150, 30));
    settle();
    EXPECT_EQ(content.count("drag entered"), 1);
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

TEST_F(DropTest, goesOnWhileASourceIsSilent)
{
    show();
    DragSource silent({{text, "late"}}, "XdndActionCopy");
    silent.keepSilentAbout(text);
    QStringList heard;
    content.onPerform = [&](Pasteboard &pasteboard) {
        heard << pasteboard.string().value_or(QString());
        return true;
    };
    ASSERT_TRUE(hover(silent));
    silent.drop(id());
    ASSERT_TRUE(eventually([&] { return silent.asked().contains(text); }));
    EXPECT_EQ(content.count("awaited"), 1);

    DragSource quick({{text, "quick"}}, "XdndActionCopy");
    ASSERT_TRUE(hover(quick));
    EXPECT_TRUE(dropFrom(quick)->accepts);
    EXPECT_EQ(heard, QStringList{QStringLiteral("quick")});
    silent.answerTheRest();
    EXPECT_TRUE(silent.waitForFinish()->accepts);
    EXPECT_EQ(heard, QStringList({QStringLiteral("quick"), QStringLiteral("late")}));
    EXPECT_EQ(content.count("drag exited"), 0);
}

TEST_F(DropTest, ofASourceThatEndsHasNothing)
{
    show();
    bool hasText = true;
    content.onPerform = [&](Pasteboard &pasteboard) {
        hasText = pasteboard.string().has_value();
        return false;
    };
    auto dying = std::make_unique<DragSource>(QHash<QByteArray, QByteArray>{{text, "never"}},
                                              "XdndActionCopy");
    dying->keepSilentAbout(text);
    ASSERT_TRUE(hover(*dying));
    dying->drop(id());
    ASSERT_TRUE(eventually([&] { return dying->asked().contains(text); }));
    dying.reset();
    EXPECT_TRUE(eventually([&] { return content.count("drag ended") == 1; }));
    EXPECT_EQ(content.count("perform"), 1);
    EXPECT_FALSE(hasText);
}

TEST_F(DropTest, fetchesOnlyWhatWillBeRead)
{
    show();
    DragSource files(
        {{text, "hello"}, {"image/png", "x"}, {save, ""}, {"text/uri-list", "file:///a"}},
        "XdndActionCopy");
    ASSERT_TRUE(hover(files));
    ASSERT_TRUE(dropFrom(files));
    EXPECT_EQ(files.asked(), QList<QByteArray>{"text/uri-list"});

    DragSource picture({{text, "hello"}, {"image/png", "x"}, {"image/tiff", "x"}},
                       "XdndActionCopy");
    ASSERT_TRUE(hover(picture));
    ASSERT_TRUE(dropFrom(picture));
    EXPECT_EQ(picture.asked(), QList<QByteArray>{"image/png"});

    DragSource link(
        {{text, "hello"}, {"text/uri-list", "http://a/"}, {"_NETSCAPE_URL", "http://b/"}},
        "XdndActionCopy");
    ASSERT_TRUE(hover(link));
    ASSERT_TRUE(dropFrom(link));
    EXPECT_EQ(link.asked(), QList<QByteArray>{"text/uri-list"});
}

TEST_F(DropTest, isEnteredWithTheAddressesThatDecideAboutIt)
{
    show();
    content.wantsAddresses = true;
    DragSource source({{"text/uri-list", "file:///a"}}, "XdndActionCopy");
    source.keepSilentAbout("text/uri-list");
    source.pickUp();
    source.enter(id());
    source.moveTo(id(), at(150, 30));
    ASSERT_TRUE(eventually([&] { return source.asked().contains("text/uri-list"); }));
    EXPECT_EQ(content.count("drag entered"), 0);
    source.answerTheRest();
    EXPECT_TRUE(source.waitForStatus()->accepts);
    EXPECT_EQ(content.addresses, QList<QUrl>{QUrl(QStringLiteral("file:///a"))});
    EXPECT_TRUE(dropFrom(source)->accepts);
    EXPECT_EQ(source.asked().size(), 1) << "what is known is not asked for again";
}

TEST_F(DropTest, thatWasNotAcceptedIsFinishedAsRefused)
{
    show();
    content.accepts = false;
    DragSource source({{text, "hello"}}, "XdndActionCopy");
    ASSERT_TRUE(hover(source));
    const auto finish = dropFrom(source);
    ASSERT_TRUE(finish);
    EXPECT_FALSE(finish->accepts);
    EXPECT_EQ(content.count("perform"), 0);
    EXPECT_TRUE(source.asked().isEmpty());
}

TEST_F(DropTest, thatIsStillOnItsWayIsFinishedWhenItsPanelHasNoContentAnyMore)
{
    show();
    DragSource source({{text, "never"}}, "XdndActionCopy");
    source.keepSilentAbout(text);
    ASSERT_TRUE(hover(source));
    source.drop(id());
    ASSERT_TRUE(eventually([&] { return source.asked().contains(text); }));
    panel.setContent(nullptr);
    const auto finish = source.waitForFinish();
    ASSERT_TRUE(finish);
    EXPECT_FALSE(finish->accepts);
    EXPECT_EQ(content.count("perform"), 0);
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
    EXPECT_EQ(content.promisedName, QStringLiteral("a picture.png"));
    EXPECT_TRUE(received);
    EXPECT_EQ(bytes(), "promised");
}

TEST(IncomingTypes, haveContentsWhereAFailedDownloadWouldLoseAnAddressATextOrAPicture)
{
    const QStringList alone{QStringLiteral("XdndDirectSave0"),
                            QStringLiteral("application/octet-stream"),
                            QStringLiteral("TIMESTAMP")};
    EXPECT_FALSE(X11IncomingDrag::haveContents(alone));
    for (const char *type : {"text/uri-list", "text/x-moz-url", "TEXT/PLAIN", "_NETSCAPE_URL",
                             "UTF8_STRING", "STRING", "image/png"})
        EXPECT_TRUE(X11IncomingDrag::haveContents(alone + QStringList(QLatin1String(type))))
            << type;
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

TEST_F(DirectSaveTest, isWaitedForWithoutStandingStill)
{
    DragSource source({{save, ""}, {text, "address"}}, "XdndActionCopy");
    source.directSave = DragSource::DirectSave::AnswersOnly;
    content.place = QUrl::fromLocalFile(folder.filePath(QStringLiteral("a picture.png")));
    show();
    ASSERT_TRUE(hover(source));
    source.drop(id());
    ASSERT_TRUE(eventually([&] { return source.asked().contains(save); }));
    settle();
    EXPECT_EQ(content.count("perform"), 0);
    QFile file(content.place->toLocalFile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("late");
    file.close();
    EXPECT_TRUE(eventually([&] { return content.count("perform") == 1; }));
    EXPECT_TRUE(source.waitForFinish());
    EXPECT_EQ(bytes(), "late");
}

TEST_F(DirectSaveTest, nothingIsPromisedWhereItIsNotOffered)
{
    DragSource source({{text, "hello"}}, "XdndActionCopy");
    dropAndReceive(source);
    EXPECT_FALSE(content.promisedName);
    EXPECT_FALSE(received);
}

} // namespace corvane::test
