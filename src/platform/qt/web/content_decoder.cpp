#include "platform/qt/web/content_decoder.h"

#include <algorithm>
#include <array>
#include <utility>

#define ZLIB_CONST
#include <zlib.h>

namespace corvane {

namespace {

constexpr int windowBits = 15;
constexpr int gzipWrapper = 16;

/// RFC 1950: method 8, and the two bytes together a multiple of 31. Some servers send the bare
/// stream under the name of the wrapped one.
bool hasZlibWrapper(QByteArrayView bytes)
{
    const auto first = static_cast<unsigned char>(bytes[0]);
    const auto second = static_cast<unsigned char>(bytes[1]);
    return (first & 0x0f) == 8 && (first * 256 + second) % 31 == 0;
}

} // namespace

void ContentDecoder::End::operator()(z_stream_s *stream) const
{
    ::inflateEnd(stream);
    delete stream;
}

std::optional<ContentDecoder::Coding> ContentDecoder::codingOf(const HttpHead &head)
{
    QList<QByteArray> codings = head.items("content-encoding");
    codings.removeAll("identity");
    if (codings.isEmpty())
        return Coding::Identity;
    // One inside another is how bodies are made to swell without end.
    if (codings.size() > 1)
        return std::nullopt;
    if (codings.constFirst() == "gzip" || codings.constFirst() == "x-gzip")
        return Coding::Gzip;
    if (codings.constFirst() == "deflate")
        return Coding::Deflate;
    return std::nullopt;
}

ContentDecoder::ContentDecoder(Coding coding, qint64 maximumBytes)
    : m_coding(coding)
    , m_maximumBytes(std::max<qint64>(maximumBytes, 0))
{
}

ContentDecoder::ContentDecoder(ContentDecoder &&) noexcept = default;
ContentDecoder &ContentDecoder::operator=(ContentDecoder &&) noexcept = default;
ContentDecoder::~ContentDecoder() = default;

bool ContentDecoder::feed(QByteArrayView bytes)
{
    if (isFull())
        return true;
    if (m_coding == Coding::Identity) {
        m_content.append(
            bytes.first(std::min<qint64>(bytes.size(), m_maximumBytes - m_content.size())));
        return true;
    }
    if (m_stream)
        return inflateBytes(bytes);
    m_beginning.append(bytes);
    constexpr qsizetype wrapperBytes = 2;
    if (m_beginning.size() < wrapperBytes)
        return true;
    return begin(m_beginning) && inflateBytes(std::exchange(m_beginning, {}));
}

bool ContentDecoder::mayEnd() const
{
    // A coded body of no bytes at all is an empty one.
    return m_coding == Coding::Identity || m_hasEnded || isFull()
        || (!m_stream && m_beginning.isEmpty());
}

bool ContentDecoder::begin(QByteArrayView bytes)
{
    int bits = windowBits;
    if (m_coding == Coding::Gzip)
        bits += gzipWrapper;
    else if (!hasZlibWrapper(bytes))
        bits = -bits;
    auto stream = std::make_unique<z_stream>();
    if (inflateInit2(stream.get(), bits) != Z_OK)
        return false;
    m_stream.reset(stream.release());
    return true;
}

bool ContentDecoder::inflateBytes(QByteArrayView bytes)
{
    constexpr size_t pieceBytes = 64 * 1024;
    std::array<Bytef, pieceBytes> piece;
    m_stream->next_in = reinterpret_cast<const Bytef *>(bytes.data());
    m_stream->avail_in = static_cast<uInt>(bytes.size());
    while (!m_hasEnded && !isFull()) {
        m_stream->next_out = piece.data();
        m_stream->avail_out
            = static_cast<uInt>(std::min<qint64>(pieceBytes, m_maximumBytes - m_content.size()));
        const int result = ::inflate(m_stream.get(), Z_NO_FLUSH);
        m_content.append(QByteArrayView(piece.data(), m_stream->next_out - piece.data()));
        // What stands behind the stream's end is nobody's.
        m_hasEnded = result == Z_STREAM_END;
        if (result == Z_BUF_ERROR)
            return true;
        if (result != Z_OK && result != Z_STREAM_END)
            return false;
    }
    return true;
}

} // namespace corvane
