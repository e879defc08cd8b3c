#pragma once

#include "input/timed_drag_watch.h"
#include "platform/base/lifetime.h"
#include "platform/desktop/abilities.h"
#include "platform/desktop/outside_clicks.h"
#include "platform/desktop/screen_locator.h"
#include "platform/qt/desktop/edge_strips.h"

#include <functional>
#include <memory>
#include <vector>

namespace corvane {

/// Where the pointer, or what is dragged, last came to the edge of a screen, or where the desktop
/// last said that the user is, if it can be asked: nobody tells otherwise. The screens must outlive
/// it.
class LastSeenScreen : public ScreenLocator {
public:
    explicit LastSeenScreen(const Screens &screens)
        : m_screens(screens)
    {
    }

    /// That one, else the main screen, which may be none.
    ScreenPointer activeScreen() const override;
    void locate(const std::function<void()> &then) override;
    void cameTo(const ScreenPointer &screen) { m_last = screen; }
    /// The answer to `ask`; null where there is none.
    void told(const ScreenPointer &screen);

    /// Asks the desktop where the user is. May be left empty.
    std::function<void()> ask;

private:
    const Screens &m_screens;
    std::weak_ptr<const Screen> m_last;
    /// Those who wait for the answer.
    std::vector<std::function<void()>> m_waiting;
};

/// A session that keeps clicks in other programs to itself.
class UnheardClicks : public OutsideClicks {
public:
    Subscription watch(Handler /*onPressed*/) override { return {}; }
};

/// What can be had of a desktop that tells programs nothing but what happens to their own windows:
/// strips at the screens' edges see the pointer, and what is dragged, come there. Everything that
/// it is given must outlive it.
class QuietDesktop {
public:
    QuietDesktop(MainQueue &queue, Screens &screens, StripSurface &strips);

    /// Whether somebody calls `noticed` whenever something is dragged. A strip takes the clicks on
    /// it: where drags are told of anyway, there is one only for a drag that nobody knows the end
    /// of.
    void setToldOfDrags(bool isTold);
    bool isToldOfDrags() const { return m_isToldOfDrags; }
    /// Somebody began to drag something; it may be our own.
    void noticed();
    /// Of a session on such a desktop.
    Abilities abilities(bool areHotKeysChosenHere) const
    {
        return abilities(m_isToldOfDrags, areHotKeysChosenHere);
    }
    static Abilities abilities(bool isToldOfDrags, bool areHotKeysChosenHere);
    /// A drag whose end nobody saw may still go on.
    bool mayDragGoOn() const { return m_mayDragGoOn; }

    /// A drag was noticed, there or at an edge. May be left empty.
    std::function<void()> onNoticed;
    /// Whether what comes to an edge is a drag of ours that the toolkit does not know. May be left
    /// empty.
    std::function<bool()> isOwnDrag;

    LastSeenScreen screenLocator;
    TimedDragWatch dragWatch;
    EdgeStrips edgeStrips;
    UnheardClicks outsideClicks;

private:
    void updateStrips();

    bool m_isToldOfDrags = true;
    bool m_mayDragGoOn = false;
    Lifetime m_lifetime;
};

} // namespace corvane
