#include "platform/qt/pasteboard/qt_general_pasteboard.h"

#include "platform/qt/pasteboard/mime_encoding.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace corvane {

QtGeneralPasteboard::QtGeneralPasteboard()
{
    QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &m_receiver,
                     [this] { ++m_changeCount; });
}

void QtGeneralPasteboard::write(const PasteboardContents &contents)
{
    QGuiApplication::clipboard()->setMimeData(
        mimeDataFor(contents, PasteboardKind::Clipboard).release());
}

} // namespace corvane
