#pragma once

#include "platform/pasteboard/pasteboard.h"

namespace corvane {

/// Reads addresses and text out of the bytes that a source gives for each type. Addresses and
/// text are read once.
class BytesPasteboard : public Pasteboard {
public:
    /// A larger text counts as none, so that its source keeps it: half of it would be a loss.
    static constexpr qsizetype maximumTextBytes = 256LL * 1024 * 1024;

    /// The types that addresses come in, the best first, in the spelling of their source.
    static QStringList addressTypes(const QStringList &offered);
    /// The name as the source spells it, empty when it is not offered.
    static QString spelling(const QStringList &offered, const QString &type);

    QList<QUrl> urls() override;
    QList<QUrl> fileUrls() override;
    std::optional<QByteArray> dataFor(const UTType &type) override;
    std::optional<QString> string() override;
    std::optional<QUrl> promisedFile() override { return std::nullopt; }

protected:
    /// What the source gives for a type in its own spelling; empty where it gives nothing.
    virtual QByteArray bytesOf(const QString &type) const = 0;
    /// To be called when `bytesOf` gives something else than before.
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
