#include "platform/qt/web/http_body_framing.h"

#include <algorithm>
#include <limits>

namespace corvane {

namespace {

/// Digits only: no sign, no blanks, nothing that wraps.
std::optional<qint64> numberOf(QByteArrayView text, int base)
{
    // Fifteen digits fit in either base.
    constexpr qsizetype mostDigits = 15;
    if (text.isEmpty() || text.size() > mostDigits || text[0] == '+' || text[0] == '-')
        return std::nullopt;
    bool isNumber = false;
    const qint64 number = text.toByteArray().toLongLong(&isNumber, base);
    const bool hasPrefix = base == 16 && (text.contains('x') || text.contains('X'));
    return isNumber && !hasPrefix ? std::optional(number) : std::nullopt;
}

bool hasNoBody(int status)
{
    constexpr int noContent = 204;
    constexpr int notModified = 304;
    return status == noContent || status == notModified;
}

} // namespace

std::optional<HttpBodyFraming> HttpBodyFraming::of(const HttpHead &head)
{
    HttpBodyFraming framing;
    if (hasNoBody(head.statusCode))
        return framing;
    const QList<QByteArray> transfer = head.items("transfer-encoding");
    if (!transfer.isEmpty()) {
        // Chunks say where they end, so a length beside them means nothing.
        if (transfer != QList<QByteArray>{"chunked"})
            return std::nullopt;
        framing.m_state = State::ChunkSize;
        return framing;
    }
    const QList<QByteArray> lengths = head.items("content-length");
    if (lengths.isEmpty()) {
        framing.m_state = State::UntilClose;
        return framing;
    }
    const auto length = numberOf(lengths.constFirst(), 10);
    if (!length || lengths.count(lengths.constFirst()) != lengths.size())
        return std::nullopt;
    framing.m_declaredLength = length;
    framing.m_left = *length;
    framing.m_state = *length == 0 ? State::Complete : State::Content;
    return framing;
}

std::optional<QByteArrayView> HttpBodyFraming::take(QByteArrayView &bytes)
{
    switch (m_state) {
    case State::Complete:
        return QByteArrayView();
    case State::UntilClose: {
        m_left = std::numeric_limits<qint64>::max();
        return takeContent(bytes, State::UntilClose);
    }
    case State::Content:
        return takeContent(bytes, State::Complete);
    case State::ChunkData:
        return takeContent(bytes, State::ChunkEnd);
    case State::ChunkSize:
    case State::ChunkEnd:
    case State::Trailer:
        break;
    }
    while (!bytes.isEmpty() && m_state != State::ChunkData && m_state != State::Complete) {
        const char byte = bytes.front();
        bytes = bytes.sliced(1);
        if (!takeLineByte(byte))
            return std::nullopt;
    }
    return QByteArrayView();
}

QByteArrayView HttpBodyFraming::takeContent(QByteArrayView &bytes, State next)
{
    const QByteArrayView content = bytes.first(std::min<qint64>(bytes.size(), m_left));
    bytes = bytes.sliced(content.size());
    m_left -= content.size();
    if (m_left == 0)
        m_state = next;
    return content;
}

bool HttpBodyFraming::takeLineByte(char byte)
{
    if (byte == '\n')
        return endLine();
    m_line.append(byte);
    return m_line.size() + m_trailerBytes <= maximumLineBytes;
}

bool HttpBodyFraming::endLine()
{
    if (m_line.endsWith('\r'))
        m_line.chop(1);
    switch (m_state) {
    case State::ChunkSize:
        if (!beginChunk())
            return false;
        break;
    case State::ChunkEnd:
        if (!m_line.isEmpty())
            return false;
        m_state = State::ChunkSize;
        break;
    default: // the trailer
        m_trailerBytes += m_line.size() + 1;
        if (m_line.isEmpty())
            m_state = State::Complete;
        break;
    }
    m_line.clear();
    return true;
}

bool HttpBodyFraming::beginChunk()
{
    const qsizetype extensions = m_line.indexOf(';');
    const QByteArrayView digits
        = (extensions < 0 ? QByteArrayView(m_line) : QByteArrayView(m_line).first(extensions))
              .trimmed();
    const auto size = numberOf(digits, 16);
    if (!size)
        return false;
    m_left = *size;
    m_state = *size == 0 ? State::Trailer : State::ChunkData;
    return true;
}

} // namespace corvane
