#include "platform/desktop/screen_search.h"

#include "platform/base/main_queue.h"

namespace corvane {

ScreenSearch::ScreenSearch(MainQueue &queue, const Screens &screens)
    : m_queue(queue)
    , m_screens(screens)
{
}

void ScreenSearch::find()
{
    if (m_isUnderWay)
        return;
    const auto attached = m_screens.screens();
    m_isUnderWay = attached.size() > 1 && begin();
    if (!m_isUnderWay)
        tell(attached.size() == 1 ? attached.front() : nullptr);
}

void ScreenSearch::giveUpAfter(double patience)
{
    m_queue.asyncAfter(patience, m_search.guard([this] { found(nullptr); }));
}

void ScreenSearch::found(const ScreenPointer &screen)
{
    m_search.restart();
    m_isUnderWay = false;
    end();
    tell(screen);
}

void ScreenSearch::tell(const ScreenPointer &screen) const
{
    if (onFound)
        onFound(screen);
}

} // namespace corvane
