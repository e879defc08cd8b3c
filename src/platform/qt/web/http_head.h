#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

#include <optional>

namespace corvane {

/// The status line and the header fields of an HTTP/1 response.
struct HttpHead {
    struct Field {
        QByteArray name;
        QByteArray value;
    };

    int statusCode = 0;
    QList<Field> fields;

    /// Reads a head with or without the empty line that ends it. None when it is no head of
    /// HTTP/1, or holds control characters that could mean one thing here and another elsewhere.
    static std::optional<HttpHead> parse(QByteArrayView bytes);

    /// Every value under a name of any case, in order.
    QList<QByteArray> values(QByteArrayView name) const;
    /// The items of the comma-separated lists under a name, trimmed, in lower case.
    QList<QByteArray> items(QByteArrayView name) const;

    /// Where the response leads to as it says it itself; none where it leads nowhere.
    std::optional<QByteArray> redirection() const;
};

} // namespace corvane
