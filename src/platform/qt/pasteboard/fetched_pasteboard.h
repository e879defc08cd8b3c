#pragma once

#include "platform/qt/pasteboard/bytes_pasteboard.h"

#include <QHash>

#include <utility>

namespace corvane {

/// What has been fetched of a drag so far: every type that it offers, and the contents of some.
class FetchedPasteboard : public BytesPasteboard {
public:
    explicit FetchedPasteboard(QStringList types)
        : m_types(std::move(types))
    {
    }

    QStringList types() const override { return m_types; }
    std::optional<QString> string() override { return m_text ? m_text : BytesPasteboard::string(); }
    std::optional<QUrl> promisedFile() override { return m_promisedFile; }

    void setBytes(const QString &type, const QByteArray &bytes)
    {
        m_bytes.insert(type, bytes);
        forget();
    }
    /// The text, decoded already; its bytes are not needed.
    void setText(const QString &text) { m_text = text; }
    void setPromisedFile(const QUrl &file) { m_promisedFile = file; }

private:
    QByteArray bytesOf(const QString &type) const override { return m_bytes.value(type); }

    QStringList m_types;
    QHash<QString, QByteArray> m_bytes;
    std::optional<QString> m_text;
    std::optional<QUrl> m_promisedFile;
};

} // namespace corvane
