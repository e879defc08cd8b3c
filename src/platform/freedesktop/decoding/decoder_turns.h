#pragma once

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
    /// One that waits.
    using Turn = std::list<Urgency>::iterator;

    Turn wait(Urgency urgency) { return m_waiting.insert(m_waiting.end(), urgency); }
    /// Whether a decoder that is free is for that one.
    bool isNext(Turn turn) const;
    /// It waits no more: it has got a decoder, for which `ended` is to be called, or given up.
    void began(Turn turn);
    void gaveUp(Turn turn) { m_waiting.erase(turn); }
    void ended(Urgency urgency) { --running(urgency); }

private:
    static bool isLong(Urgency urgency) { return urgency >= Urgency::SlowThumbnail; }
    int &running(Urgency urgency);
    bool mayBegin(Urgency urgency) const;

    /// In the order of their arrival.
    std::list<Urgency> m_waiting;
    int m_previews = 0;
    int m_brief = 0;
    int m_long = 0;
};

} // namespace corvane
