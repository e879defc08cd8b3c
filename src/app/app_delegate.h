#pragma once

#include "app/preferences/preferences_tab.h"
#include "app/status/status_item_controller.h"
#include "platform/preview/preview_panel.h"
#include "shelf/edge_summoner.h"
#include "shelf/hud_controller.h"

#include <functional>
#include <memory>

namespace corvane {

class DragMonitor;
class HotKeyCenter;
class QuickLookPresenter;
class ScratchSpool;
class ShellWindows;
class ShortcutBinder;

/// Connects the shelf to the desktop at launch, and takes it down at the end.
///
/// Everything in the context must outlive it. Main thread only.
class AppDelegate : public PreviewPanelController {
public:
    struct Context {
        DragMonitor &dragMonitor;
        HotKeyCenter &hotKeys;
        ShortcutBinder &shortcuts;
        Settings &settings;
        ShelfStore &store;
        ScratchSpool &spool;
        PreviewPanel &previewPanel;
        QuickLookPresenter &presenter;
        StatusItem &statusItem;
        ShellWindows &windows;
        /// Ends the program.
        std::function<void()> terminate;
        HUDController::Context hud;
        EdgeSummoner::Desktop edge;
        /// None where there is nothing to look for.
        Updater *updater = nullptr;
    };
    explicit AppDelegate(Context context);
    ~AppDelegate() override;
    AppDelegate(const AppDelegate &) = delete;
    AppDelegate &operator=(const AppDelegate &) = delete;

    void applicationDidFinishLaunching();
    /// Stops the drag monitor, gives the hot keys back, closes the preview and removes its scratch
    /// file, then the spool. The process may be ending in more than one way at once: only the first
    /// call does anything.
    void applicationWillTerminate();
    /// The user started the program again. False: there is nothing else to do.
    bool applicationShouldHandleReopen(bool hasVisibleWindows);

    void showPreferences(PreferencesTab tab);
    void showWelcome();

    /// Until the process is ending.
    bool acceptsPreviewPanelControl(PreviewPanel &panel) override;
    void beginPreviewPanelControl(PreviewPanel &panel) override;
    void endPreviewPanelControl(PreviewPanel &panel) override;

private:
    void wireDragDetection();
    void wireAwaitedDrops();
    void wireHotKey();
    void wireMenu();
    void wireEdge();

    Context m_context;
    std::unique_ptr<HUDController> m_hud;
    std::unique_ptr<EdgeSummoner> m_edge;
    std::unique_ptr<StatusItemController> m_statusItem;
    bool m_isTerminated = false;
    bool m_isAwaitingDrop = false;
    /// The drag has ended, and the store will hear of it when its contents are here.
    bool m_isDragEndOwed = false;
    std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);
};

} // namespace corvane
