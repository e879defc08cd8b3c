#pragma once

#include <QByteArray>

#include <optional>

namespace corvane {

/// What the first lines of an answer say, as far as it is of use.
struct HttpHead {
    int status = 0;
    QByteArray location;
    /// -1 where none is told.
    qint64 contentLength = -1;
    /// In lower case; empty for none. Several, from one line or more, have commas between them.
    QByteArray transferCoding;
    QByteArray contentCoding;

    /// From the lines, without the empty one that ends them; none where this is no HTTP.
    static std::optional<HttpHead> read(const QByteArray &lines);

    /// An interim answer, after which the answer comes.
    bool isInterim() const;
    bool hasNoBody() const;
};

} // namespace corvane
