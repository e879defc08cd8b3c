#pragma once

#include "platform/qt/web/content_decoder.h"
#include "platform/qt/web/http_body_framing.h"
#include "platform/qt/web/http_head.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace corvane {

/// Reads one HTTP/1 response to a GET request while it arrives, in pieces of any size, and holds
/// never more of it than is wanted. Knows nothing of sockets.
class HttpResponseReader {
public:
    enum class State { Head, Body, Complete, Failed };

    /// For the head, and the interim ones that may stand before it, together.
    static constexpr qsizetype maximumHeadBytes = 64 * 1024;

    /// The body is complete with its first `maximumBytes`, decompressed, and that of a redirection
    /// with none.
    explicit HttpResponseReader(qint64 maximumBytes);

    State feed(QByteArrayView bytes);
    /// The other side has closed. Complete or failed afterwards.
    State end();

    State state() const { return m_state; }
    /// Once the state is past the head's.
    const HttpHead &head() const { return m_head; }
    /// -1 when it is not known or the body is compressed.
    qint64 expectedContentLength() const;
    QByteArray body() const;

private:
    /// How many bytes belong to the head; none while its end has not come.
    std::optional<qsizetype> headEnd();
    void readHead(qsizetype end);
    void beginBody();
    void readBody(QByteArrayView bytes);

    qint64 m_maximumBytes;
    State m_state = State::Head;
    /// What of the head, or behind it, has come.
    QByteArray m_pending;
    /// How far there is no end of the head in it.
    qsizetype m_searched = 0;
    qsizetype m_headBytes = 0;
    HttpHead m_head;
    std::optional<HttpBodyFraming> m_framing;
    std::optional<ContentDecoder> m_decoder;
    bool m_isCoded = false;
};

} // namespace corvane
