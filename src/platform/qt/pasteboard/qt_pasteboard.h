#pragma once

#include "platform/qt/pasteboard/bytes_pasteboard.h"

class QMimeData;

namespace corvane {

/// What the clipboard or a drag within this process carries, behind `QMimeData`, which must outlive
/// it. Everything but addresses is fetched each time it is asked for.
class QtPasteboard : public BytesPasteboard {
public:
    explicit QtPasteboard(const QMimeData *mimeData);

    QStringList types() const override;

private:
    QByteArray bytesOf(const QString &type) const override;

    const QMimeData *m_mimeData;
};

} // namespace corvane
