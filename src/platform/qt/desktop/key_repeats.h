#pragma once

#include "platform/desktop/keys.h"

#include <QtGlobal>

class QKeyEvent;

namespace corvane {

/// Tells the repeats of a key that is held down from presses. The toolkit cannot always tell, and
/// input methods forget it: a repeat is a release and a press of the same moment.
class KeyRepeats {
public:
    /// To be told of every release that comes before the presses that are asked about.
    void released(const QKeyEvent &release);
    bool isRepeat(const QKeyEvent &press) const;

private:
    NativeKey m_key = NativeKey::None;
    quint64 m_time = 0;
};

} // namespace corvane
