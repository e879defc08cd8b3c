#include "fakes/fake_desktop_services.h"
#include "fakes/fake_file_icons.h"
#include "fakes/fake_keyboard_focus.h"
#include "fakes/fake_panel_window.h"
#include "fakes/fake_preview_documents.h"
#include "fakes/fake_window_activation.h"
#include "fakes/test_clock.h"
#include "platform/desktop/keyboard_loan.h"
#include "platform/pictures/fitted_size.h"
#include "preview/manual_loading.h"
#include "preview/preview_geometry.h"
#include "preview/qt_preview_panel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>

namespace corvane::test {
namespace {

struct OneItem : PreviewPanelDataSource, PreviewPanelController {
    int numberOfPreviewItems() const override { return isThere ? 1 : 0; }
    std::optional<QUrl> previewItemAt(int) const override { return url; }
    std::optional<QString> previewItemTitle(int) const override { return title; }
    bool acceptsPreviewPanelControl(PreviewPanel &) override { return accepts; }
    void beginPreviewPanelControl(PreviewPanel &panel) override
    {
        ++begun;
        panel.setDataSource(this);
        panel.reloadData();
    }
    void endPreviewPanelControl(PreviewPanel &panel) override
    {
        ++ended;
        panel.setDataSource(nullptr);
    }

    QUrl url{QStringLiteral("file:///home/a.txt")};
    std::optional<QString> title;
    bool isThere = true;
    bool accepts = true;
    int begun = 0;
    int ended = 0;
};

PreviewContent textOf(const QString &text)
{
    PreviewContent content;
    content.canBeOpened = true;
    content.body = PreviewContent::Text{text, false, false};
    return content;
}

struct QtPreviewPanelTest : testing::Test {
    QtPreviewPanelTest()
    {
        shelf.setFrame({300, 500, 200, 44});
        panel.emplace(QtPreviewPanel::Context{.loading = loading,
                                              .icons = icons,
                                              .desktop = desktop,
                                              .activation = activation,
                                              .keyboard = keyboard,
                                              .queue = clock,
                                              .shelf = shelf});
        panel->setController(&item);
    }
    ~QtPreviewPanelTest() override
    {
        panel.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    static QWidget *window()
    {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (widget->isVisible())
                return widget;
        }
        return nullptr;
    }
    void show(PreviewContent content)
    {
        panel->makeKeyAndOrderFront();
        loading.answer(std::move(content));
    }
    /// Until nothing waits to be painted.
    static void paint()
    {
        for (int turn = 0; turn < 50; ++turn)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    }
    static void key(QWindow &to, QEvent::Type type, int code, quint64 time, bool isRepeat = false)
    {
        constexpr quint32 scanCode = 65;
        QKeyEvent event(type, code, Qt::NoModifier, scanCode, 0, 0, {}, isRepeat);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(&to, &event);
    }
    static void pressControl(int code, bool isRepeat)
    {
        QKeyEvent event(QEvent::KeyPress, code, Qt::ControlModifier, 25, 0, 0, {}, isRepeat);
        QCoreApplication::sendEvent(window()->windowHandle(), &event);
    }
    static void press(int code) { key(*window()->windowHandle(), QEvent::KeyPress, code, 1000); }

    ManualLoading loading;
    FakeFileIcons icons;
    FakeDesktopServices desktop;
    FakeWindowActivation activation;
    FakeKeyboardFocus focus;
    TestClock clock;
    KeyboardLoan keyboard{focus, clock};
    FakePanelWindow shelf;
    OneItem item;
    std::optional<QtPreviewPanel> panel;
};

TEST_F(QtPreviewPanelTest, OpensWithTheContentAndTakesTheKeyboardForTheUser)
{
    panel->makeKeyAndOrderFront();
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(item.begun, 1);
    EXPECT_EQ(loading.asked, QList<QUrl>{item.url});
    EXPECT_EQ(window(), nullptr) << "it waits a moment for the content";
    loading.answer(textOf(QStringLiteral("hello")));
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(window()->windowTitle(), QStringLiteral("a.txt"));
    EXPECT_EQ(activation.broughtForward, QList<const QWindow *>{window()->windowHandle()});
    ASSERT_NE(window()->findChild<QPlainTextEdit *>(), nullptr);
    EXPECT_EQ(window()->findChild<QPlainTextEdit *>()->toPlainText(), QStringLiteral("hello"));
}

TEST_F(QtPreviewPanelTest, OpensWithoutTheContentOfADiskThatDoesNotAnswer)
{
    panel->makeKeyAndOrderFront();
    clock.advance(QtPreviewPanel::patience);
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(window()->windowTitle(), QStringLiteral("a.txt"));
    EXPECT_EQ(icons.asked, QList<QUrl>{item.url});
    QWidget *const same = window();
    loading.answer(textOf(QStringLiteral("at last")));
    EXPECT_EQ(window(), same);
    EXPECT_EQ(window()->findChild<QPlainTextEdit *>()->toPlainText(), QStringLiteral("at last"));
}

TEST_F(QtPreviewPanelTest, OpensAtOnceForADiskThatMayNeverAnswerAndCanBeClosed)
{
    loading.isRemote = true;
    panel->makeKeyAndOrderFront();
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(window()->windowTitle(), QStringLiteral("a.txt"));
    const auto texts = window()->findChildren<QWidget *>();
    EXPECT_TRUE(std::ranges::any_of(texts, [](const auto *label) {
        return label->accessibleName() == QStringLiteral("Loading…");
    }));
    press(Qt::Key_Escape);
    EXPECT_EQ(window(), nullptr);
    EXPECT_FALSE(loading.isWaitedFor());
}

TEST_F(QtPreviewPanelTest, OpensAtOnceForWhatIsStillBeingWritten)
{
    item.isThere = false;
    item.title = QStringLiteral("a long text");
    panel->makeKeyAndOrderFront();
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(window()->windowTitle(), QStringLiteral("a long text"));
    EXPECT_TRUE(loading.asked.isEmpty());
    item.isThere = true;
    panel->reloadData();
    loading.answer(textOf(QStringLiteral("at last")));
    EXPECT_EQ(window()->findChild<QPlainTextEdit *>()->toPlainText(), QStringLiteral("at last"));
}

TEST_F(QtPreviewPanelTest, StaysWhereTheUserHasPutItWhenTheContentComesLate)
{
    panel->makeKeyAndOrderFront();
    clock.advance(QtPreviewPanel::patience);
    window()->setGeometry(10, 20, 500, 400);
    loading.answer(textOf(QStringLiteral("at last")));
    EXPECT_EQ(window()->geometry(), QRect(10, 20, 500, 400));
}

TEST_F(QtPreviewPanelTest, OpensInTheMiddleOfTheFirstScreenWhereTheShelfHasNone)
{
    show(textOf(QStringLiteral("hello")));
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_LE((window()->geometry().center() - room.center()).manhattanLength(), 2);
}

TEST_F(QtPreviewPanelTest, OpensInTheMiddleOfTheShelfsScreen)
{
    ASSERT_EQ(QGuiApplication::screens().size(), 2);
    const QScreen *const right = QGuiApplication::screens()[1];
    ASSERT_NE(right, QGuiApplication::primaryScreen());
    shelf.isOn = right;
    show(textOf(QStringLiteral("hello")));
    const QRect room = right->availableGeometry();
    EXPECT_LE((window()->geometry().center() - room.center()).manhattanLength(), 2);
    EXPECT_TRUE(room.contains(window()->geometry()));
    EXPECT_EQ(loading.wantedPixels.width(),
              static_cast<int>(room.width() * preview_geometry::largestPart));
}

TEST_F(QtPreviewPanelTest, OneThatIsHiddenBeforeItOpenedNeverOpens)
{
    panel->makeKeyAndOrderFront();
    panel->orderOut();
    EXPECT_EQ(item.ended, 1);
    EXPECT_FALSE(loading.isWaitedFor());
    clock.advance(1);
    EXPECT_EQ(window(), nullptr);
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(QtPreviewPanelTest, TheWaitOfAnEarlierShowingDoesNotOpenTheNextOneEarly)
{
    panel->makeKeyAndOrderFront();
    panel->orderOut();
    clock.advance(QtPreviewPanel::patience / 2);
    panel->makeKeyAndOrderFront();
    clock.advance(QtPreviewPanel::patience / 2);
    EXPECT_EQ(window(), nullptr);
    clock.advance(QtPreviewPanel::patience / 2);
    EXPECT_NE(window(), nullptr);
}

TEST_F(QtPreviewPanelTest, SpaceAndEscapeCloseItOnce)
{
    for (const int code : {int(Qt::Key_Space), int(Qt::Key_Escape)}) {
        show(textOf(QStringLiteral("hello")));
        press(code);
        EXPECT_FALSE(panel->isVisible());
        EXPECT_EQ(window(), nullptr);
    }
    EXPECT_EQ(item.begun, 2);
    EXPECT_EQ(item.ended, 2);
    panel->orderOut();
    EXPECT_EQ(item.ended, 2);
}

TEST_F(QtPreviewPanelTest, TheShelfThatItWasOpenedFromHasTheKeyboardAgain)
{
    constexpr WindowNumber shelfsNumber{10};
    keyboard.join(shelfsNumber);
    keyboard.shown(shelfsNumber);
    keyboard.wantedByHand(shelfsNumber);
    show(textOf(QStringLiteral("hello")));
    focus.focused = WindowNumber{window()->winId()};
    panel->orderOut();
    EXPECT_EQ(focus.focused, shelfsNumber);
    // The window manager has noticed that the window is gone, and chosen nobody.
    focus.focused = WindowNumber::None;
    focus.answer();
    EXPECT_EQ(focus.focused, shelfsNumber);
}

TEST_F(QtPreviewPanelTest, GivesTheKeyboardAwayWhileItIsOnScreenAndAsksTheWindowManagerAfterwards)
{
    struct Watched : FakeKeyboardFocus {
        void giveTo(WindowNumber to) override
        {
            log << (window() ? QStringLiteral("given before") : QStringLiteral("given after"));
            FakeKeyboardFocus::giveTo(to);
        }
        bool askForAnswer() override
        {
            log << (window() ? QStringLiteral("asked before") : QStringLiteral("asked after"));
            return FakeKeyboardFocus::askForAnswer();
        }
        QStringList log;
    } watched;
    KeyboardLoan loan(watched, clock);
    constexpr WindowNumber shelfsNumber{10};
    loan.join(shelfsNumber);
    loan.shown(shelfsNumber);
    panel.emplace(QtPreviewPanel::Context{.loading = loading,
                                          .icons = icons,
                                          .desktop = desktop,
                                          .activation = activation,
                                          .keyboard = loan,
                                          .queue = clock,
                                          .shelf = shelf});
    panel->setController(&item);
    watched.focused = shelfsNumber;
    show(textOf(QStringLiteral("hello")));
    watched.focused = WindowNumber{window()->winId()};
    panel->orderOut();
    EXPECT_EQ(watched.log,
              (QStringList{QStringLiteral("given before"), QStringLiteral("asked after")}));
    panel.reset();
}

TEST_F(QtPreviewPanelTest, TheRepeatsOfTheKeyThatOpenedItDoNotCloseIt)
{
    show(textOf(QStringLiteral("hello")));
    QWindow &handle = *window()->windowHandle();
    key(handle, QEvent::KeyPress, Qt::Key_Space, 1000, true);
    EXPECT_TRUE(panel->isVisible());
    // A repeat that the toolkit does not know for one.
    key(handle, QEvent::KeyRelease, Qt::Key_Space, 1030);
    key(handle, QEvent::KeyPress, Qt::Key_Space, 1030);
    EXPECT_TRUE(panel->isVisible());
    key(handle, QEvent::KeyRelease, Qt::Key_Space, 1060);
    key(handle, QEvent::KeyPress, Qt::Key_Space, 1400);
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(QtPreviewPanelTest, ControlWClosesItUnlessItIsHeldSinceBefore)
{
    show(textOf(QStringLiteral("hello")));
    pressControl(Qt::Key_W, true);
    pressControl(Qt::Key_Space, false);
    EXPECT_TRUE(panel->isVisible());
    pressControl(Qt::Key_W, false);
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(QtPreviewPanelTest, APictureThatWasFittedIsNotDecodedAgain)
{
    for (const QSize pixels : {QSize(4000, 3000), QSize(3000, 4000), QSize(6001, 3999),
                               QSize(9000, 400), QSize(300, 200)}) {
        PreviewContent content;
        PreviewContent::Picture picture;
        picture.pixelSize = pixels;
        panel->makeKeyAndOrderFront();
        const QSize fitted = fittedSize(pixels, loading.wantedPixels).boundedTo(pixels);
        picture.fitted = QImage(fitted, QImage::Format_RGB32);
        picture.fitted.fill(Qt::red);
        picture.document = std::make_shared<FakePreviewDocuments::Document>();
        content.body = picture;
        loading.answer(content);
        paint();
        EXPECT_EQ(loading.rendered, QList<QSize>()) << pixels.width() << 'x' << pixels.height();
        panel->orderOut();
    }
}

TEST_F(QtPreviewPanelTest, AWheelMovesAPictureByNotchesATouchpadByItsPixelsAndKeysByTheirSteps)
{
    PreviewContent content;
    PreviewContent::Picture picture;
    picture.pixelSize = {4000, 3000};
    picture.fitted = QImage(400, 300, QImage::Format_RGB32);
    for (int y = 0; y < 300; ++y) {
        for (int x = 0; x < 400; ++x)
            picture.fitted.setPixel(x, y, qRgb(x % 256, y % 256, (x + y) % 256));
    }
    content.body = picture;
    show(content);
    QWidget *view = nullptr;
    for (QWidget *widget : window()->findChildren<QWidget *>()) {
        if (widget->accessibleName() == QStringLiteral("Picture"))
            view = widget;
    }
    ASSERT_TRUE(view);
    const auto after = [&](QPoint pixels, QPoint angle, Qt::ScrollPhase phase) {
        press(Qt::Key_0);
        press(Qt::Key_1);
        QWheelEvent event({5, 5}, {}, pixels, angle, Qt::NoButton, {}, phase, false);
        QCoreApplication::sendEvent(view, &event);
        return view->grab().toImage();
    };
    const QImage notch = after({}, {0, 120}, Qt::NoScrollPhase);
    EXPECT_NE(notch, after({}, {0, 60}, Qt::NoScrollPhase)) << "it moves at all";
    EXPECT_EQ(notch, after({0, 120}, {0, 120}, Qt::NoScrollPhase))
        << "pixels that a driver made up of notches";
    EXPECT_EQ(notch, after({0, 60}, {0, 480}, Qt::ScrollUpdate)) << "pixels of a touchpad";
    press(Qt::Key_0);
    press(Qt::Key_1);
    const QImage middle = view->grab().toImage();
    for (const auto &[there, back] :
         {std::pair(Qt::Key_PageDown, Qt::Key_PageUp), std::pair(Qt::Key_Down, Qt::Key_Up),
          std::pair(Qt::Key_Right, Qt::Key_Left)}) {
        press(there);
        EXPECT_NE(view->grab().toImage(), middle) << there;
        press(back);
        EXPECT_EQ(view->grab().toImage(), middle) << back;
    }
}

TEST_F(QtPreviewPanelTest, TheRepeatsOfTheKeyThatClosedItReachNoOtherWindow)
{
    struct Heard : QWindow {
        void keyPressEvent(QKeyEvent *) override { ++presses; }
        void keyReleaseEvent(QKeyEvent *) override { ++releases; }
        int presses = 0;
        int releases = 0;
    } other;
    show(textOf(QStringLiteral("hello")));
    press(Qt::Key_Escape);
    key(other, QEvent::KeyPress, Qt::Key_Escape, 1500, true);
    key(other, QEvent::KeyRelease, Qt::Key_Escape, 1530);
    key(other, QEvent::KeyPress, Qt::Key_Escape, 1530);
    EXPECT_EQ(other.presses, 0);
    key(other, QEvent::KeyRelease, Qt::Key_Escape, 1560);
    EXPECT_EQ(other.releases, 0);
    key(other, QEvent::KeyPress, Qt::Key_Escape, 2000);
    EXPECT_EQ(other.presses, 1) << "pressed anew it means something again";
}

TEST_F(QtPreviewPanelTest, TheWindowsOwnCloseButtonEndsItToo)
{
    show(textOf(QStringLiteral("hello")));
    window()->close();
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(item.ended, 1);
}

TEST_F(QtPreviewPanelTest, ShowsNamesAsPlainText)
{
    item.url = QUrl(QStringLiteral("file:///home/<b>[*].txt"));
    show({});
    EXPECT_EQ(window()->windowTitle(), QStringLiteral("<b>[*][*].txt"))
        << "which a title shows as it is";
    EXPECT_TRUE(window()->findChildren<QLabel *>().isEmpty()) << "labels may see markup";
}

TEST_F(QtPreviewPanelTest, CallsALentFileByItsTitleAndOpensItNowhere)
{
    item.title = QStringLiteral("Some text");
    show(textOf(QStringLiteral("hello")));
    EXPECT_EQ(window()->windowTitle(), QStringLiteral("Some text"));
    EXPECT_FALSE(window()->findChild<QPushButton *>()->isVisible());
}

TEST_F(QtPreviewPanelTest, OpensTheFileWithTheDesktopsProgramAndCloses)
{
    show(textOf(QStringLiteral("hello")));
    window()->findChild<QPushButton *>()->click();
    EXPECT_EQ(desktop.opened, QList<QUrl>{item.url});
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(QtPreviewPanelTest, ASecondClickThatCameWithTheFirstOpensNothingMore)
{
    show(textOf(QStringLiteral("hello")));
    auto *const button = window()->findChild<QPushButton *>();
    button->click();
    button->click();
    EXPECT_EQ(desktop.opened, QList<QUrl>{item.url});
}

TEST_F(QtPreviewPanelTest, ShowsNothingWhereNobodyTakesControl)
{
    item.accepts = false;
    panel->makeKeyAndOrderFront();
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(item.begun, 0);
    panel->setController(nullptr);
    panel->makeKeyAndOrderFront();
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(QtPreviewPanelTest, ALongTextIsAllThereInTheEndAndReadableAtOnce)
{
    const QString text = QStringLiteral("0123456789\n").repeated(20'000);
    show(textOf(text));
    const auto *view = window()->findChild<QPlainTextEdit *>();
    EXPECT_TRUE(view->toPlainText().startsWith(QStringLiteral("0123456789\n")));
    EXPECT_LT(view->document()->characterCount(), text.size());
    clock.runPending();
    EXPECT_EQ(view->toPlainText(), text);
}

TEST_F(QtPreviewPanelTest, AsksForMorePixelsOnlyWhenThereIsRoomForThem)
{
    PreviewContent content;
    PreviewContent::Picture picture;
    picture.pixelSize = {1600, 1200};
    picture.fitted = QImage(160, 120, QImage::Format_RGB32);
    picture.document = std::make_shared<FakePreviewDocuments::Document>();
    content.body = picture;
    show(content);
    ASSERT_EQ(loading.rendered.size(), 1);
    EXPECT_LE(loading.rendered[0].width(), loading.wantedPixels.width());
    press(Qt::Key_Plus);
    EXPECT_EQ(loading.rendered.size(), 1) << "one at a time";
}

TEST_F(QtPreviewPanelTest, ShowsNothingOfOneItemWhileTheNextIsLoading)
{
    show(textOf(QStringLiteral("hello")));
    ASSERT_TRUE(window()->findChild<QPlainTextEdit *>());
    item.url = QUrl(QStringLiteral("file:///home/b.txt"));
    panel->reloadData();
    EXPECT_FALSE(window()->findChild<QPlainTextEdit *>());
    EXPECT_EQ(window()->windowTitle(), QStringLiteral("b.txt"));
}

TEST_F(QtPreviewPanelTest, AnAnimationThatNobodySeesMakesNoFrames)
{
    PreviewContent content;
    PreviewContent::Picture picture;
    picture.pixelSize = {16, 12};
    picture.fitted = QImage(16, 12, QImage::Format_RGB32);
    picture.isAnimated = true;
    picture.document = std::make_shared<FakePreviewDocuments::Document>();
    content.body = picture;
    show(content);
    paint();
    EXPECT_EQ(loading.framesAsked, 1);
    const PreviewDocument::Frame frame{picture.fitted, 0.1};
    loading.frameAsked(frame);
    clock.runPending();
    paint();
    EXPECT_EQ(loading.framesAsked, 2) << "the next one is made while this one stands";
    loading.frameAsked(frame);
    clock.advance(0.05);
    paint();
    EXPECT_EQ(loading.framesAsked, 2);
    clock.advance(0.06);
    paint();
    EXPECT_EQ(loading.framesAsked, 3);
    panel->orderOut();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    loading.frameAsked(frame);
    clock.advance(1);
    paint();
    EXPECT_EQ(loading.framesAsked, 3);
    EXPECT_EQ(clock.pendingCount(), 0U);
}

TEST_F(QtPreviewPanelTest, KeepsNothingOnceItIsHidden)
{
    show(textOf(QStringLiteral("hello")));
    panel->orderOut();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

} // namespace
} // namespace corvane::test
