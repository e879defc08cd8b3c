#pragma once

#include "shelf/drawing/layer_tree.h"
#include "shelf/drawing/motion.h"

#include <QColor>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <map>
#include <vector>

class QPainter;

namespace corvane {

class LayerAnimator;

/// A rectangle that is painted into the panel, with layers of its own inside.
///
/// Setters set the model value, which is what getters give; what is painted follows it with the
/// motion that the delegate gives for the property, or at once without one. A layer that was never
/// painted takes new values at once, and so does a transparent one, but for its opacity.
/// Coordinates are those of the layer that contains this one, origin at its bottom left.
class Layer {
public:
    /// A shift that is added when the layer is painted; frame and layout do not change.
    struct Transform {
        double dx = 0;
        double dy = 0;

        friend bool operator==(const Transform &, const Transform &) = default;
    };

    /// A line of one point inside the layer's rectangle, grown by `outset`.
    struct Border {
        QColor color = Qt::transparent;
        double radius = 0;
        double outset = 0;

        friend bool operator==(const Border &, const Border &) = default;
    };

    explicit Layer(LayerTree &tree);
    Layer(const Layer &) = delete;
    Layer &operator=(const Layer &) = delete;
    virtual ~Layer();

    /// Sublayers are painted in the order of adding, above the layer itself. A sublayer removes
    /// itself when it is destroyed.
    void addSublayer(Layer &layer);
    const std::vector<Layer *> &sublayers() const { return m_sublayers; }
    void setDelegate(const LayerAnimator *delegate) { m_delegate = delegate; }

    QSizeF bounds() const { return m_bounds; }
    void setBounds(QSizeF size);
    /// Where the anchor point is, in the superlayer's coordinates.
    QPointF position() const { return m_position; }
    void setPosition(QPointF position);
    /// In fractions of the bounds; (0.5, 0.5), the centre, unless set.
    void setAnchorPoint(QPointF anchor) { m_anchor = anchor; }
    QRectF frame() const;
    void setFrame(const QRectF &frame);
    Transform transform() const { return m_transform; }
    void setTransform(Transform transform);
    double opacity() const { return m_opacity; }
    void setOpacity(double opacity);
    double cornerRadius() const { return m_cornerRadius; }
    void setCornerRadius(double radius);
    QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor &color);
    const Border &border() const { return m_border; }
    void setBorder(const Border &border);
    /// Sublayers are cut to this layer's rectangle.
    void setClipsSublayers(bool clips) { m_clipsSublayers = clips; }
    bool clipsSublayers() const { return m_clipsSublayers; }

    /// Makes the next change move even though the layer has not been painted yet.
    void setMovesBeforePainted() { m_wasPainted = true; }

    /// The frame in which the layer is painted now, with motions and transform applied.
    QRectF presentedFrame() const;
    Transform presentedTransform() const;
    double presentedOpacity() const;
    bool isMoving() const { return !m_moving.empty(); }

    /// Paints the layer and what it contains; `scale` is pixels per point.
    void render(QPainter &painter, double scale) const;

protected:
    enum class Key { Bounds, Position, Transform, Opacity, CornerRadius, Path };

    virtual void draw(QPainter &painter, QSizeF size, double scale) const;

    /// To be called after a model value has changed from `before` to `now`: starts a motion from
    /// the value that is painted now, or ends one.
    void changed(Key key, const MovingValue::Components &before,
                 const MovingValue::Components &now);
    MovingValue::Components presented(Key key, const MovingValue::Components &model) const;
    void needsDisplay() const { m_tree.needsDisplay(); }
    double presentedCornerRadius() const;

private:
    friend class LayerTree;

    bool onlyShifts() const { return m_moving.size() == 1 && m_moving.contains(Key::Transform); }
    /// False when nothing moves any more.
    bool dropFinishedMotions();
    QSizeF presentedBounds() const;
    void drawBorder(QPainter &painter, QSizeF size) const;

    LayerTree &m_tree;
    const LayerAnimator *m_delegate = nullptr;
    Layer *m_superlayer = nullptr;
    std::vector<Layer *> m_sublayers;
    QSizeF m_bounds;
    QPointF m_position;
    QPointF m_anchor{0.5, 0.5};
    Transform m_transform;
    double m_opacity = 1;
    double m_cornerRadius = 0;
    QColor m_backgroundColor = Qt::transparent;
    Border m_border;
    bool m_clipsSublayers = false;
    mutable bool m_wasPainted = false;
    std::map<Key, MovingValue> m_moving;
};

} // namespace corvane
