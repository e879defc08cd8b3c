#pragma once

#include "app/preferences/preferences_tab.h"
#include "platform/desktop/drag_watch.h"
#include "platform/preview/preview_panel.h"

#include <QString>

namespace corvane {

class EdgeSummoner;
class HotKeyCenter;
class HUDController;
class KeptItems;
class QuickLookPresenter;
class ScratchSpool;
class Settings;
class ShelfStore;
class ShellWindows;
class ShortcutBinder;
class StatusItemController;
class Updater;

/// Connects the program's objects at launch, and stops them in order at the end. It creates and
/// owns none of them.
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
        KeptItems &keptItems;
        PreviewPanel &previewPanel;
        QuickLookPresenter &presenter;
        HUDController &hud;
        EdgeSummoner &edge;
        StatusItemController &statusItem;
        ShellWindows &windows;
        /// Null if this build does not look for updates.
        Updater *updater = nullptr;
    };
    explicit AppDelegate(const Context &context);
    ~AppDelegate() override;
    AppDelegate(const AppDelegate &) = delete;
    AppDelegate &operator=(const AppDelegate &) = delete;

    void applicationDidFinishLaunching();
    /// Stops watching the screens' edges and drags, unregisters the hot keys, closes the preview
    /// and removes its scratch file, keeps the items if that is wanted, then removes the spool. It
    /// may be called several times, because the process may end in several ways at once; only the
    /// first call does something.
    void applicationWillTerminate();
    /// The user started the program again: toggles the shelf. Returns false: nothing else is to be
    /// done.
    bool applicationShouldHandleReopen(bool hasVisibleWindows);

    /// Does what another program asks for by the name of an action; false if there is none of that
    /// name.
    bool perform(const QString &action);
    void toggleViewAll();
    void showPreferences(PreferencesTab tab);
    void showWelcome();

    /// True until the process is ending.
    bool acceptsPreviewPanelControl(PreviewPanel &panel) override;
    void beginPreviewPanelControl(PreviewPanel &panel) override;
    void endPreviewPanelControl(PreviewPanel &panel) override;

private:
    void toggleShelf();
    void showAll();
    void wireDragDetection();
    void wireDragsOverShelf();
    void dragBegan();
    void dragEnded(DragEnd end);
    void wireAwaitedDrops();
    void wireHotKey();
    void wireMenu();
    void wireEdge();
    void keepItems();

    Context m_context;
    bool m_isTerminated = false;
    bool m_isAwaitingDrop = false;
    /// The drag has ended, but the store is told of that only when the drop's contents are here.
    bool m_isDragEndOwed = false;
    /// A drag is over only as far as the watch could tell.
    bool m_isDragEndAssumed = false;
};

} // namespace corvane
