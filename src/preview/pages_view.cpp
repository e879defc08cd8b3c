#include "preview/pages_view.h"

#include "platform/qt/desktop/spoken_role.h"
#include "preview/preview_geometry.h"
#include "preview/preview_look.h"

#include <QCoreApplication>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvane {

PagesView::PagesView(PreviewContent::Pages pages, PreviewLoading &loading, QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_pages(std::move(pages))
    , m_loading(loading)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // Pictures of pages: there is no text to read.
    speakAs<PagesView>(QAccessible::Graphic);
    setAccessibleName(QCoreApplication::translate("PreviewWindow", "Pages"));
}

PagesView::~PagesView() = default;

std::pair<int, int> PagesView::nearPages() const
{
    const double top = verticalScrollBar()->value();
    const double bottom = top + viewport()->height();
    const auto first = std::ranges::find_if(
        m_rects, [&](const QRectF &rect) { return rect.y() + rect.height() >= top; });
    const auto last
        = std::find_if(first, m_rects.end(), [&](const QRectF &rect) { return rect.y() > bottom; });
    const auto from = static_cast<int>(first - m_rects.begin()) - 1;
    const auto to = static_cast<int>(last - m_rects.begin());
    return {std::max(from, 0), std::min(to, static_cast<int>(m_rects.size()) - 1)};
}

QSize PagesView::pixelsOf(int page) const
{
    const QSizeF pixels = m_rects[page].size() * devicePixelRatioF();
    return {static_cast<int>(std::round(pixels.width())),
            static_cast<int>(std::round(pixels.height()))};
}

void PagesView::renderNear()
{
    const auto [from, to] = nearPages();
    std::erase_if(m_renderings, [from = from, to = to](const auto &entry) {
        return entry.first < from || entry.first > to;
    });
    for (int page = from; page <= to && !m_isRendering; ++page) {
        const QSize pixels = pixelsOf(page);
        const auto known = m_renderings.find(page);
        if (known != m_renderings.end() && known->second.pixels == pixels)
            continue;
        // One at a time: when it is done, the pages that are visible then are next.
        m_isRendering = true;
        m_loading.render(m_pages.document, page, pixels,
                         m_lifetime.guard([this, page, pixels](const std::optional<QImage> &image) {
                             m_isRendering = false;
                             // A page that cannot be rendered stays white.
                             m_renderings[page] = {image.value_or(QImage()), pixels};
                             viewport()->update();
                             renderNear();
                         }));
    }
}

void PagesView::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().color(QPalette::Window));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(0, -verticalScrollBar()->value());
    const QColor edge = preview_look::line(palette(), QColor::fromRgb(0, 0, 0, 40));
    const auto [from, to] = nearPages();
    for (int page = from; page <= to; ++page) {
        const QRectF rect = m_rects[page];
        painter.fillRect(rect.adjusted(-1, -1, 1, 1), edge);
        painter.fillRect(rect, Qt::white);
        const auto known = m_renderings.find(page);
        if (known != m_renderings.end() && !known->second.image.isNull())
            painter.drawImage(rect, known->second.image);
    }
}

void PagesView::resizeEvent(QResizeEvent *)
{
    QScrollBar &bar = *verticalScrollBar();
    const double part = bar.maximum() > 0 ? double(bar.value()) / bar.maximum() : 0;
    m_rects = preview_geometry::pageRects(m_pages.sizes, viewport()->width());
    const double end
        = m_rects.isEmpty() ? 0 : m_rects.last().bottom() + preview_geometry::pageMargin;
    bar.setRange(0, std::max(static_cast<int>(end) - viewport()->height(), 0));
    bar.setPageStep(viewport()->height() * 9 / 10);
    constexpr int step = 48;
    bar.setSingleStep(step);
    bar.setValue(static_cast<int>(part * bar.maximum()));
    renderNear();
}

void PagesView::scrollContentsBy(int, int)
{
    viewport()->update();
    renderNear();
}

} // namespace corvane
