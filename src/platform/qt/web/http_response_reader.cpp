#include "platform/qt/web/http_response_reader.h"

#include <algorithm>
#include <utility>

namespace corvane {

HttpResponseReader::HttpResponseReader(qint64 maximumBytes)
    : m_maximumBytes(maximumBytes)
{
}

HttpResponseReader::State HttpResponseReader::feed(QByteArrayView bytes)
{
    if (m_state == State::Head) {
        m_pending.append(bytes);
        while (m_state == State::Head && !m_pending.isEmpty()) {
            const auto end = headEnd();
            if (m_headBytes + end.value_or(m_pending.size()) > maximumHeadBytes)
                m_state = State::Failed;
            if (!end)
                break;
            if (m_state == State::Head)
                readHead(*end);
        }
        if (m_state == State::Body)
            readBody(std::exchange(m_pending, {}));
    } else if (m_state == State::Body) {
        readBody(bytes);
    }
    return m_state;
}

HttpResponseReader::State HttpResponseReader::end()
{
    if (m_state == State::Body && m_framing->mayEnd() && m_decoder->mayEnd())
        m_state = State::Complete;
    else if (m_state != State::Complete)
        m_state = State::Failed;
    return m_state;
}

qint64 HttpResponseReader::expectedContentLength() const
{
    return m_framing && !m_isCoded ? m_framing->declaredLength().value_or(-1) : -1;
}

QByteArray HttpResponseReader::body() const
{
    return m_decoder ? m_decoder->content() : QByteArray();
}

std::optional<qsizetype> HttpResponseReader::headEnd()
{
    for (;;) {
        const qsizetype line = m_pending.indexOf('\n', m_searched);
        if (line < 0) {
            m_searched = m_pending.size();
            return std::nullopt;
        }
        qsizetype next = line + 1;
        if (next < m_pending.size() && m_pending.at(next) == '\r')
            ++next;
        if (next >= m_pending.size()) {
            m_searched = line;
            return std::nullopt;
        }
        if (m_pending.at(next) == '\n')
            return next + 1;
        m_searched = next;
    }
}

void HttpResponseReader::readHead(qsizetype end)
{
    auto head = HttpHead::parse(QByteArrayView(m_pending).first(end));
    m_headBytes += end;
    m_pending.remove(0, end);
    m_searched = 0;
    constexpr int firstFinal = 200;
    constexpr int switchingProtocols = 101;
    if (!head || head->statusCode < 100 || head->statusCode == switchingProtocols) {
        m_state = State::Failed;
        return;
    }
    // An interim response announces another one.
    if (head->statusCode < firstFinal)
        return;
    m_head = std::move(*head);
    // Nobody reads what stands below a signpost.
    if (m_head.redirection())
        m_state = State::Complete;
    else
        beginBody();
}

void HttpResponseReader::beginBody()
{
    m_framing = HttpBodyFraming::of(m_head);
    const auto coding = ContentDecoder::codingOf(m_head);
    if (!m_framing || !coding) {
        m_state = State::Failed;
        return;
    }
    m_isCoded = *coding != ContentDecoder::Coding::Identity;
    m_decoder.emplace(*coding, m_maximumBytes);
    m_state = State::Body;
}

void HttpResponseReader::readBody(QByteArrayView bytes)
{
    while (!bytes.isEmpty() && !m_framing->isComplete() && !m_decoder->isFull()) {
        const auto content = m_framing->take(bytes);
        if (!content || !m_decoder->feed(*content)) {
            m_state = State::Failed;
            return;
        }
    }
    if (m_decoder->isFull())
        m_state = State::Complete;
    else if (m_framing->isComplete())
        m_state = m_decoder->mayEnd() ? State::Complete : State::Failed;
}

} // namespace corvane
