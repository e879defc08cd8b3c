#include "shelf/drawing/layer_tree.h"

#include "platform/desktop/motion_preference.h"
#include "shelf/drawing/layer.h"

#include <algorithm>

namespace corvane {

LayerTree::LayerTree(MainQueue &queue, const MotionPreference &preference)
    : m_queue(queue)
    , m_preference(preference)
    , m_frameTime(queue.now())
{
}

LayerTree::~LayerTree() = default;

LayerTree::WithoutMotion::WithoutMotion(LayerTree &tree)
    : m_tree(tree)
{
    ++m_tree.m_withoutMotion;
}

LayerTree::WithoutMotion::~WithoutMotion()
{
    --m_tree.m_withoutMotion;
}

void LayerTree::setFrameInterval(double seconds)
{
    if (m_frameInterval == seconds)
        return;
    m_frameInterval = seconds;
    if (m_timer)
        m_timer = m_queue.repeating(m_frameInterval, [this] { frame(); });
}

bool LayerTree::allowsMotion() const
{
    return m_withoutMotion == 0 && !m_preference.reducesMotion();
}

bool LayerTree::onlyShifts(const Layer &layer) const
{
    return m_moving.size() == 1 && m_moving.front() == &layer && layer.onlyShifts();
}

void LayerTree::needsDisplay()
{
    ++m_version;
    if (onNeedsDisplay)
        onNeedsDisplay();
}

double LayerTree::motionStart()
{
    if (m_timer)
        return m_frameTime;
    m_frameTime = m_queue.now();
    return m_frameTime - m_frameInterval;
}

void LayerTree::startedMoving(Layer &layer)
{
    if (std::find(m_moving.begin(), m_moving.end(), &layer) == m_moving.end())
        m_moving.push_back(&layer);
    if (!m_timer)
        m_timer = m_queue.repeating(m_frameInterval, [this] { frame(); });
}

void LayerTree::layerGone(Layer &layer)
{
    std::erase(m_moving, &layer);
}

void LayerTree::frame()
{
    m_frameTime = m_queue.now();
    std::erase_if(m_moving, [](Layer *layer) { return !layer->dropFinishedMotions(); });
    // One more repaint, because motions that have just ended must be painted at their ends.
    if (m_moving.empty())
        m_timer.reset();
    if (onNeedsDisplay)
        onNeedsDisplay();
}

} // namespace corvane
