#include "platform/qt/desktop/outline_region.h"

#include <QImage>
#include <QPainter>

#include <vector>

namespace corvane {

QRegion outlineRegion(const QPainterPath &pathInPixels, QSize size)
{
    constexpr int half = 128;
    if (size.isEmpty())
        return {};
    QImage coverage(size, QImage::Format_Alpha8);
    coverage.fill(0);
    {
        QPainter painter(&coverage);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(pathInPixels, Qt::black);
    }
    // In the order in which `QRegion` keeps rectangles: bands from top to bottom, spans from left
    // to right.
    std::vector<QRect> spans;
    for (int y = 0; y < size.height(); ++y) {
        const uchar *row = coverage.constScanLine(y);
        for (int x = 0; x < size.width(); ++x) {
            const int begin = x;
            while (x < size.width() && row[x] >= half)
                ++x;
            if (x > begin)
                spans.emplace_back(begin, y, x - begin, 1);
        }
    }
    QRegion region;
    region.setRects(spans.data(), static_cast<int>(spans.size()));
    return region;
}

} // namespace corvane
