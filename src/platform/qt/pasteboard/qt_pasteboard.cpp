#include "platform/qt/pasteboard/qt_pasteboard.h"

#include <QMimeData>

namespace corvane {

QtPasteboard::QtPasteboard(const QMimeData *mimeData)
    : m_mimeData(mimeData)
{
}

QStringList QtPasteboard::types() const
{
    if (!m_mimeData)
        return {};
    QStringList types = m_mimeData->formats();
    types.removeDuplicates();
    return types;
}

// By `data`, because `text` converts line ends and character sets.
QByteArray QtPasteboard::bytesOf(const QString &type) const
{
    return m_mimeData ? m_mimeData->data(type) : QByteArray();
}

} // namespace corvane
