#include "app/app_delegate.h"
#include "app/base/app_info.h"
#include "app/preferences/preferences_window_controller.h"
#include "app/shell_windows.h"
#include "app/status/status_item_controller.h"
#include "app/welcome/welcome_window_controller.h"
#include "core/kept_items.h"
#include "core/temporary_spool.h"
#include "fakes/fake_desktop_services.h"
#include "fakes/fake_drag_desktop.h"
#include "fakes/fake_drag_watch.h"
#include "fakes/fake_hot_keys.h"
#include "fakes/fake_key_monitors.h"
#include "fakes/fake_pasteboard.h"
#include "fakes/fake_pointer_barriers.h"
#include "fakes/fake_preview_panel.h"
#include "fakes/fake_status_item.h"
#include "fakes/fake_updater.h"
#include "fakes/fake_window_activation.h"
#include "fakes/fake_work_queue.h"
#include "fakes/shelf_model.h"
#include "input/barrier_edge_trigger.h"
#include "input/drag_monitor.h"
#include "input/hot_key_center.h"
#include "input/monitored_clicks.h"
#include "input/shortcut_binder.h"
#include "platform/desktop/abilities.h"
#include "services/quick_look_presenter.h"
#include "shelf/edge_summoner.h"

#include <QDir>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// Notes what the setting said when it was started.
class StartedUpdater : public FakeUpdater {
public:
    explicit StartedUpdater(const Settings &settings)
        : m_settings(settings)
    {
    }
    void start() override { automaticWhenStarted.push_back(m_settings.autoCheckUpdates()); }

    std::vector<bool> automaticWhenStarted;

private:
    const Settings &m_settings;
};

class AppDelegateTest : public testing::Test, protected ShelfModel {
protected:
    AppDelegateTest()
    {
        settings.setSeenWelcome(true);
        launch();
        store.observeState([this](ShelfState from, ShelfState to) {
            log << QStringLiteral("state %1 %2")
                       .arg(static_cast<int>(from))
                       .arg(static_cast<int>(to));
        });
        store.observeItems([this](const QList<DropItem> &) { log << QStringLiteral("items"); });
    }

    void launch()
    {
        hud.emplace(controllerContext());
        edge.emplace(EdgeSummoner::Context{
            .trigger = edgeTrigger,
            .outsideClicks = clicks,
            .screens = screens,
            .store = store,
            .queue = desk.clock,
            .shelfWidth = [this](const ScreenPointer &where) { return hud->openWidth(where); },
            .letClicksThrough = [this](double seconds) { hud->letClicksThrough(seconds); }});
        statusItemController.emplace(StatusItemController::Context{
            .statusItem = statusItem,
            .store = store,
            .settings = settings,
            .queue = desk.clock,
            .terminate = [this] { log << QStringLiteral("terminate"); }});
        delegate.emplace(AppDelegate::Context{.dragWatch = *watch,
                                              .hotKeys = hotKeys,
                                              .shortcuts = shortcuts,
                                              .settings = settings,
                                              .store = store,
                                              .spool = desk.spool,
                                              .keptItems = keptItems,
                                              .previewPanel = previewPanel,
                                              .presenter = presenter,
                                              .hud = *hud,
                                              .edge = *edge,
                                              .statusItem = *statusItemController,
                                              .windows = windows,
                                              .updater = &updater});
        delegate->applicationDidFinishLaunching();
    }
    /// Takes everything down again, in the order in which the program does it.
    void end()
    {
        delegate.reset();
        statusItemController.reset();
        edge.reset();
        hud.reset();
    }
    bool pressHotKey(const FakeHotKeys::Combination &hotKey)
    {
        const bool isOurs = hotKeyService.press(hotKey.first, hotKey.second);
        desk.clock.runPending();
        return isOurs;
    }
    void bindViewAll()
    {
        settings.setViewAllShortcut(
            Shortcut{viewAllHotKey.first, viewAllHotKey.second, QStringLiteral("K")});
        ASSERT_TRUE(shortcuts.bindViewAll());
    }

    static constexpr FakeHotKeys::Combination shelfHotKey = {KeyPosition::D, 768};
    static constexpr FakeHotKeys::Combination viewAllHotKey = {KeyPosition{40}, 4096};

    /// A drag of another program that has begun and goes on.
    void drag()
    {
        desktop.press();
        desktop.pickUp();
        desktop.moveTo({1, 0});
    }
    void release()
    {
        desktop.release();
        desk.clock.advance(DragMonitor::pollInterval + DragMonitor::settleDelay + 0.001);
    }

    FakeDragDesktop desktop;
    MonitoredClicks clicks{desktop, desktop.pointer};
    DragMonitor monitor{desktop, desktop, desktop, desk.clock};
    DragWatch *watch = &monitor;
    FakeHotKeys hotKeyService;
    HotKeyCenter hotKeys{hotKeyService, desk.clock};
    ShortcutBinder shortcuts{hotKeys, [this] { return settings.shortcut(); },
                             [this] { return settings.viewAllShortcut(); }};
    TemporaryFolder scratch;
    KeptFolder keptFolder{scratch.path("kept")};
    FakeWorkQueue keptWork;
    KeptItems keptItems{{.settings = settings,
                         .folder = keptFolder,
                         .store = store,
                         .spool = desk.spool,
                         .ingest = desk.ingest,
                         .codec = desk.codec,
                         .preparation = desk.preparation,
                         .workQueue = keptWork}};
    FakePreviewPanel previewPanel;
    FakeWorkQueue scratchWork;
    QuickLookPresenter presenter{{previewPanel, desk.clock, scratchWork}, scratch.path()};
    FakeStatusItem statusItem;
    FakePointerBarriers barriers;
    FakeFullScreenWindows fullScreenWindows;
    BarrierEdgeTrigger edgeTrigger{{barriers, fullScreenWindows, desktop, desktop.pointer}};
    FakeKeyMonitors keyMonitors;
    FakeDesktopServices desktopServices;
    FakeWindowActivation activation;
    SessionAbilities abilities;
    ShellWindows windows{
        {{settings, loginItems, shortcuts, keyMonitors, hotKeyService, desktopServices, desk.motion,
          locator, abilities, [](const QString &) {}, AppInfo({})},
         activation,
         desk.clock}};
    StartedUpdater updater{settings};
    std::optional<HUDController> hud;
    std::optional<EdgeSummoner> edge;
    std::optional<StatusItemController> statusItemController;
    std::optional<AppDelegate> delegate;
    QStringList log;
};

/// In a session that does not see where a drag ends.
class DragsOfUnknownEndTest : public AppDelegateTest {
protected:
    DragsOfUnknownEndTest()
    {
        end();
        watch = &dim;
        launch();
    }
    ~DragsOfUnknownEndTest() override { end(); }

    DragOperation enter(bool isOwn = false)
    {
        FakePasteboard dragged;
        dragged.offerText(QStringLiteral("text"));
        return desk.panel.content->draggingEntered({dragged, {280, 100}, isOwn});
    }

    FakeDragWatch dim;
};

} // namespace

TEST_F(DragsOfUnknownEndTest, AnAssumedEndClosesTheShelfAndTheDragOpensItAgain)
{
    dim.began();
    dim.ended(DragEnd::Assumed);
    EXPECT_EQ(store.state(), ShelfState::Idle);
    EXPECT_FALSE(store.isDragInFlight());
    EXPECT_EQ(enter(), DragOperation::Copy);
    EXPECT_EQ(store.state(), ShelfState::Expanded);
    EXPECT_TRUE(store.isDragInFlight());
    desk.panel.content->draggingExited();
    dim.ended(DragEnd::Assumed);
    EXPECT_EQ(store.state(), ShelfState::Idle);
    EXPECT_EQ(enter(), DragOperation::Copy) << "as often as it comes";
}

TEST_F(DragsOfUnknownEndTest, AfterAnEndThatWasSeenNothingOpensTheShelfButANewDrag)
{
    dim.began();
    dim.ended(DragEnd::Seen);
    EXPECT_EQ(enter(), DragOperation::None);
    EXPECT_EQ(store.state(), ShelfState::Idle);
    dim.began();
    EXPECT_EQ(store.state(), ShelfState::Expanded);
}

TEST_F(DragsOfUnknownEndTest, ADragThatWasSeenToBeginDoesNotBeginAgainOverTheShelf)
{
    dim.began();
    dim.ended(DragEnd::Assumed);
    dim.began();
    log.clear();
    EXPECT_EQ(enter(), DragOperation::Copy);
    EXPECT_EQ(log, QStringList());
}

TEST_F(DragsOfUnknownEndTest, AShelfThatIsNotToOpenForDragsDoesNotOpenForOneThatComesBack)
{
    settings.setAutoShowOnDrag(false);
    dim.began();
    dim.ended(DragEnd::Assumed);
    EXPECT_EQ(enter(), DragOperation::None);
    EXPECT_EQ(store.state(), ShelfState::Idle);
}

TEST_F(DragsOfUnknownEndTest, AnEmptyShelfStaysOpenAfterAnAssumedEndForWhatIsOnItsWay)
{
    dim.began();
    enter();
    desk.panel.content->dropIsAwaited();
    dim.ended(DragEnd::Assumed);
    EXPECT_EQ(store.state(), ShelfState::Expanded);
}

TEST_F(DragsOfUnknownEndTest, TheWatchIsToldOfDragsOverTheShelfAndOfOwnDrags)
{
    PanelContent &shelf = *desk.panel.content;
    dim.began();
    enter();
    shelf.draggingExited();
    shelf.draggingEnded();
    enter();
    shelf.dropIsAwaited();
    shelf.draggingEnded();
    EXPECT_EQ(dim.log,
              (QStringList{QStringLiteral("over 1"), QStringLiteral("over 0"),
                           QStringLiteral("over 1"), QStringLiteral("over 0")}));
    dim.log.clear();
    store.ownDragChanged(true);
    enter(true);
    shelf.draggingExited();
    store.ownDragChanged(true);
    store.ownDragChanged(false);
    EXPECT_EQ(dim.log, (QStringList{QStringLiteral("own 1"), QStringLiteral("own 0")}));
}

TEST_F(DragsOfUnknownEndTest, OnceTheDelegateIsGoneNobodyIsToldAndNothingOpensTheShelf)
{
    dim.began();
    dim.ended(DragEnd::Assumed);
    dim.log.clear();
    delegate.reset();
    EXPECT_EQ(enter(), DragOperation::None);
    EXPECT_EQ(store.state(), ShelfState::Idle);
    store.ownDragChanged(true);
    EXPECT_EQ(dim.log, QStringList());
    EXPECT_FALSE(hud->onDragOver || hud->onAwaitsDrop || hud->onPointerInside || hud->onUsed);
}

TEST_F(AppDelegateTest, StartsTheUpdaterOnceTheSettingsHaveTheirDefaults)
{
    EXPECT_EQ(updater.automaticWhenStarted, (std::vector{true}));
}

TEST_F(AppDelegateTest, ADragOpensTheShelfAndItsEndClosesIt)
{
    drag();
    EXPECT_EQ(log, QStringList{QStringLiteral("state 0 1")});
    EXPECT_TRUE(store.isDragInFlight());
    EXPECT_TRUE(desk.panel.visible);
    log.clear();
    release();
    EXPECT_EQ(log, QStringList{QStringLiteral("state 1 0")});
    EXPECT_FALSE(store.isDragInFlight());
}

TEST_F(AppDelegateTest, AnEmptyShelfStaysOpenForWhatWasDroppedAndIsOnItsWay)
{
    drag();
    desk.panel.content->dropIsAwaited();
    release();
    desk.clock.advance(60);
    EXPECT_EQ(store.state(), ShelfState::Expanded);
    FakePasteboard pasteboard;
    pasteboard.offerText(QStringLiteral("late"));
    log.clear();
    EXPECT_TRUE(desk.panel.content->performDragOperation({pasteboard, {}, false}));
    EXPECT_EQ(store.state(), ShelfState::Occupied);
    EXPECT_FALSE(store.isDragInFlight());
    EXPECT_EQ(store.items().size(), 1);
}

TEST_F(AppDelegateTest, ADragIsOverWithTheFirstOfSeveralThingsThatWereDropped)
{
    drag();
    desk.panel.content->dropIsAwaited();
    desk.panel.content->dropIsAwaited();
    release();
    FakePasteboard pasteboard;
    pasteboard.offerText(QStringLiteral("first"));
    EXPECT_TRUE(desk.panel.content->performDragOperation({pasteboard, {}, false}));
    EXPECT_FALSE(store.isDragInFlight()) << "the shelf has an item that keeps it open";
    EXPECT_EQ(store.state(), ShelfState::Occupied);
    log.clear();
    FakePasteboard nothing;
    EXPECT_FALSE(desk.panel.content->performDragOperation({nothing, {}, false}));
    EXPECT_EQ(log, QStringList()) << "the end is told once";
}

TEST_F(AppDelegateTest, AnEmptyShelfClosesWhenNothingComesOfWhatWasDropped)
{
    drag();
    desk.panel.content->dropIsAwaited();
    desk.panel.content->dropIsAwaited();
    release();
    FakePasteboard nothing;
    EXPECT_FALSE(desk.panel.content->performDragOperation({nothing, {}, false}));
    EXPECT_EQ(store.state(), ShelfState::Expanded) << "another one is on its way";
    EXPECT_FALSE(desk.panel.content->performDragOperation({nothing, {}, false}));
    EXPECT_EQ(store.state(), ShelfState::Idle);
    EXPECT_FALSE(store.isDragInFlight());
}

TEST_F(AppDelegateTest, ADragThatBeginsWhileADropIsOnItsWayEndsByItself)
{
    drag();
    desk.panel.content->dropIsAwaited();
    release();
    drag();
    FakePasteboard nothing;
    desk.panel.content->performDragOperation({nothing, {}, false});
    EXPECT_EQ(store.state(), ShelfState::Expanded);
    EXPECT_TRUE(store.isDragInFlight());
    release();
    EXPECT_EQ(store.state(), ShelfState::Idle);
}

TEST_F(AppDelegateTest, ADropThatComesInTimeIsThereBeforeItsDragEnds)
{
    drag();
    FakePasteboard pasteboard;
    pasteboard.offerText(QStringLiteral("a"));
    desk.panel.content->dropIsAwaited();
    desk.panel.content->performDragOperation({pasteboard, {}, false});
    EXPECT_TRUE(store.isDragInFlight());
    EXPECT_EQ(store.state(), ShelfState::Occupied);
    release();
    EXPECT_FALSE(store.isDragInFlight());
    EXPECT_EQ(store.state(), ShelfState::Occupied);
}

TEST_F(AppDelegateTest, ADragOverAnOpenShelfTellsTheViewsInstead)
{
    store.accept({ShelfDesk::textItem(QStringLiteral("a"))});
    log.clear();
    drag();
    EXPECT_EQ(log, QStringList{QStringLiteral("items")});
    release();
    EXPECT_EQ(log, (QStringList{QStringLiteral("items"), QStringLiteral("items")}));
    EXPECT_EQ(store.state(), ShelfState::Occupied);
}

TEST_F(AppDelegateTest, WithTheSettingOffADragLeavesTheStoreUntouched)
{
    settings.setAutoShowOnDrag(false);
    drag();
    EXPECT_TRUE(log.isEmpty());
    EXPECT_FALSE(store.isDragInFlight());
    EXPECT_EQ(store.state(), ShelfState::Idle);
}

TEST_F(AppDelegateTest, TheEndOfADragIsHeardWhateverTheSetting)
{
    store.toggleManually();
    EXPECT_EQ(store.state(), ShelfState::Expanded);
    settings.setAutoShowOnDrag(false);
    drag();
    release();
    EXPECT_EQ(store.state(), ShelfState::Idle) << "an empty shelf opened by hand closes too";
}

TEST_F(AppDelegateTest, AClosedShelfThatHoldsItemsOpensForADragAndStaysOpen)
{
    store.accept({ShelfDesk::textItem(QStringLiteral("a"))});
    store.toggleManually();
    EXPECT_EQ(store.state(), ShelfState::Idle);
    drag();
    EXPECT_EQ(store.state(), ShelfState::Expanded);
    release();
    EXPECT_EQ(store.state(), ShelfState::Occupied);
}

TEST_F(AppDelegateTest, TheEdgeShowsTheShelfAndTheShelfTellsWhenThePointerLeavesIt)
{
    store.accept({ShelfDesk::textItem(QStringLiteral("a"))});
    store.toggleManually();
    ASSERT_EQ(barriers.watched.size(), 1U);
    const EdgeStretch watched = barriers.watched.front();
    desktop.pointer.position = QPointF(756, 981.5);
    barriers.push();
    desk.clock.advance(EdgeSummoner::approachDelay);
    ASSERT_EQ(store.state(), ShelfState::Occupied);
    EXPECT_EQ(watched.width, desk.panel.frame().width()) << "where the shelf hangs";
    EXPECT_EQ(watched.left, desk.panel.frame().x());

    desk.panel.content->mouseEntered({{100, 40}});
    desk.clock.advance(10);
    EXPECT_EQ(store.state(), ShelfState::Occupied);
    desk.panel.content->mouseExited();
    desk.clock.advance(EdgeSummoner::leaveDelay);
    EXPECT_EQ(store.state(), ShelfState::Idle);
}

TEST_F(AppDelegateTest, AShelfThatTheEdgeShowedStaysOnceItIsPressedTypedOnOrDraggedTo)
{
    const std::vector<std::function<void(PanelContent &)>> uses
        = {[](PanelContent &shelf) {
               shelf.mouseDown({{100, 40}});
           },
           [](PanelContent &shelf) {
               shelf.keyDown({TypedKey::RightArrow, {}, false});
           },
           [](PanelContent &shelf) {
               FakePasteboard pasteboard;
               pasteboard.offerText(QStringLiteral("x"));
               shelf.draggingEntered({pasteboard, {100, 40}});
           }};
    for (const auto &use : uses) {
        store.clearAll();
        store.accept({ShelfDesk::textItem(QStringLiteral("a"))});
        store.toggleManually();
        desktop.pointer.position = QPointF(756, 981.5);
        barriers.push();
        desk.clock.advance(EdgeSummoner::approachDelay);
        desk.panel.content->mouseEntered({{100, 40}});
        use(*desk.panel.content);
        desk.panel.content->mouseExited();
        desk.clock.advance(10);
        EXPECT_EQ(store.state(), ShelfState::Occupied);
    }
}

TEST_F(AppDelegateTest, TheEdgeIsLeftAloneOnceTheProgramEnds)
{
    store.accept({ShelfDesk::textItem(QStringLiteral("a"))});
    store.toggleManually();
    ASSERT_FALSE(barriers.watched.empty());
    delegate->applicationWillTerminate();
    EXPECT_TRUE(barriers.watched.empty());
}

TEST_F(AppDelegateTest, ReopeningTogglesTheShelf)
{
    EXPECT_FALSE(delegate->applicationShouldHandleReopen(false));
    EXPECT_EQ(store.state(), ShelfState::Expanded);
    EXPECT_FALSE(delegate->applicationShouldHandleReopen(true));
    EXPECT_EQ(store.state(), ShelfState::Idle);
}

TEST_F(AppDelegateTest, ShowShelfInTheMenuOpensAndClosesIt)
{
    statusItem.open();
    EXPECT_TRUE(statusItem.choose(u"Show Shelf"));
    EXPECT_EQ(store.state(), ShelfState::Expanded);
    EXPECT_TRUE(statusItem.choose(u"Show Shelf"));
    EXPECT_EQ(store.state(), ShelfState::Idle);
}

TEST_F(AppDelegateTest, QuitInTheMenuEndsTheProgram)
{
    statusItem.open();
    EXPECT_TRUE(statusItem.choose(u"Quit Corvane"));
    EXPECT_EQ(log, QStringList{QStringLiteral("terminate")});
}

TEST_F(AppDelegateTest, TheStatusItemFollowsTheShelf)
{
    EXPECT_EQ(statusItem.toolTip, QStringLiteral("Corvane"));
    store.accept({ShelfDesk::textItem(QStringLiteral("a"))});
    desk.clock.runPending();
    EXPECT_EQ(statusItem.toolTip, QStringLiteral("Corvane — 1 item"));
}

TEST_F(AppDelegateTest, TheMenuDoesNothingOnceItIsGone)
{
    statusItem.open();
    end();
    EXPECT_TRUE(statusItem.choose(u"Show Shelf"));
    EXPECT_TRUE(statusItem.choose(u"Quit Corvane"));
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(AppDelegateTest, TheMenuShowsNothingOnceTheDelegateIsGone)
{
    statusItem.open();
    delegate.reset();
    for (const auto *const entry : {u"Show Shelf", u"Preferences", u"How It Works"})
        EXPECT_TRUE(statusItem.choose(entry));
    EXPECT_EQ(store.state(), ShelfState::Idle);
    EXPECT_EQ(windows.preferences(), nullptr);
    EXPECT_EQ(windows.welcome(), nullptr);
}

TEST_F(AppDelegateTest, TerminationStopsTheMonitorAndRemovesTheSpool)
{
    const auto spooled
        = desk.spool.store(QByteArrayLiteral("x"), QStringLiteral("Image"), QStringLiteral("png"));
    ASSERT_TRUE(spooled);
    EXPECT_TRUE(QFile::exists(spooled->toLocalFile()));
    delegate->applicationWillTerminate();
    delegate->applicationWillTerminate();
    EXPECT_FALSE(QDir(desk.spool.directory().toLocalFile()).exists());
    drag();
    EXPECT_EQ(store.state(), ShelfState::Idle);
}

TEST_F(AppDelegateTest, TheItemsAreKeptBeforeTheSpoolGoesAndAreThereAtTheNextLaunch)
{
    settings.setKeepItems(true);
    const auto spooled
        = desk.spool.store(QByteArrayLiteral("x"), QStringLiteral("Image"), QStringLiteral("png"));
    ASSERT_TRUE(spooled);
    store.accept({DropItem(DropItem::File{*spooled}, QStringLiteral("Image.png"), {}, true)});
    delegate->applicationWillTerminate();
    EXPECT_FALSE(QFile::exists(spooled->toLocalFile()));
    end();
    store.setItems({});
    launch();
    ASSERT_EQ(store.items().size(), 1);
    EXPECT_EQ(store.items().constFirst().title(), QStringLiteral("Image.png"));
}

TEST_F(AppDelegateTest, TerminationEndsOneThingAfterTheOther)
{
    desk.spool.store(QByteArrayLiteral("x"), QStringLiteral("Image"), QStringLiteral("png"));
    presenter.present(ShelfDesk::textItem(QStringLiteral("a")));
    const auto isSpooling = [&] { return QDir(desk.spool.directory().toLocalFile()).exists(); };
    QStringList steps;
    const auto note = [&](const char *step) {
        steps << QStringLiteral("%1: %2 monitors, %3 hot keys, %4, %5")
                     .arg(QLatin1String(step))
                     .arg(desktop.monitorCount())
                     .arg(hotKeyService.registrationCount())
                     .arg(QLatin1String(previewPanel.isVisible() ? "preview" : "none"))
                     .arg(QLatin1String(isSpooling() ? "spool" : "none"));
    };
    hotKeyService.onUnregister = [&] { note("hot key"); };
    previewPanel.onOrderOut = [&] { note("preview"); };
    note("before");
    delegate->applicationWillTerminate();
    note("after");
    hotKeyService.onUnregister = nullptr;
    previewPanel.onOrderOut = nullptr;
    EXPECT_EQ(steps,
              (QStringList{QStringLiteral("before: 3 monitors, 1 hot keys, preview, spool"),
                           QStringLiteral("hot key: 0 monitors, 1 hot keys, preview, spool"),
                           QStringLiteral("preview: 0 monitors, 0 hot keys, preview, spool"),
                           QStringLiteral("after: 0 monitors, 0 hot keys, none, none")}));
}

TEST_F(AppDelegateTest, TakesControlOfThePreviewAndShowsWhatIsPresented)
{
    EXPECT_TRUE(delegate->acceptsPreviewPanelControl(previewPanel));
    presenter.present(ShelfDesk::textItem(QStringLiteral("a")));
    EXPECT_EQ(previewPanel.dataSource(), &presenter);
    EXPECT_EQ(previewPanel.shown, presenter.previewURL());
    EXPECT_EQ(previewPanel.log,
              (QStringList{QStringLiteral("orderFront"), QStringLiteral("reload")}));
}

TEST_F(AppDelegateTest, TheEndOfThePreviewClearsItAndDiscardsTheScratchFile)
{
    presenter.present(ShelfDesk::textItem(QStringLiteral("a")));
    const auto written = presenter.scratchURL();
    ASSERT_TRUE(written && exists(*written));
    previewPanel.orderOut();
    EXPECT_EQ(previewPanel.dataSource(), nullptr);
    EXPECT_FALSE(exists(*written));
}

TEST_F(AppDelegateTest, TerminationClosesThePreviewAndLeavesNoScratchFile)
{
    presenter.present(ShelfDesk::textItem(QStringLiteral("a")));
    const auto written = presenter.scratchURL();
    ASSERT_TRUE(written && exists(*written));
    delegate->applicationWillTerminate();
    EXPECT_FALSE(previewPanel.isVisible());
    EXPECT_FALSE(exists(*written));
}

TEST_F(AppDelegateTest, TerminationDiscardsAScratchFileThatIsNoLongerShown)
{
    previewPanel.setController(nullptr);
    presenter.present(ShelfDesk::textItem(QStringLiteral("a")));
    const auto written = presenter.scratchURL();
    delegate->applicationWillTerminate();
    EXPECT_FALSE(exists(*written));
}

TEST_F(AppDelegateTest, APreviewThatEndsAfterItIsGoneAsksNobody)
{
    presenter.present(ShelfDesk::textItem(QStringLiteral("a")));
    end();
    EXPECT_FALSE(previewPanel.isVisible());
    presenter.present(ShelfDesk::textItem(QStringLiteral("b")));
    previewPanel.orderOut();
}

TEST_F(AppDelegateTest, TheShelfsHotKeyTogglesIt)
{
    EXPECT_TRUE(pressHotKey(shelfHotKey));
    EXPECT_EQ(store.state(), ShelfState::Expanded);
    EXPECT_TRUE(pressHotKey(shelfHotKey));
    EXPECT_EQ(store.state(), ShelfState::Idle);
}

TEST_F(AppDelegateTest, TheViewAllHotKeyDoesNothingForASingleItem)
{
    bindViewAll();
    store.accept({ShelfDesk::textItem(QStringLiteral("a"))});
    log.clear();
    EXPECT_TRUE(pressHotKey(viewAllHotKey));
    EXPECT_FALSE(store.isViewAllOpen());
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(AppDelegateTest, TheViewAllHotKeyOpensTheBarForTwoItemsAlsoWhileTheShelfIsClosed)
{
    bindViewAll();
    store.accept(
        {ShelfDesk::textItem(QStringLiteral("a")), ShelfDesk::textItem(QStringLiteral("b"))});
    store.toggleManually();
    ASSERT_EQ(store.state(), ShelfState::Idle);
    log.clear();
    EXPECT_TRUE(pressHotKey(viewAllHotKey));
    EXPECT_TRUE(store.isViewAllOpen());
    EXPECT_EQ(log, QStringList{QStringLiteral("items")});
}

TEST_F(AppDelegateTest, TheViewAllHotKeyClosesAnOpenBarWhateverTheItemCount)
{
    bindViewAll();
    store.accept(
        {ShelfDesk::textItem(QStringLiteral("a")), ShelfDesk::textItem(QStringLiteral("b"))});
    store.toggleViewAll();
    store.discard(0, true);
    log.clear();
    EXPECT_TRUE(pressHotKey(viewAllHotKey));
    EXPECT_FALSE(store.isViewAllOpen());
    EXPECT_EQ(log, QStringList{QStringLiteral("items")});
}

TEST_F(AppDelegateTest, TerminationGivesTheHotKeysBackAndForgetsAPressOnItsWay)
{
    hotKeyService.press(shelfHotKey.first, shelfHotKey.second);
    delegate->applicationWillTerminate();
    desk.clock.runPending();
    EXPECT_EQ(store.state(), ShelfState::Idle);
    EXPECT_EQ(hotKeyService.registrationCount(), 0U);
    EXPECT_FALSE(pressHotKey(shelfHotKey));
}

TEST_F(AppDelegateTest, AHotKeyPressedAfterItIsGoneDoesNothing)
{
    end();
    EXPECT_TRUE(pressHotKey(shelfHotKey));
    EXPECT_EQ(store.state(), ShelfState::Idle);
}

TEST_F(AppDelegateTest, ShortcutsThatAreTakenAreSaidOnceAndStartUpGoesOn)
{
    end();
    hotKeys.unregisterAll();
    hotKeyService.takenByOthers = {shelfHotKey, viewAllHotKey};
    settings.setViewAllShortcut(
        Shortcut{viewAllHotKey.first, viewAllHotKey.second, QStringLiteral("K")});
    testing::internal::CaptureStderr();
    launch();
    const QString said = QString::fromStdString(testing::internal::GetCapturedStderr());
    const auto line = QStringLiteral("[Corvane] A shortcut is already claimed by another app; the "
                                     "menu bar item still works.");
    EXPECT_EQ(said.count(line), 1) << qPrintable(said);
    EXPECT_FALSE(delegate->applicationShouldHandleReopen(false));
    EXPECT_EQ(store.state(), ShelfState::Expanded);
}

TEST_F(AppDelegateTest, SettingsThatCannotBeKeptAreSaidOnceAndTheSessionGoesOn)
{
    end();
    defaults.kept = false;
    testing::internal::CaptureStderr();
    launch();
    settings.setInViewCount(3);
    settings.setAutoShowOnDrag(false);
    const QString said = QString::fromStdString(testing::internal::GetCapturedStderr());
    EXPECT_EQ(said.count(QStringLiteral("cannot be written to")), 1) << qPrintable(said);
    EXPECT_EQ(settings.inViewCount(), 3);
    delegate->applicationShouldHandleReopen(false);
    EXPECT_EQ(store.state(), ShelfState::Expanded);
}

TEST_F(AppDelegateTest, ADragHeardAfterItIsGoneDoesNothing)
{
    end();
    drag();
    release();
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(AppDelegateTest, TheMenuOpensThePreferencesAtGeneral)
{
    statusItem.open();
    ASSERT_TRUE(statusItem.choose(u"Preferences"));
    ASSERT_NE(windows.preferences(), nullptr);
    EXPECT_EQ(windows.preferences()->selection().tab(), PreferencesTab::General);
}

TEST_F(AppDelegateTest, TheMenuOpensTheGuide)
{
    statusItem.open();
    ASSERT_TRUE(statusItem.choose(u"How It Works"));
    EXPECT_NE(windows.welcome(), nullptr);
}

TEST_F(AppDelegateTest, TheFirstLaunchShowsTheGuide)
{
    settings.setSeenWelcome(false);
    launch();
    desk.clock.advance(ShellWindows::welcomeDelay);
    EXPECT_NE(windows.welcome(), nullptr);
    EXPECT_TRUE(settings.seenWelcome());
}

TEST(AppInfo, GivesTheTextsOfTheDictionary)
{
    const AppInfo info(
        QJsonObject{{QStringLiteral("CFBundleShortVersionString"), QStringLiteral("1.2.3")},
                    {QStringLiteral("CFBundleVersion"), QStringLiteral("45")}});
    EXPECT_EQ(info.version(), QStringLiteral("1.2.3"));
    EXPECT_EQ(info.build(), QStringLiteral("45"));
}

TEST(AppInfo, MissingOrWrongKeysGiveZeros)
{
    EXPECT_EQ(AppInfo({}).version(), QStringLiteral("0.0.0"));
    EXPECT_EQ(AppInfo({}).build(), QStringLiteral("0"));
    const AppInfo numbers(QJsonObject{{QStringLiteral("CFBundleShortVersionString"), 1.5},
                                      {QStringLiteral("CFBundleVersion"), 7}});
    EXPECT_EQ(numbers.version(), QStringLiteral("0.0.0"));
    EXPECT_EQ(numbers.build(), QStringLiteral("0"));
}

TEST(AppInfo, TheBuiltInDictionaryIsThere)
{
    EXPECT_NE(AppInfo::builtIn().version(), QStringLiteral("0.0.0"));
    EXPECT_TRUE(AppInfo::builtIn().applicationId().contains(u'.'));
}

TEST_F(AppDelegateTest, WhoeverOpensTheShelfByHandGivesItTheKeyboard)
{
    pressHotKey(shelfHotKey);
    EXPECT_TRUE(desk.panel.isKey);
    delegate->applicationShouldHandleReopen(false);
    EXPECT_FALSE(desk.panel.isKey);
    EXPECT_TRUE(delegate->perform(QStringLiteral("toggle")));
    EXPECT_TRUE(desk.panel.isKey);
}

TEST_F(AppDelegateTest, TheHotKeyInTheMiddleOfADragLeavesTheKeyboardWhereItIs)
{
    settings.setAutoShowOnDrag(false);
    drag();
    pressHotKey(shelfHotKey);
    EXPECT_TRUE(desk.panel.visible);
    EXPECT_FALSE(desk.panel.isKey) << "the source might give up";
    release();
    ASSERT_EQ(store.state(), ShelfState::Idle);
    pressHotKey(shelfHotKey);
    EXPECT_TRUE(desk.panel.isKey);
}

} // namespace corvane::test
