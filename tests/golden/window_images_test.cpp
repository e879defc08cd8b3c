// Pictures of the preferences, of the guide and of updates as people read them: in English light
// and dark, at several scales, and in languages that are long, written from right to left, or
// without words to break lines between.

#include "app/base/translations.h"
#include "app/look/window_look.h"
#include "fakes/test_clock.h"
#include "golden/golden.h"
#include "golden/panel_stage.h"
#include "golden/window_stage.h"
#include "preview/manual_loading.h"
#include "preview/preview_geometry.h"
#include "preview/preview_window.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringBuilder>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

class WindowImages : public testing::TestWithParam<WindowState> { };

/// The preview of a file of which only the details are shown.
struct DetailsPreview {
    DetailsPreview()
    {
        PreviewContent content;
        content.details = {QStringLiteral("Notes.data"), QStringLiteral("Data"),
                           QStringLiteral("5 KB"), QStringLiteral("yesterday")};
        content.canBeOpened = true;
        window.setContent(content, {});
        window.resize(preview_geometry::smallestWindow);
        window.show();
        QCoreApplication::processEvents();
    }

    ManualLoading loading;
    TestClock clock;
    PreviewWindow window{loading, clock};
};

/// Runs it in each language that is kept in pictures, with its name.
template<typename Work>
void inOtherLanguages(Work work)
{
    const QLocale before;
    for (const char *language : {"de", "ar", "ja"}) {
        const QString name = QString::fromLatin1(language);
        const Translations translations({name});
        QLocale::setDefault(QLocale(name));
        const WindowLookForPictures look(Scheme::Light);
        work(name);
    }
    QLocale::setDefault(before);
}

} // namespace

TEST_P(WindowImages, AreAsKept)
{
    const Translations english({QStringLiteral("en")});
    const WindowLookForPictures look(Scheme::Light);
    const auto stage = GetParam().make();
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        WindowLookForPictures::use(scheme);
        for (const int scale : {1, 2}) {
            EXPECT_TRUE(matchesGoldenImage(GetParam().fileName(scheme, scale),
                                           pictureOf(stage->window(), scale)));
        }
    }
}

TEST_P(WindowImages, InOtherLanguagesAreAsKept)
{
    inOtherLanguages([](const QString &name) {
        const auto stage = GetParam().make();
        const QString file = GetParam().fileName(Scheme::Light, 1);
        EXPECT_TRUE(matchesGoldenImage(name + u'-' + file, pictureOf(stage->window(), 1)));
    });
}

TEST(PreviewImages, InOtherLanguagesAreAsKept)
{
    inOtherLanguages([](const QString &name) {
        DetailsPreview preview;
        EXPECT_TRUE(matchesGoldenImage(name + u"-preview-details-light-1x.png",
                                       pictureOf(preview.window, 1)));
    });
}

TEST(WindowContrast, groupsAndControlsHaveEdgesAtOnceWhenContrastIsWanted)
{
    const Translations english({QStringLiteral("en")});
    const WindowLookForPictures look(Scheme::Light);
    for (const WindowState &state : windowStates()) {
        static const QStringList alike{QStringLiteral("welcome-2"), QStringLiteral("welcome-3"),
                                       QStringLiteral("update-failed")};
        if (alike.contains(QLatin1String(state.name)))
            continue;
        WindowLookForPictures::use(Scheme::Light);
        const auto stage = state.make();
        QCoreApplication::processEvents();
        WindowLook::setContrast(WindowLook::Contrast::More);
        EXPECT_TRUE(matchesGoldenImage(u"contrast-" % state.fileName(Scheme::Light, 1),
                                       pictureOf(stage->window(), 1)));
        WindowLookForPictures::use(Scheme::Dark);
        EXPECT_TRUE(matchesGoldenImage(u"contrast-" % state.fileName(Scheme::Dark, 1),
                                       pictureOf(stage->window(), 1)));
        WindowLook::setContrast(WindowLook::Contrast::Usual);
    }
}

TEST(WindowContrast, thePreviewHasALineAndStrongDetailsAtOnceWhenContrastIsWanted)
{
    const Translations english({QStringLiteral("en")});
    const WindowLookForPictures look(Scheme::Light);
    DetailsPreview preview;
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        WindowLookForPictures::use(scheme);
        const QString end = scheme == Scheme::Light ? QStringLiteral("light-1x.png")
                                                    : QStringLiteral("dark-1x.png");
        EXPECT_TRUE(matchesGoldenImage(u"preview-details-" % end, pictureOf(preview.window, 1)));
        WindowLook::setContrast(WindowLook::Contrast::More);
        EXPECT_TRUE(
            matchesGoldenImage(u"contrast-preview-details-" % end, pictureOf(preview.window, 1)));
        WindowLook::setContrast(WindowLook::Contrast::Usual);
    }
}

INSTANTIATE_TEST_SUITE_P(EveryState, WindowImages, testing::ValuesIn(windowStates()),
                         [](const auto &given) { return testName(given.param.name); });

} // namespace corvane::test
