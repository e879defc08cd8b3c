// Pictures of the preferences, of the guide and of updates as people read them: in English light
// and dark, at several scales, and in languages that are long, written from right to left, or
// without words to break lines between.

#include "app/base/translations.h"
#include "app/look/window_look.h"
#include "golden/golden.h"
#include "golden/panel_stage.h"
#include "golden/window_stage.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringBuilder>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

class WindowImages : public testing::TestWithParam<WindowState> { };

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
    const QLocale before;
    for (const char *language : {"de", "ar", "ja"}) {
        const QString name = QString::fromLatin1(language);
        const Translations translations({name});
        QLocale::setDefault(QLocale(name));
        const WindowLookForPictures look(Scheme::Light);
        const auto stage = GetParam().make();
        const QString file = GetParam().fileName(Scheme::Light, 1);
        EXPECT_TRUE(matchesGoldenImage(name + u'-' + file, pictureOf(stage->window(), 1)));
    }
    QLocale::setDefault(before);
}

TEST(WindowContrast, groupsAndControlsHaveEdgesAtOnceWhenContrastIsWanted)
{
    const Translations english({QStringLiteral("en")});
    const WindowLookForPictures look(Scheme::Light);
    for (const WindowState &state : windowStates()) {
        const QString name = QLatin1String(state.name);
        if (!name.startsWith(u"preferences-") && name != QStringLiteral("update-available"))
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

INSTANTIATE_TEST_SUITE_P(EveryState, WindowImages, testing::ValuesIn(windowStates()),
                         [](const auto &given) { return testName(given.param.name); });

} // namespace corvane::test
