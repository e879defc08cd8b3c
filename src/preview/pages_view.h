#pragma once

#include "platform/base/lifetime.h"
#include "platform/preview/preview_content.h"

#include <QAbstractScrollArea>

#include <map>

namespace corvane {

/// Shows the pages of a document below each other. A page is rendered when it comes near the
/// visible part and dropped when it is far from it. The loading must outlive it.
class PagesView : public QAbstractScrollArea {
public:
    PagesView(PreviewContent::Pages pages, PreviewLoading &loading, QWidget *parent = nullptr);
    ~PagesView() override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    struct Rendering {
        QImage image;
        QSize pixels;
    };
    /// The indices of the first and the last page to be rendered: the visible ones, and one more at
    /// either end.
    std::pair<int, int> nearPages() const;
    QSize pixelsOf(int page) const;
    void renderNear();

    PreviewContent::Pages m_pages;
    PreviewLoading &m_loading;
    QList<QRectF> m_rects;
    std::map<int, Rendering> m_renderings;
    bool m_isRendering = false;
    Lifetime m_lifetime;
};

} // namespace corvane
