#include "shelf/drawing/keyboard_ring.h"

#include "shelf/drawing/theme.h"

#include <QPainterPath>

namespace corvane {

namespace {

constexpr double keyboardRingWidth = 1.75;
constexpr double keyboardRingRadius = 8;

} // namespace

void KeyboardRing::show(const std::optional<QRectF> &frame)
{
    if (!m_layer && !frame)
        return;
    if (!m_layer) {
        m_layer = std::make_unique<ShapeLayer>(m_tree);
        m_superlayer.addSublayer(*m_layer);
        m_layer->setStroke(QPen(m_theme.palette.emphasis, keyboardRingWidth));
    }
    m_layer->setOpacity(frame ? 1 : 0);
    if (!frame)
        return;
    m_layer->setFrame(*frame);
    // The line lies inside its frame.
    constexpr double half = keyboardRingWidth / 2;
    QPainterPath ring;
    ring.addRoundedRect(QRectF({0, 0}, frame->size()).adjusted(half, half, -half, -half),
                        keyboardRingRadius - half, keyboardRingRadius - half);
    m_layer->setPath(ring);
}

} // namespace corvane
