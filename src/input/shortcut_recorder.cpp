#include "input/shortcut_recorder.h"

namespace corvane {

using Disposition = KeyMonitors::Disposition;

namespace {

/// One of these must be held. Shift alone is not enough: it types capitals.
constexpr std::uint32_t sufficientModifiers
    = Shortcut::command | Shortcut::option | Shortcut::control;

} // namespace

ShortcutRecorder::ShortcutRecorder(KeyMonitors &monitors, HotKeyService &hotKeys)
    : m_monitors(monitors)
    , m_hotKeys(hotKeys)
{
}

ShortcutRecorder::~ShortcutRecorder()
{
    onNeedsDisplay = nullptr;
    stopRecording();
}

void ShortcutRecorder::setShortcut(const std::optional<Shortcut> &shortcut)
{
    m_shortcut = shortcut;
    needsDisplay();
}

void ShortcutRecorder::setConflict(bool conflict)
{
    m_hasConflict = conflict;
    needsDisplay();
}

void ShortcutRecorder::clicked()
{
    if (m_isRecording)
        stopRecording();
    else
        startRecording();
}

void ShortcutRecorder::startRecording()
{
    if (m_isRecording)
        return;
    m_isRecording = true;
    needsDisplay();
    if (onTakeFocus)
        onTakeFocus();
    m_localMonitor = m_monitors.addLocalMonitor(
        m_lifetime.guard([this](const KeyMonitors::Event &event) { return handle(event); }));
    m_suspension = m_hotKeys.suspend();
}

void ShortcutRecorder::stopRecording()
{
    m_localMonitor.end();
    m_suspension.reset();
    m_isRecording = false;
    needsDisplay();
}

Disposition ShortcutRecorder::handle(const KeyMonitors::Event &event)
{
    if (!m_isRecording)
        return Disposition::Pass;
    if (event.kind != KeyMonitors::Event::Kind::KeyDown)
        return Disposition::Swallow;
    // Users who have swapped Escape with another key may press either: the key that types it, or
    // the one in its usual place.
    if (event.isEscape || event.keyCode == KeyPosition::Escape) {
        stopRecording();
        return Disposition::Swallow;
    }
    const std::uint32_t modifiers = Shortcut::modifierBits(event.modifiers);
    // A key without a position code could be stored, but not registered.
    if ((modifiers & sufficientModifiers) == 0 || event.keyCode == KeyPosition::Unknown)
        return Disposition::Swallow;
    const Shortcut recorded = {event.keyCode, modifiers,
                               Shortcut::label({event.keyCode, event.charactersIgnoringModifiers})};
    m_shortcut = recorded;
    needsDisplay();
    stopRecording();
    // A copy: the callback may destroy the recorder.
    if (const auto change = onChange)
        change(recorded);
    return Disposition::Swallow;
}

void ShortcutRecorder::needsDisplay() const
{
    if (onNeedsDisplay)
        onNeedsDisplay();
}

} // namespace corvane
