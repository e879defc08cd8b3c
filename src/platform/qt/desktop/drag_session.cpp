#include "platform/qt/desktop/drag_session.h"

#include "platform/desktop/drag_carrier.h"
#include "platform/desktop/drag_support.h"
#include "platform/desktop/panel_window.h"
#include "platform/qt/pasteboard/mime_encoding.h"

#include <QDrag>
#include <QMimeData>
#include <QPixmap>
#include <QPointer>
#include <QWindow>

#include <algorithm>
#include <numeric>

namespace corvane {

namespace {

/// Where the pointer holds the image, from its top left.
QPoint fromTopLeft(QPointF hotSpot, const Image &image)
{
    return QPointF(hotSpot.x(), image.size.height() - hotSpot.y()).toPoint();
}

void setImage(QDrag &drag, const Image &image, QPointF hotSpot)
{
    if (image.isNull() || image.size.isEmpty())
        return;
    QPixmap pixmap = QPixmap::fromImage(image.bitmap);
    pixmap.setDevicePixelRatio(std::max(image.bitmap.width() / image.size.width(),
                                        image.bitmap.height() / image.size.height()));
    drag.setPixmap(pixmap);
    drag.setHotSpot(fromTopLeft(hotSpot, image));
}

/// The operation that Qt reports when the user lets go: what the target would do, not what it did.
DragOperation promisedBy(Qt::DropAction action)
{
    if (action == Qt::IgnoreAction)
        return DragOperation::None;
    return action == Qt::LinkAction ? DragOperation::Link : DragOperation::Copy;
}

DragOutEnd asPromised(Qt::DropAction action, std::size_t writers)
{
    DragOutEnd end{promisedBy(action), {}, true};
    end.taken.resize(static_cast<qsizetype>(writers));
    std::iota(end.taken.begin(), end.taken.end(), 0);
    return end;
}

/// `Helper` is a `DragSupport` or a `DragCarrier`.
template<typename Helper>
void passOnWhenReady(const DragOut &drag, Helper &helper, typename Helper::DragId id)
{
    if (!drag.whenReady)
        return;
    drag.whenReady([&helper, id](const std::optional<PasteboardContents> &contents) {
        helper.formsAreReady(
            id, contents ? std::optional(formsOf(*contents, PasteboardKind::Drag)) : std::nullopt);
    });
}

/// Runs the drag and returns what the target would do. `IgnoreAction` if the drag was cancelled or
/// dropped on this process, whose windows take nothing off the shelf.
Qt::DropAction execute(QWindow &window, const DragOut &drag, std::unique_ptr<QMimeData> contents)
{
    // Qt deletes it once the target has fetched what it wants.
    const QPointer<QDrag> session = new QDrag(&window);
    session->setMimeData(contents.release());
    setImage(*session, drag.image, drag.hotSpot);
    const Qt::DropAction action = session->exec(Qt::CopyAction | Qt::LinkAction, Qt::CopyAction);
    return session && session->target() ? Qt::IgnoreAction : action;
}

} // namespace

void runDragSession(QWindow &window, const DragOut &drag, DragSupport *support,
                    const DragSessionEvents &events)
{
    const std::size_t writers = drag.contents.writers.size();
    PasteboardForms forms = formsOf(drag.contents, PasteboardKind::Drag);
    auto mimeData = mimeDataFor(forms);
    if (!support && drag.whenReady) {
        // Nobody would have a target wait for what is still being made: it would be given what only
        // stands for it.
        events.released(DragOperation::None);
        events.ended({});
        return;
    }
    if (!support) {
        const Qt::DropAction action = execute(window, drag, std::move(mimeData));
        events.released(promisedBy(action));
        events.ended(action == Qt::IgnoreAction ? DragOutEnd() : asPromised(action, writers));
        return;
    }
    const DragSupport::DragId id = support->dragWillBegin(std::move(forms), !drag.whenReady);
    passOnWhenReady(drag, *support, id);
    const Qt::DropAction action = execute(window, drag, std::move(mimeData));
    if (action == Qt::IgnoreAction) {
        support->dragCameToNothing(id);
        events.released(DragOperation::None);
        events.ended({});
        return;
    }
    // Before the callbacks: the target's window may be closed at any moment, and the support has to
    // watch it.
    support->dragWasDropped(id, events.ended);
    events.released(promisedBy(action));
}

void carryDrag(QWindow &window, const DragOut &drag, DragCarrier &carrier,
               const DragSessionEvents &events)
{
    const DragCarrier::DragId id
        = carrier.carry(window,
                        {formsOf(drag.contents, PasteboardKind::Drag), !drag.whenReady, drag.image,
                         fromTopLeft(drag.hotSpot, drag.image)},
                        {events.released, events.ended});
    passOnWhenReady(drag, carrier, id);
}

} // namespace corvane
