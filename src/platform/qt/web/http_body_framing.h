#pragma once

#include "platform/qt/web/http_head.h"

#include <QByteArrayView>

#include <optional>

namespace corvane {

/// Tells which of the bytes behind a response's head are its content, and where they end.
class HttpBodyFraming {
public:
    /// None where the head contradicts itself or names a transfer coding other than chunks.
    static std::optional<HttpBodyFraming> of(const HttpHead &head);

    /// The length as the head declares it.
    std::optional<qint64> declaredLength() const { return m_declaredLength; }

    /// Takes bytes off the front of `bytes`, at least one unless it is complete; what it returns
    /// of them is content. None when they are no chunks.
    std::optional<QByteArrayView> take(QByteArrayView &bytes);

    /// Everything has been taken.
    bool isComplete() const { return m_state == State::Complete; }
    /// Nothing more comes: whether that is where the body may end.
    bool mayEnd() const { return isComplete() || m_state == State::UntilClose; }

private:
    enum class State { Complete, UntilClose, Content, ChunkSize, ChunkData, ChunkEnd, Trailer };

    /// A chunk's size with its extensions, or the fields behind the last chunk.
    static constexpr qsizetype maximumLineBytes = 16 * 1024;

    QByteArrayView takeContent(QByteArrayView &bytes, State next);
    bool takeLineByte(char byte);
    bool endLine();
    bool beginChunk();

    State m_state = State::Complete;
    std::optional<qint64> m_declaredLength;
    qint64 m_left = 0;
    QByteArray m_line;
    qsizetype m_trailerBytes = 0;
};

} // namespace corvane
