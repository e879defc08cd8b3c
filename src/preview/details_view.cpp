#include "preview/details_view.h"

#include "preview/elided_label.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <utility>

namespace corvane {

namespace {

class IconView : public QWidget {
public:
    IconView(QImage image, QWidget *parent)
        : QWidget(parent)
        , m_image(std::move(image))
    {
        setFixedSize(DetailsView::iconSide, DetailsView::iconSide);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(rect()), m_image);
    }

private:
    QImage m_image;
};

/// What each line below the name consists of.
QList<QStringList> linesOf(const PreviewContent &content)
{
    if (std::holds_alternative<PreviewContent::Missing>(content.body))
        return {{QCoreApplication::translate("PreviewWindow", "This item is no longer there.")}};
    const PreviewDetails &details = content.details;
    QStringList what;
    for (const QString &part : {details.kind, details.size}) {
        if (!part.isEmpty())
            what << part;
    }
    QList<QStringList> lines;
    if (!what.isEmpty())
        lines << what;
    if (!details.modified.isEmpty())
        lines << QStringList{
            QCoreApplication::translate("PreviewWindow", "Modified %1").arg(details.modified)};
    return lines;
}

} // namespace

DetailsView::DetailsView(const PreviewContent &content, const Image &icon, QWidget *parent)
    : QWidget(parent)
{
    setAccessibleName(QCoreApplication::translate("PreviewWindow", "Details"));
    constexpr int margin = 32;
    constexpr int gap = 28;
    constexpr int lineGap = 6;
    constexpr double nameSize = 1.25;
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(gap);
    row->addWidget(new IconView(icon.bitmap, this), 0, Qt::AlignVCenter);

    auto *const column = new QVBoxLayout;
    column->setSpacing(lineGap);
    column->addStretch();
    auto *const name = new ElidedLabel(this);
    QFont font = name->font();
    font.setPointSizeF(font.pointSizeF() * nameSize);
    font.setWeight(QFont::DemiBold);
    name->setFont(font);
    name->setMaximumLines(2);
    name->setHasOwnDirection(true);
    name->setText(content.details.name);
    column->addWidget(name);
    QStringList said;
    const QList<QStringList> lines = linesOf(content);
    for (const QStringList &line : lines) {
        auto *const label = new ElidedLabel(this);
        label->setSubdued(true);
        label->setText(line.join(QStringLiteral("  ·  ")));
        column->addWidget(label);
        said << line;
    }
    setAccessibleDescription(said.join(QStringLiteral(", ")));
    column->addStretch();
    row->addLayout(column, 1);
}

} // namespace corvane
