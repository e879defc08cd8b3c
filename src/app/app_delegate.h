#pragma once

#include "app/preferences/preferences_tab.h"
#include "platform/preview/preview_panel.h"

namespace corvane {

class DragWatch;
class EdgeSummoner;
class HotKeyCenter;
class HUDController;
class QuickLookPresenter;
class ScratchSpool;
class Settings;
class ShelfStore;
class ShellWindows;
class ShortcutBinder;
class StatusItemController;
class Updater;

/// Connects the shelf to the desktop at launch, and takes it down at the end. It makes nothing and
/// owns nothing: what it wires is given to it.
///
/// Everything in the context must outlive it. Main thread only.
class AppDelegate : public PreviewPanelController {
public:
    struct Context {
        DragWatch &dragWatch;
        HotKeyCenter &hotKeys;
        ShortcutBinder &shortcuts;
        Settings &settings;
        ShelfStore &store;
        ScratchSpool &spool;
        PreviewPanel &previewPanel;
        QuickLookPresenter &presenter;
        HUDController &hud;
        EdgeSummoner &edge;
        StatusItemController &statusItem;
        ShellWindows &windows;
        /// None where there is nothing to look for.
        Updater *updater = nullptr;
    };
    explicit AppDelegate(const Context &context);
    ~AppDelegate() override;
    AppDelegate(const AppDelegate &) = delete;
    AppDelegate &operator=(const AppDelegate &) = delete;

    void applicationDidFinishLaunching();
    /// Lets go of the screens' edges, stops the drag watch, gives the hot keys back, closes the
    /// preview and removes its scratch file, then the spool. The process may be ending in more than
    /// one way at once: only the first call does anything.
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
    bool m_isTerminated = false;
    bool m_isAwaitingDrop = false;
    /// The drag has ended, and the store will hear of it when its contents are here.
    bool m_isDragEndOwed = false;
};

} // namespace corvane
