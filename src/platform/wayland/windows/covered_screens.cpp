#include "platform/wayland/windows/covered_screens.h"

#include "platform/wayland/windows/invisible_window.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace corvane {

/// What covers one screen.
class CoveredScreens::Ground : public InvisibleWindow {
public:
    Ground(WaylandConnection &connection, QScreen &screen, LayerSurface::Layer layer, Told told)
        : InvisibleWindow(connection,
                          {.screen = &screen, .layer = layer, .area = {{0, 0}, screen.size()}},
                          LayerSurface::Keyboard::Never)
        , m_screen(screen)
        , m_told(std::move(told))
    {
    }

    bool hasDrag() const { return m_hasDrag; }
    /// Something is dragged over it, and tells when that has left.
    void letThrough(std::function<void()> left)
    {
        m_told = nullptr;
        m_left = std::move(left);
        // Nothing at all would stand for everything.
        setMask(QRect(-1, -1, 1, 1));
    }

protected:
    bool event(QEvent *event) override
    {
        const QEvent::Type type = event->type();
        if (type == QEvent::DragEnter)
            m_hasDrag = true;
        else if (type == QEvent::DragLeave || type == QEvent::Drop)
            m_hasDrag = false;
        if (m_told)
            m_told(m_screen, *event);
        else if (m_left && !m_hasDrag)
            std::exchange(m_left, nullptr)();
        return InvisibleWindow::event(event);
    }

private:
    QScreen &m_screen;
    Told m_told;
    std::function<void()> m_left;
    bool m_hasDrag = false;
};

CoveredScreens::CoveredScreens(WaylandConnection &connection)
    : m_connection(connection)
{
}

CoveredScreens::~CoveredScreens() = default;

void CoveredScreens::cover(LayerSurface::Layer layer, const Told &told)
{
    uncover();
    for (QScreen *screen : QGuiApplication::screens())
        m_grounds.push_back(std::make_unique<Ground>(m_connection, *screen, layer, told));
}

void CoveredScreens::uncover()
{
    for (auto &ground : std::exchange(m_grounds, {})) {
        if (!ground->hasDrag()) {
            ground->takeAway();
            continue;
        }
        // One of its events is being handled then.
        ground->letThrough([this, leaving = ground.get()] {
            const auto found = std::ranges::find(m_leaving, leaving, &std::unique_ptr<Ground>::get);
            leaving->takeAway();
            found->release()->deleteLater();
            m_leaving.erase(found);
        });
        m_leaving.push_back(std::move(ground));
    }
}

} // namespace corvane
