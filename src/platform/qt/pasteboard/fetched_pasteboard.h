#pragma once

#include "platform/qt/pasteboard/bytes_pasteboard.h"

#include <QHash>

#include <utility>

namespace corvane {

/// A drag's pasteboard with the contents that have been fetched so far: all types that are offered,
/// and the bytes of some.
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
    /// Sets the decoded text, for which no bytes are needed.
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
