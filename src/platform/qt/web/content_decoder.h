#pragma once

#include "platform/qt/web/http_head.h"

#include <QByteArray>
#include <QByteArrayView>

#include <memory>
#include <optional>

struct z_stream_s;

namespace corvane {

/// Undoes a response's content coding, piece by piece and no farther than is wanted: what a few
/// bytes would swell to costs neither memory nor time.
class ContentDecoder {
public:
    enum class Coding { Identity, Gzip, Deflate };

    /// What may be asked for, as "Accept-Encoding" says it.
    static constexpr auto accepted = "gzip, deflate";

    /// How the body is coded; none where it cannot be undone here.
    static std::optional<Coding> codingOf(const HttpHead &head);

    /// Keeps the first `maximumBytes` of the content.
    ContentDecoder(Coding coding, qint64 maximumBytes);
    ContentDecoder(ContentDecoder &&) noexcept;
    ContentDecoder &operator=(ContentDecoder &&) noexcept;
    ~ContentDecoder();

    /// False when the bytes are not of this coding.
    bool feed(QByteArrayView bytes);
    /// No more is wanted.
    bool isFull() const { return m_content.size() >= m_maximumBytes; }
    /// Nothing more comes: whether that is where the content may end.
    bool mayEnd() const;

    const QByteArray &content() const { return m_content; }

private:
    struct End {
        void operator()(z_stream_s *stream) const;
    };

    bool begin(QByteArrayView bytes);
    bool inflateBytes(QByteArrayView bytes);

    Coding m_coding;
    qint64 m_maximumBytes;
    QByteArray m_content;
    /// What came before it could be told how to begin.
    QByteArray m_beginning;
    std::unique_ptr<z_stream_s, End> m_stream;
    bool m_hasEnded = false;
};

} // namespace corvane
