#pragma once

#include "shelf/drawing/layer_tree.h"
#include "shelf/drawing/text_layer.h"

#include <QPainterPath>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <memory>
#include <vector>

namespace corvane {

class MainQueue;
class MotionPreference;
class TextMeasurer;
struct Theme;

/// What a tip shows: a text on as many lines as it takes, up to `maximumLines`, on a dark card. In
/// points, origin at the bottom left, y upward. Everything in the context must outlive it.
class TipCard {
public:
    /// In points, of a line.
    static constexpr double maximumWidth = 320;
    /// Enough for the longest name of a file in most scripts.
    static constexpr int maximumLines = 8;
    static constexpr double lineHeight = 16;
    /// In points, between the text and the card's edge.
    static constexpr QSizeF padding{10, 6};
    static constexpr double cornerRadius = 8;

    struct Context {
        MainQueue &queue;
        const MotionPreference &motionPreference;
        const Theme &theme;
        const TextMeasurer &measurer;
    };
    /// The text is a stranger's, and plain.
    TipCard(const Context &context, const QString &text);

    QSizeF size() const { return m_ground.bounds(); }
    QPainterPath outline() const;
    void paint(QPainter &painter, double scale);

    QStringList lines() const;
    /// The layer that contains all others.
    const Layer &root() const { return m_ground; }

private:
    void showLines(const Context &context, const QString &text, const QStringList &lines);

    LayerTree m_tree;
    Layer m_ground;
    std::vector<std::unique_ptr<TextLayer>> m_lines;
};

} // namespace corvane
