#pragma once

#include "platform/desktop/keys.h"

#include <QtGlobal>

class QKeyEvent;

namespace corvane {

/// Distinguishes a held key's repeats from presses. Qt does not always know, and input methods drop
/// the flag. A repeat is a press with the same key and time as the release before it.
class KeyRepeats {
public:
    /// To be called for every release.
    void released(const QKeyEvent &release);
    bool isRepeat(const QKeyEvent &press) const;

private:
    NativeKey m_key = NativeKey::None;
    quint64 m_time = 0;
};

} // namespace corvane
