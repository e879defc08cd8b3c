#include "platform/drop_target.h"
#include "platform/panel_fixture.h"
#include "platform/panel_scene.h"
#include "platform/scene.h"
#include "platform/x11/drags/x11_drag_desktop.h"

#include <QCryptographicHash>

#include <algorithm>

namespace corvane::test {

namespace {

class DragOutTest : public PanelFixture {
protected:
    DragOutTest()
    {
        content.onFirstDragged = [this] {
            panel.beginDraggingSession(drag(),
                                       {[this] { ++releases; },
                                        [this](const DragOutEnd &end) {
                                            EXPECT_EQ(releases, 1);
                                            results.push_back(end.operation);
                                            taken = end.taken;
                                        }});
        };
    }

    DragOut drag() const
    {
        if (isTextAlone)
            return {{{}, text}, picture, hotSpot};
        return {{{{PasteboardWriter::File{QUrl(QStringLiteral("file:///tmp/a%FF.txt"))}},
                  {PasteboardWriter::Data{bytes, UTType::png()}}},
                 text},
                picture,
                hotSpot};
    }
    static Image yellow(QSize pixels, QSizeF points)
    {
        QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::yellow);
        return {image, points};
    }

    /// Drags out of the panel to `goal` and lets go there. The drag blocks this thread in an event
    /// loop of its own, so the hands are on another one.
    void dragTo(
        QPoint goal, const std::function<bool()> &mayLetGo = [] { return true; })
    {
        letGoOver(goal, mayLetGo);
        EXPECT_TRUE(eventually([&] { return !results.empty(); }));
    }
    /// The same, and does not wait for the end.
    void letGoOver(QPoint goal, const std::function<bool()> &mayLetGo)
    {
        std::thread user([this, goal, mayLetGo] {
            Display own;
            own.hands.beginDrag(at(150, 30), goal);
            own.hands.glideTo(goal);
            for (int i = 0; i < 400 && !mayLetGo(); ++i)
                own.hands.aim(goal);
            own.hands.release();
        });
        EXPECT_TRUE(eventually([&] { return releases > 0; }));
        user.join();
    }

    QByteArray bytes = "picture";
    QString text = QStringLiteral("täxt");
    bool isTextAlone = false;
    /// Drags the picture, and whether that is yellow in its first and last point, and no larger,
    /// where the pointer holds it by the point that is 8 points from its top left.
    testing::AssertionResult isDraggedAs(QSize shown)
    {
        const QPoint goal(200, 200);
        const e2e::XServer eye{qgetenv("DISPLAY")};
        const auto isYellow = [&](int x, int y) {
            const QImage seen = eye.picture({goal - QPoint(8, 8) + QPoint(x, y), QSize(1, 1)});
            return seen.pixelColor(0, 0) == QColor(Qt::yellow);
        };
        bool isSeen = false;
        bool isLarger = false;
        letGoOver(goal, [&] {
            isSeen = isYellow(0, 0) && isYellow(shown.width() - 1, shown.height() - 1);
            isLarger = isYellow(0, shown.height()) || isYellow(shown.width(), 0);
            return isSeen || isLarger;
        });
        if (isSeen && !isLarger)
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << (isLarger ? "it is larger" : "it is not seen there");
    }

    Image picture = yellow({32, 32}, {16, 16});
    /// From its bottom left.
    QPointF hotSpot{8, 8};
    int releases = 0;
    std::vector<DragOperation> results;
    QList<qsizetype> taken;
};

} // namespace

TEST_F(DragOutTest, givesATargetThatAsksLikeGtkEverything)
{
    show();
    DropTarget target({100, 100, 200, 200});
    target.wanted = {"text/uri-list", "UTF8_STRING", "text/plain;charset=utf-8", "image/png",
                     "application/vnd.portal.filetransfer"};
    dragTo({200, 200}, [&] { return target.isOver(); });
    ASSERT_TRUE(eventually([&] { return target.hasFinished(); }));
    EXPECT_EQ(results, std::vector{DragOperation::Copy});
    EXPECT_EQ(target.received("text/uri-list"), "file:///tmp/a%FF.txt\r\n");
    EXPECT_EQ(target.received("UTF8_STRING"), "t\xC3\xA4xt");
    EXPECT_EQ(target.received("text/plain;charset=utf-8"), "t\xC3\xA4xt");
    EXPECT_EQ(target.received("image/png"), "picture");
    EXPECT_FALSE(target.received("application/vnd.portal.filetransfer"));
    EXPECT_TRUE(target.targets().contains("text/uri-list"));
    EXPECT_TRUE(target.targets().contains("UTF8_STRING"));
}

TEST_F(DragOutTest, showsAPictureOfAnotherShapeThanItsPlaceFittedIntoIt)
{
    picture = yellow({64, 16}, {32, 16});
    show();
    EXPECT_TRUE(isDraggedAs({32, 8}));
}

TEST_F(DragOutTest, showsATallPictureFittedIntoItsPlaceToo)
{
    picture = yellow({16, 64}, {16, 32});
    hotSpot = {8, 24};
    show();
    EXPECT_TRUE(isDraggedAs({8, 32}));
}

TEST_F(DragOutTest, everyTypeThatIsAnnouncedIsGiven)
{
    show();
    DropTarget target({100, 100, 200, 200});
    target.wantsAllThatIsAnnounced = true;
    dragTo({200, 200}, [&] { return target.isOver(); });
    const QList<QByteArray> announced = target.announced();
    for (const char *type : {"text/uri-list", "text/x-moz-url", "text/plain",
                             "text/plain;charset=utf-8", "UTF8_STRING", "STRING", "TEXT"})
        EXPECT_TRUE(announced.contains(type)) << type;
    for (const QByteArray &type : announced)
        EXPECT_TRUE(target.received(type)) << type.constData();
    EXPECT_EQ(taken, (QList<qsizetype>{0, 1}));
}

TEST_F(DragOutTest, theTargetsLastWordCountsAndNotItsFirst)
{
    show();
    DropTarget target({100, 100, 200, 200});
    target.wanted = {"text/uri-list"};
    target.finish = DropTarget::Finish::Failed;
    dragTo({200, 200}, [&] { return target.isOver(); });
    EXPECT_EQ(results, std::vector{DragOperation::None});
}

// Qt reads answers that come together all at once, and hands on the first one alone.
TEST_F(DragOutTest, aTargetThatAcceptsRightAfterItRefusedHasWhatItFetched)
{
    show();
    DropTarget target({100, 100, 200, 200});
    target.wanted = {"text/uri-list"};
    target.hesitates = true;
    dragTo({200, 200}, [&] { return target.isOver(); });
    EXPECT_EQ(results, std::vector{DragOperation::Copy});
    EXPECT_EQ(taken, QList<qsizetype>{0});
}

TEST_F(DragOutTest, aTargetThatDiesWithTheDropHasNothing)
{
    show();
    DropTarget target({100, 100, 200, 200});
    target.wanted = {"text/uri-list"};
    target.finish = DropTarget::Finish::Dies;
    dragTo({200, 200}, [&] { return target.isOver(); });
    EXPECT_EQ(results, std::vector{DragOperation::None});
}

TEST_F(DragOutTest, whatATargetTakesNoMoreThanABeginningOfHasNotArrived)
{
    show();
    bytes = numberedBytes(20'000'000);
    DropTarget target({100, 100, 200, 200});
    target.wanted = {"image/png"};
    target.finish = DropTarget::Finish::InTheMiddle;
    letGoOver({200, 200}, [&] { return target.isOver(); });
    ASSERT_TRUE(eventually([&] { return target.hasFinished(); }));
    settle();
    EXPECT_TRUE(results.empty()) << "the target may still take the rest";
    target.closeAsker();
    ASSERT_TRUE(eventually([&] { return !results.empty(); }));
    EXPECT_TRUE(taken.isEmpty());
}

TEST_F(DragOutTest, theNextDragMayBeginWhileATargetIsBusy)
{
    show();
    DropTarget target({100, 100, 200, 200});
    target.wanted = {"text/uri-list"};
    target.finish = DropTarget::Finish::Never;
    letGoOver({200, 200}, [&] { return target.isOver(); });
    EXPECT_TRUE(results.empty());
    bool hasEnded = false;
    content.onFirstDragged = [&] {
        panel.beginDraggingSession(
            drag(), {[this] { ++releases; }, [&](const DragOutEnd &) { hasEnded = true; }});
    };
    std::thread user([this] {
        Display own;
        own.hands.beginDrag(at(150, 30), {1000, 800});
        own.hands.glideTo({1000, 800});
        own.hands.release();
    });
    EXPECT_TRUE(eventually([&] { return hasEnded; }));
    user.join();
    EXPECT_TRUE(results.empty());
}

TEST_F(DragOutTest, offersCopyAndLinkAndNeverAMove)
{
    show();
    DropTarget target({100, 100, 200, 200});
    dragTo({200, 200}, [&] { return target.isOver(); });
    EXPECT_TRUE(target.actions().contains("XdndActionCopy"));
    EXPECT_TRUE(target.actions().contains("XdndActionLink"));
    EXPECT_FALSE(target.actions().contains("XdndActionMove"));
}

TEST_F(DragOutTest, aRefusingTargetTakesNothing)
{
    show();
    DropTarget target({100, 100, 200, 200});
    target.accepts = false;
    content.accepts = false;
    dragTo({200, 200}, [&] { return target.isOver(); });
    EXPECT_EQ(results, std::vector{DragOperation::None});
}

TEST_F(DragOutTest, nothingIsTakenByTheEmptyDesktop)
{
    show();
    dragTo({1000, 800});
    EXPECT_EQ(results, std::vector{DragOperation::None});
}

TEST_F(DragOutTest, whatIsTooLargeForOneRequestArrivesAfterTheDrag)
{
    show();
    bytes = numberedBytes(20'000'000);
    DropTarget target({100, 100, 200, 200});
    target.wanted = {"image/png", "text/uri-list"};
    dragTo({200, 200}, [&] { return target.isOver(); });
    ASSERT_TRUE(eventually([&] { return target.hasFinished(); }));
    EXPECT_EQ(results, std::vector{DragOperation::Copy});
    // Not compared by the macro, which would print both.
    EXPECT_TRUE(target.received("image/png") == bytes);
    EXPECT_TRUE(target.received("text/uri-list"));
}

TEST_F(DragOutTest, aTextOf200MegabytesReachesAnotherPanelInBoundedMemory)
{
    show();
    constexpr qsizetype size = 200'000'000;
    const QByteArray sent = numberedBytes(size);
    text = QString::fromUtf8(sent);
    // Of files the other panel would fetch nothing else.
    isTextAlone = true;
    Scene other("panel");
    ASSERT_TRUE(other.waitFor("\n"));
    const auto window = other.output.mid(6).trimmed().toUInt();
    e2e::XServer server(qgetenv("DISPLAY"));
    // The second time it moves, its first answer has come.
    letGoOver(panelSceneFrame.topLeft() + panelSceneBody.center(),
              [&] { return server.property(window, "WM_NAME").toInt() > 1; });
    ASSERT_TRUE(other.serveUntil("text"));
    EXPECT_TRUE(eventually([&] { return results == std::vector{DragOperation::Copy}; }));
    const QList<QByteArray> facts
        = other.output.sliced(other.output.indexOf("text")).trimmed().split(' ');
    ASSERT_EQ(facts.size(), 4) << other.output.constData();
    EXPECT_EQ(facts[1].toLongLong(), size);
    EXPECT_EQ(facts[2], QCryptographicHash::hash(sent, QCryptographicHash::Sha1).toHex());
#ifndef __SANITIZE_ADDRESS__
    EXPECT_LE(facts[3].toLongLong() * 1024, 5 * size);
#endif
}

TEST_F(DragOutTest, itsOwnDragIsKnownAsSuchAndChangesNoCount)
{
    show();
    X11DragDesktop desktop(connection);
    content.accepts = false;
    dragTo(at(100, 40));
    EXPECT_TRUE(content.isOwn);
    EXPECT_EQ(desktop.changeCount(), 0);
    EXPECT_EQ(results, std::vector{DragOperation::None});
}

TEST_F(DragOutTest, aSecondDragInsideTheFirstIsNone)
{
    show();
    int inner = 0;
    content.onFirstDragged = [&, begin = content.onFirstDragged] {
        // In the loop that the first one is about to run.
        queue.async([&] {
            panel.beginDraggingSession(drag(),
                                       {[] {},
                                        [&](const DragOutEnd &end) {
                                            inner += end.operation == DragOperation::None ? 1 : 100;
                                        }});
        });
        begin();
    };
    dragTo({1000, 800}, [&] { return inner != 0; });
    EXPECT_EQ(inner, 1);
    EXPECT_EQ(results.size(), 1U);
}

TEST_F(DragOutTest, aPanelThatDiesInItsDragReportsNothing)
{
    auto dying
        = std::make_unique<QtPanelWindow>(panels.desktop(), queue, &dropSupport, &dragSupport);
    RecordingContent dyingContent;
    dying->setContent(&dyingContent);
    dying->place(placementFor({600, 482, 300, 100}));
    bool hasReturned = false;
    bool hasEnded = false;
    dyingContent.onFirstDragged = [&] {
        // In the drag's own loop.
        queue.async([&] { dying.reset(); });
        dying->beginDraggingSession(
            drag(), {[&] { hasEnded = true; }, [&](const DragOutEnd &) { hasEnded = true; }});
        hasReturned = true;
    };
    dying->orderFrontRegardless();
    ASSERT_TRUE(eventually([&] { return dyingContent.paints > 0; }));
    std::thread user([this] {
        Display own;
        own.hands.beginDrag(at(150, 30), {1000, 800});
        own.hands.glideTo({1000, 800});
        own.hands.release();
    });
    EXPECT_TRUE(eventually([&] { return hasReturned; }));
    user.join();
    EXPECT_FALSE(hasEnded);
}

} // namespace corvane::test
