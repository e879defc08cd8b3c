#include "platform/wayland/windows/layer_space.h"

namespace corvane::layer_space {

QRect around(const QRect &panel, QSize screen, const QRect &taken)
{
    const QRect whole({}, screen);
    const QRect needed = panel & whole;
    if (!taken.isEmpty() && taken.contains(needed))
        return taken;
    const QRect roomy = needed.adjusted(-roomAside, 0, roomAside, roomBelow);
    return (roomy | taken) & whole;
}

} // namespace corvane::layer_space
