#pragma once

#include "platform/desktop/panel_window.h"
#include "platform/pasteboard/pasteboard.h"

#include <QPainter>
#include <QStringList>

#include <functional>
#include <utility>

namespace corvane::test {

/// A panel's content that writes down what it is told and paints one colour.
class RecordingContent : public PanelContent {
public:
    void paint(QPainter &painter, QSizeF size, double scale) override
    {
        ++paints;
        paintedSize = size;
        paintedScale = scale;
        clip = painter.clipBoundingRect();
        // The lower half only: upside down would be seen.
        painter.fillRect(QRectF(0, 0, size.width(), size.height() / 2), color);
    }
    void mouseDown(const MouseEvent &event) override
    {
        note("down", event.location);
        if (onMouseDown)
            onMouseDown();
    }
    void mouseDragged(const MouseEvent &event) override
    {
        note("dragged", event.location);
        if (const auto act = std::exchange(onFirstDragged, {}))
            act();
    }
    void mouseUp(const MouseEvent &event) override { note("up", event.location); }
    void mouseEntered(const MouseEvent &) override { log << QStringLiteral("entered"); }
    void mouseMoved(const MouseEvent &event) override { lastMove = event.location; }
    void mouseExited() override { log << QStringLiteral("exited"); }
    void scrollWheel(const ScrollEvent &event) override { scrolls.push_back(event); }
    bool keyDown(const KeyEvent &event) override
    {
        keys.push_back(event);
        return true;
    }

    DragOperation draggingEntered(const DraggingInfo &info) override
    {
        note("drag entered", info.location);
        isOwn = info.isOwn;
        types = info.pasteboard.types();
        addresses = info.pasteboard.urls();
        return accepts ? DragOperation::Copy : DragOperation::None;
    }
    DragOperation draggingUpdated(const DraggingInfo &) override
    {
        ++updates;
        if (onUpdate)
            onUpdate();
        return accepts ? DragOperation::Copy : DragOperation::None;
    }
    void draggingExited() override { log << QStringLiteral("drag exited"); }
    bool needsAddresses(const QStringList &) const override { return wantsAddresses; }
    void dropIsAwaited() override { log << QStringLiteral("awaited"); }
    std::optional<QUrl> placeForPromisedFile(const QString &name) override
    {
        promisedName = name;
        return place;
    }
    bool performDragOperation(const DraggingInfo &info) override
    {
        performedAt = info.location;
        log << QStringLiteral("perform");
        return !onPerform || onPerform(info.pasteboard);
    }
    void draggingEnded() override { log << QStringLiteral("drag ended"); }
    bool takesPaste() const override { return takesPastes; }
    void keyboardLost() override { log << QStringLiteral("keyboard lost"); }

    int count(const char *what) const
    {
        return static_cast<int>(log.filter(QLatin1String(what)).size());
    }

    QColor color = Qt::red;
    QSizeF paintedSize;
    double paintedScale = 0;
    int paints = 0;
    QRectF clip;
    QStringList log;
    QPointF lastMove;
    QPointF performedAt;
    QStringList types;
    QList<QUrl> addresses;
    bool wantsAddresses = false;
    std::optional<QString> promisedName;
    std::optional<QUrl> place;
    bool isOwn = false;
    bool accepts = true;
    bool takesPastes = true;
    int updates = 0;
    std::vector<KeyEvent> keys;
    std::vector<ScrollEvent> scrolls;
    std::function<void()> onMouseDown;
    std::function<void()> onUpdate;
    std::function<void()> onFirstDragged;
    std::function<bool(Pasteboard &)> onPerform;

private:
    void note(const char *what, QPointF point)
    {
        log << QStringLiteral("%1 %2 %3").arg(QLatin1String(what)).arg(point.x()).arg(point.y());
    }
};

} // namespace corvane::test
