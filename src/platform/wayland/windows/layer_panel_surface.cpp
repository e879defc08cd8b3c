#include "platform/wayland/windows/layer_panel_surface.h"

#include "platform/base/whole_points.h"
#include "platform/wayland/base/wayland_connection.h"
#include "platform/wayland/windows/layer_space.h"
#include "platform/wayland/windows/toolkit_screen.h"

#include <QEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPlatformSurfaceEvent>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

/// Device pixels as the toolkit's, outward.
QRegion inPoints(const QRegion &region, double scale)
{
    QRegion result;
    for (const QRect &rect : region)
        result += QRectF(rect.x() / scale, rect.y() / scale, rect.width() / scale,
                         rect.height() / scale)
                      .toAlignedRect();
    return result;
}

/// With no region at all Qt has the whole window take clicks: one beside the window has none.
constexpr QRect nowhere(-2, -2, 1, 1);

} // namespace

LayerPanelSurface::LayerPanelSurface(WaylandConnection &connection)
    : m_connection(connection)
{
}

LayerPanelSurface::~LayerPanelSurface() = default;

void LayerPanelSurface::adopt(QWindow &window)
{
    // Qt gives a window with this flag no place of its own; see `layer_session`.
    window.setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
    window.create();
    Panel &panel = m_panels[&window];
    panel.number = WindowNumber{window.winId()};
    window.installEventFilter(this);
    // Told before Qt takes the window's surface away.
    connect(&window, &QWindow::visibleChanged, this, [this, &window](bool isVisible) {
        if (!isVisible)
            m_panels[&window].surface.reset();
    });
    connect(&window, &QObject::destroyed, this, [this, &window] { m_panels.erase(&window); });
}

PanelSpace LayerPanelSurface::place(QWindow &window, const PanelPlacement &placement)
{
    Panel &panel = m_panels[&window];
    QScreen *const screen = placement.screen ? toolkitScreen(*placement.screen) : nullptr;
    const bool isElsewhere = panel.screen != screen;
    panel.screen = screen;
    const QScreen *const chosen = screenFor(panel);
    const double middle = (chosen ? chosen->size().width() : placement.size.width()) * 0.5;
    panel.frame = inWholePoints(
        QRectF({middle + placement.fromMiddle - 0.5 * placement.size.width(), placement.fromTop},
               placement.size));
    if (isElsewhere || !window.isVisible())
        panel.space = {};
    const PanelSpace space = fit(window, panel);
    // A screen that went away took the surface along.
    if (window.isVisible() && (isElsewhere || !panel.surface))
        showAnew(window);
    return space;
}

PanelSpace LayerPanelSurface::fit(QWindow &window, Panel &panel)
{
    const QScreen *screen = screenFor(panel);
    const QSize whole = screen ? screen->size() : panel.frame.size();
    const QRect space = layer_space::around(panel.frame, whole, panel.space);
    if (space != panel.space || space.size() != window.size()) {
        panel.space = space;
        window.setGeometry(geometryOf(panel));
        // Counts from the next frame on, which has the new size.
        if (panel.surface)
            panel.surface->setArea(space);
    }
    return {space.size(), panel.frame.topLeft() - space.topLeft()};
}

/// Among all screens.
QRect LayerPanelSurface::geometryOf(const Panel &panel)
{
    const QScreen *const screen = screenFor(panel);
    return panel.space.translated(screen ? screen->geometry().topLeft() : QPoint());
}

QScreen *LayerPanelSurface::screenFor(const Panel &panel)
{
    return panel.screen ? panel.screen.data() : QGuiApplication::primaryScreen();
}

QScreen *LayerPanelSurface::screenOf(const QWindow &window) const
{
    const auto found = m_panels.find(&window);
    return found == m_panels.end() ? nullptr : screenFor(found->second);
}

QRect LayerPanelSurface::spaceOf(const QWindow &window) const
{
    const auto found = m_panels.find(&window);
    return found == m_panels.end() ? QRect() : found->second.space;
}

void LayerPanelSurface::willShow(QWindow &window)
{
    hangUp(window, m_panels[&window]);
}

/// A surface cannot be given another place, and Qt makes a new one together with the window alone.
void LayerPanelSurface::hangUp(QWindow &window, Panel &panel)
{
    panel.surface.reset();
    window.destroy();
    QScreen *const screen = screenFor(panel);
    if (screen)
        window.setScreen(screen);
    // A hidden window's geometry goes with its surface, and newer versions of Qt stretch what is
    // painted to the size that the window believes to have.
    window.setGeometry(geometryOf(panel));
    window.create();
    panel.surface = std::make_unique<LayerSurface>(
        m_connection, window,
        LayerSurface::Place{screen, LayerSurface::Layer::Overlay, panel.space});
    panel.surface->onClosed = [&panel] { panel.surface.reset(); };
    if (panel.hasKeyboard)
        panel.surface->setKeyboard(LayerSurface::Keyboard::Always);
    // What has no place is shown nowhere; the next placement tries again.
    if (!panel.surface->announce())
        panel.surface.reset();
}

void LayerPanelSurface::showAnew(QWindow &window)
{
    window.hide();
    hangUp(window, m_panels[&window]);
    window.show();
}

void LayerPanelSurface::didHide(QWindow &window)
{
    Panel &panel = m_panels[&window];
    panel.hasPointer = false;
    if (std::exchange(panel.hasKeyboard, false))
        tellKeyboard();
    m_connection.flush();
}

void LayerPanelSurface::setInputRegion(QWindow &window, const QRegion &region)
{
    Panel &panel = m_panels[&window];
    panel.input = inPoints(region, window.devicePixelRatio());
    applyInputRegion(window, panel);
}

void LayerPanelSurface::applyInputRegion(QWindow &window, const Panel &panel)
{
    const bool takesNothing = panel.isCovered || panel.input.isEmpty();
    window.setMask(takesNothing ? QRegion(nowhere) : panel.input);
    if (panel.surface)
        panel.surface->commit();
}

QRegion LayerPanelSurface::inputRegionOf(const QWindow &window) const
{
    const auto found = m_panels.find(&window);
    return found == m_panels.end() ? QRegion() : found->second.input;
}

void LayerPanelSurface::setCovered(QWindow &window, bool isCovered)
{
    const auto found = m_panels.find(&window);
    if (found == m_panels.end() || std::exchange(found->second.isCovered, isCovered) == isCovered)
        return;
    applyInputRegion(window, found->second);
}

void LayerPanelSurface::setBoundingRegion(QWindow & /*window*/, const QRegion & /*region*/)
{
    // Compositors blend; nobody asks for it.
}

WindowNumber LayerPanelSurface::panelWithKeyboard() const
{
    for (const auto &[window, panel] : m_panels) {
        if (panel.hasKeyboard)
            return panel.number;
    }
    return WindowNumber::None;
}

void LayerPanelSurface::giveKeyboard(WindowNumber number)
{
    for (auto &[window, panel] : m_panels) {
        const bool gets = number != WindowNumber::None && panel.number == number;
        if (panel.hasKeyboard == gets)
            continue;
        panel.hasKeyboard = gets;
        if (!panel.surface)
            continue;
        panel.surface->setKeyboard(gets ? LayerSurface::Keyboard::Always
                                        : LayerSurface::Keyboard::Never);
        panel.surface->commit();
    }
    tellKeyboard();
}

void LayerPanelSurface::tellKeyboard() const
{
    if (onKeyboardMoved)
        onKeyboardMoved();
}

bool LayerPanelSurface::isPointerAtKeyboard() const
{
    return std::ranges::any_of(m_panels, [](const auto &panel) {
        return panel.second.hasKeyboard && panel.second.hasPointer;
    });
}

bool LayerPanelSurface::isFocused() const
{
    return m_panels.contains(QGuiApplication::focusWindow());
}

void LayerPanelSurface::giveKeyboardBack()
{
    const bool isShown = std::ranges::any_of(m_panels, [](const auto &panel) {
        return panel.second.hasKeyboard && panel.second.surface;
    });
    giveKeyboard(WindowNumber::None);
    // It goes with a panel that is hidden.
    if (isShown && onKeyboardLeftBehind)
        onKeyboardLeftBehind();
}

bool LayerPanelSurface::eventFilter(QObject *watched, QEvent *event)
{
    const auto found = m_panels.find(dynamic_cast<const QWindow *>(watched));
    if (found == m_panels.end())
        return false;
    switch (event->type()) {
    case QEvent::PlatformSurface: {
        const auto *const change = dynamic_cast<const QPlatformSurfaceEvent *>(event);
        if (change
            && change->surfaceEventType() == QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed)
            found->second.surface.reset();
        break;
    }
    case QEvent::Drop:
        if (onDropped)
            onDropped();
        if (!found->second.hasKeyboard && onKeyboardLeftBehind)
            onKeyboardLeftBehind();
        break;
    case QEvent::Enter:
        found->second.hasPointer = true;
        if (onPointer)
            onPointer();
        break;
    case QEvent::Leave:
        found->second.hasPointer = false;
        // The compositor keeps the keyboard for a surface that has it: whoever took the pointer
        // away, and clicks elsewhere, would go on typing here.
        if (found->second.hasKeyboard)
            giveKeyboardBack();
        break;
    default:
        break;
    }
    return false;
}

} // namespace corvane
