#include "platform/qt/drag_session.h"

#include "platform/drag_support.h"
#include "platform/panel_window.h"
#include "platform/qt/mime_encoding.h"

#include <QDrag>
#include <QMimeData>
#include <QPixmap>
#include <QWindow>

#include <algorithm>

namespace corvane {

namespace {

void setImage(QDrag &drag, const Image &image, QPointF hotSpot)
{
    if (image.isNull() || image.size.isEmpty())
        return;
    QPixmap pixmap = QPixmap::fromImage(image.bitmap);
    pixmap.setDevicePixelRatio(std::max(image.bitmap.width() / image.size.width(),
                                        image.bitmap.height() / image.size.height()));
    drag.setPixmap(pixmap);
    drag.setHotSpot(QPointF(hotSpot.x(), image.size.height() - hotSpot.y()).toPoint());
}

} // namespace

DragOperation runDragSession(QWindow &window, const DragOut &drag, DragSupport *support)
{
    auto mimeData = mimeDataFor(drag.contents, PasteboardKind::Drag);
    if (support)
        support->dragWillBegin(*mimeData);
    // Qt deletes it once the target has fetched what it wants.
    auto *session = new QDrag(&window);
    session->setMimeData(mimeData.release());
    setImage(*session, drag.image, drag.hotSpot);
    switch (session->exec(Qt::CopyAction | Qt::LinkAction, Qt::CopyAction)) {
    case Qt::IgnoreAction:
        return DragOperation::None;
    case Qt::LinkAction:
        return DragOperation::Link;
    default:
        // Some targets answer a move that was not offered; they have the contents all the same.
        return DragOperation::Copy;
    }
}

} // namespace corvane
