#include "preview/preview_geometry.h"

#include <algorithm>
#include <cmath>

namespace corvane::preview_geometry {

namespace {

constexpr double largestScale = 16;
constexpr double smallestScale = 0.1;

QSize limitOf(QSize available)
{
    return (QSizeF(available) * largestPart).toSize();
}

QSize bounded(QSize size, QSize available)
{
    return size.expandedTo(smallestWindow).boundedTo(limitOf(available));
}

/// The columns for a text: for code as many as the longest of its first lines needs, from 80 to
/// 100; for other texts 80.
int columnsOf(const PreviewContent::Text &text, int mostLines)
{
    constexpr qsizetype least = 80;
    constexpr qsizetype most = 100;
    if (!text.isMonospaced)
        return least;
    qsizetype longest = 0;
    qsizetype begin = 0;
    for (int line = 0; line < mostLines && begin <= text.text.size() && longest < most; ++line) {
        const qsizetype newline = text.text.indexOf(QLatin1Char('\n'), begin);
        const qsizetype end = newline < 0 ? text.text.size() : newline;
        longest = std::max(longest, end - begin);
        begin = end + 1;
    }
    return static_cast<int>(std::clamp(longest, least, most));
}

/// The number of lines that the text takes, up to `mostLines`, with longer lines wrapped at
/// `columns`.
int linesOf(const PreviewContent::Text &text, int columns, int mostLines)
{
    int lines = 1;
    int column = 0;
    for (qsizetype i = 0; i < text.text.size() && lines < mostLines; ++i) {
        const bool ends = text.text[i] == QLatin1Char('\n') || ++column > columns;
        lines += ends ? 1 : 0;
        column = ends ? 0 : column;
    }
    return lines;
}

struct SizeOf {
    QSize available;
    double scale = 1;
    TextMetrics metrics;

    QSize operator()(const PreviewContent::Plain &) const { return detailsWindow; }
    QSize operator()(const PreviewContent::Missing &) const { return detailsWindow; }
    QSize operator()(const PreviewContent::Picture &picture) const
    {
        const QSizeF room = pictureRoom(available);
        // Small vector graphics, such as icons, are shown enlarged.
        constexpr QSizeF smallestDrawing{384, 384};
        QSizeF natural = picture.isVector ? QSizeF(picture.pixelSize)
                                          : QSizeF(picture.pixelSize) / std::max(scale, 0.01);
        if (picture.isVector && natural.width() < smallestDrawing.width()
            && natural.height() < smallestDrawing.height())
            natural.scale(smallestDrawing, Qt::KeepAspectRatio);
        if (natural.width() > room.width() || natural.height() > room.height())
            natural.scale(room, Qt::KeepAspectRatio);
        return {static_cast<int>(std::ceil(natural.width())),
                static_cast<int>(std::ceil(natural.height())) + barHeight};
    }
    QSize operator()(const PreviewContent::Pages &pages) const
    {
        const QSize limit = limitOf(available);
        QSizeF first = pages.sizes.isEmpty() ? QSizeF(595, 842) : QSizeF(pages.sizes.first());
        first.scale(limit - QSize(2 * pageMargin, 2 * pageMargin + barHeight), Qt::KeepAspectRatio);
        // Room for a scroll bar.
        constexpr int scrollBar = 16;
        return {static_cast<int>(first.width()) + 2 * pageMargin + scrollBar, limit.height()};
    }
    QSize operator()(const PreviewContent::Text &text) const
    {
        constexpr int narrowest = 720;
        constexpr int tallest = 820;
        constexpr int margins = 48;
        constexpr int scrollBar = 20;
        const int mostLines = tallest / std::max(metrics.lineHeight, 1) + 1;
        const int columns = columnsOf(text, mostLines);
        const int width
            = text.isMonospaced ? columns * metrics.columnWidth + margins + scrollBar : 0;
        const int height
            = linesOf(text, columns, mostLines) * metrics.lineHeight + margins + barHeight;
        return {std::max(width, narrowest), std::min(height, tallest)};
    }
};

} // namespace

QSize windowSize(const PreviewContent &content, QSize available, double scale,
                 const TextMetrics &metrics)
{
    return bounded(std::visit(SizeOf{available, scale, metrics}, content.body), available);
}

QSize pictureRoom(QSize available)
{
    return limitOf(available) - QSize(0, barHeight);
}

QRect centred(QSize size, const QRect &available)
{
    return {available.x() + (available.width() - size.width()) / 2,
            available.y() + (available.height() - size.height()) / 2, size.width(), size.height()};
}

QList<QRectF> pageRects(const QList<QSize> &sizes, double roomWidth)
{
    int widest = 1;
    for (const QSize &size : sizes)
        widest = std::max(widest, size.width());
    const double scale = std::max(roomWidth - 2 * pageMargin, 1.0) / widest;
    QList<QRectF> rects;
    double y = pageMargin;
    for (const QSize &size : sizes) {
        const QSizeF shown = QSizeF(size) * scale;
        // On whole points, so that renderings of pages are not scaled when they are painted.
        const double width = std::max(std::round(shown.width()), 1.0);
        const double height = std::max(std::round(shown.height()), 1.0);
        rects.append({std::round((roomWidth - width) / 2), y, width, height});
        y += height + pageMargin;
    }
    return rects;
}

void PictureZoom::setPicture(QSizeF natural, bool growsToFit)
{
    m_natural = natural;
    m_growsToFit = growsToFit;
    fit();
}

void PictureZoom::setView(QSizeF view)
{
    m_view = view;
    keepInside();
}

double PictureZoom::fittedScale() const
{
    if (m_natural.isEmpty() || m_view.isEmpty())
        return 1;
    const double scale
        = std::min(m_view.width() / m_natural.width(), m_view.height() / m_natural.height());
    return m_growsToFit ? scale : std::min(scale, 1.0);
}

QRectF PictureZoom::rect() const
{
    const QSizeF size = m_natural * scale();
    const QPointF middle = QPointF(m_view.width() / 2, m_view.height() / 2) + m_offset;
    return {middle.x() - size.width() / 2, middle.y() - size.height() / 2, size.width(),
            size.height()};
}

QSize PictureZoom::pixels(double scale) const
{
    return (rect().size() * scale).toSize().expandedTo({1, 1});
}

void PictureZoom::fit()
{
    m_isFitted = true;
    m_offset = {};
}

void PictureZoom::zoom(double factor, QPointF anchor)
{
    const double before = scale();
    const double least = std::min(fittedScale(), std::max(smallestScale, fittedScale()));
    const double after = std::clamp(before * factor, least, std::max(largestScale, least));
    if (after <= least) {
        fit();
        return;
    }
    const QPointF fromMiddle = anchor - QPointF(m_view.width() / 2, m_view.height() / 2) - m_offset;
    m_isFitted = false;
    m_scale = after;
    m_offset -= fromMiddle * (after / before - 1);
    keepInside();
}

void PictureZoom::actualSize(QPointF anchor)
{
    zoom(1 / scale(), anchor);
}

void PictureZoom::moveBy(QPointF delta)
{
    m_offset += delta;
    keepInside();
}

void PictureZoom::keepInside()
{
    if (m_isFitted) {
        m_offset = {};
        return;
    }
    const QSizeF size = m_natural * m_scale;
    const double spareX = std::max((size.width() - m_view.width()) / 2, 0.0);
    const double spareY = std::max((size.height() - m_view.height()) / 2, 0.0);
    m_offset
        = {std::clamp(m_offset.x(), -spareX, spareX), std::clamp(m_offset.y(), -spareY, spareY)};
}

} // namespace corvane::preview_geometry
