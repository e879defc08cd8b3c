#pragma once

#include "platform/pasteboard.h"

class QMimeData;

namespace corvane {

class DropSupport;

/// What a drop or the clipboard carries, behind `QMimeData`. Addresses are fetched once, everything
/// else each time it is asked for. Both must outlive it; without a support nothing is promised.
class QtPasteboard : public Pasteboard {
public:
    /// A larger text counts as none, so that its source keeps it: half of it would be a loss.
    static constexpr qsizetype maximumTextBytes = 256LL * 1024 * 1024;
    /// How long a source may let us wait, in milliseconds, before its text is not asked for under
    /// yet another name.
    static constexpr int textPatience = 2'000;

    explicit QtPasteboard(const QMimeData *mimeData, DropSupport *support = nullptr);

    QStringList types() const override;
    QList<QUrl> urls() override;
    QList<QUrl> fileUrls() override;
    std::optional<QByteArray> dataFor(const UTType &type) override;
    std::optional<QString> string() override;
    std::optional<QString> promisedFileName() override;
    bool receivePromisedFile(const QUrl &destination) override;

private:
    QByteArray fetch(const QString &type) const;
    QList<QUrl> readUrls() const;

    const QMimeData *m_mimeData;
    DropSupport *m_support;
    std::optional<QList<QUrl>> m_urls;
};

} // namespace corvane
