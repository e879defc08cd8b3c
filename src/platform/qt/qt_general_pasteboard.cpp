#include "platform/qt/qt_general_pasteboard.h"

#include "platform/qt/mime_encoding.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace corvane {

void QtGeneralPasteboard::write(const PasteboardContents &contents)
{
    QGuiApplication::clipboard()->setMimeData(
        mimeDataFor(contents, PasteboardKind::Clipboard).release());
}

} // namespace corvane
