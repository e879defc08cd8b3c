#pragma once

#include "platform/qt/desktop/key_repeats.h"

#include <QObject>

class QKeyEvent;

namespace corvane {

/// Keeps the repeats of a held key from acting on another window: when a window opens or closes,
/// they go to the window that then has the keyboard.
class HeldKey : public QObject {
public:
    /// Begins to watch the keys of all windows of the process. May be called again.
    void watch();
    /// Whether the press is a repeat.
    bool isRepeat(const QKeyEvent &press) const { return m_repeats.isRepeat(press); }
    /// Swallows the key's repeats and its release from now on, until it is pressed again.
    void swallow(const QKeyEvent &press);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    NativeKey m_swallowed = NativeKey::None;
    KeyRepeats m_repeats;
};

} // namespace corvane
