// The tips of cut titles of which pictures or layers are kept.

#include "fakes/shelf_desk.h"
#include "golden/panel_stage.h"
#include "platform/qt/pictures/qt_text_measurer.h"
#include "shelf/tip_card.h"

#include <QLinearGradient>

#include <optional>

namespace corvane::test {

namespace {

class TipStage : public PanelStage {
public:
    explicit TipStage(TextWidths widths)
        : desk(QFont(QStringLiteral("Inter")), widths == TextWidths::Measured ? &measurer : nullptr)
    {
    }

    void show(const QString &text)
    {
        const ShelfView::Context context = desk.context();
        card.emplace(TipCard::Context{context.queue, context.motionPreference, context.theme,
                                      context.measurer},
                     text);
    }

    // Its layers are there to be looked at; here they are damaged as well.
    std::vector<Layer *> roots() override { return {const_cast<Layer *>(&card->root())}; }
    QString nameOfPicture(const QString &key) const override { return key; }
    /// Nothing in it moves.
    void holdStill() override { }

    QtTextMeasurer measurer;
    ShelfDesk desk;
    std::optional<TipCard> card;

protected:
    Place place() const override
    {
        constexpr double margin = 16;
        const QSizeF size = card->size();
        return {size + QSizeF(2 * margin, 2 * margin), {margin, margin}, size, {0, 0}};
    }
    /// The upper half is the shelf or the bar, which a tip may lie on.
    QImage paintDesktop(QSize size, double scale, Wallpaper kind) const override
    {
        QImage image = PanelStage::paintDesktop(size, scale, kind);
        QPainter(&image).fillRect(0, 0, size.width(), size.height() / 2, Qt::black);
        return image;
    }
    void paintPanel(QPainter &painter, QSizeF /*size*/, double scale) override
    {
        painter.setRenderHint(QPainter::Antialiasing);
        card->paint(painter, scale);
    }
};

using ShowTip = void (*)(TipStage &);

std::function<std::unique_ptr<PanelStage>(TextWidths)> tip(ShowTip show)
{
    return [=](TextWidths widths) {
        auto stage = std::make_unique<TipStage>(widths);
        show(*stage);
        return stage;
    };
}

void showName(TipStage &stage)
{
    stage.show(QStringLiteral("Quarterly report, second draft.pdf"));
}

void showSentence(TipStage &stage)
{
    stage.show(QStringLiteral(
        "A text of several sentences was dropped here. Its title is its first line, and that is "
        "longer than any cell: whoever rests the pointer on it reads all of it."));
}

void showLongName(TipStage &stage)
{
    stage.show(QStringLiteral("IMG_20260314_holiday_by_the_sea_").repeated(40)
               + QStringLiteral(".jpeg"));
}

void showNameFromRightToLeft(TipStage &stage)
{
    stage.desk.theme.direction = Qt::RightToLeft;
    stage.show(QString::fromUtf8("تقرير الربع الأول من هذه السنة مع كل الملحقات والجداول التي "
                                 "طلبتها الإدارة في الاجتماع الأخير (2026).pdf"));
}

void showNameOfMoreContrast(TipStage &stage)
{
    stage.desk.theme.setContrast(Theme::Contrast::More);
    showName(stage);
}

constexpr auto light = Wallpaper::Light;
constexpr auto dark = Wallpaper::Dark;

} // namespace

const std::vector<PanelState> &tipStates()
{
    static const std::vector<PanelState> states{
        {"tip", tip(showName), {{light, 1}, {light, 1.5}, {dark, 2}}},
        {"tip-several-lines", tip(showSentence), {{light, 1}, {dark, 2}}},
        {"tip-too-long", tip(showLongName), {{light, 1}}},
        {"tip-mirrored", tip(showNameFromRightToLeft), {{light, 1}, {dark, 2}}},
        {"tip-contrast", tip(showNameOfMoreContrast), {{light, 2}, {dark, 1}}},
    };
    return states;
}

} // namespace corvane::test
