#pragma once

#include "platform/desktop/panel_window.h"

#include <QStringList>

#include <optional>
#include <utility>

namespace corvane::test {

/// A panel without a window, which keeps a log of the calls.
class FakePanelWindow : public PanelWindow {
public:
    void setContent(PanelContent *newContent) override { content = newContent; }
    void place(const PanelPlacement &placement) override
    {
        contentScale = placement.scale;
        setFrame(frameOf(placement));
    }
    QRectF frame() const override { return m_frame; }
    QSizeF contentSize() const override { return contentSizeOf(m_frame.size(), contentScale); }
    /// Puts it anywhere.
    virtual void setFrame(const QRectF &frame)
    {
        m_frame = frame;
        frames.push_back(frame);
    }
    const QScreen *screen() const override { return isOn; }
    bool isVisible() const override { return visible; }
    void orderFrontRegardless() override
    {
        visible = true;
        log << QStringLiteral("orderFront");
    }
    void orderOut() override
    {
        visible = false;
        log << QStringLiteral("orderOut");
    }
    void setIgnoresMouseEvents(bool ignores) override { ignoresMouseEvents = ignores; }
    void setBody(const QRectF &rect, const QPainterPath &path) override
    {
        body = rect;
        outline = path;
    }
    void makeKey() override { isKey = true; }
    void makeKeyAmongPanels() override { isKey = isKey || !othersHaveKeyboard; }
    void resignKey() override { isKey = false; }
    void userWentOn() override { log << QStringLiteral("userWentOn"); }
    void paste() override { ++pastes; }
    void setNeedsDisplay(const QRectF &) override { ++displayRequests; }
    void accessibleChanged() override { ++accessibleChanges; }
    void announce(const QString &text) override { announced << text; }
    void beginDraggingSession(DragOut drag, DragOutEvents events) override
    {
        const auto writers = static_cast<qsizetype>(drag.contents.writers.size());
        dragOut = std::move(drag);
        dragOutEvents = std::move(events);
        endDragOut = [told = dragOutEvents, writers](DragOperation operation) {
            DragOutEnd end{operation, {}, operation != DragOperation::None};
            for (qsizetype i = 0; operation != DragOperation::None && i < writers; ++i)
                end.taken.append(i);
            told.released();
            told.ended(end);
        };
    }

    PanelContent *content = nullptr;
    const QScreen *isOn = nullptr;
    double contentScale = 1;
    bool visible = false;
    bool ignoresMouseEvents = false;
    bool isKey = false;
    /// Another program's window has the keyboard.
    bool othersHaveKeyboard = false;
    QRectF body;
    QPainterPath outline;
    int displayRequests = 0;
    int pastes = 0;
    int accessibleChanges = 0;
    QStringList announced;
    std::vector<QRectF> frames;
    QStringList log;
    std::optional<DragOut> dragOut;
    DragOutEvents dragOutEvents;
    /// Ends the drag: the user lets go, and the target takes everything at once, or nothing for
    /// `None`.
    std::function<void(DragOperation)> endDragOut;

private:
    QRectF m_frame;
};

} // namespace corvane::test
