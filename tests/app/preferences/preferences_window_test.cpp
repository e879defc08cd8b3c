#include "app/look/text_label.h"
#include "app/preferences/about_pane.h"
#include "app/preferences/general_pane.h"
#include "app/preferences/number_picker.h"
#include "app/preferences/preferences_window_controller.h"
#include "app/preferences/shortcut_recorder_view.h"
#include "app/widget_hands.h"
#include "fakes/preferences_desk.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

#include <memory>

namespace corvane::test {

namespace {

class PreferencesWindowTest : public testing::Test {
protected:
    PreferencesWindowTest()
    {
        controller->onClose = [this] { ++closed; };
    }
    ~PreferencesWindowTest() override
    {
        controller.reset();
        deletePending();
    }

    ShellWindow &window() { return controller->window(); }
    bool shows(PreferencesTab tab)
    {
        const bool general = window().findChild<GeneralPane *>() != nullptr;
        const bool about = window().findChild<AboutPane *>() != nullptr;
        return tab == PreferencesTab::General ? general && !about : about && !general;
    }
    QRadioButton &tabButton(const char *title)
    {
        for (auto *button : window().findChildren<QRadioButton *>()) {
            if (button->text() == QString::fromUtf8(title))
                return *button;
        }
        throw std::runtime_error(title);
    }

    PreferencesDesk desk;
    std::unique_ptr<PreferencesWindowController> controller
        = std::make_unique<PreferencesWindowController>(desk.context());
    int closed = 0;
};

} // namespace

TEST(PreferencesTab, TheRawValuesNameTheTabsAndOthersNameNone)
{
    EXPECT_EQ(preferences_tab::rawValue(PreferencesTab::General), QStringLiteral("General"));
    EXPECT_EQ(preferences_tab::rawValue(PreferencesTab::About), QStringLiteral("About"));
    EXPECT_EQ(preferences_tab::fromRawValue(QStringLiteral("About")), PreferencesTab::About);
    EXPECT_FALSE(preferences_tab::fromRawValue(QStringLiteral("about")));
    EXPECT_FALSE(preferences_tab::fromRawValue({}));
}

TEST(TabSelection, BeginsWithGeneralAndTellsOfEachSetting)
{
    TabSelection selection;
    EXPECT_EQ(selection.tab(), PreferencesTab::General);
    int told = 0;
    selection.observe([&told] { ++told; });
    selection.setTab(PreferencesTab::About);
    EXPECT_EQ(told, 1);
}

TEST_F(PreferencesWindowTest, HasOneSizeAndItsTitle)
{
    window().present();
    EXPECT_EQ(window().size(), QSize(480, 560));
    EXPECT_EQ(window().minimumSize(), window().maximumSize());
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Corvane"));
    EXPECT_FALSE(window().windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_TRUE(window().windowFlags().testFlag(Qt::WindowCloseButtonHint));
}

TEST_F(PreferencesWindowTest, CarriesTheProgramsIcon)
{
    EXPECT_FALSE(window().windowIcon().pixmap(64).isNull());
}

TEST_F(PreferencesWindowTest, AskingForAboutSwitchesThePaneOfTheOpenWindow)
{
    window().present();
    EXPECT_TRUE(shows(PreferencesTab::General));
    controller->selection().setTab(PreferencesTab::About);
    EXPECT_TRUE(shows(PreferencesTab::About));
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(closed, 0);
    EXPECT_TRUE(tabButton("About").isChecked());
    EXPECT_FALSE(tabButton("General").isChecked());
}

TEST_F(PreferencesWindowTest, ATabsButtonSelectsIt)
{
    window().present();
    tabButton("About").click();
    EXPECT_EQ(controller->selection().tab(), PreferencesTab::About);
    EXPECT_TRUE(shows(PreferencesTab::About));
}

TEST_F(PreferencesWindowTest, AScreenReadersActionOnATabShowsItsPane)
{
    window().present();
    QAccessibleInterface *about = QAccessible::queryAccessibleInterface(&tabButton("About"));
    about->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(shows(PreferencesTab::About));
    about->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(shows(PreferencesTab::About)) << "there is no pane without a tab";
}

TEST_F(PreferencesWindowTest, TabComesToTheChosenTab)
{
    controller->selection().setTab(PreferencesTab::About);
    window().present();
    EXPECT_TRUE(tabButton("About").focusPolicy() & Qt::TabFocus);
    EXPECT_FALSE(tabButton("General").focusPolicy() & Qt::TabFocus);
}

TEST_F(PreferencesWindowTest, ClosingAndReopeningKeepsThePlaceAndTellsOncePerClose)
{
    window().present();
    window().move(37, 41);
    window().close();
    EXPECT_EQ(closed, 1);
    EXPECT_FALSE(window().isVisible());
    window().present();
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().pos(), QPoint(37, 41));
    window().close();
    EXPECT_EQ(closed, 2);
}

TEST_F(PreferencesWindowTest, TheSelectedTabSurvivesClosing)
{
    window().present();
    controller->selection().setTab(PreferencesTab::About);
    window().close();
    window().present();
    EXPECT_TRUE(shows(PreferencesTab::About));
}

TEST_F(PreferencesWindowTest, ReopeningReadsTheSettingsAnew)
{
    window().present();
    window().close();
    desk.settings.setInViewCount(4);
    window().present();
    EXPECT_EQ(window().findChild<NumberPicker *>()->number(), 4);
}

TEST_F(PreferencesWindowTest, TheCallbackMayDropTheController)
{
    controller->onClose = [this] { controller.reset(); };
    window().present();
    window().close();
    EXPECT_EQ(controller, nullptr);
}

TEST_F(PreferencesWindowTest, AClosedWindowThatItsOwnerLetGoOfTakesNoMoreInput)
{
    // They outlive the window here; otherwise they would go with its owner.
    TabSelection selection;
    ShellWindow::Pointer<PreferencesWindow> owned;
    owned.reset(new PreferencesWindow(desk.context(), selection, [&] { owned.reset(); }));
    const QPointer<PreferencesWindow> left(owned.get());
    const auto tabs = left->findChildren<QRadioButton *>();
    const auto about = std::ranges::find(tabs, QStringLiteral("About"), &QRadioButton::text);
    ASSERT_NE(about, tabs.end());
    owned->present();
    typeKey(*left, Qt::Key_Escape);
    ASSERT_EQ(owned, nullptr);
    ASSERT_TRUE(left) << "the keys that came with Escape still arrive";

    typeKey(*left, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(selection.tab(), PreferencesTab::General);
    clickInto(**about);
    (*about)->click();
    EXPECT_EQ(selection.tab(), PreferencesTab::General);
    typeKey(*left->findChild<ShortcutRecorderView *>(), Qt::Key_Space);
    clickInto(*left->findChild<ShortcutRecorderView *>());
    EXPECT_EQ(desk.keyMonitors.monitorCount(), 0U);
    left->close();
    deletePending();
    EXPECT_FALSE(left);
}

TEST_F(PreferencesWindowTest, KeysThatComeWithTheOneThatClosesItReachNothingThatIsGone)
{
    controller->onClose = [this] { controller.reset(); };
    const QPointer<ShellWindow> left(&window());
    window().present();
    typeKey(*left, Qt::Key_Escape);
    ASSERT_EQ(controller, nullptr);
    typeKey(*left, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(left->findChild<AboutPane *>(), nullptr);
}

TEST_F(PreferencesWindowTest, AHeldKeyClosesNothing)
{
    window().present();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, {}, QString(), true);
    QCoreApplication::sendEvent(&window(), &held);
    EXPECT_EQ(closed, 0);
    EXPECT_TRUE(window().isVisible());
}

TEST_F(PreferencesWindowTest, EscapeAndControlWClose)
{
    window().present();
    typeKey(window(), Qt::Key_Escape);
    EXPECT_EQ(closed, 1);
    window().present();
    typeKey(window(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(closed, 2);
}

TEST_F(PreferencesWindowTest, ControlTabGoesRoundTheTabs)
{
    window().present();
    typeKey(window(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(shows(PreferencesTab::About));
    typeKey(window(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(shows(PreferencesTab::General));
    typeKey(window(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(shows(PreferencesTab::About));
}

TEST_F(PreferencesWindowTest, ClosingWhileRecordingRemovesTheMonitor)
{
    window().present();
    window().findChild<ShortcutRecorderView *>()->toggleRecording();
    EXPECT_EQ(desk.keyMonitors.monitorCount(), 1U);
    window().close();
    EXPECT_EQ(desk.keyMonitors.monitorCount(), 0U);
}

TEST_F(PreferencesWindowTest, AboutNamesTheProgramItsVersionAndItsLinks)
{
    controller->selection().setTab(PreferencesTab::About);
    QStringList texts;
    const auto labels = window().findChildren<TextLabel *>();
    for (const auto *label : labels)
        texts << label->text();
    EXPECT_EQ(texts.value(0), QStringLiteral("Corvane"));
    EXPECT_EQ(texts.value(1), QStringLiteral("Version 1.2 (34)"));
    EXPECT_EQ(labels[1]->focusPolicy(), Qt::ClickFocus) << "it is copied from, and Tab passes it";
    for (auto *link : window().findChildren<QPushButton *>())
        link->click();
    EXPECT_EQ(desk.services.opened,
              (QList<QUrl>{QUrl(QStringLiteral("https://corvane.example/")),
                           QUrl(QStringLiteral("mailto:support@corvane.example"))}));
}

TEST_F(PreferencesWindowTest, TextsFollowAPaletteThatChangesWhileItIsOpen)
{
    window().present();
    const auto *detail = window().findChildren<TextLabel *>().at(2);
    QPalette dark(QColor(40, 40, 44));
    dark.setColor(QPalette::WindowText, Qt::white);
    window().setPalette(dark);
    EXPECT_GT(detail->palette().color(QPalette::WindowText).lightness(), 128);
}

} // namespace corvane::test
