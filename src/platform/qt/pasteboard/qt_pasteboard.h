#pragma once

#include "platform/qt/pasteboard/bytes_pasteboard.h"

class QMimeData;

namespace corvane {

/// A pasteboard over `QMimeData`, for drags within this process and sessions without a drop
/// support. The data must outlive it. Everything but addresses and text is fetched again at each
/// question.
class QtPasteboard : public BytesPasteboard {
public:
    explicit QtPasteboard(const QMimeData *mimeData);

    QStringList types() const override;

private:
    QByteArray bytesOf(const QString &type) const override;

    const QMimeData *m_mimeData;
};

} // namespace corvane
