#include "platform/qt/web/http_reader.h"

#include "platform/qt/web/inflation.h"

#include <algorithm>
#include <array>

namespace corvane {

namespace {

/// Where the empty line ends that ends a head, looked for from `from` on; -1 where it has not come.
qsizetype endOfHead(const QByteArray &lines, qsizetype from)
{
    for (qsizetype at = lines.indexOf('\n', from); at >= 0; at = lines.indexOf('\n', at + 1)) {
        const QByteArrayView before = QByteArrayView(lines).first(at);
        if (before.endsWith('\n') || before.endsWith("\n\r"))
            return at + 1;
    }
    return -1;
}

} // namespace

HttpReader::HttpReader() = default;
HttpReader::~HttpReader() = default;

qsizetype HttpReader::feedHead(QByteArrayView bytes)
{
    qsizetype taken = 0;
    while (m_state == State::Head && taken < bytes.size()) {
        const qsizetype before = m_lines.size();
        const auto piece = bytes.sliced(taken);
        m_lines += piece.toByteArray();
        const qsizetype end = endOfHead(m_lines, before);
        const qsizetype used = end < 0 ? piece.size() : end - before;
        taken += used;
        m_headBytes += used;
        if (m_headBytes > maximumHeadBytes) {
            m_state = State::Broken;
        } else if (end >= 0) {
            const auto head = HttpHead::read(m_lines.first(end));
            m_lines.clear();
            if (!head)
                m_state = State::Broken;
            else if (!head->isInterim())
                beginBody(*head);
        }
    }
    return taken;
}

void HttpReader::beginBody(const HttpHead &head)
{
    m_head = head;
    m_state = isSpoken() ? State::Body : State::Broken;
}

/// Whether the body travels in a way that was asked for.
bool HttpReader::isSpoken()
{
    m_left = m_head.contentLength;
    if (m_head.hasNoBody()) {
        m_left = 0;
        return true;
    }
    if (!m_head.transferCoding.isEmpty() && m_head.transferCoding != "identity") {
        m_isChunked = m_head.transferCoding == "chunked";
        if (!m_isChunked)
            return false;
    }
    constexpr std::array known = {"gzip", "x-gzip", "deflate"};
    if (m_head.contentCoding.isEmpty() || m_head.contentCoding == "identity")
        return true;
    m_inflation = std::make_unique<Inflation>();
    return std::ranges::any_of(known,
                               [this](const char *name) { return m_head.contentCoding == name; });
}

void HttpReader::feedBody(QByteArrayView bytes, const Take &take)
{
    if (m_state != State::Body)
        return;
    if (m_isChunked)
        return feedChunks(bytes, take);
    const qsizetype count = m_left < 0 ? bytes.size() : std::min<qint64>(bytes.size(), m_left);
    if (m_left >= 0)
        m_left -= count;
    takeData(bytes.first(count), take);
    if (m_left == 0 && m_state == State::Body)
        framesEnded();
}

void HttpReader::feedChunks(QByteArrayView bytes, const Take &take)
{
    while (!bytes.isEmpty() && m_state == State::Body) {
        if (m_part == Part::Data) {
            const qsizetype count = std::min<qint64>(bytes.size(), m_left);
            takeData(bytes.first(count), take);
            bytes = bytes.sliced(count);
            m_left -= count;
            if (m_left == 0)
                m_part = Part::End;
        } else if (takeLine(bytes)) {
            lineEnded();
            m_lines.clear();
        }
    }
}

/// The rest of a line between two chunks; false where it has not come or has no end.
bool HttpReader::takeLine(QByteArrayView &bytes)
{
    const qsizetype end = bytes.indexOf('\n');
    const qsizetype count = end < 0 ? bytes.size() : end;
    if (m_lines.size() + count > maximumLineBytes) {
        m_state = State::Broken;
        return false;
    }
    m_lines += bytes.first(count).toByteArray();
    bytes = bytes.sliced(end < 0 ? count : count + 1);
    return end >= 0;
}

void HttpReader::lineEnded()
{
    if (m_part == Part::End) {
        m_part = Part::Size;
        if (!m_lines.trimmed().isEmpty())
            m_state = State::Broken;
        return;
    }
    constexpr int hexadecimal = 16;
    bool isNumber = false;
    // A chunk's extensions follow a semicolon; they are ignored.
    if (const qsizetype end = m_lines.indexOf(';'); end >= 0)
        m_lines.truncate(end);
    m_left = m_lines.trimmed().toLongLong(&isNumber, hexadecimal);
    m_part = Part::Data;
    if (!isNumber || m_left < 0)
        m_state = State::Broken;
    else if (m_left == 0)
        // Trailer fields may follow, which are ignored.
        framesEnded();
}

void HttpReader::takeData(QByteArrayView data, const Take &take)
{
    if (data.isEmpty())
        return;
    m_hasData = true;
    if (!m_inflation) {
        if (!take(data.toByteArray()))
            m_state = State::Left;
        return;
    }
    switch (m_inflation->feed(data, take)) {
    case Inflation::Outcome::GoesOn:
        break;
    case Inflation::Outcome::Whole:
        m_isInflated = true;
        break;
    case Inflation::Outcome::Left:
        m_state = State::Left;
        break;
    case Inflation::Outcome::Broken:
        m_state = State::Broken;
        break;
    }
}

/// A compressed stream marks its own end, which has to have come as well.
void HttpReader::framesEnded()
{
    const bool isCut = m_inflation && !m_isInflated && m_hasData;
    m_state = isCut ? State::Broken : State::Whole;
}

void HttpReader::end()
{
    if (m_state == State::Head)
        m_state = State::Broken;
    if (m_state != State::Body)
        return;
    if (m_left < 0 && !m_isChunked)
        framesEnded();
    else
        m_state = State::Broken;
}

} // namespace corvane
