#pragma once

#include "input/shortcut.h"
#include "platform/base/lifetime.h"
#include "platform/desktop/hot_key_service.h"
#include "platform/desktop/key_monitors.h"

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

/// Takes the next key press with a modifier for a shortcut: what stands behind the field in which
/// the user changes one.
///
///     Idle --clicked()--> Recording --a valid combination: the shortcut is replaced--> Idle
///       ^                     |
///       +---Escape, clicked(), stopRecording(): the shortcut stays as it was
///
/// While it records, every key of this program goes to it and to nothing else, and hot keys are
/// suspended, so that those that are bound can be recorded too. A monitor exists exactly then. Main
/// thread only; the references must outlive it.
class ShortcutRecorder {
public:
    ShortcutRecorder(KeyMonitors &monitors, HotKeyService &hotKeys);
    ShortcutRecorder(const ShortcutRecorder &) = delete;
    ShortcutRecorder &operator=(const ShortcutRecorder &) = delete;
    ~ShortcutRecorder();

    const std::optional<Shortcut> &shortcut() const { return m_shortcut; }
    void setShortcut(const std::optional<Shortcut> &shortcut);
    /// The shown shortcut could not be registered.
    bool hasConflict() const { return m_hasConflict; }
    void setConflict(bool conflict);
    bool isRecording() const { return m_isRecording; }

    /// Starts, or stops if it is recording.
    void clicked();
    void startRecording();
    /// Also for a field that lost the keyboard or left its window. May be called at any time.
    void stopRecording();

    /// The field is to be drawn anew.
    std::function<void()> onNeedsDisplay;
    /// The field is to take the keyboard.
    std::function<void()> onTakeFocus;
    /// After a combination has been recorded; may destroy the recorder.
    std::function<void(const Shortcut &)> onChange;

private:
    KeyMonitors::Disposition handle(const KeyMonitors::Event &event);
    void needsDisplay() const;

    KeyMonitors &m_monitors;
    HotKeyService &m_hotKeys;
    std::optional<Shortcut> m_shortcut;
    bool m_hasConflict = false;
    bool m_isRecording = false;
    std::optional<KeyMonitors::Handle> m_localMonitor;
    std::unique_ptr<HotKeyService::Suspension> m_suspension;
    Lifetime m_lifetime;
};

} // namespace corvane
