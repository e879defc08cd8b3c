#pragma once

#include "app/status/status_menu.h"
#include "platform/base/lifetime.h"
#include "platform/base/subscription.h"

#include <functional>

namespace corvane {

class MainQueue;
class Settings;
class ShelfStore;
class StatusItem;
class Updater;

/// Controls the program's icon in the panel, which shows how many items the shelf holds, and its
/// menu, which is built from the present state each time it opens.
///
/// The panel is another program, which gets several messages for each change. So only the state at
/// the end of a turn of the main queue is sent.
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
        /// Null if this build does not look for updates; then the menu does not offer it.
        Updater *updater = nullptr;
    };
    explicit StatusItemController(Context context);
    StatusItemController(const StatusItemController &) = delete;
    StatusItemController &operator=(const StatusItemController &) = delete;

    /// The actions of the menu's rows; an empty one does nothing.
    std::function<void()> onShowShelf;
    std::function<void()> onPreferences;
    std::function<void()> onWelcome;

    /// Sets the icon and the tool tip for that many items, at once.
    void updateIcon(int count);

private:
    void itemsChanged();
    void update();
    MenuRows rebuild() const;
    QString updateNotice() const;
    void perform(StatusMenuRow row) const;

    Context m_context;
    /// The number that was last shown.
    int m_count = 0;
    bool m_isUpdateScheduled = false;
    Subscription m_notices;
    Lifetime m_lifetime;
};

} // namespace corvane
