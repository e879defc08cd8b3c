#pragma once

#include "app/status/status_menu.h"
#include "platform/base/lifetime.h"

#include <functional>

namespace corvane {

class MainQueue;
class Settings;
class ShelfStore;
class StatusItem;
class Updater;

/// The program's icon in the panel, which tells how much the shelf holds, and its menu, which is
/// built from the present state each time it opens.
///
/// The panel is another program, and is told of a change by several messages: of all that happens
/// in one turn of the main queue it hears the outcome.
///
/// Everything in the context must outlive it; the status item and the store may call after it is
/// gone, and nothing happens then. Main thread only.
class StatusItemController {
public:
    struct Context {
        StatusItem &statusItem;
        ShelfStore &store;
        const Settings &settings;
        MainQueue &queue;
        /// Ends the program.
        std::function<void()> terminate;
        /// None where the build has nowhere to look for updates; then the menu does not offer it.
        Updater *updater = nullptr;
    };
    explicit StatusItemController(Context context);
    StatusItemController(const StatusItemController &) = delete;
    StatusItemController &operator=(const StatusItemController &) = delete;

    /// What the menu's rows do. One that is not set does nothing.
    std::function<void()> onShowShelf;
    std::function<void()> onPreferences;
    std::function<void()> onWelcome;

    /// Gives the status item the icon and the tool tip for that many items, at once.
    void updateIcon(int count);

private:
    void itemsChanged();
    void update();
    MenuRows rebuild() const;
    void perform(StatusMenuRow row) const;

    Context m_context;
    /// What the panel was told last.
    int m_count = 0;
    bool m_isUpdateScheduled = false;
    Lifetime m_lifetime;
};

} // namespace corvane
