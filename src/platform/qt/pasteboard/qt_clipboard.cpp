#include "platform/qt/pasteboard/qt_clipboard.h"

#include "platform/qt/pasteboard/mime_encoding.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace corvane {

QtClipboard::QtClipboard()
{
    QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &m_receiver,
                     [this] { ++m_changeCount; });
}

void QtClipboard::write(const PasteboardContents &contents)
{
    QGuiApplication::clipboard()->setMimeData(
        mimeDataFor(contents, PasteboardKind::Clipboard).release());
}

} // namespace corvane
