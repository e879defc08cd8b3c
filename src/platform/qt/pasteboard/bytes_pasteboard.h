#pragma once

#include "platform/pasteboard/pasteboard.h"

namespace corvane {

/// A pasteboard that decodes addresses and text from the bytes of each type. Both are decoded once
/// and kept.
class BytesPasteboard : public Pasteboard {
public:
    /// In bytes: a larger text counts as missing, so that the drop is not taken and its source
    /// keeps all of it.
    static constexpr qsizetype maximumTextBytes = 256LL * 1024 * 1024;

    /// The types among `offered` that hold addresses, the best first, as the source spells them.
    static QStringList addressTypes(const QStringList &offered);
    /// The type as the source spells it; empty when it is not offered.
    static QString spelling(const QStringList &offered, const QString &type);

    QList<QUrl> urls() override;
    QList<QUrl> fileUrls() override;
    std::optional<QByteArray> dataFor(const UTType &type) override;
    std::optional<QString> string() override;
    std::optional<QUrl> promisedFile() override { return std::nullopt; }

protected:
    /// The bytes for a type, in the source's spelling; empty if there are none.
    virtual QByteArray bytesOf(const QString &type) const = 0;
    /// To be called when `bytesOf` has changed: drops what was decoded.
    void forget()
    {
        m_urls.reset();
        m_string.reset();
    }

private:
    QList<QUrl> readUrls() const;
    std::optional<QString> readString() const;

    std::optional<QList<QUrl>> m_urls;
    std::optional<std::optional<QString>> m_string;
};

} // namespace corvane
