#pragma once

#include "platform/base/lifetime.h"
#include "platform/desktop/accessible_node.h"

#include <QRect>
#include <QString>

#include <functional>
#include <vector>

class QAccessibleInterface;

namespace corvane {

class AccessiblePart;
class MainQueue;
class PanelCanvas;

/// Makes a panel known to Qt's accessibility, which hands it on to screen readers. Nothing is made
/// before one asks; from then on changes are gathered, and told when control is back in the event
/// loop. What was made stays until the canvas is gone, which may be after this. Main thread only.
class PanelAccessible {
public:
    /// In seconds: how long an announcement can be read. A screen reader that has much to do asks
    /// for it late.
    static constexpr double announcementDuration = 6;

    struct Panel {
        PanelCanvas &canvas;
        MainQueue &queue;
        std::function<AccessibleNode()> read;
        std::function<void(const QString &key, const QString &action)> perform;
        /// From the panel's coordinates to the window's.
        std::function<QRect(const QRectF &)> toWindow;
    };
    explicit PanelAccessible(Panel panel);
    ~PanelAccessible();
    PanelAccessible(const PanelAccessible &) = delete;
    PanelAccessible &operator=(const PanelAccessible &) = delete;

    void changed();
    void announce(const QString &text);
    /// The panel was shown.
    void shown();
    /// To be called while the panel is still on screen.
    void willHide();
    /// The panel has got the keyboard, or lost it.
    void keyboardChanged();

    const Panel &panel() const { return m_panel; }
    void rootIsGone() { m_root = nullptr; }

private:
    QAccessibleInterface *makeRoot();
    void updateSoon();
    void update();
    AccessibleNode read() const;

    Panel m_panel;
    AccessiblePart *m_root = nullptr;
    bool m_isUpdateDue = false;
    std::vector<AccessibleNode> m_announcements;
    int m_announced = 0;
    Lifetime m_lifetime;
};

} // namespace corvane
