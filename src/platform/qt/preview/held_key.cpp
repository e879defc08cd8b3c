#include "platform/qt/preview/held_key.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace corvane {

void HeldKey::watch()
{
    // It never stands twice, and moves to the front.
    QCoreApplication::instance()->installEventFilter(this);
}

bool HeldKey::isRepeat(const QKeyEvent &press) const
{
    return press.isAutoRepeat()
        || (press.nativeScanCode() == m_releasedKey && press.timestamp() == m_releaseTime
            && m_releaseTime != 0);
}

void HeldKey::swallow(const QKeyEvent &press)
{
    m_swallowed = press.nativeScanCode();
}

bool HeldKey::eventFilter(QObject * /*object*/, QEvent *event)
{
    const bool isRelease = event->type() == QEvent::KeyRelease;
    if (!isRelease && event->type() != QEvent::KeyPress
        && event->type() != QEvent::ShortcutOverride)
        return false;
    const auto &key = dynamic_cast<const QKeyEvent &>(*event);
    if (isRelease) {
        m_releasedKey = key.nativeScanCode();
        m_releaseTime = key.timestamp();
    }
    if (m_swallowed == 0 || key.nativeScanCode() != m_swallowed)
        return false;
    if (isRelease || isRepeat(key))
        return true;
    m_swallowed = 0;
    return false;
}

} // namespace corvane
