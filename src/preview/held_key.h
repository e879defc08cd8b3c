#pragma once

#include "platform/qt/desktop/key_repeats.h"

#include <QObject>

class QKeyEvent;

namespace corvane {

/// Keeps a key that is held down from acting on the next window. The keyboard moves on when a
/// window opens or closes, and the key's repeats move with it.
class HeldKey : public QObject {
public:
    /// Begins to watch the keys of every window of the process.
    void watch();
    /// Whether the press is one of a key that has been down already.
    bool isRepeat(const QKeyEvent &press) const { return m_repeats.isRepeat(press); }
    /// From now on the repeats of that key go nowhere; ends when it is pressed anew.
    void swallow(const QKeyEvent &press);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    NativeKey m_swallowed = NativeKey::None;
    KeyRepeats m_repeats;
};

} // namespace corvane
