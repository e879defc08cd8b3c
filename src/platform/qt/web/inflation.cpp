#include "platform/qt/web/inflation.h"

#include <zlib.h>

#include <utility>

namespace corvane {

namespace {

// The largest window; with 32 more either kind of head is found, and below zero there is none.
constexpr int window = 15;
constexpr int anyHead = window + 32;
constexpr int noHead = -window;

} // namespace

struct Inflation::Stream {
    Stream() { isReady = ::inflateInit2(&z, anyHead) == Z_OK; }
    Stream(const Stream &) = delete;
    Stream &operator=(const Stream &) = delete;
    ~Stream() { ::inflateEnd(&z); }

    z_stream z = {};
    bool isReady = false;
};

Inflation::Inflation()
    : m_stream(std::make_unique<Stream>())
{
}

Inflation::~Inflation() = default;

Inflation::Outcome Inflation::feed(QByteArrayView bytes, const Take &take)
{
    if (m_hasBegun)
        return inflate(bytes, take);
    // Two bytes tell which kind of stream this is.
    constexpr qsizetype needed = 2;
    m_first += bytes.toByteArray();
    if (m_first.size() < needed)
        return Outcome::GoesOn;
    const QByteArray first = std::exchange(m_first, {});
    m_hasBegun = true;
    // Some servers call a stream "deflate" that has no head at all.
    const bool isGzip = first.startsWith("\x1f\x8b");
    constexpr unsigned divisor = 31;
    const unsigned head = unsigned{static_cast<unsigned char>(first[0])} << 8U
        | static_cast<unsigned>(static_cast<unsigned char>(first[1]));
    const bool isZlib = (first[0] & 0x0f) == Z_DEFLATED && head % divisor == 0;
    if (!isGzip && !isZlib && ::inflateReset2(&m_stream->z, noHead) != Z_OK)
        return Outcome::Broken;
    return inflate(first, take);
}

Inflation::Outcome Inflation::inflate(QByteArrayView bytes, const Take &take)
{
    if (!m_stream->isReady)
        return Outcome::Broken;
    z_stream &z = m_stream->z;
    // The interface is older than const.
    z.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.data()));
    z.avail_in = static_cast<uInt>(bytes.size());
    while (m_outcome == Outcome::GoesOn) {
        QByteArray piece(pieceBytes, Qt::Uninitialized);
        z.next_out = reinterpret_cast<Bytef *>(piece.data());
        z.avail_out = static_cast<uInt>(piece.size());
        const int result = ::inflate(&z, Z_NO_FLUSH);
        piece.truncate(pieceBytes - static_cast<qsizetype>(z.avail_out));
        if (!piece.isEmpty() && !take(piece))
            m_outcome = Outcome::Left;
        else if (result == Z_STREAM_END)
            m_outcome = Outcome::Whole;
        else if (result != Z_OK && result != Z_BUF_ERROR)
            m_outcome = Outcome::Broken;
        else if (z.avail_out > 0)
            break;
    }
    return m_outcome;
}

} // namespace corvane
