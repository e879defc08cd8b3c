#pragma once

#include "input/shortcut.h"
#include "platform/base/lifetime.h"
#include "platform/desktop/hot_key_service.h"
#include "platform/desktop/key_monitors.h"

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

/// Records a shortcut: takes the next key press with a modifier. It is the logic of the field in
/// which the user changes a shortcut.
///
///     Idle --clicked()--> Recording --a valid combination: the shortcut is replaced--> Idle
///       ^                     |
///       +---Escape, clicked(), stopRecording(): the shortcut stays as it was
///
/// While it records, all keys of this program go to it alone, through a key monitor, and hot keys
/// are suspended, so that combinations that are bound can be recorded, too. Main thread only; the
/// references must outlive it.
class ShortcutRecorder {
public:
    ShortcutRecorder(KeyMonitors &monitors, HotKeyService &hotKeys);
    ShortcutRecorder(const ShortcutRecorder &) = delete;
    ShortcutRecorder &operator=(const ShortcutRecorder &) = delete;
    ~ShortcutRecorder();

    const std::optional<Shortcut> &shortcut() const { return m_shortcut; }
    void setShortcut(const std::optional<Shortcut> &shortcut);
    /// Whether the shown shortcut could not be registered.
    bool hasConflict() const { return m_hasConflict; }
    void setConflict(bool conflict);
    bool isRecording() const { return m_isRecording; }

    /// Starts recording, or stops it.
    void clicked();
    void startRecording();
    /// Also to be called when the field loses the keyboard or its window. Does nothing if it is not
    /// recording.
    void stopRecording();

    /// Called when the field has to be drawn again.
    std::function<void()> onNeedsDisplay;
    /// Called when the field should take the keyboard.
    std::function<void()> onTakeFocus;
    /// Called after a combination was recorded; may destroy the recorder.
    std::function<void(const Shortcut &)> onChange;

private:
    KeyMonitors::Disposition handle(const KeyMonitors::Event &event);
    void needsDisplay() const;

    KeyMonitors &m_monitors;
    HotKeyService &m_hotKeys;
    std::optional<Shortcut> m_shortcut;
    bool m_hasConflict = false;
    bool m_isRecording = false;
    Subscription m_localMonitor;
    std::unique_ptr<HotKeyService::Suspension> m_suspension;
    Lifetime m_lifetime;
};

} // namespace corvane
