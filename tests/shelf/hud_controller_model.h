#pragma once

#include "core/settings.h"
#include "core/shelf_store.h"
#include "fakes/fake_screens.h"
#include "platform/base/geometry.h"
#include "shelf/drawing/theme.h"
#include "shelf/shelf_snapshot.h"

#include <QRectF>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace corvane::test {

/// Where the panel is and whether it is seen, told in the plainest words: one rendering, and four
/// pieces of delayed work of which each has at most one date. It looks at the real store, and asks
/// the real view how large it wants to be.
class HUDControllerModel {
public:
    static constexpr double hideDelay = 0.37;
    static constexpr double detailDelay = 1.0 / 60;

    struct World {
        const ShelfStore &store;
        const Settings &settings;
        const FakeScreens &screens;
        const std::optional<QPointF> &pointer;
        std::function<QSizeF(const ShelfSnapshot &)> preferredSize;
    };

    explicit HUDControllerModel(World around)
        : m_world(std::move(around))
    {
    }

    /// How a rendering is written down, here and for the real controller.
    static QString rendering(const ShelfSnapshot &snapshot, const QRectF &pill,
                             const ScreenPointer &on, bool isVisible, bool ignoresMouse)
    {
        QString text = QStringLiteral("state %1, %2 items from %3 to %4, focus %5, in view %6")
                           .arg(static_cast<int>(snapshot.state))
                           .arg(snapshot.totalCount)
                           .arg(snapshot.visible.empty() ? -1 : snapshot.visible.front().first)
                           .arg(snapshot.visible.empty() ? -1 : snapshot.visible.back().first)
                           .arg(snapshot.focusedIndex)
                           .arg(snapshot.inViewCount);
        for (const bool flag : {snapshot.canScrollBack, snapshot.canScrollForward,
                                snapshot.receptive, isVisible, ignoresMouse, on != nullptr})
            text += flag ? u'+' : u'-';
        for (const auto &[index, item] : snapshot.visible)
            text += u' ' + item.title() + u'/' + item.subtitle();
        return text
            + QStringLiteral(", notch %1 x %2, pill %3 %4 %5 %6")
                  .arg(snapshot.notch.width())
                  .arg(snapshot.notch.height())
                  .arg(pill.x())
                  .arg(pill.y())
                  .arg(pill.width())
                  .arg(pill.height());
    }

    /// The screen with the pointer, else the main one.
    ScreenPointer activeScreen() const
    {
        for (const ScreenPointer &screen : m_world.screens.screens()) {
            if (m_world.pointer && contains(screen->frame, *m_world.pointer))
                return screen;
        }
        return m_world.screens.mainScreen();
    }

    void render()
    {
        const ScreenPointer screen = activeScreen();
        const ShelfSnapshot snapshot = snapshotOn(screen);
        const bool isOpen = snapshot.state != ShelfState::Idle;
        QRectF pill;
        if (isOpen && screen) {
            hideDate.reset();
            const QSizeF size = m_world.preferredSize(snapshot);
            pill = {midX(screen->frame) - size.width() / 2, maxY(screen->frame) - size.height(),
                    size.width(), size.height()};
            resize(pill, screen);
            if (m_world.store.isDragInFlight())
                clicksDate.reset();
            ignoresMouse = clicksDate.has_value();
            isVisible = true;
            log << QStringLiteral("orderFront");
        }
        if (!isOpen) {
            ignoresMouse = true;
            clicksDate.reset();
            hideDate = now + hideDelay;
        }
        const ScreenPointer on = isOpen ? screen : nullptr;
        log << rendering(snapshot, pill, on, isVisible, ignoresMouse || !isVisible || !on);
    }

    /// An item became better known: that is followed a frame later, together with others.
    void detailPublished()
    {
        isBehind = true;
        if (!detailDate)
            detailDate = now + detailDelay;
    }
    void followed()
    {
        isBehind = false;
        render();
    }
    void letClicksThrough(double seconds) { clicksDate = now + seconds; }

    void advance(double seconds)
    {
        const double end = now + seconds;
        while (auto *date = earliest(end)) {
            now = std::max(now, **date);
            date->reset();
            if (date == &hideDate && m_world.store.state() == ShelfState::Idle) {
                isVisible = false;
                log << QStringLiteral("orderOut");
            }
            if (date == &shrinkDate && m_world.store.state() != ShelfState::Idle)
                setFrame(shrinkTarget);
            if (date == &clicksDate && isVisible && m_world.store.state() != ShelfState::Idle)
                ignoresMouse = false;
            if (date == &detailDate && isBehind)
                followed();
        }
        now = end;
    }

    ShelfSnapshot snapshotOn(const ScreenPointer &screen) const
    {
        const int count = static_cast<int>(m_world.store.items().size());
        ShelfSnapshot snapshot;
        snapshot.state = m_world.store.state();
        snapshot.visible = m_world.store.visibleItems();
        snapshot.totalCount = count;
        snapshot.focusedIndex = m_world.store.focusedIndex();
        snapshot.inViewCount = m_world.settings.inViewCount();
        snapshot.canScrollBack = m_world.store.scrollOffset() > 0;
        snapshot.canScrollForward
            = m_world.store.scrollOffset() + m_world.settings.inViewCount() < count;
        if (screen && screen->safeAreaInsets.top > 0) {
            snapshot.notch.setHeight(screen->safeAreaInsets.top);
            if (screen->auxiliaryTopLeftArea && screen->auxiliaryTopRightArea)
                snapshot.notch.setWidth(std::max(0.0,
                                                 screen->frame.width()
                                                     - screen->auxiliaryTopLeftArea->width()
                                                     - screen->auxiliaryTopRightArea->width()));
        }
        snapshot.receptive = m_world.store.isDragInFlight() && !m_world.store.isOwnDrag();
        return snapshot;
    }

    QStringList log;
    double now = 0;
    QRectF frame{0, 0, 560, 136};
    bool isVisible = false;
    bool ignoresMouse = true;
    bool isBehind = false;
    /// Larger than the shelf, for what moves in it.
    bool hasRoom = false;
    std::optional<double> hideDate;
    std::optional<double> shrinkDate;
    std::optional<double> clicksDate;
    std::optional<double> detailDate;

private:
    void setFrame(const QRectF &to)
    {
        frame = to;
        hasRoom = false;
    }
    void resize(const QRectF &target, const ScreenPointer &screen)
    {
        const bool isSameScreen = m_lastScreen.lock() == screen;
        m_lastScreen = screen;
        shrinkDate.reset();
        if (!isVisible || !isSameScreen) {
            setFrame(target);
            return;
        }
        const double left = std::min(frame.x(), target.x());
        const double low = std::min(frame.y(), target.y());
        frame = {left, low, std::max(maxX(frame), maxX(target)) - left,
                 std::max(maxY(frame), maxY(target)) - low};
        shrinkTarget = target;
        hasRoom = true;
        shrinkDate = now + Theme::Motion::settlingDuration();
    }
    std::optional<double> *earliest(double end)
    {
        std::optional<double> *found = nullptr;
        for (auto *date : {&hideDate, &shrinkDate, &clicksDate, &detailDate}) {
            if (*date && **date <= end + 1e-9 && (!found || **date < **found))
                found = date;
        }
        return found;
    }

    World m_world;
    std::weak_ptr<const Screen> m_lastScreen;
    QRectF shrinkTarget;
};

} // namespace corvane::test
