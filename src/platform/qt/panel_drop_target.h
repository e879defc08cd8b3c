#pragma once

#include <QPointF>

class QDragEnterEvent;
class QDragMoveEvent;
class QDropEvent;

namespace corvane {

class DropSupport;
class PanelContent;

/// A drag over a panel, told to its content and answered to its source.
///
///     Outside --enter, content accepts--> Accepted --drop or leave--> Outside
///     Outside --enter, content refuses--> Refused  --leave---------> Outside
///
/// What was refused on entering stays refused until it leaves. The only answer is Copy: after any
/// other one the source could take its things away from under us. Whatever happens here, Qt tells
/// the source that the drop is finished: nothing may be thrown past these calls.
class PanelDropTarget {
public:
    explicit PanelDropTarget(DropSupport *support);

    /// Null while there is nobody to ask: everything is refused.
    void setContent(PanelContent *content) { m_content = content; }

    void enter(QDragEnterEvent &event, double panelHeight);
    void move(QDragMoveEvent &event, double panelHeight);
    void drop(QDropEvent &event, double panelHeight);
    void leave();

private:
    enum class State {
        Outside,
        Accepted,
        Refused,
    };

    DropSupport *m_support;
    PanelContent *m_content = nullptr;
    State m_state = State::Outside;
};

} // namespace corvane
