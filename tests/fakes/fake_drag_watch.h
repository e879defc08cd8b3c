#pragma once

#include "platform/desktop/drag_watch.h"

#include <QStringList>

namespace corvane::test {

/// A session's watch. Its verbs are the session's; what it is told goes to its log.
class FakeDragWatch : public DragWatch {
public:
    void start() override { }
    void stop() override { }
    void ownDrag(bool isUnderWay) override { log << QStringLiteral("own %1").arg(isUnderWay); }
    void overPanel(bool isOver) override { log << QStringLiteral("over %1").arg(isOver); }

    void began() const { onDragBegan(); }
    void ended(DragEnd end) const { onDragEnded(end); }

    QStringList log;
};

} // namespace corvane::test
