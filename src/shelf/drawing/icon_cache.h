#pragma once

#include <QImage>
#include <QRectF>
#include <QRgba64>

#include <functional>
#include <map>
#include <tuple>

class QPainter;

namespace corvane {

/// Bitmaps of icons, each made once and never dropped: keys come from code, never from outside, so
/// there are few. Main thread only.
class IconCache {
public:
    struct Key {
        int icon;
        double pointSize;
        QRgba64 tint;
        double inset;
        double weight;
        double scale;

        auto tied() const
        {
            return std::tuple(icon, pointSize, static_cast<quint64>(tint), inset, weight, scale);
        }
        friend bool operator<(const Key &left, const Key &right)
        {
            return left.tied() < right.tied();
        }
    };
    /// Paints into the square that is the key's point size less its inset on each side; in points,
    /// y upward.
    using Paint = std::function<void(QPainter &, const QRectF &square)>;

    QImage image(const Key &key, const Paint &paint);

private:
    std::map<Key, QImage> m_images;
};

} // namespace corvane
