#include "platform/wayland/drags/wayland_drop_support.h"

#include "platform/base/main_queue.h"
#include "platform/wayland/base/wayland_connection.h"
#include "platform/wayland/drags/drop_catcher.h"
#include "platform/wayland/drags/wayland_incoming_drag.h"
#include "platform/wayland/windows/layer_panel_surface.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QScopedValueRollback>

#include <wayland-client.h>

#include <algorithm>
#include <utility>

namespace corvane {

struct WaylandDropSupport::Listeners {
    static WaylandDropSupport &of(void *data) { return *static_cast<WaylandDropSupport *>(data); }
    static QPointF point(wl_fixed_t x, wl_fixed_t y)
    {
        return {wl_fixed_to_double(x), wl_fixed_to_double(y)};
    }

    static void offered(void *data, wl_data_device *, wl_data_offer *offer)
    {
        auto &self = of(data);
        OwnConnection &connection = self.m_services.connection;
        self.m_announced = std::make_shared<WaylandIncomingDrag>(
            WaylandIncomingDrag::Link{[&connection] { return connection.display() != nullptr; },
                                      [&connection] { connection.flush(); }},
            self.m_queue, offer);
    }
    static void enter(void *data, wl_data_device *, std::uint32_t serial, wl_surface *surface,
                      wl_fixed_t x, wl_fixed_t y, wl_data_offer *offer)
    {
        of(data).enter(serial, surface, point(x, y), offer);
    }
    static void leave(void *data, wl_data_device *) { of(data).left(); }
    static void motion(void *data, wl_data_device *, std::uint32_t, wl_fixed_t x, wl_fixed_t y)
    {
        if (auto &hover = of(data).m_hover)
            hover->moveTo(point(x, y));
    }
    static void drop(void *data, wl_data_device *) { of(data).drop(); }
    // What is on the clipboard is Qt's.
    static void selection(void *data, wl_data_device *, wl_data_offer *)
    {
        of(data).m_announced.reset();
    }
    static constexpr wl_data_device_listener device
        = {offered, enter, leave, motion, drop, selection};
};

WaylandDropSupport::WaylandDropSupport(WaylandConnection &connection, MainQueue &queue,
                                       LayerPanelSurface &panels)
    : m_connection(connection)
    , m_queue(queue)
    , m_panels(panels)
    , m_presses(m_services.seat)
{
    if (!isAble())
        return;
    m_device = wl_data_device_manager_get_data_device(m_services.manager, m_services.seat);
    wl_data_device_add_listener(m_device, &Listeners::device, this);
    m_presses.onPointer = [this] { pointerIsHere(); };
    m_services.connection.flush();
}

WaylandDropSupport::~WaylandDropSupport()
{
    m_hover.reset();
    for (const auto &drop : m_drops) {
        if (const auto waiting = drop.lock())
            waiting->forget();
    }
    for (const auto &drag : {m_announced, m_drag}) {
        if (drag)
            drag->forget();
    }
    m_catchers.clear();
    m_leaving.clear();
    if (m_device)
        wl_data_device_release(m_device);
}

Subscription WaylandDropSupport::addReceiver(QWindow &window, DropReceiver &receiver)
{
    window.installEventFilter(this);
    return m_places.subscribe({&window, &receiver});
}

std::shared_ptr<IncomingDrag> WaylandDropSupport::incomingDrag()
{
    return m_drag;
}

DropReceiver *WaylandDropSupport::receiverOf(const QWindow &window) const
{
    DropReceiver *receiver = nullptr;
    m_places.anyOf([&](const Place &place) {
        if (place.window == &window)
            receiver = place.receiver;
        return receiver != nullptr;
    });
    return receiver;
}

void WaylandDropSupport::expect()
{
    m_isExpecting = true;
    m_waiting.restart();
    m_queue.asyncAfter(patience, m_waiting.guard([this] {
        if (!m_drag)
            rest();
    }));
    m_places.anyOf([this](const Place &place) {
        if (place.window && place.window->isVisible())
            followSoon(*place.window);
        return false;
    });
}

void WaylandDropSupport::cover(QWindow &window)
{
    if (isAble() && receiverOf(window))
        m_catchers.push_back(std::make_unique<DropCatcher>(m_services, m_panels, window));
}

void WaylandDropSupport::uncover(const QWindow &window)
{
    std::erase_if(m_catchers, [&window](const auto &one) { return one->window() == &window; });
}

/// Once what moves a window now has moved all of it.
void WaylandDropSupport::followSoon(QWindow &window)
{
    m_queue.async(m_lifetime.guard([this, moved = QPointer<QWindow>(&window)] {
        if (moved && m_isExpecting)
            follow(*moved);
    }));
}

void WaylandDropSupport::follow(QWindow &window)
{
    const auto found = std::ranges::find(m_catchers, &window,
                                         [](const auto &catcher) { return catcher->window(); });
    if (found != m_catchers.end() && (*found)->isInPlace()) {
        (*found)->follow();
        return;
    }
    uncover(window);
    if (window.isVisible())
        cover(window);
}

void WaylandDropSupport::rest()
{
    m_isExpecting = false;
    m_waiting.restart();
    // Not within what one of them hears.
    m_queue.async(m_lifetime.guard([this] {
        if (!m_isExpecting)
            stepAside();
    }));
}

/// A compositor that looks for what lies below a resting pointer only when a surface goes, as sway
/// does, must know by then that the windows take the pointer themselves: a press there would be
/// lost.
void WaylandDropSupport::stepAside()
{
    if (m_catchers.empty())
        return;
    for (auto &catcher : std::exchange(m_catchers, {})) {
        catcher->stepAside();
        m_leaving.push_back(std::move(catcher));
    }
    m_handled
        = std::make_unique<HandledMark>(m_connection.display(), [this] { m_leaving.clear(); });
}

void WaylandDropSupport::pointerIsHere()
{
    if (m_drag)
        return;
    rest();
    if (onPointer)
        onPointer();
}

bool WaylandDropSupport::eventFilter(QObject *watched, QEvent *event)
{
    auto *const window = qobject_cast<QWindow *>(watched);
    if (!window || !receiverOf(*window))
        return false;
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        if (m_isTelling)
            return false;
        event->ignore();
        if (!isOwnDrag || !isOwnDrag())
            expect();
        return true;
    case QEvent::DragLeave:
        return !m_isTelling;
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::UpdateRequest:
        if (m_isExpecting)
            followSoon(*window);
        return false;
    default:
        return false;
    }
}

DropHover::Panel WaylandDropSupport::panelOf(QWindow &window)
{
    const auto tell = [this, told = QPointer<QWindow>(&window)](QEvent &event) {
        const QScopedValueRollback<bool> telling(m_isTelling, true);
        event.ignore();
        if (told)
            QCoreApplication::sendEvent(told, &event);
        return event.isAccepted();
    };
    // Whoever asks for contents finds them in `incomingDrag`.
    const auto nothing = std::make_shared<QMimeData>();
    return {[tell, nothing](QPointF at) {
                QDragEnterEvent event(at.toPoint(), Qt::CopyAction, nothing.get(), Qt::LeftButton,
                                      Qt::NoModifier);
                return tell(event);
            },
            [tell, nothing](QPointF at) {
                QDragMoveEvent event(at.toPoint(), Qt::CopyAction, nothing.get(), Qt::LeftButton,
                                     Qt::NoModifier);
                return tell(event);
            },
            [tell] {
                QDragLeaveEvent event;
                tell(event);
            }};
}

void WaylandDropSupport::enter(std::uint32_t serial, wl_surface *surface, QPointF at,
                               wl_data_offer *offer)
{
    leave();
    const auto drag = std::exchange(m_announced, nullptr);
    const auto catcher
        = std::ranges::find(m_catchers, surface, [](const auto &one) { return one->surface(); });
    if (!drag || drag->offer() != offer || catcher == m_catchers.end() || !(*catcher)->window())
        return;
    QWindow &window = *(*catcher)->window();
    DropReceiver *const receiver = receiverOf(window);
    if (!receiver)
        return;
    m_drag = drag;
    m_hover = std::make_unique<DropHover>(
        m_queue, drag, *receiver, panelOf(window), [drag = drag.get(), serial](bool wouldBeTaken) {
            drag->answer(serial, wouldBeTaken && drag->canBeCopied());
        });
    m_drag->onCanBeCopied = [this] { m_hover->answerAgain(); };
    m_hover->begin(at);
}

void WaylandDropSupport::leave()
{
    if (m_drag)
        m_drag->onCanBeCopied = nullptr;
    m_hover.reset();
    m_drag.reset();
}

void WaylandDropSupport::left()
{
    const bool wasHere = m_drag != nullptr;
    leave();
    if (wasHere && onLeft)
        onLeft();
}

void WaylandDropSupport::drop()
{
    if (!m_hover)
        return;
    if (onDropped)
        onDropped();
    const auto dropped = m_drag;
    dropped->setDropped();
    std::erase_if(m_drops, [](const auto &drop) { return drop.expired(); });
    if (m_drops.size() < maximumDrops && m_hover->drop())
        m_drops.push_back(dropped);
    else
        dropped->finish(false);
    leave();
    rest();
}

} // namespace corvane
