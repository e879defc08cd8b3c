// Pasting onto a panel what other programs have put on the clipboard.

#include "platform/panel_fixture.h"
#include "platform/x11/drags/x11_clipboard.h"
#include "platform/x11_client.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace corvane::test {

namespace {

PanelDesktop withClipboard(PanelDesktop desktop, ClipboardSource &clipboard)
{
    desktop.clipboard = &clipboard;
    return desktop;
}

/// Contents that never come.
class SilentContents : public IncomingDrag {
public:
    QStringList types() const override { return {QStringLiteral("text/plain")}; }
    QByteArray fetched(const QString &) const override { return {}; }
    void fetch(const QString &, qsizetype, Fetched) override { }
    std::optional<QString> promisedFileName() override { return std::nullopt; }
    void receivePromisedFile(const QUrl &, std::function<void(bool)>) override { }
    void finish(bool) override { }
};

struct SilentClipboard : ClipboardSource {
    void look(Found found) override { found(std::make_shared<SilentContents>()); }
};

/// The fixture's panel knows no clipboard but Qt's; the one that is pasted onto here does.
class PasteTest : public PanelFixture {
protected:
    PasteTest()
    {
        // Qt may not have heard yet that what an earlier test copied is no longer there.
        QGuiApplication::clipboard()->clear();
        pasted.setContent(&taker);
        taker.onPerform = [this](Pasteboard &pasteboard) {
            texts << pasteboard.string().value_or(QString());
            files << pasteboard.fileUrls();
            return true;
        };
    }
    ~PasteTest() override
    {
        pasted.setContent(nullptr);
        QGuiApplication::clipboard()->clear();
    }
    bool waitForPaste(int count = 1)
    {
        return eventually([&] { return taker.count("perform") == count; });
    }

    const QByteArray text = "text/plain;charset=utf-8";
    X11Clipboard clipboard{connection, queue};
    RecordingContent taker;
    QtPanelWindow pasted{withClipboard(panels.desktop(), clipboard), queue};
    QStringList texts;
    QList<QUrl> files;
};

} // namespace

TEST_F(PasteTest, comesAsADropWould)
{
    DragSource owner({{text, "hello"}}, {});
    owner.copy();
    pasted.paste();
    ASSERT_TRUE(waitForPaste());
    EXPECT_EQ(texts, QStringList{QStringLiteral("hello")});
    EXPECT_EQ(taker.log,
              (QStringList{QStringLiteral("awaited"), QStringLiteral("perform"),
                           QStringLiteral("drag ended")}));
}

TEST_F(PasteTest, asksForFilesFirstAndThenForNothingMore)
{
    DragSource owner({{text, "file:///a%20b"}, {"text/uri-list", "file:///a%20b\r\n"}}, {});
    owner.copy();
    pasted.paste();
    ASSERT_TRUE(waitForPaste());
    EXPECT_EQ(files, QList<QUrl>{QUrl(QStringLiteral("file:///a%20b"))});
    EXPECT_EQ(owner.asked(), (QList<QByteArray>{"TARGETS", "text/uri-list"}));
}

TEST_F(PasteTest, ofAnOwnerThatIsSilentHoldsUpNothing)
{
    DragSource owner({{text, "late"}}, {});
    owner.keepSilentAbout(text);
    owner.copy();
    pasted.paste();
    ASSERT_TRUE(eventually([&] { return owner.asked().contains(text); }));
    EXPECT_EQ(taker.log, QStringList{QStringLiteral("awaited")});
    owner.answerTheRest();
    EXPECT_TRUE(waitForPaste());
    EXPECT_EQ(texts, QStringList{QStringLiteral("late")});
}

TEST_F(PasteTest, isNothingWhereNobodyHasTheClipboard)
{
    pasted.paste();
    settle();
    EXPECT_TRUE(taker.log.isEmpty());
}

TEST_F(PasteTest, isNothingWhereTheContentTakesNone)
{
    taker.takesPastes = false;
    DragSource owner({{text, "hello"}}, {});
    owner.copy();
    pasted.paste();
    ASSERT_TRUE(eventually([&] { return owner.asked().contains("TARGETS"); }));
    settle();
    EXPECT_TRUE(taker.log.isEmpty());
}

TEST_F(PasteTest, ofOurOwnClipboardIsThereAtOnce)
{
    auto mimeData = std::make_unique<QMimeData>();
    mimeData->setText(QStringLiteral("our own"));
    QGuiApplication::clipboard()->setMimeData(mimeData.release());
    pasted.paste();
    EXPECT_EQ(texts, QStringList{QStringLiteral("our own")});
}

TEST_F(PasteTest, ofManyWhoseOwnerIsSilentIsEnoughOnce)
{
    DragSource owner({{text, "late"}}, {});
    owner.keepSilentAbout(text);
    owner.copy();
    for (std::size_t i = 0; i < PanelDropTarget::maximumAwaited + 3; ++i)
        pasted.paste();
    ASSERT_TRUE(eventually([&] {
        return owner.asked().count(text) >= static_cast<int>(PanelDropTarget::maximumAwaited)
            && owner.asked().count("TARGETS") >= static_cast<int>(PanelDropTarget::maximumAwaited);
    }));
    settle();
    EXPECT_EQ(taker.count("awaited"), static_cast<int>(PanelDropTarget::maximumAwaited));
}

TEST_F(PasteTest, isAwaitedByAPanelOnlySoManyTimesWhereverItComesFrom)
{
    SilentClipboard silent;
    QtPanelWindow waiting(withClipboard(panels.desktop(), silent), queue);
    waiting.setContent(&taker);
    for (std::size_t i = 0; i < PanelDropTarget::maximumAwaited + 3; ++i)
        waiting.paste();
    EXPECT_EQ(taker.count("awaited"), static_cast<int>(PanelDropTarget::maximumAwaited));
    waiting.setContent(nullptr);
}

TEST_F(PasteTest, thatIsOnItsWayWhenThePanelGoesTellsNobody)
{
    DragSource owner({{text, "late"}}, {});
    owner.keepSilentAbout("TARGETS");
    owner.copy();
    auto leaving
        = std::make_unique<QtPanelWindow>(withClipboard(panels.desktop(), clipboard), queue);
    leaving->setContent(&taker);
    leaving->paste();
    ASSERT_TRUE(eventually([&] { return owner.asked().contains("TARGETS"); }));
    leaving.reset();
    owner.answerTheRest();
    settle();
    EXPECT_TRUE(taker.log.isEmpty());
}

} // namespace corvane::test
