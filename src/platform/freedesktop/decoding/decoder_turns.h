#pragma once

#include "platform/pictures/decoder_protocol.h"

#include <cstdint>
#include <list>

namespace corvane {

/// Who is next when more is to be decoded than there are decoders for. No locks: one thread at a
/// time.
///
/// One decoder is always left to what is brief. A preview may wait for a server that does not
/// answer, so there is never more than one of them at once; and what takes long by itself, never
/// more than one of these either, does not begin beside a preview. Only a preview that begins
/// beside something long takes the second decoder: the user waits for it.
///
/// What needs a large room is one at a time as well, whatever it is; the rest overtakes those that
/// wait for it.
class DecoderTurns {
public:
    /// The most urgent first.
    enum class Urgency : std::uint8_t {
        Preview,
        Thumbnail,
        /// These may take long.
        SlowThumbnail,
        Conversion,
    };
    using Room = decoder_protocol::Room;
    struct Need {
        Urgency urgency = Urgency::Thumbnail;
        Room room = Room::Usual;
    };
    /// One that waits.
    using Turn = std::list<Need>::iterator;

    Turn wait(Urgency urgency, Room room = Room::Usual)
    {
        return m_waiting.insert(m_waiting.end(), {urgency, room});
    }
    /// Whether a decoder that is free is for that one.
    bool isNext(Turn turn) const;
    /// It waits no more: it has got a decoder, for which `ended` is to be called, or given up.
    void began(Turn turn);
    void gaveUp(Turn turn) { m_waiting.erase(turn); }
    void ended(Urgency urgency, Room room = Room::Usual);

    static bool isLong(Urgency urgency) { return urgency >= Urgency::SlowThumbnail; }

private:
    int &running(Urgency urgency);
    bool mayBegin(const Need &need) const;

    /// In the order of their arrival.
    std::list<Need> m_waiting;
    int m_previews = 0;
    int m_brief = 0;
    int m_long = 0;
    int m_large = 0;
};

} // namespace corvane
