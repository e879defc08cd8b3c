#pragma once

#include "platform/qt/web/http_head.h"

#include <QByteArray>

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

class Inflation;

/// Reads one answer of HTTP/1 as its bytes come: the head, then the body without the marks that it
/// travels in. All that it holds is bounded, whatever comes.
class HttpReader {
public:
    /// Of the head and of what comes before it, and of a line between two parts of the body.
    static constexpr qsizetype maximumHeadBytes = 262'144;
    static constexpr qsizetype maximumLineBytes = 4'096;

    enum class State {
        /// Not all of the head has come.
        Head,
        Body,
        /// The answer has come to its end.
        Whole,
        /// The body is not wanted any further.
        Left,
        /// This is no answer, or it was cut off.
        Broken,
    };
    /// Is given the body piece by piece; false ends it.
    using Take = std::function<bool(const QByteArray &)>;

    HttpReader();
    HttpReader(const HttpReader &) = delete;
    HttpReader &operator=(const HttpReader &) = delete;
    ~HttpReader();

    /// Reads on until the head has come, and says how many of the bytes belong to it.
    qsizetype feedHead(QByteArrayView bytes);
    /// Of the body, once the head is there.
    void feedBody(QByteArrayView bytes, const Take &take);
    /// Nothing more will come.
    void end();

    State state() const { return m_state; }
    /// To be called once the head has come, from the state `Body` on.
    const HttpHead &head() const { return m_head; }

private:
    enum class Part { Size, Data, End };

    void beginBody(const HttpHead &head);
    bool isSpoken();
    void feedChunks(QByteArrayView bytes, const Take &take);
    bool takeLine(QByteArrayView &bytes);
    void lineEnded();
    void takeData(QByteArrayView data, const Take &take);
    void framesEnded();

    State m_state = State::Head;
    QByteArray m_lines;
    qsizetype m_headBytes = 0;
    HttpHead m_head;
    bool m_isChunked = false;
    Part m_part = Part::Size;
    /// Of the body, or of its present chunk; -1 up to where the connection ends.
    qint64 m_left = -1;
    std::unique_ptr<Inflation> m_inflation;
    bool m_isInflated = false;
    bool m_hasData = false;
};

} // namespace corvane
