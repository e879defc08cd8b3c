// The states of the view-all bar of which pictures or layers are kept.

#include "fakes/shelf_desk.h"
#include "golden/panel_stage.h"
#include "golden/sample_items.h"
#include "shelf/bar/view_all_view.h"

#include <QGuiApplication>
#include <QLinearGradient>

namespace corvane::test {

namespace {

class BarStage : public PanelStage {
public:
    static constexpr double usualWidth = 760;

    explicit BarStage(double width = usualWidth)
    {
        desk.theme.direction = QGuiApplication::layoutDirection();
        desk.panel.setFrame({0, 0, width, view_all_layout::barHeight});
    }

    void show(int offset = 0) { view.apply(items, selection, offset); }
    void select(std::initializer_list<int> indices)
    {
        for (const int index : indices)
            selection.insert(items[index].id());
    }
    void hover(ViewAllControl control)
    {
        view.mouseMoved({view.layout().controlHits.at(static_cast<std::size_t>(control)).center()});
    }
    void hoverTile(std::size_t tile)
    {
        view.mouseMoved({view.layout().tiles.at(tile).root.center()});
    }

    // Its layers are there to be looked at; here they are damaged as well.
    std::vector<Layer *> roots() override
    {
        std::vector<Layer *> layers;
        for (const Layer *root : view.layers().roots())
            layers.push_back(const_cast<Layer *>(root));
        return layers;
    }
    QString nameOfPicture(const QString &key) const override
    {
        for (const DropItem &item : items) {
            const auto thumbnail = item.thumbnail();
            if (thumbnail && key == QString::number(thumbnail->bitmap.cacheKey()))
                return QStringLiteral("picture of ") % item.title();
        }
        return key;
    }
    /// Nothing in it moves by itself.
    void holdStill() override { }

    ShelfDesk desk{QFont(QStringLiteral("Inter"))};
    QList<DropItem> items = largeSampleItems();
    QSet<QUuid> selection;
    ViewAllView view{{desk.panel, desk.clock, desk.motion, desk.theme, desk.keyboard,
                      desk.dragWriter, desk.savedPictures, desk.preparation}};

protected:
    Place place() const override
    {
        constexpr double margin = 20;
        const QSizeF size = desk.panel.frame().size();
        return {size + QSizeF(2 * margin, 2 * margin), {margin, margin}, size, {0, 0}};
    }
    /// A busy one: what lies below a bar is seldom plain.
    QImage paintDesktop(QSize size, double scale, Wallpaper kind) const override
    {
        QImage image = PanelStage::paintDesktop(size, scale, kind);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(kind == Wallpaper::Light ? Qt::white : Qt::black, 9 * scale));
        for (int x = -size.height(); x < size.width(); x += static_cast<int>(70 * scale))
            painter.drawLine(x, size.height(), x + size.height(), 0);
        return image;
    }
    void paintPanel(QPainter &painter, QSizeF size, double scale) override
    {
        view.paint(painter, size, scale);
    }
};

using SetUp = void (*)(BarStage &);

/// No place in the bar depends on how wide a text is.
std::function<std::unique_ptr<PanelStage>(TextWidths)> bar(SetUp setUp,
                                                           double width = BarStage::usualWidth)
{
    return [=](TextWidths) {
        auto stage = std::make_unique<BarStage>(width);
        setUp(*stage);
        return stage;
    };
}

void showPageWithTicks(BarStage &stage)
{
    stage.select({0, 3, 5});
    stage.show();
    stage.hoverTile(4);
}

void mirror(BarStage &stage)
{
    stage.desk.theme.direction = Qt::RightToLeft;
    stage.items[0] = ShelfDesk::fileItem(QString::fromUtf8("تقرير الربع الأول من هذه السنة.pdf"));
    stage.items[1] = ShelfDesk::folderItem(QString::fromUtf8("תמונות"));
}

void showPageOfMoreContrast(BarStage &stage)
{
    showPageWithTicks(stage);
    stage.desk.theme.setContrast(Theme::Contrast::More);
    stage.view.themeChanged();
}

void showMirroredPage(BarStage &stage)
{
    mirror(stage);
    showPageWithTicks(stage);
}

void showMirroredLastPageWithTrashHovered(BarStage &stage)
{
    mirror(stage);
    stage.select({5, 6});
    stage.show(100);
    stage.hover(ViewAllControl::Trash);
}

void showPicturesBeingMade(BarStage &stage)
{
    stage.items = stage.items.first(2);
    stage.items << sampleBeingMade(QStringLiteral("page 1.png"), {})
                << sampleBeingMade(QStringLiteral("page 2.png"), {});
    stage.select({0, 2});
    stage.show();
}

void showTwoTickedWithTrashHovered(BarStage &stage)
{
    stage.items = stage.items.first(2);
    stage.select({0, 1});
    stage.show();
    stage.hover(ViewAllControl::Trash);
}

void showLastPageWithBackHovered(BarStage &stage)
{
    stage.show(100);
    stage.hover(ViewAllControl::Back);
}

void showNothingTicked(BarStage &stage)
{
    stage.show();
}

void showAllTickedWithBoxHovered(BarStage &stage)
{
    stage.select({0, 1, 2, 3, 4, 5, 6});
    stage.show();
    stage.hover(ViewAllControl::SelectAll);
}

void showFirstPageWithForwardHovered(BarStage &stage)
{
    stage.select({6});
    stage.show();
    stage.hover(ViewAllControl::Forward);
}

void showMiddlePageWithCopyHovered(BarStage &stage)
{
    stage.select({2, 3});
    stage.show(2);
    stage.hover(ViewAllControl::Copy);
}

constexpr auto light = Wallpaper::Light;
constexpr auto dark = Wallpaper::Dark;
constexpr double narrowWidth = 420;

} // namespace

const std::vector<PanelState> &barStates()
{
    static const std::vector<PanelState> states{
        {"view-all",
         bar(showPageWithTicks),
         {{light, 1}, {light, 1.5}, {light, 2}, {dark, 1}, {dark, 2}}},
        {"view-all-being-made", bar(showPicturesBeingMade), {{light, 2}, {dark, 1}}},
        {"view-all-contrast", bar(showPageOfMoreContrast), {{light, 1}, {dark, 2}}},
        {"view-all-two", bar(showTwoTickedWithTrashHovered), {{dark, 2}}},
        {"view-all-last-page", bar(showLastPageWithBackHovered, narrowWidth), {{light, 2}}},
        {"view-all-mirrored", bar(showMirroredPage), {{light, 1}, {dark, 2}}},
        {"view-all-mirrored-last-page",
         bar(showMirroredLastPageWithTrashHovered, narrowWidth),
         {{light, 2}}},
        {"view-all-nothing-ticked", bar(showNothingTicked), {}},
        {"view-all-all-ticked", bar(showAllTickedWithBoxHovered), {}},
        {"view-all-first-page", bar(showFirstPageWithForwardHovered, narrowWidth), {}},
        {"view-all-middle-page", bar(showMiddlePageWithCopyHovered, narrowWidth), {}},
    };
    return states;
}

const std::vector<PanelState> &barStatesWithTexts()
{
    static const std::vector<PanelState> states{
        {"view-all", bar(showFirstPageWithForwardHovered, narrowWidth), {{light, 1}}},
    };
    return states;
}

} // namespace corvane::test
