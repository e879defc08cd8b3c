#include "app/base/session_texts.h"
#include "app/base/translations.h"
#include "app/look/text_label.h"
#include "app/look/window_look.h"
#include "app/welcome/illustration_view.h"
#include "app/welcome/page_indicator.h"
#include "app/welcome/welcome_illustration.h"
#include "app/welcome/welcome_scene.h"
#include "app/welcome/welcome_shapes.h"
#include "app/welcome/welcome_view.h"
#include "app/welcome/welcome_window_controller.h"
#include "app/widget_hands.h"
#include "fakes/lacking_abilities.h"
#include "fakes/preferences_desk.h"
#include "platform/desktop/abilities.h"

#include <QAccessible>
#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QRegion>
#include <QTransform>

#include <gtest/gtest.h>

#include <memory>

namespace corvane::test {

namespace {

class WelcomeWindowTest : public testing::Test {
protected:
    WelcomeWindowTest()
    {
        motion.reduces = true;
        make();
    }
    ~WelcomeWindowTest() override
    {
        controller.reset();
        deletePending();
    }

    void make()
    {
        controller = std::make_unique<WelcomeWindowController>(
            WelcomeView::Context{motion, abilities, desk.settings, desk.binder,
                                 desk.context().announce},
            screens.locator);
        controller->onClose = [this] { ++closed; };
    }
    ShellWindow &window() { return controller->window(); }
    QPushButton *button(const char *text)
    {
        for (auto *button : window().findChildren<QPushButton *>()) {
            if (button->text() == QString::fromUtf8(text) && button->isVisible())
                return button;
        }
        return nullptr;
    }
    QString title() { return window().findChildren<TextLabel *>().at(0)->text(); }
    IllustrationView &illustration() { return *window().findChild<IllustrationView *>(); }

    PreferencesDesk desk;
    FakeMotionPreference &motion = desk.motion;
    UserScreens &screens = desk.screens;
    SessionAbilities &abilities = desk.abilities;
    std::unique_ptr<WelcomeWindowController> controller;
    int closed = 0;
};

} // namespace

TEST_F(WelcomeWindowTest, TheFirstStepHasNoBackButton)
{
    window().present();
    EXPECT_EQ(window().size(), QSize(520, 560));
    EXPECT_EQ(title(), QStringLiteral("Drag anything onto the notch"));
    EXPECT_EQ(button("Back"), nullptr);
    EXPECT_NE(button("Next"), nullptr);
}

TEST_F(WelcomeWindowTest, AStepSaysThatTheSessionCannotDoWhatItDescribes)
{
    const Abilities lacking = lackingAbilities(Reason::KeptByDesktop);
    const auto note = [this] {
        const auto *label = window().findChildren<TextLabel *>().at(2);
        return label->isVisible() ? label->text() : QString();
    };
    window().present();
    EXPECT_EQ(note(), QString());
    abilities.become(lacking);
    EXPECT_EQ(note(), session_texts::limit(lacking.drags));
    button("Next")->click();
    EXPECT_EQ(note(), session_texts::limit(lacking.topEdge));
    button("Next")->click();
    EXPECT_EQ(note(), session_texts::limit(lacking.keepingKey));
    abilities.become({});
    EXPECT_EQ(note(), QString());
}

TEST_F(WelcomeWindowTest, AStepIsSaidAsOneTurnsToIt)
{
    abilities.become(lackingAbilities(Reason::KeptByDesktop));
    window().present();
    EXPECT_EQ(desk.announced, QStringList()) << "it is read with the window";
    button("Next")->click();
    const auto texts = window().findChildren<TextLabel *>();
    ASSERT_EQ(texts.size(), 4);
    EXPECT_EQ(desk.announced,
              QStringList{QStringLiteral("Step 2 of 3: Drag it back out when you arrive. ")
                          + texts[1]->text() + u' ' + texts[2]->text() + u' ' + texts[3]->text()});
    abilities.become({});
    EXPECT_EQ(desk.announced.size(), 1) << "it is the same step";
    button("Next")->click();
    EXPECT_EQ(desk.announced.value(1),
              QStringLiteral("Step 3 of 3: Hold ⇧ to keep it on the shelf. ") + texts[1]->text());
    button("Back")->click();
    EXPECT_TRUE(desk.announced.value(2).startsWith(QStringLiteral("Step 2 of 3: ")));
}

TEST_F(WelcomeWindowTest, ItsPictureAndItsPlaceAreNoFillersToScreenReaders)
{
    const auto roleOf
        = [](QWidget *part) { return QAccessible::queryAccessibleInterface(part)->role(); };
    EXPECT_EQ(roleOf(&illustration()), QAccessible::Graphic);
    EXPECT_EQ(roleOf(window().findChild<PageIndicator *>()), QAccessible::StaticText)
        << "so it is read with the other texts as the guide opens";
}

TEST_F(WelcomeWindowTest, TheStepOnKeysNamesThoseThatOpenTheShelf)
{
    const auto keys = [this] { return window().findChildren<TextLabel *>().at(3)->text(); };
    const auto says = [&keys](const char *words) {
        return keys().startsWith(QLatin1String("By keyboard: press ") + QLatin1String(words));
    };
    window().present();
    button("Next")->click();
    EXPECT_TRUE(says("the shelf's shortcut, then")) << "none is bound";
    desk.binder.bindShelf();
    EXPECT_TRUE(says("Meta+Shift+D, then")) << keys().toStdString();
    desk.settings.setShortcut(Shortcut{KeyPosition::F5, Shortcut::option, QStringLiteral("F5")});
    desk.binder.rebind(HotKeyCenter::Binding::Shelf);
    button("Back")->click();
    button("Next")->click();
    EXPECT_TRUE(says("Alt+F5, then")) << keys().toStdString();
    desk.settings.setShortcut(std::nullopt);
    desk.binder.rebind(HotKeyCenter::Binding::Shelf);
    EXPECT_TRUE(says("the shelf's shortcut, then"));
}

TEST_F(WelcomeWindowTest, HasRoomForItsTextsInEveryLanguage)
{
    desk.settings.setShortcut(Shortcut{KeyPosition::F12,
                                       Shortcut::command | Shortcut::control | Shortcut::option,
                                       QStringLiteral("F12")});
    desk.binder.bindShelf();
    for (const Abilities &able : {Abilities(), lackingAbilities(Reason::KeptByDesktop)}) {
        abilities.become(able);
        for (const QString &language : Translations::languages()) {
            const Translations translations({language});
            make();
            window().present();
            for (int step = 1; step <= 3; ++step) {
                QCoreApplication::processEvents();
                int lowest = 0;
                for (const auto *label : window().findChildren<TextLabel *>()) {
                    if (!label->isVisible())
                        continue;
                    EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                        << language.toStdString() << ": " << label->text().toStdString();
                    EXPECT_GE(label->mapTo(&window(), QPoint()).y(), lowest)
                        << language.toStdString() << ": " << label->text().toStdString();
                    lowest = label->mapTo(&window(), QPoint(0, label->height())).y();
                }
                if (step < 3)
                    controller->view().goForward();
            }
        }
    }
}

TEST_F(WelcomeWindowTest, NextAndBackGoThroughTheSteps)
{
    window().present();
    button("Next")->click();
    EXPECT_EQ(title(), QStringLiteral("Drag it back out when you arrive"));
    button("Next")->click();
    EXPECT_EQ(title(), QStringLiteral("Hold ⇧ to keep it on the shelf"));
    EXPECT_EQ(button("Next"), nullptr);
    button("Back")->click();
    button("Back")->click();
    EXPECT_EQ(controller->view().step(), 0);
    EXPECT_EQ(button("Back"), nullptr);
}

TEST_F(WelcomeWindowTest, TheForwardButtonOfTheLastStepClosesInsteadOfAdvancing)
{
    window().present();
    controller->view().goForward();
    controller->view().goForward();
    ASSERT_NE(button("Start using it"), nullptr);
    button("Start using it")->click();
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(controller->view().step(), 2);
    EXPECT_FALSE(window().isVisible());
}

TEST_F(WelcomeWindowTest, ClosingTheWindowIsLikeFinishing)
{
    window().present();
    window().close();
    EXPECT_EQ(closed, 1);
}

TEST_F(WelcomeWindowTest, FinishingMayDropTheController)
{
    controller->onClose = [this] { controller.reset(); };
    window().present();
    controller->view().goForward();
    controller->view().goForward();
    button("Start using it")->click();
    EXPECT_EQ(controller, nullptr);
}

TEST_F(WelcomeWindowTest, ItIsReadWithTheKeyboardAlone)
{
    window().present();
    ASSERT_TRUE(activate(window()));
    typeKey(window(), Qt::Key_Right);
    typeKey(window(), Qt::Key_Return);
    EXPECT_EQ(controller->view().step(), 2);
    // Paging does not close; the button does.
    typeKey(window(), Qt::Key_Right);
    EXPECT_EQ(closed, 0);
    typeKey(window(), Qt::Key_Left);
    EXPECT_EQ(controller->view().step(), 1);
    typeKey(window(), Qt::Key_Escape);
    EXPECT_EQ(closed, 1);
}

TEST_F(WelcomeWindowTest, FromRightToLeftArrowKeysAndPageIndicatorTurnRound)
{
    window().present();
    ASSERT_TRUE(activate(window()));
    auto *indicator = window().findChild<PageIndicator *>();
    ASSERT_NE(indicator, nullptr);
    // The first step's dot is nearly as long as half of the indicator.
    const auto isAccentAt = [indicator](double share) {
        const QImage picture = indicator->grab().toImage();
        return picture.pixelColor(qRound(picture.width() * share), picture.height() / 2)
            == WindowLook::accent(indicator->palette());
    };
    EXPECT_TRUE(isAccentAt(0.22));
    EXPECT_FALSE(isAccentAt(0.78));
    window().setLayoutDirection(Qt::RightToLeft);
    EXPECT_FALSE(isAccentAt(0.22));
    EXPECT_TRUE(isAccentAt(0.78));
    typeKey(window(), Qt::Key_Left);
    EXPECT_EQ(controller->view().step(), 1);
    typeKey(window(), Qt::Key_Right);
    EXPECT_EQ(controller->view().step(), 0);
}

TEST_F(WelcomeWindowTest, TheBackButtonThatGoesAwayLeavesTheKeyboardToNext)
{
    window().present();
    ASSERT_TRUE(activate(window()));
    controller->view().goForward();
    button("Back")->setFocus();
    button("Back")->click();
    EXPECT_EQ(window().focusWidget(), button("Next"));
}

TEST_F(WelcomeWindowTest, NothingMovesWhereLessMovementIsWanted)
{
    window().present();
    QCoreApplication::processEvents();
    EXPECT_FALSE(illustration().isPlaying());
    controller->view().goForward();
    EXPECT_FALSE(illustration().isPlaying());
}

TEST_F(WelcomeWindowTest, TheIllustrationPlaysOnlyWhileItCanBeSeen)
{
    motion.reduces = false;
    make();
    EXPECT_FALSE(illustration().isPlaying());
    window().present();
    QCoreApplication::processEvents();
    EXPECT_TRUE(illustration().isPlaying());
    window().hide();
    QCoreApplication::processEvents();
    EXPECT_FALSE(illustration().isPlaying());
    window().present();
    QCoreApplication::processEvents();
    EXPECT_TRUE(illustration().isPlaying());
}

TEST_F(WelcomeWindowTest, AnIllustrationThatIsHiddenAloneStopsToo)
{
    motion.reduces = false;
    make();
    window().present();
    QCoreApplication::processEvents();
    ASSERT_TRUE(illustration().isPlaying());
    illustration().hide();
    EXPECT_FALSE(illustration().isPlaying());
    illustration().show();
    EXPECT_TRUE(illustration().isPlaying());
}

TEST_F(WelcomeWindowTest, ThePictureFollowsThePalette)
{
    window().present();
    const QImage before = illustration().grab().toImage();
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    illustration().setPalette(dark);
    EXPECT_NE(illustration().grab().toImage(), before);
}

TEST_F(WelcomeWindowTest, NothingOfAStepIsLeftInThePictureOfTheNext)
{
    window().present();
    for (const WelcomeStep step : allWelcomeSteps) {
        IllustrationView fresh(WindowLook(), motion);
        fresh.setStep(step);
        fresh.resize(illustration().size());
        EXPECT_EQ(illustration().grab().toImage(), fresh.grab().toImage())
            << static_cast<int>(step);
        if (step != WelcomeStep::Keep)
            controller->view().goForward();
    }
}

TEST(WelcomeIllustration, NothingChangesOutsideOfWhatIsPaintedAnew)
{
    constexpr int frames = 54;
    for (const double scale : {1.0, 1.3}) {
        const QRect area({0, 0}, (WelcomeScene::stageSize * scale).toSize());
        const auto picture = [&](const WelcomeScene &scene) {
            QImage image(area.size(), QImage::Format_RGB32);
            QPainter painter(&image);
            welcome_illustration::drawBackdrop(painter, area, scene.showsKey, QPalette());
            welcome_illustration::drawActors(painter, area, scene, QPalette(), QFont());
            return image;
        };
        for (const WelcomeStep step : allWelcomeSteps) {
            WelcomeScene before = welcome_scene::at(step, 0);
            QImage shown = picture(before);
            for (int i = 1; i <= frames; ++i) {
                const WelcomeScene now = welcome_scene::at(step, static_cast<double>(i) / frames);
                QImage next = picture(now);
                const QRegion changed = welcome_shapes::changed(area, before, now);
                QImage patched = shown;
                QPainter painter(&patched);
                painter.setClipRegion(changed);
                painter.drawImage(0, 0, next);
                painter.end();
                ASSERT_EQ(patched, next) << static_cast<int>(step) << ' ' << i;
                before = now;
                shown = next;
            }
        }
    }
}

TEST(WelcomeIllustration, AMomentThatIsLikeTheOneBeforeIsNotPaintedAnew)
{
    const WelcomeScene scene = welcome_scene::at(WelcomeStep::DragIn, 0.1);
    EXPECT_TRUE(welcome_shapes::changed({{0, 0}, WelcomeScene::stageSize}, scene, scene).isEmpty());
}

TEST(WelcomeShapes, TheStageStandsWholeInTheMiddleAtTheTop)
{
    const auto stage = [](const QRectF &area) {
        return welcome_shapes::stageIn(area).mapRect(QRectF({0, 0}, WelcomeScene::stageSize));
    };
    EXPECT_EQ(stage({0, 0, 1040, 320}), QRectF(260, 0, 520, 320));
    EXPECT_EQ(stage({10, 20, 260, 320}), QRectF(10, 20, 260, 160));
}

TEST(WelcomeScene, EndsWhereItBegins)
{
    for (const WelcomeStep step : {WelcomeStep::DragIn, WelcomeStep::DragOut}) {
        EXPECT_NEAR(welcome_scene::at(step, 0).shelf, welcome_scene::at(step, 1).shelf, 1e-9);
        EXPECT_NEAR(welcome_scene::at(step, 0).pointerOpacity, 0, 1e-9);
        EXPECT_NEAR(welcome_scene::at(step, 1).pointerOpacity, 0, 1e-9);
    }
    const WelcomeScene first = welcome_scene::at(WelcomeStep::Keep, 0);
    const WelcomeScene last = welcome_scene::at(WelcomeStep::Keep, 1);
    EXPECT_EQ(first.pointer, last.pointer);
    EXPECT_NEAR(last.key, 0, 1e-9);
}

TEST(WelcomeScene, WithShiftHeldTheItemStaysOnTheShelf)
{
    for (int percent = 0; percent <= 100; ++percent) {
        const WelcomeScene scene = welcome_scene::at(WelcomeStep::Keep, percent / 100.0);
        EXPECT_EQ(scene.cards.first().centre,
                  welcome_scene::at(WelcomeStep::Keep, 0).cards.first().centre);
        EXPECT_EQ(scene.cards.first().opacity, 1);
    }
}

TEST(WelcomeScene, NothingJumpsWhileItIsSeen)
{
    constexpr int steps = 500;
    constexpr double furthest = 16;
    for (const WelcomeStep which : allWelcomeSteps) {
        WelcomeScene before = welcome_scene::at(which, 0);
        for (int step = 1; step <= steps; ++step) {
            const double phase = static_cast<double>(step) / steps;
            const WelcomeScene now = welcome_scene::at(which, phase);
            EXPECT_LT((now.pointer - before.pointer).manhattanLength(), furthest) << phase;
            for (qsizetype i = 0; i < std::min(now.cards.size(), before.cards.size()); ++i)
                EXPECT_LT((now.cards[i].centre - before.cards[i].centre).manhattanLength(),
                          furthest)
                    << phase;
            before = now;
        }
    }
}

} // namespace corvane::test
