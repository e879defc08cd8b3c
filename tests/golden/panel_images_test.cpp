// Pictures of the shelf and of the view-all bar, on a light or a dark wallpaper, at several scales.

#include "app/base/translations.h"
#include "fakes/shelf_desk.h"
#include "golden/golden.h"
#include "golden/panel_stage.h"
#include "golden/sample_items.h"
#include "shelf/bar/view_all_view.h"

#include <QLocale>
#include <QPainter>
#include <QStringBuilder>

#include <gtest/gtest.h>

#include <limits>

namespace corvane::test {

namespace {

/// Curves may be rounded another way, here and there.
int differentPixels(const QImage &one, const QImage &other)
{
    if (one.size() != other.size())
        return std::numeric_limits<int>::max();
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            count += one.pixel(x, y) == other.pixel(x, y) ? 0 : 1;
    }
    return count;
}

class PanelImages : public testing::TestWithParam<PanelState> { };

} // namespace

TEST_P(PanelImages, AreAsKept)
{
    const auto stage = GetParam().make(TextWidths::Measured);
    for (const PanelState::Shot &shot : GetParam().shots) {
        EXPECT_TRUE(matchesGoldenImage(GetParam().fileName(shot),
                                       stage->picture(shot.wallpaper, shot.scale)));
    }
}

TEST_P(PanelImages, AreTheSameOfAContentThatIsEnlargedAndOnAScreenOfThatScale)
{
    for (const double scale : {1.5, 2.0}) {
        const auto stage = GetParam().make(TextWidths::Measured);
        const QImage onScreen = stage->picture(Wallpaper::Light, scale).image;
        const QImage enlarged = stage->picture(Wallpaper::Light, scale, scale).image;
        EXPECT_LE(differentPixels(enlarged, onScreen), 40)
            << scale
            << leaveForALook(u"enlarged-" % GetParam().fileName({Wallpaper::Light, scale}),
                             enlarged)
                   .toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(EveryState, PanelImages, testing::ValuesIn(picturedPanelStates()),
                         [](const auto &given) { return testName(given.param.name); });

TEST(PanelTexts, AreAsKeptInOtherLanguages)
{
    const QLocale before;
    for (const char *language : {"de", "ar", "ja"}) {
        const QString name = QString::fromLatin1(language);
        const Translations translations({name});
        QLocale::setDefault(QLocale(name));
        for (const auto &states : {shelfStatesWithTexts(), barStatesWithTexts()}) {
            for (const PanelState &state : states) {
                const PanelState::Shot &shot = state.shots.front();
                EXPECT_TRUE(matchesGoldenImage(
                    name + u'-' + state.fileName(shot),
                    state.make(TextWidths::Measured)->picture(shot.wallpaper, shot.scale)));
            }
        }
    }
    QLocale::setDefault(before);
}

TEST(DragImages, SeveralItemsAreDraggedAsAStackWithTheirCount)
{
    ShelfDesk desk{QFont(QStringLiteral("Inter"))};
    desk.panel.setFrame({0, 0, 760, view_all_layout::barHeight});
    const QList<DropItem> samples = largeSampleItems();
    QList<DropItem> items{samples[1], samples[4], ShelfDesk::textItem(QStringLiteral("a third"))};
    items[0].setThumbnail(*samples[0].thumbnail());
    QSet<QUuid> selection;
    for (const DropItem &item : std::as_const(items))
        selection.insert(item.id());
    ViewAllView view{{desk.panel, desk.clock, desk.motion, desk.theme, desk.keyboard,
                      desk.dragWriter, desk.savedPictures, desk.preparation}};
    view.apply(items, selection, 0);
    const QPointF at = view.layout().tiles[0].root.center();
    view.mouseDown({at});
    view.mouseDragged({at + QPointF(9, 0)});
    ASSERT_TRUE(desk.panel.dragOut);
    const QImage stack = desk.panel.dragOut->image.bitmap;
    QImage image(stack.size(), QImage::Format_RGB32);
    image.fill(QColor(0xC8, 0xD0, 0xD2));
    QPainter(&image).drawImage(0, 0, stack);
    // The count is in the badge at the upper right corner.
    const QRect badge(image.width() - 34, 0, 34, 24);
    EXPECT_TRUE(
        matchesGoldenImage(QStringLiteral("view-all-stack-light-1x.png"), {image, 1, {badge}}));
}

} // namespace corvane::test
