#pragma once

#include "input/shortcut.h"
#include "platform/base/callback_list.h"

#include <QString>

#include <functional>
#include <optional>

namespace corvane {

class LoginItems;
class UserDefaults;

/// The user's preferences: their keys, their defaults and how they are kept. Main thread only.
/// `defaults` and `loginItems` must outlive it.
class Settings {
public:
    static constexpr auto autoShowOnDragKey = "settings.autoShowOnDrag";
    static constexpr auto playFeedbackKey = "settings.playFeedback";
    static constexpr auto autoCheckUpdatesKey = "settings.autoCheckUpdates";
    static constexpr auto inViewCountKey = "settings.inViewCount";
    static constexpr auto linkPreviewsKey = "settings.linkPreviews";
    static constexpr auto shortcutKey = "settings.shortcut";
    static constexpr auto viewAllShortcutKey = "settings.viewAllShortcut";
    static constexpr auto seenWelcomeKey = "settings.seenWelcome";
    static constexpr auto betaUpdatesKey = "settings.betaUpdates";
    static constexpr auto keepItemsKey = "settings.keepItems";

    /// The range of `inViewCount`.
    static constexpr int minimumInViewCount = 1;
    static constexpr int maximumInViewCount = 6;

    /// Registers the defaults, so that nothing can read a setting without them.
    Settings(UserDefaults &defaults, LoginItems &loginItems);

    /// Whether changes are written to disk, so that the next run reads them. May ask the disk.
    bool areKept() const;

    /// How many thumbnails the carousel shows at once, 1 to 6 whatever is stored.
    int inViewCount() const;
    /// Stores the value clamped and then tells the layout observers, also when it did not change.
    void setInViewCount(qint64 count);
    void observeLayout(std::function<void()> callback);

    bool autoShowOnDrag() const;
    void setAutoShowOnDrag(bool on);
    bool linkPreviews() const;
    void setLinkPreviews(bool on);
    bool autoCheckUpdates() const;
    void setAutoCheckUpdates(bool on);
    /// Whether beta versions are offered too; not before somebody chose them.
    bool betaUpdates() const;
    void setBetaUpdates(bool on);
    /// Whether what is on the shelf at the end is there again at the next start; not before
    /// somebody chose that.
    bool keepItems() const;
    void setKeepItems(bool on);
    bool seenWelcome() const;
    void setSeenWelcome(bool seen);

    /// The shortcut that toggles the shelf: the default when none was ever stored, none when it was
    /// cleared or what is stored cannot be read.
    std::optional<Shortcut> shortcut() const;
    void setShortcut(const std::optional<Shortcut> &shortcut);
    /// The same for the view-all bar, which has no default.
    std::optional<Shortcut> viewAllShortcut() const;
    void setViewAllShortcut(const std::optional<Shortcut> &shortcut);

    /// A failure is logged and otherwise forgotten: the login items are the only record.
    void setLaunchAtLogin(bool on);

private:
    void registerDefaults();

    UserDefaults &m_defaults;
    LoginItems &m_loginItems;
    CallbackList<> m_layoutObservers;
};

} // namespace corvane
