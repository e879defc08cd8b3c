#include "platform/qt/desktop/key_repeats.h"

#include <QKeyEvent>

namespace corvane {

void KeyRepeats::released(const QKeyEvent &release)
{
    m_key = NativeKey{release.nativeScanCode()};
    m_time = release.timestamp();
}

bool KeyRepeats::isRepeat(const QKeyEvent &press) const
{
    return press.isAutoRepeat()
        || (m_time != 0 && press.timestamp() == m_time
            && NativeKey{press.nativeScanCode()} == m_key);
}

} // namespace corvane
