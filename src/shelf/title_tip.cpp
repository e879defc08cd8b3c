#include "shelf/title_tip.h"

#include "core/display_text.h"
#include "platform/base/geometry.h"
#include "platform/base/main_queue.h"
#include "platform/desktop/panel_window.h"
#include "platform/pictures/text_measurer.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvane {

namespace {

double scaleOf(const PanelWindow &panel)
{
    const double width = panel.contentSize().width();
    return width > 0 ? panel.frame().width() / width : 1;
}

/// From the panel's coordinates to global points.
QRectF inGlobalPoints(const QRectF &rect, const PanelWindow &panel)
{
    const double scale = scaleOf(panel);
    return {panel.frame().topLeft() + rect.topLeft() * scale, rect.size() * scale};
}

ScreenPointer screenAt(QPointF point, const Screens &screens)
{
    const auto all = screens.screens();
    const auto found = std::ranges::find_if(
        all, [&](const ScreenPointer &screen) { return contains(screen->frame, point); });
    return found == all.end() ? nullptr : *found;
}

} // namespace

TitleTip::TitleTip(Context context)
    : m_context(std::move(context))
{
}

/// As `TextLayer` cuts it.
bool TitleTip::isCut(const Title &title) const
{
    const QString shown = displayText(title.text);
    return shown.size() < title.text.size()
        || m_context.card.measurer.width(shown, title.font) > title.width;
}

void TitleTip::follow(const PanelWindow &panel, const std::optional<Title> &title, Pointer pointer)
{
    if (pointer == Pointer::Moved) {
        m_lastMove = m_context.card.queue.now();
        m_pointedPanel = &panel;
    }
    if (!m_isDragged && title && m_pointedPanel == &panel && isCut(*title))
        comeTo(
            {&panel, title->item, title->text, inGlobalPoints(title->cell, panel), scaleOf(panel)},
            pointer);
    else if (m_spot && m_spot->panel == &panel)
        leave();
}

void TitleTip::comeTo(const Spot &spot, Pointer pointer)
{
    if (m_spot == spot)
        return;
    const bool isSameItem = m_spot && m_spot->item == spot.item;
    const double now = m_context.card.queue.now();
    const bool wasShown = m_stage == Stage::Shown || (m_lastShown && now - *m_lastShown <= passage);
    m_spot = spot;
    if (isSameItem && m_stage == Stage::Dismissed)
        return;
    if (!isSameItem && wasShown && pointer == Pointer::Moved)
        show();
    else
        rest();
}

void TitleTip::leave()
{
    if (m_stage == Stage::Shown)
        m_lastShown = m_context.card.queue.now();
    hide();
    m_stage = Stage::None;
    m_spot.reset();
}

void TitleTip::dismiss()
{
    m_lastShown.reset();
    hide();
    if (m_spot)
        m_stage = Stage::Dismissed;
}

void TitleTip::setDragged(bool isDragged)
{
    m_isDragged = isDragged;
    if (!isDragged)
        return;
    leave();
    m_lastShown.reset();
}

void TitleTip::keepInFront()
{
    if (m_stage == Stage::Shown)
        m_window->raise();
}

void TitleTip::rest()
{
    hide();
    m_stage = Stage::Resting;
    m_lastMove = m_context.card.queue.now();
    wait(restDelay);
}

/// One piece of work waits at most, however often the pointer moves.
void TitleTip::wait(double seconds)
{
    if (!std::exchange(m_isWaiting, true))
        m_context.card.queue.asyncAfter(seconds, m_lifetime.guard([this] { waited(); }));
}

void TitleTip::waited()
{
    // Clocks and timers may differ a little.
    constexpr double tolerance = 0.005;
    m_isWaiting = false;
    if (m_stage != Stage::Resting)
        return;
    const double left = m_lastMove + restDelay - m_context.card.queue.now();
    if (left > tolerance)
        wait(left);
    else
        show();
}

void TitleTip::show()
{
    const ScreenPointer screen
        = screenAt({midX(m_spot->cell), midY(m_spot->cell)}, m_context.screens);
    if (!screen) {
        dismiss();
        return;
    }
    if (!m_window)
        m_window = m_context.makeWindow();
    m_card.emplace(m_context.card, m_spot->text);
    const double scale = m_spot->scale;
    const QSizeF size = m_card->size() * scale;
    const QRectF frame = tipFrame({std::ceil(size.width()), std::ceil(size.height())},
                                  surroundings(*screen), gap * scale);
    // No guard is needed: the window is a member and is destroyed before the card.
    const auto paint = [this](QPainter &painter, double pixels) { m_card->paint(painter, pixels); };
    m_window->show(placementOn(screen, frame, scale), {paint, m_card->outline()});
    m_stage = Stage::Shown;
    m_lastShown.reset();
    m_showing.restart();
    m_context.card.queue.asyncAfter(longestShown, m_showing.guard([this] { dismiss(); }));
}

TipSurroundings TitleTip::surroundings(const Screen &screen) const
{
    TipSurroundings around{.cell = m_spot->cell,
                           .panel = m_spot->panel->frame(),
                           .otherPanels = {},
                           .screen = screen.frame};
    for (const PanelWindow *panel : m_context.panels) {
        if (panel != m_spot->panel && panel->isVisible())
            around.otherPanels.push_back(panel->frame());
    }
    return around;
}

void TitleTip::hide()
{
    m_showing.restart();
    if (m_stage == Stage::Shown)
        m_window->hide();
}

} // namespace corvane
