#include "app/sessions/quiet_desktop.h"

#include <algorithm>
#include <utility>

namespace corvane {

ScreenPointer LastSeenScreen::activeScreen() const
{
    const auto attached = m_screens.screens();
    const auto found = std::ranges::find(attached, m_last.lock());
    return found == attached.end() ? m_screens.mainScreen() : *found;
}

void LastSeenScreen::locate(const std::function<void()> &then)
{
    m_waiting.push_back(then);
    if (m_waiting.size() > 1)
        return;
    if (ask)
        ask();
    else
        told(nullptr);
}

void LastSeenScreen::told(const ScreenPointer &screen)
{
    if (screen)
        cameTo(screen);
    for (const auto &then : std::exchange(m_waiting, {}))
        then();
}

QuietDesktop::QuietDesktop(MainQueue &queue, Screens &screens, StripSurface &strips)
    : screenLocator(screens)
    , dragWatch(queue)
    , edgeStrips(strips, screens)
{
    edgeStrips.onDragEntered = [this](const ScreenPointer &screen, bool isOwn) {
        if (isOwn || (isOwnDrag && isOwnDrag()))
            return;
        screenLocator.cameTo(screen);
        noticed();
    };
    edgeStrips.onPointer = [this](const ScreenPointer &screen) {
        screenLocator.cameTo(screen);
        dragWatch.pointerIsFree();
    };
    dragWatch.onUncertain = [this](bool mayGoOn) {
        m_mayDragGoOn = mayGoOn;
        updateStrips();
    };
    screens.observeChanges(m_lifetime.guard([this] { edgeStrips.renew(); }));
}

void QuietDesktop::noticed()
{
    dragWatch.noticed();
    if (onNoticed)
        onNoticed();
}

void QuietDesktop::setToldOfDrags(bool isTold)
{
    m_isToldOfDrags = isTold;
    updateStrips();
}

Abilities QuietDesktop::abilities(bool isToldOfDrags, bool areHotKeysChosenHere)
{
    Abilities now{.clicksElsewhere = {ClicksElsewhere::Unnoticed, Reason::KeptByDesktop}};
    if (!areHotKeysChosenHere)
        now.shortcutChoice = {ShortcutChoice::InTheDesktop, Reason::KeptByDesktop};
    if (!isToldOfDrags)
        now.drags = {Drags::AtTheEdge, Reason::KeptByDesktop};
    return now;
}

void QuietDesktop::updateStrips()
{
    edgeStrips.watchDrags(m_mayDragGoOn || !m_isToldOfDrags);
}

} // namespace corvane
