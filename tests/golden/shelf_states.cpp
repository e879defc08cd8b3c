// The states of the shelf of which pictures or layers are kept.

#include "core/byte_count.h"
#include "core/item_description.h"
#include "core/message.h"
#include "fakes/shelf_desk.h"
#include "golden/panel_stage.h"
#include "golden/sample_items.h"
#include "platform/qt/pictures/qt_text_measurer.h"

#include <QGuiApplication>
#include <QLinearGradient>

namespace corvane::test {

namespace {

class ShelfStage : public PanelStage {
public:
    explicit ShelfStage(TextWidths widths)
        : desk(QFont(QStringLiteral("Inter")), widths == TextWidths::Measured ? &measurer : nullptr)
        , view(desk.context())
    {
        desk.theme.direction = QGuiApplication::layoutDirection();
        view.onWantsRoom = [this] { ShelfDesk::fit(desk.panel, view, view.look().snapshot); };
        view.apply({});
    }

    void show(const ShelfSnapshot &snapshot)
    {
        ShelfDesk::fit(desk.panel, view, snapshot);
        view.apply(snapshot);
        rest();
    }
    /// Lets everything come to where it belongs; what has been painted moves.
    void rest(double seconds = 1)
    {
        ShelfDesk::paint(view, desk.panel);
        desk.clock.advance(seconds);
    }
    /// In the body's coordinates, which are the panel's here.
    void hover(QPointF point)
    {
        view.mouseMoved({point});
        rest();
    }
    void dragOver()
    {
        FakePasteboard pasteboard;
        pasteboard.offered = QStringList{QStringLiteral("text/plain")};
        pasteboard.text = QStringLiteral("hello");
        view.draggingEntered({pasteboard, {146, 20}, false});
        rest();
    }
    void flash(const QString &message)
    {
        view.flash(message);
        rest(0.9);
    }
    /// Picks up the item that is shown there, and does not let go of it.
    void dragOut(std::size_t cell)
    {
        const QPointF from = layout().cells[cell].root.center();
        view.mouseDown({from});
        view.mouseDragged({from + QPointF(9, 0)});
        rest();
    }
    const ShelfLayout &layout() const { return view.look().layout; }

    // Its layers are there to be looked at; here they are damaged as well.
    std::vector<Layer *> roots() override { return {const_cast<Layer *>(&view.layers().root())}; }
    QString nameOfPicture(const QString &key) const override
    {
        return nameOfThumbnail(key, view.look().snapshot.visible);
    }
    void holdStill() override { desk.motion.reduces = true; }

    QtTextMeasurer measurer;
    ShelfDesk desk;
    ShelfView view;

protected:
    Place place() const override
    {
        // Its top is at the screen's edge.
        constexpr double margin = 24;
        const QSizeF size = desk.panel.frame().size();
        return {size + QSizeF(2 * margin, margin),
                {margin, 0},
                size,
                {size.width() / 2, size.height()}};
    }
    void paintPanel(QPainter &painter, QSizeF size, double scale) override
    {
        view.paint(painter, size, scale);
    }

private:
    static QString nameOfThumbnail(const QString &key,
                                   const std::vector<std::pair<int, DropItem>> &items)
    {
        for (const auto &[index, item] : items) {
            const auto thumbnail = item.thumbnail();
            const QString start
                = thumbnail ? QString::number(thumbnail->bitmap.cacheKey()) % u'@' : QString();
            if (thumbnail && key.startsWith(start))
                return QStringLiteral("picture of ") % item.title() % u'@' % key.mid(start.size());
        }
        return key;
    }
};

ShelfSnapshot occupied(const QList<DropItem> &items, int inView, int focused, int first = 0)
{
    const int total = static_cast<int>(items.size());
    ShelfSnapshot snapshot;
    snapshot.state = ShelfState::Occupied;
    snapshot.inViewCount = inView;
    snapshot.totalCount = total;
    snapshot.focusedIndex = focused;
    for (int i = first; i < std::min(first + inView, total); ++i)
        snapshot.visible.emplace_back(i, items[i]);
    snapshot.canScrollBack = snapshot.hasArrows() && first > 0;
    snapshot.canScrollForward = snapshot.hasArrows() && first + inView < total;
    return snapshot;
}

ShelfSnapshot receptive(ShelfSnapshot snapshot)
{
    snapshot.receptive = true;
    return snapshot;
}

ShelfSnapshot waiting()
{
    ShelfSnapshot snapshot;
    snapshot.state = ShelfState::Expanded;
    return receptive(snapshot);
}

ShelfSnapshot withNotch(ShelfSnapshot snapshot, QSizeF notch)
{
    snapshot.notch = notch;
    return snapshot;
}

QList<DropItem> report()
{
    return {
        samplePhoto(QStringLiteral("Quarterly report.pdf"), Qt::white, QColor(0xDD, 0xE3, 0xEE))};
}

QList<DropItem> longTitle()
{
    return QList<DropItem>{ShelfDesk::fileItem(
               QStringLiteral("A very long name that no shelf could ever show in full.txt"))}
    + sampleItems();
}

QList<DropItem> oneBeingMade()
{
    const QList<DropItem> items = sampleItems();
    return {items[0], sampleBeingMade(), items[2]};
}

/// With names in the scripts of those who read from right to left, and in others.
QList<DropItem> itemsFromRightToLeft()
{
    QList<DropItem> items = sampleItems();
    items[0] = ShelfDesk::fileItem(QString::fromUtf8("تقرير الربع الأول من هذه السنة.pdf"),
                                   QString::fromUtf8("PDF، ٢٫٤ م.ب."));
    items[3] = ShelfDesk::folderItem(QString::fromUtf8("תמונות"));
    items[4] = ShelfDesk::fileItem(QStringLiteral("Summer (2) of a very long year.png"),
                                   QString::fromUtf8("PNG، ٨٠٠ × ٦٠٠"));
    return items;
}

void useMoreContrast(ShelfStage &stage)
{
    stage.desk.theme.setContrast(Theme::Contrast::More);
    stage.view.themeChanged();
}

void mirror(ShelfStage &stage)
{
    stage.desk.theme.direction = Qt::RightToLeft;
}

using SetUp = void (*)(ShelfStage &);

std::function<std::unique_ptr<PanelStage>(TextWidths)> shelf(SetUp setUp)
{
    return [setUp](TextWidths widths) {
        auto stage = std::make_unique<ShelfStage>(widths);
        setUp(*stage);
        return stage;
    };
}

constexpr auto light = Wallpaper::Light;
constexpr auto dark = Wallpaper::Dark;

std::vector<PanelState> picturedStates()
{
    return {
        {"empty", shelf([](ShelfStage &s) { s.show(waiting()); }), {{light, 2}, {dark, 1}}},
        {"targeted",
         shelf([](ShelfStage &s) {
             s.show(waiting());
             s.dragOver();
         }),
         {{dark, 2}}},
        {"one-item-copy-hovered",
         shelf([](ShelfStage &s) {
             s.show(occupied(report(), 1, 0));
             s.hover((*s.layout().actionButtons)[1].center());
         }),
         {{light, 2}, {dark, 1.5}, {light, 1}}},
        {"being-made-single",
         shelf([](ShelfStage &s) { s.show(occupied({sampleBeingMade()}, 1, 0)); }),
         {{dark, 2}}},
        {"being-made-carousel",
         shelf([](ShelfStage &s) { s.show(occupied(oneBeingMade(), 3, 1)); }),
         {{light, 1}, {light, 2}}},
        {"long-title",
         shelf([](ShelfStage &s) { s.show(occupied(longTitle(), 1, 0)); }),
         {{dark, 2}}},
        {"five-in-three",
         shelf([](ShelfStage &s) {
             s.show(occupied(sampleItems().first(5), 3, 0));
             const auto &cell = s.layout().cells[1];
             s.hover(cell.root.topLeft() + cell.thumb.center());
         }),
         {{dark, 2}, {light, 1}, {light, 1.5}}},
        {"six-in-view",
         shelf([](ShelfStage &s) { s.show(occupied(sampleItems(), 6, 2)); }),
         {{dark, 2}, {light, 1.5}}},
        {"receptive-six",
         shelf([](ShelfStage &s) { s.show(receptive(occupied(sampleItems(), 6, 2))); }),
         {{light, 2}}},
        {"receptive-one",
         shelf([](ShelfStage &s) { s.show(receptive(occupied(sampleItems().first(1), 1, 0))); }),
         {{dark, 2}}},
        {"flash-carousel",
         shelf([](ShelfStage &s) {
             s.show(occupied(sampleItems(), 3, 0));
             s.flash(QStringLiteral("Kept on the shelf"));
         }),
         {{dark, 2}}},
        {"flash-single",
         shelf([](ShelfStage &s) {
             s.show(occupied(sampleItems(), 1, 0));
             s.flash(QStringLiteral("Path copied"));
         }),
         {{light, 2}}},
        {"contrast-one",
         shelf([](ShelfStage &s) {
             useMoreContrast(s);
             s.show(occupied(report(), 1, 0));
             s.hover((*s.layout().actionButtons)[1].center());
         }),
         {{light, 1}, {dark, 1.5}}},
        {"contrast-five-in-three",
         shelf([](ShelfStage &s) {
             s.show(occupied(sampleItems().first(5), 3, 0));
             useMoreContrast(s);
         }),
         {{light, 2}, {dark, 1}}},
        {"contrast-empty",
         shelf([](ShelfStage &s) {
             useMoreContrast(s);
             s.show(waiting());
         }),
         {{dark, 1}}},
        {"notch",
         shelf([](ShelfStage &s) {
             s.show(withNotch(occupied(sampleItems().first(3), 3, 1), {200, 32}));
         }),
         {{light, 1}}},
    };
}

std::vector<PanelState> statesWithTexts()
{
    return {
        {"empty", shelf([](ShelfStage &s) { s.show(waiting()); }), {{light, 1}}},
        {"targeted",
         shelf([](ShelfStage &s) {
             s.show(waiting());
             s.dragOver();
         }),
         {{light, 1}}},
        {"one-item",
         shelf([](ShelfStage &s) {
             constexpr qint64 size = 2'410'000;
             QList<DropItem> items = report();
             items[0] = ShelfDesk::fileItem(items[0].title(),
                                            QStringLiteral("PDF") % item_description::separator()
                                                % formatByteCount(size));
             s.show(occupied(items + sampleItems(), 1, 0));
         }),
         {{light, 1}}},
        {"flash-single",
         shelf([](ShelfStage &s) {
             s.show(occupied(sampleItems(), 1, 0));
             s.flash(Message{Message::Kind::SomeNotTaken, 2, 5}.text());
         }),
         {{light, 1}}},
        {"flash-carousel",
         shelf([](ShelfStage &s) {
             s.show(occupied(sampleItems(), 3, 0));
             s.flash(Message{Message::Kind::ItemsCopied, 3}.text());
         }),
         {{light, 1}}},
    };
}

/// For those who read from right to left.
std::vector<PanelState> mirroredStates()
{
    return {
        {"mirrored-one",
         shelf([](ShelfStage &s) {
             mirror(s);
             s.show(occupied(itemsFromRightToLeft().first(1), 1, 0));
             s.hover((*s.layout().actionButtons)[2].center());
         }),
         {{light, 1}, {dark, 2}}},
        {"mirrored-one-of-six",
         shelf([](ShelfStage &s) {
             mirror(s);
             s.show(occupied(itemsFromRightToLeft(), 1, 4, 4));
         }),
         {{dark, 2}}},
        {"mirrored-three-of-six",
         shelf([](ShelfStage &s) {
             mirror(s);
             s.show(occupied(itemsFromRightToLeft(), 3, 3, 3));
             const auto &cell = s.layout().cells[1];
             s.hover(cell.root.topLeft() + cell.thumb.center());
         }),
         {{dark, 2}, {light, 1.5}}},
        {"mirrored-receptive",
         shelf([](ShelfStage &s) {
             mirror(s);
             s.show(receptive(occupied(itemsFromRightToLeft(), 6, 2)));
         }),
         {{light, 2}}},
        {"mirrored-back-hovered",
         shelf([](ShelfStage &s) {
             mirror(s);
             s.show(occupied(sampleItems(), 3, 3, 2));
             s.hover((*s.layout().arrows)[0].center());
         }),
         {}},
        {"mirrored-flash",
         shelf([](ShelfStage &s) {
             mirror(s);
             s.show(occupied(sampleItems(), 1, 0));
             s.flash(QString::fromUtf8("نُسخ المسار!"));
         }),
         {{light, 2}}},
        {"mirrored-flash-carousel",
         shelf([](ShelfStage &s) {
             mirror(s);
             s.show(occupied(sampleItems(), 3, 0));
             s.flash(QString::fromUtf8("نُسخت المسارات!"));
         }),
         {{light, 2}}},
    };
}

/// What the pictures do not show.
std::vector<PanelState> otherStates()
{
    return {
        {"closed",
         shelf([](ShelfStage &s) {
             s.show(occupied(sampleItems(), 3, 0));
             s.show({});
         }),
         {}},
        {"empty-with-notch",
         shelf([](ShelfStage &s) {
             s.show(withNotch(waiting(), {210, 32}));
         }),
         {}},
        {"one-item", shelf([](ShelfStage &s) { s.show(occupied(report(), 1, 0)); }), {}},
        {"one-of-six-preview-hovered",
         shelf([](ShelfStage &s) {
             s.show(occupied(sampleItems(), 1, 5, 5));
             s.hover((*s.layout().actionButtons)[0].center());
         }),
         {}},
        {"one-of-six-trash-hovered",
         shelf([](ShelfStage &s) {
             s.show(occupied(sampleItems(), 1, 2, 2));
             s.hover((*s.layout().actionButtons)[2].center());
         }),
         {}},
        {"arrow-hovered",
         shelf([](ShelfStage &s) {
             s.show(occupied(sampleItems(), 3, 3, 2));
             s.hover((*s.layout().arrows)[0].center());
         }),
         {}},
        {"last-page-view-all-hovered",
         shelf([](ShelfStage &s) {
             s.show(occupied(sampleItems(), 3, 5, 3));
             s.hover(s.layout().viewAllButton->center());
         }),
         {}},
        {"focus-elsewhere",
         shelf([](ShelfStage &s) { s.show(occupied(sampleItems(), 2, 5)); }),
         {}},
        {"badge-hovered",
         shelf([](ShelfStage &s) {
             s.show(occupied(sampleItems(), 6, 0));
             const auto &cell = s.layout().cells[2];
             s.hover(cell.root.topLeft() + cell.badge.center());
         }),
         {}},
        {"dragged-out",
         shelf([](ShelfStage &s) {
             QList<DropItem> items = sampleItems();
             items[1] = ShelfDesk::textItem(QStringLiteral("a text"));
             s.show(occupied(items, 3, 0));
             s.dragOut(1);
         }),
         {}},
    };
}

} // namespace

const std::vector<PanelState> &shelfStates()
{
    static const std::vector<PanelState> states = [] {
        std::vector<PanelState> all = picturedStates();
        for (const auto &more : {mirroredStates(), otherStates()})
            all.insert(all.end(), more.begin(), more.end());
        return all;
    }();
    return states;
}

const std::vector<PanelState> &shelfStatesWithTexts()
{
    static const std::vector<PanelState> states = statesWithTexts();
    return states;
}

} // namespace corvane::test
