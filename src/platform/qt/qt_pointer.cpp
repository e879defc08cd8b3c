#include "platform/qt/qt_pointer.h"

#include "platform/qt/qt_geometry.h"

#include <QCursor>

namespace corvane {

std::optional<QPointF> QtPointer::location() const
{
    // Qt names a pixel by its upper left corner. Ours is the middle of it, so that the pixels along
    // a screen's edge lie inside the screen whichever way y goes.
    return qt_geometry::toGlobal(QPointF(QCursor::pos()) + QPointF(0.5, 0.5));
}

} // namespace corvane
