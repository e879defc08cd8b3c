#include "platform/qt/desktop/edge_strips.h"

#include "platform/desktop/strip_surface.h"
#include "platform/qt/desktop/edge_strip.h"

#include <QWindow>

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvane {

namespace {

/// Of a strip that nobody but what is dragged is watched for at: the width of an empty shelf.
constexpr double widthForDrags = 292;

QRect areaOf(const EdgeStretch &stretch)
{
    return {static_cast<int>(std::round(stretch.left)), 0,
            static_cast<int>(std::round(stretch.width)), EdgeStrips::height};
}

} // namespace

EdgeStrips::EdgeStrips(StripSurface &surface, const Screens &screens)
    : m_surface(surface)
    , m_screens(screens)
{
}

EdgeStrips::~EdgeStrips()
{
    retire();
    for (const auto &strip : m_retired) {
        if (strip)
            strip->end();
    }
}

void EdgeStrips::watch(const std::vector<EdgeStretch> &stretches)
{
    m_watched = stretches;
    update();
}

void EdgeStrips::watchDrags(bool watches)
{
    m_watchesDrags = watches;
    update();
}

void EdgeStrips::renew()
{
    retire();
    update();
}

bool EdgeStrips::isStillThere() const
{
    return m_isPointerThere;
}

/// One strip a screen does both.
std::vector<EdgeStretch> EdgeStrips::wanted() const
{
    std::vector<EdgeStretch> all = m_watched;
    if (!m_watchesDrags)
        return all;
    for (const ScreenPointer &screen : m_screens.screens()) {
        const bool isThere = std::ranges::any_of(
            all, [&](const EdgeStretch &stretch) { return stretch.screen == screen; });
        const double width = std::min(widthForDrags, screen->frame.width());
        if (!isThere)
            all.push_back({screen, (screen->frame.width() - width) * 0.5, width});
    }
    return all;
}

void EdgeStrips::update()
{
    auto next = wanted();
    if (next == m_shown)
        return;
    retire();
    m_shown = std::move(next);
    for (const EdgeStretch &stretch : m_shown) {
        if (EdgeStrip *const strip = makeStrip(stretch))
            m_strips.push_back(strip);
    }
}

void EdgeStrips::retire()
{
    m_isPointerThere = false;
    m_shown.clear();
    std::erase_if(m_retired, [](const auto &strip) { return strip.isNull(); });
    for (EdgeStrip *strip : std::exchange(m_strips, {})) {
        m_retired.emplace_back(strip);
        strip->retire();
    }
}

EdgeStrip *EdgeStrips::makeStrip(const EdgeStretch &stretch)
{
    auto window = m_surface.show(*stretch.screen, areaOf(stretch));
    if (!window)
        return nullptr;
    const auto dragEntered = [this, at = stretch.screen](bool isOwn) {
        if (const auto tell = onDragEntered)
            tell(at, isOwn);
    };
    const auto entering = m_surface.tellsTrulyWhatEnters() ? EdgeStrip::Entering::Counts
                                                           : EdgeStrip::Entering::Unreliable;
    return new EdgeStrip(std::move(window), entering,
                         {.pointerCame = [this, at = stretch.screen] { pointerCame(at); },
                          .pointerWent = [this] { pointerWent(); },
                          .dragEntered = dragEntered,
                          .dragWent =
                              [this] {
                                  if (const auto tell = onDragLeft)
                                      tell();
                              }});
}

void EdgeStrips::pointerCame(const ScreenPointer &screen)
{
    m_isPointerThere = true;
    if (const auto tell = onPointer)
        tell(screen);
    // Where only what is dragged is watched for, nobody else is told.
    const bool isWatched = std::ranges::any_of(
        m_watched, [&](const EdgeStretch &stretch) { return stretch.screen == screen; });
    if (const auto tell = onEntered; tell && isWatched)
        tell();
}

void EdgeStrips::pointerWent()
{
    if (!std::exchange(m_isPointerThere, false))
        return;
    if (const auto tell = onLeft)
        tell();
}

} // namespace corvane
