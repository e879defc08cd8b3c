#include "platform/wayland/windows/pointer_elsewhere.h"

#include "platform/base/main_queue.h"
#include "platform/wayland/windows/invisible_window.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>

#include <optional>
#include <utility>

namespace corvane {

/// What covers one screen.
class PointerElsewhere::Ground : public InvisibleWindow {
public:
    Ground(WaylandConnection &connection, QScreen *screen, std::function<void()> onUsed)
        : InvisibleWindow(
            connection,
            {.screen = screen, .layer = LayerSurface::Layer::Top, .area = {{0, 0}, screen->size()}},
            LayerSurface::Keyboard::Never)
        , m_onUsed(std::move(onUsed))
    {
    }

protected:
    bool event(QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::MouseMove:
            moved(dynamic_cast<QMouseEvent &>(*event).position());
            break;
        case QEvent::Leave:
            m_first.reset();
            break;
        case QEvent::MouseButtonPress:
        case QEvent::Wheel:
        case QEvent::TouchBegin:
        case QEvent::TabletPress:
        case QEvent::DragEnter:
            m_onUsed();
            break;
        default:
            break;
        }
        return InvisibleWindow::event(event);
    }

private:
    /// The first place may be where the pointer was all the time.
    void moved(QPointF to)
    {
        if (!m_first)
            m_first = to;
        else if ((to - *m_first).manhattanLength() > farEnough)
            m_onUsed();
    }

    std::function<void()> m_onUsed;
    std::optional<QPointF> m_first;
};

PointerElsewhere::PointerElsewhere(WaylandConnection &connection, MainQueue &queue)
    : m_connection(connection)
    , m_queue(queue)
{
}

PointerElsewhere::~PointerElsewhere() = default;

void PointerElsewhere::watch()
{
    if (!m_grounds.empty())
        return;
    for (QScreen *screen : QGuiApplication::screens())
        m_grounds.push_back(std::make_unique<Ground>(m_connection, screen, [this] { used(); }));
}

void PointerElsewhere::stop()
{
    m_watch.restart();
    for (const auto &ground : m_grounds)
        ground->takeAway();
    m_grounds.clear();
}

/// Later: a window is just being told of it, and goes away then.
void PointerElsewhere::used()
{
    m_watch.restart();
    m_queue.async(m_watch.guard([this] {
        stop();
        if (onMoved)
            onMoved();
    }));
}

} // namespace corvane
