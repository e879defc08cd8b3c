#include "platform/freedesktop/decoding/decoder_turns.h"

namespace corvane {

int &DecoderTurns::running(Urgency urgency)
{
    if (urgency == Urgency::Preview)
        return m_previews;
    return isLong(urgency) ? m_long : m_brief;
}

bool DecoderTurns::mayBegin(const Need &need) const
{
    if (need.room == Room::Large && m_large > 0)
        return false;
    if (need.urgency == Urgency::Preview)
        return m_previews == 0;
    return !isLong(need.urgency) || (m_long == 0 && m_previews == 0);
}

bool DecoderTurns::isNext(Turn turn) const
{
    if (!mayBegin(*turn))
        return false;
    bool cameBefore = true;
    for (const Need &other : m_waiting) {
        if (&other == &*turn)
            cameBefore = false;
        else if (mayBegin(other)
                 && (other.urgency < turn->urgency
                     || (cameBefore && other.urgency == turn->urgency)))
            return false;
    }
    return true;
}

void DecoderTurns::began(Turn turn)
{
    ++running(turn->urgency);
    if (turn->room == Room::Large)
        ++m_large;
    m_waiting.erase(turn);
}

void DecoderTurns::ended(Urgency urgency, Room room)
{
    --running(urgency);
    if (room == Room::Large)
        --m_large;
}

} // namespace corvane
