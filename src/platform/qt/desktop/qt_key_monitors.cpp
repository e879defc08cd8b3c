#include "platform/qt/desktop/qt_key_monitors.h"

#include "platform/desktop/keyboard_layout.h"
#include "platform/desktop/virtual_key_codes.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <utility>

namespace corvane {

namespace {

/// The modifiers as they are: here Control does not count as Command, as it does for keys of
/// panels.
Modifiers heldModifiers(Qt::KeyboardModifiers modifiers)
{
    Modifiers result;
    result.setFlag(Modifier::Shift, modifiers.testFlag(Qt::ShiftModifier));
    result.setFlag(Modifier::Control, modifiers.testFlag(Qt::ControlModifier));
    result.setFlag(Modifier::Option, modifiers.testFlag(Qt::AltModifier));
    result.setFlag(Modifier::Command, modifiers.testFlag(Qt::MetaModifier));
    return result;
}

} // namespace

QtKeyMonitors::QtKeyMonitors(const KeyboardLayout &layout)
    : m_layout(layout)
{
}

QtKeyMonitors::~QtKeyMonitors() = default;

Subscription QtKeyMonitors::addLocalMonitor(Handler handler)
{
    if (m_monitors.isEmpty())
        QCoreApplication::instance()->installEventFilter(this);
    const auto monitor = m_monitors.add(std::move(handler));
    return Subscription(m_lifetime.guard([this, monitor] { remove(monitor); }));
}

void QtKeyMonitors::remove(ChangingList<Handler>::Id monitor)
{
    m_monitors.remove(monitor);
    if (m_monitors.isEmpty())
        QCoreApplication::instance()->removeEventFilter(this);
}

bool QtKeyMonitors::eventFilter(QObject *watched, QEvent *event)
{
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    const auto *key = isKey ? dynamic_cast<QKeyEvent *>(event) : nullptr;
    // Accepting a `ShortcutOverride` keeps windows and menus from treating the key as a shortcut;
    // it then comes again as a key press.
    if (!isOverride && (!key || notify(*key) == Disposition::Pass))
        return QObject::eventFilter(watched, event);
    event->accept();
    return true;
}

KeyMonitors::Disposition QtKeyMonitors::notify(const QKeyEvent &key)
{
    Event event;
    event.modifiers = heldModifiers(key.modifiers());
    const bool isPress = key.type() == QEvent::KeyPress;
    const KeyPosition position = virtual_key_codes::fromNative(NativeKey{key.nativeScanCode()});
    if (m_layout.changesKeys(KeySymbol{key.nativeVirtualKey()})
        && !(isPress && position == KeyPosition::Escape)) {
        event.kind = Event::Kind::ModifiersChanged;
    } else if (isPress) {
        event.keyCode = position;
        event.charactersIgnoringModifiers = m_layout.charactersOf(position);
        event.isEscape = key.key() == Qt::Key_Escape;
    } else {
        return Disposition::Pass;
    }
    const bool isSwallowed = m_monitors.anyOf(
        [&](const Handler &handler) { return handler(event) == Disposition::Swallow; });
    return isSwallowed ? Disposition::Swallow : Disposition::Pass;
}

} // namespace corvane
