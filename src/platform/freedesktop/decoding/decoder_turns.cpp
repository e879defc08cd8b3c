#include "platform/freedesktop/decoding/decoder_turns.h"

namespace corvane {

int &DecoderTurns::running(Urgency urgency)
{
    if (urgency == Urgency::Preview)
        return m_previews;
    return isLong(urgency) ? m_long : m_brief;
}

bool DecoderTurns::mayBegin(Urgency urgency) const
{
    if (urgency == Urgency::Preview)
        return m_previews == 0;
    return !isLong(urgency) || (m_long == 0 && m_previews == 0);
}

bool DecoderTurns::isNext(Turn turn) const
{
    if (!mayBegin(*turn))
        return false;
    bool cameBefore = true;
    for (const Urgency &other : m_waiting) {
        if (&other == &*turn)
            cameBefore = false;
        else if (mayBegin(other) && (other < *turn || (cameBefore && other == *turn)))
            return false;
    }
    return true;
}

void DecoderTurns::began(Turn turn)
{
    ++running(*turn);
    m_waiting.erase(turn);
}

} // namespace corvane
