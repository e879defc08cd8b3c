#include "preview/held_key.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace corvane {

void HeldKey::watch()
{
    // Installing it again only moves it in front of the other filters.
    QCoreApplication::instance()->installEventFilter(this);
}

void HeldKey::swallow(const QKeyEvent &press)
{
    m_swallowed = NativeKey{press.nativeScanCode()};
}

bool HeldKey::eventFilter(QObject * /*object*/, QEvent *event)
{
    const bool isRelease = event->type() == QEvent::KeyRelease;
    if (!isRelease && event->type() != QEvent::KeyPress
        && event->type() != QEvent::ShortcutOverride)
        return false;
    const auto &key = dynamic_cast<const QKeyEvent &>(*event);
    if (isRelease)
        m_repeats.released(key);
    if (m_swallowed == NativeKey::None || NativeKey{key.nativeScanCode()} != m_swallowed)
        return false;
    if (isRelease || isRepeat(key))
        return true;
    m_swallowed = NativeKey::None;
    return false;
}

} // namespace corvane
