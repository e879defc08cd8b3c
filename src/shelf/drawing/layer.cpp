#include "shelf/drawing/layer.h"

#include "shelf/drawing/layer_animator.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace corvane {

namespace {

constexpr double invisibleOpacity = 0.002;

} // namespace

Layer::Layer(LayerTree &tree)
    : m_tree(tree)
{
}

Layer::~Layer()
{
    for (Layer *sublayer : m_sublayers)
        sublayer->m_superlayer = nullptr;
    if (m_superlayer) {
        std::erase(m_superlayer->m_sublayers, this);
        needsDisplay();
    }
    m_tree.layerGone(*this);
}

void Layer::addSublayer(Layer &layer)
{
    layer.m_superlayer = this;
    m_sublayers.push_back(&layer);
    needsDisplay();
}

void Layer::setBounds(QSizeF size)
{
    const QSizeF before = std::exchange(m_bounds, size);
    changed(Key::Bounds, {before.width(), before.height()}, {size.width(), size.height()});
}

void Layer::setPosition(QPointF position)
{
    const QPointF before = std::exchange(m_position, position);
    changed(Key::Position, {before.x(), before.y()}, {position.x(), position.y()});
}

QRectF Layer::frame() const
{
    return {m_position.x() - m_anchor.x() * m_bounds.width(),
            m_position.y() - m_anchor.y() * m_bounds.height(), m_bounds.width(), m_bounds.height()};
}

void Layer::setFrame(const QRectF &frame)
{
    setBounds(frame.size());
    setPosition(
        {frame.x() + m_anchor.x() * frame.width(), frame.y() + m_anchor.y() * frame.height()});
}

void Layer::setTransform(Transform transform)
{
    const Transform before = std::exchange(m_transform, transform);
    changed(Key::Transform, {before.dx, before.dy}, {transform.dx, transform.dy});
}

void Layer::setOpacity(double opacity)
{
    const double before = std::exchange(m_opacity, opacity);
    changed(Key::Opacity, {before}, {opacity});
}

void Layer::setCornerRadius(double radius)
{
    const double before = std::exchange(m_cornerRadius, radius);
    changed(Key::CornerRadius, {before}, {radius});
}

void Layer::setBackgroundColor(const QColor &color)
{
    if (m_backgroundColor == color)
        return;
    m_backgroundColor = color;
    needsDisplay();
}

void Layer::setBorder(const Border &border)
{
    if (m_border == border)
        return;
    m_border = border;
    needsDisplay();
}

namespace {

QString keyPath(int key)
{
    static const std::array paths
        = {QStringLiteral("bounds"),  QStringLiteral("position"),     QStringLiteral("transform"),
           QStringLiteral("opacity"), QStringLiteral("cornerRadius"), QStringLiteral("path")};
    return paths.at(static_cast<std::size_t>(key));
}

} // namespace

void Layer::changed(Key key, const MovingValue::Components &before,
                    const MovingValue::Components &now)
{
    if (before == now)
        return;
    const bool seen = key == Key::Opacity || presentedOpacity() > invisibleOpacity;
    const bool moves = m_delegate && m_wasPainted && seen && m_tree.allowsMotion()
        && before.size() == now.size();
    const auto motion = moves ? m_delegate->action(keyPath(static_cast<int>(key))) : std::nullopt;
    if (motion) {
        const double start = m_tree.motionStart();
        MovingValue::Components velocity(now.size(), 0);
        MovingValue::Components from = before;
        if (const auto moving = m_moving.find(key); moving != m_moving.end()) {
            from = moving->second.valueAt(start);
            velocity = moving->second.velocityAt(start);
        }
        m_moving.insert_or_assign(key, MovingValue(*motion, from, velocity, now, start));
        m_tree.startedMoving(*this);
    } else {
        m_moving.erase(key);
    }
    needsDisplay();
}

MovingValue::Components Layer::presented(Key key, const MovingValue::Components &model) const
{
    const auto moving = m_moving.find(key);
    return moving == m_moving.end() ? model : moving->second.valueAt(m_tree.frameTime());
}

bool Layer::dropFinishedMotions()
{
    std::erase_if(m_moving,
                  [this](const auto &entry) { return entry.second.isOverAt(m_tree.frameTime()); });
    return !m_moving.empty();
}

QSizeF Layer::presentedBounds() const
{
    if (m_moving.empty())
        return m_bounds;
    const auto size = presented(Key::Bounds, {m_bounds.width(), m_bounds.height()});
    return {std::max(0.0, size[0]), std::max(0.0, size[1])};
}

Layer::Transform Layer::presentedTransform() const
{
    if (m_moving.empty())
        return m_transform;
    const auto values = presented(Key::Transform, {m_transform.dx, m_transform.dy});
    return {values[0], values[1]};
}

double Layer::presentedOpacity() const
{
    return m_moving.empty() ? m_opacity
                            : std::clamp(presented(Key::Opacity, {m_opacity})[0], 0.0, 1.0);
}

double Layer::presentedCornerRadius() const
{
    return m_moving.empty() ? m_cornerRadius
                            : std::max(0.0, presented(Key::CornerRadius, {m_cornerRadius})[0]);
}

QRectF Layer::presentedFrame() const
{
    const QSizeF size = presentedBounds();
    const Transform shift = presentedTransform();
    QPointF at = m_position;
    if (!m_moving.empty()) {
        const auto values = presented(Key::Position, {m_position.x(), m_position.y()});
        at = {values[0], values[1]};
    }
    return {at.x() + shift.dx - m_anchor.x() * size.width(),
            at.y() + shift.dy - m_anchor.y() * size.height(), size.width(), size.height()};
}

void Layer::render(QPainter &painter, double scale) const
{
    m_wasPainted = true;
    const double opacity = presentedOpacity();
    if (opacity <= invisibleOpacity)
        return;
    const QRectF frame = presentedFrame();
    painter.save();
    painter.translate(frame.topLeft());
    if (opacity < 1)
        painter.setOpacity(painter.opacity() * opacity);
    draw(painter, frame.size(), scale);
    drawBorder(painter, frame.size());
    if (m_clipsSublayers)
        painter.setClipRect(QRectF({0, 0}, frame.size()), Qt::IntersectClip);
    for (const Layer *sublayer : m_sublayers)
        sublayer->render(painter, scale);
    painter.restore();
}

void Layer::drawBorder(QPainter &painter, QSizeF size) const
{
    if (m_border.color.alpha() == 0 || size.isEmpty())
        return;
    const double inset = 0.5 - m_border.outset;
    painter.setPen(QPen(m_border.color, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF({0, 0}, size).adjusted(inset, inset, -inset, -inset),
                            m_border.radius, m_border.radius);
}

void Layer::draw(QPainter &painter, QSizeF size, double /*scale*/) const
{
    if (m_backgroundColor.alpha() == 0 || size.isEmpty())
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_backgroundColor);
    const QRectF rect({0, 0}, size);
    const double radius = std::min({presentedCornerRadius(), size.width() / 2, size.height() / 2});
    if (radius > 0)
        painter.drawRoundedRect(rect, radius, radius);
    else
        painter.drawRect(rect);
}

} // namespace corvane
