#include "platform/qt/desktop/qt_screens.h"

#include "platform/base/main_queue.h"
#include "platform/qt/desktop/qt_geometry.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <utility>

namespace corvane {

namespace {

void refresh(Screen &screen, const QScreen &source)
{
    screen.frame = qt_geometry::toGlobal(QRectF(source.geometry()));
    screen.availableFrame = qt_geometry::toGlobal(QRectF(source.availableGeometry()));
    screen.backingScaleFactor = source.devicePixelRatio();
    // Qt divides a screen's size by its scale, but not its place.
    screen.nativeFrame = {source.geometry().topLeft(),
                          (QSizeF(source.geometry().size()) * source.devicePixelRatio()).toSize()};
    screen.name = source.name();
    // Virtual outputs report 0 or a useless rate.
    screen.refreshRate = source.refreshRate() >= 1 ? source.refreshRate() : 60;
}

} // namespace

QtScreens::QtScreens(MainQueue &queue)
    : m_queue(queue)
{
    for (QScreen *screen : QGuiApplication::screens())
        attach(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen *screen) {
        attach(screen);
        changed();
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &QtScreens::detach);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &QtScreens::changed);
}

QtScreens::~QtScreens() = default;

void QtScreens::attach(QScreen *screen)
{
    const auto entry = std::make_shared<Screen>();
    refresh(*entry, *screen);
    m_known.emplace(screen, entry);
    connect(screen, &QScreen::geometryChanged, this, &QtScreens::changed);
    connect(screen, &QScreen::availableGeometryChanged, this, &QtScreens::changed);
    connect(screen, &QScreen::physicalDotsPerInchChanged, this, &QtScreens::changed);
    connect(screen, &QScreen::logicalDotsPerInchChanged, this, &QtScreens::changed);
    connect(screen, &QScreen::refreshRateChanged, this, &QtScreens::changed);
}

void QtScreens::detach(QScreen *screen)
{
    screen->disconnect(this);
    m_known.erase(screen);
    changed();
}

void QtScreens::changed()
{
    // Values are updated at once, for those who ask now; observers are called later, once for a
    // burst of changes.
    for (const auto &[source, screen] : m_known)
        refresh(*screen, *source);
    if (std::exchange(m_isNotificationDue, true))
        return;
    m_queue.async(m_lifetime.guard([this] {
        m_isNotificationDue = false;
        m_observers.notify();
    }));
}

std::vector<ScreenPointer> QtScreens::screens() const
{
    std::vector<ScreenPointer> result;
    for (const QScreen *screen : QGuiApplication::screens()) {
        if (const auto known = m_known.find(screen); known != m_known.end())
            result.push_back(known->second);
    }
    return result;
}

ScreenPointer QtScreens::mainScreen() const
{
    const QWindow *active = QGuiApplication::focusWindow();
    const QScreen *screen = active ? active->screen() : QGuiApplication::primaryScreen();
    const auto known = m_known.find(screen);
    return known == m_known.end() ? nullptr : known->second;
}

void QtScreens::observeChanges(std::function<void()> callback)
{
    m_observers.add(std::move(callback));
}

} // namespace corvane
