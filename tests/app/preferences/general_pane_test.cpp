#include "app/base/session_texts.h"
#include "app/look/action_button.h"
#include "app/look/text_label.h"
#include "app/preferences/clear_button.h"
#include "app/preferences/general_pane.h"
#include "app/preferences/number_picker.h"
#include "app/preferences/preference_section.h"
#include "app/preferences/setting_row.h"
#include "app/preferences/shortcut_recorder_view.h"
#include "app/preferences/shortcut_row.h"
#include "app/preferences/switch_button.h"
#include "app/widget_hands.h"
#include "fakes/fake_updater.h"
#include "fakes/lacking_abilities.h"
#include "fakes/preferences_desk.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QLayout>
#include <QRadioButton>

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

namespace corvane::test {

namespace {

const auto needsText = QStringLiteral("Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.");
const auto unsetText = QStringLiteral("Unset by default. ↓ on the shelf does the same thing.");
const auto conflictText = QStringLiteral("Another app already uses that combination.");
constexpr KeyPosition keyA = KeyPosition::A;
constexpr KeyPosition keyB{11};

UpdateReport failed(UpdateFailure why)
{
    UpdateReport report{UpdateReport::Stage::Failed};
    report.failure = why;
    return report;
}

class GeneralPaneTest : public testing::Test {
protected:
    GeneralPane &pane()
    {
        if (!m_pane)
            m_pane.emplace(desk.context());
        return *m_pane;
    }
    SettingRow &row(const char *title)
    {
        for (SettingRow *row : pane().findChildren<SettingRow *>()) {
            if (row->title() == QString::fromUtf8(title))
                return *row;
        }
        throw std::runtime_error(title);
    }
    SwitchButton &switchOf(const char *title)
    {
        return *named<SwitchButton>(pane(), QString::fromUtf8(title));
    }
    NumberPicker &picker() { return *pane().findChild<NumberPicker *>(); }
    void pick(int number) { pickButton(number)->click(); }
    QAbstractButton *pickButton(int number)
    {
        for (auto *button : picker().findChildren<QAbstractButton *>()) {
            if (button->text() == QString::number(number))
                return button;
        }
        return nullptr;
    }
    SettingRow &shelfRow() { return row("Show or hide the shelf"); }
    SettingRow &viewAllRow() { return row("Show or hide all items"); }
    void record(QWidget &shortcutRow, KeyPosition key, const char *letter)
    {
        shortcutRow.findChild<ShortcutRecorderView *>()->toggleRecording();
        desk.keyMonitors.type(key, Modifier::Control, QString::fromUtf8(letter));
    }

    PreferencesDesk desk;

private:
    std::optional<GeneralPane> m_pane;
};

} // namespace

TEST_F(GeneralPaneTest, AStoredInViewCountOfZeroShowsAsOne)
{
    desk.defaults.setRaw(QStringLiteral("settings.inViewCount"), 0);
    EXPECT_EQ(picker().number(), 1);
}

TEST_F(GeneralPaneTest, AStoredInViewCountOfNineShowsAsSix)
{
    desk.defaults.setRaw(QStringLiteral("settings.inViewCount"), 9);
    EXPECT_EQ(picker().number(), 6);
    EXPECT_EQ(row("Items in view").detail(),
              QStringLiteral("6 thumbnails at once, with arrows for the rest."));
}

TEST_F(GeneralPaneTest, ChoosingOneSaysOneAtATimeAndChoosingTwoSaysTheCount)
{
    pick(2);
    EXPECT_EQ(desk.settings.inViewCount(), 2);
    EXPECT_EQ(row("Items in view").detail(),
              QStringLiteral("2 thumbnails at once, with arrows for the rest."));
    pick(1);
    EXPECT_EQ(desk.settings.inViewCount(), 1);
    EXPECT_EQ(row("Items in view").detail(),
              QStringLiteral("One at a time. Use the arrows to page through the rest."));
}

TEST_F(GeneralPaneTest, EachChoiceTellsTheShelfToLayItselfOutOnce)
{
    pane();
    int layouts = 0;
    desk.settings.observeLayout([&layouts] { ++layouts; });
    pick(4);
    EXPECT_EQ(layouts, 1);
}

TEST_F(GeneralPaneTest, MakingThePaneWritesNothing)
{
    desk.defaults.setRaw(QStringLiteral("settings.inViewCount"), 9);
    const QVariantMap before = desk.defaults.stored;
    pane();
    EXPECT_EQ(desk.defaults.stored, before);
    EXPECT_EQ(desk.hotKeys.registrationCount(), 0U);
}

TEST_F(GeneralPaneTest, TheSwitchesShowTheSettingsAndWriteThemAtOnce)
{
    desk.settings.setLinkPreviews(false);
    EXPECT_TRUE(switchOf("Open the shelf when a drag begins").isChecked());
    EXPECT_FALSE(switchOf("Show previews for dropped links").isChecked());
    EXPECT_FALSE(switchOf("Keep items when Corvane ends").isChecked());
    EXPECT_TRUE(switchOf("Check for updates automatically").isChecked());
    switchOf("Open the shelf when a drag begins").click();
    switchOf("Show previews for dropped links").click();
    switchOf("Keep items when Corvane ends").click();
    switchOf("Check for updates automatically").click();
    EXPECT_FALSE(desk.settings.autoShowOnDrag());
    EXPECT_TRUE(desk.settings.linkPreviews());
    EXPECT_TRUE(desk.settings.keepItems());
    EXPECT_FALSE(desk.settings.autoCheckUpdates());
}

TEST_F(GeneralPaneTest, TheLoginSwitchShowsWhatTheServiceSaysAndChangesIt)
{
    desk.loginItems.registered = true;
    EXPECT_TRUE(switchOf("Launch at login").isChecked());
    switchOf("Launch at login").click();
    EXPECT_FALSE(desk.loginItems.registered);
}

TEST_F(GeneralPaneTest, ALoginChangeThatFailsIsLoggedAndTheSwitchShowsWhatWasAsked)
{
    static QStringList lines;
    lines.clear();
    desk.loginItems.error = QStringLiteral("no room");
    pane();
    const auto before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &line) { lines << line; });
    switchOf("Launch at login").click();
    qInstallMessageHandler(before);
    EXPECT_EQ(lines,
              QStringList{QStringLiteral("[Corvane] Launch at login change failed: no room")});
    EXPECT_TRUE(switchOf("Launch at login").isChecked());
}

TEST_F(GeneralPaneTest, ClearingTheShelfShortcutKeepsItsUsualText)
{
    desk.binder.bindShelf();
    auto *clear = shelfRow().findChild<ClearButton *>();
    EXPECT_TRUE(clear->isEnabled());
    clear->click();
    EXPECT_FALSE(desk.settings.shortcut());
    EXPECT_EQ(desk.hotKeys.registrationCount(), 0U);
    EXPECT_EQ(shelfRow().detail(), needsText);
    EXPECT_FALSE(clear->isEnabled());
}

TEST_F(GeneralPaneTest, ATakenCombinationIsSaidAndAFreeOneRestoresTheText)
{
    desk.hotKeys.takenByOthers.insert({keyA, Shortcut::control});
    record(shelfRow(), keyA, "a");
    EXPECT_EQ(shelfRow().detail(), conflictText);
    EXPECT_TRUE(shelfRow().findChild<ShortcutRecorderView *>()->hasConflict());
    // What was tried stays to be seen.
    EXPECT_EQ(desk.settings.shortcut()->keyCode, keyA);
    record(shelfRow(), keyB, "b");
    EXPECT_EQ(shelfRow().detail(), needsText);
    EXPECT_FALSE(shelfRow().findChild<ShortcutRecorderView *>()->hasConflict());
    EXPECT_TRUE(desk.hotKeys.isRegistered({keyB, Shortcut::control}));
}

TEST_F(GeneralPaneTest, ARefusalIsSaidEachTimeThatSomethingWasRecorded)
{
    desk.hotKeys.takenByOthers.insert({keyA, Shortcut::control});
    desk.hotKeys.takenByOthers.insert({keyB, Shortcut::control});
    pane().show();
    ASSERT_TRUE(activate(pane()));
    record(shelfRow(), keyA, "a");
    EXPECT_EQ(desk.announced.count(conflictText), 1);
    record(shelfRow(), keyB, "b");
    EXPECT_EQ(desk.announced.count(conflictText), 2);
    desk.binder.retryRefused();
    EXPECT_EQ(desk.announced.count(conflictText), 2) << "nothing has changed";
    desk.hotKeys.takenByOthers.clear();
    desk.binder.retryRefused();
    EXPECT_EQ(desk.announced.value(desk.announced.size() - 1), conflictText)
        << "that it works is seen by using it";
}

TEST_F(GeneralPaneTest, WhatWasRefusedBeforeItIsShownIsNotSaidAtOnce)
{
    desk.hotKeys.takenByOthers.insert({KeyPosition::D, Shortcut::command | Shortcut::shift});
    desk.binder.bindShelf();
    EXPECT_EQ(shelfRow().detail(), conflictText);
    pane().show();
    EXPECT_EQ(desk.announced, QStringList()) << "the field has it as its description";
}

TEST_F(GeneralPaneTest, ACombinationThatIsFreedWhileThePaneIsOpenIsShownToBeBound)
{
    desk.hotKeys.takenByOthers.insert({keyA, Shortcut::control});
    record(shelfRow(), keyA, "a");
    ASSERT_EQ(shelfRow().detail(), conflictText);
    desk.hotKeys.takenByOthers.clear();
    desk.binder.retryRefused();
    EXPECT_EQ(shelfRow().detail(), needsText);
    EXPECT_FALSE(shelfRow().findChild<ShortcutRecorderView *>()->hasConflict());
}

TEST_F(GeneralPaneTest, AStoredCombinationThatTypesACharacterIsNotSaidToBeTaken)
{
    desk.settings.setShortcut(Shortcut{keyA, Shortcut::shift, QStringLiteral("A")});
    desk.binder.bindShelf();
    EXPECT_EQ(shelfRow().detail(),
              QStringLiteral("That combination types a character. Record one with ⌘, ⌥ or ⌃."));
    EXPECT_TRUE(shelfRow().findChild<ShortcutRecorderView *>()->hasConflict());
}

TEST_F(GeneralPaneTest, TheDesktopsLaterAnswerIsShownWhenItComes)
{
    const FakeHotKeys::Combination wanted = {KeyPosition::D, Shortcut::command | Shortcut::shift};
    desk.hotKeys.firstAnswer = ShortcutOutcome::pending();
    desk.binder.bindShelf();
    EXPECT_EQ(shelfRow().detail(), QStringLiteral("Your desktop has not answered yet."));
    desk.hotKeys.answer(wanted, ShortcutOutcome::bound(QStringLiteral("Meta+D")));
    EXPECT_EQ(shelfRow().detail(), QStringLiteral("Your desktop has bound it to Meta+D."));
    EXPECT_FALSE(shelfRow().findChild<ShortcutRecorderView *>()->hasConflict());
    desk.hotKeys.answer(wanted, ShortcutOutcome::refused());
    EXPECT_EQ(shelfRow().detail(), conflictText);
    EXPECT_TRUE(shelfRow().findChild<ShortcutRecorderView *>()->hasConflict());
    desk.hotKeys.answer(wanted, ShortcutOutcome::bound());
    EXPECT_EQ(shelfRow().detail(), needsText);
}

TEST_F(GeneralPaneTest, TheDesktopsWordsAreMadeFitToBeShown)
{
    desk.hotKeys.firstAnswer = ShortcutOutcome::bound(QStringLiteral("Meta\n\u202eD"));
    desk.binder.bindShelf();
    EXPECT_EQ(shelfRow().detail(), QStringLiteral("Your desktop has bound it to Meta \ufffdD."));
}

TEST_F(GeneralPaneTest, WhereTheDesktopKeepsShortcutsThereIsACommandInsteadOfARecorder)
{
    desk.hotKeys.firstAnswer = ShortcutOutcome::setInDesktop(QStringLiteral("corvane --toggle"));
    desk.binder.bindShelf();
    desk.abilities.become(
        {.shortcutChoice = {ShortcutChoice::InTheDesktop, Reason::KeptByDesktop}});
    EXPECT_EQ(shelfRow().detail(),
              QStringLiteral("Bind a key to this command in your desktop's settings: corvane "
                             "--toggle"));
    const auto canRecord = [this] {
        return shelfRow().findChild<ShortcutRecorderView *>()->isVisibleTo(&pane())
            && shelfRow().findChild<ClearButton *>()->isVisibleTo(&pane());
    };
    EXPECT_FALSE(canRecord());
    desk.abilities.become({});
    EXPECT_TRUE(canRecord());
}

TEST_F(GeneralPaneTest, TheCommandOrItsLineCanBeCopied)
{
    const auto copied = [this](const ShortcutOutcome &outcome) {
        dynamic_cast<ShortcutRow &>(shelfRow()).setOutcome(outcome);
        auto *const copy = shelfRow().findChild<ActionButton *>();
        EXPECT_EQ(copy->isVisibleTo(&shelfRow()),
                  outcome.kind == ShortcutOutcome::Kind::SetInDesktop);
        QGuiApplication::clipboard()->clear();
        desk.announced.clear();
        copy->click();
        EXPECT_EQ(desk.announced, QStringList{QStringLiteral("Text copied")})
            << "nothing else tells that the button has done something";
        return QGuiApplication::clipboard()->text();
    };
    const auto command = QStringLiteral("corvane");
    const auto line = QStringLiteral("bindsym Mod4+d exec corvane");
    EXPECT_EQ(copied(ShortcutOutcome::setInDesktop(command)), command);
    EXPECT_EQ(copied(ShortcutOutcome::setInDesktop(command, line)), line);
    EXPECT_EQ(shelfRow().detail(),
              QStringLiteral("Add this line to your desktop's settings: ") + line);
    EXPECT_EQ(copied(ShortcutOutcome::bound()), QString());
}

TEST_F(GeneralPaneTest, WithoutAShortcutTheCommandIsSaidWhereKeysAreBoundToCommands)
{
    desk.hotKeys.withoutKeys = ShortcutOutcome::setInDesktop(QStringLiteral("corvane-all"));
    EXPECT_EQ(row("Show or hide all items").detail(),
              QStringLiteral("Bind a key to this command in your desktop's settings: corvane-all"));
    desk.hotKeys.withoutKeys = {};
    desk.abilities.become({.drags = {Drags::AtTheEdge, Reason::KeptByDesktop}});
    EXPECT_EQ(row("Show or hide all items").detail(),
              QStringLiteral("Unset by default. ↓ on the shelf does the same thing."))
        << "with the abilities it may change who binds keys";
}

TEST_F(GeneralPaneTest, ClearingATakenCombinationRestoresTheText)
{
    desk.hotKeys.takenByOthers.insert({keyA, Shortcut::control});
    record(viewAllRow(), keyA, "a");
    EXPECT_EQ(viewAllRow().detail(), conflictText);
    viewAllRow().findChild<ClearButton *>()->click();
    EXPECT_EQ(viewAllRow().detail(), unsetText);
}

TEST_F(GeneralPaneTest, BothShortcutsAreBoundAnew)
{
    desk.binder.bindShelf();
    record(viewAllRow(), keyA, "a");
    EXPECT_EQ(desk.hotKeys.unregistrations, 1);
    record(shelfRow(), keyB, "b");
    EXPECT_EQ(desk.hotKeys.unregistrations, 3);
    EXPECT_EQ(desk.hotKeys.registrationCount(), 2U);
    EXPECT_EQ(shelfRow().detail(), needsText);
}

TEST_F(GeneralPaneTest, OfTwoEqualCombinationsTheOtherOneIsRegisteredWhenOneIsCleared)
{
    record(shelfRow(), keyA, "a");
    record(viewAllRow(), keyA, "a");
    EXPECT_EQ(shelfRow().detail(), needsText);
    EXPECT_EQ(viewAllRow().detail(), conflictText);
    shelfRow().findChild<ClearButton *>()->click();
    EXPECT_TRUE(desk.hotKeys.isRegistered({keyA, Shortcut::control}));
    EXPECT_EQ(viewAllRow().detail(), unsetText);

    record(shelfRow(), keyA, "a");
    EXPECT_EQ(shelfRow().detail(), conflictText) << "the other one keeps it";
    EXPECT_EQ(viewAllRow().detail(), unsetText);
    viewAllRow().findChild<ClearButton *>()->click();
    EXPECT_TRUE(desk.hotKeys.isRegistered({keyA, Shortcut::control}));
    EXPECT_EQ(shelfRow().detail(), needsText);
    EXPECT_FALSE(shelfRow().findChild<ShortcutRecorderView *>()->hasConflict());
}

TEST_F(GeneralPaneTest, OfTwoEqualCombinationsTheOtherOneIsRegisteredWhenOneIsReplaced)
{
    record(viewAllRow(), keyA, "a");
    record(shelfRow(), keyA, "a");
    record(viewAllRow(), keyB, "b");
    EXPECT_EQ(desk.hotKeys.registrationCount(), 2U);
    EXPECT_EQ(shelfRow().detail(), needsText);
}

TEST_F(GeneralPaneTest, ACombinationThatWasRefusedAtLaunchIsSaidToBeTaken)
{
    desk.hotKeys.takenByOthers.insert({KeyPosition::D, Shortcut::command | Shortcut::shift});
    desk.binder.bindShelf();
    desk.binder.bindViewAll();
    EXPECT_EQ(shelfRow().detail(), conflictText);
    EXPECT_TRUE(shelfRow().findChild<ShortcutRecorderView *>()->hasConflict());
    EXPECT_EQ(viewAllRow().detail(), unsetText);
}

TEST_F(GeneralPaneTest, ACombinationThatHasBecomeFreeSinceIsTaken)
{
    desk.hotKeys.takenByOthers.insert({KeyPosition::D, Shortcut::command | Shortcut::shift});
    desk.binder.bindShelf();
    desk.hotKeys.takenByOthers.clear();
    EXPECT_EQ(shelfRow().detail(), needsText);
    EXPECT_TRUE(desk.hotKeys.isRegistered({KeyPosition::D, Shortcut::command | Shortcut::shift}));
}

TEST_F(GeneralPaneTest, ConflictsOutliveThePane)
{
    desk.hotKeys.takenByOthers.insert({keyA, Shortcut::control});
    record(shelfRow(), keyA, "a");
    const GeneralPane next(desk.context());
    int conflicts = 0;
    for (const auto *row : next.findChildren<SettingRow *>())
        conflicts += row->detail() == conflictText ? 1 : 0;
    EXPECT_EQ(conflicts, 1);
}

TEST_F(GeneralPaneTest, WithoutAShortcutTheClearButtonIsDisabled)
{
    const auto *clear = viewAllRow().findChild<ClearButton *>();
    EXPECT_FALSE(clear->isEnabled());
    EXPECT_EQ(clear->toolTip(), QStringLiteral("Clear the shortcut"));
}

TEST_F(GeneralPaneTest, WithoutAnUpdaterCheckNowIsDisabledAndSaysWhy)
{
    const auto *button = row("Check for updates automatically").findChild<QPushButton *>();
    EXPECT_FALSE(button->isEnabled());
    EXPECT_FALSE(button->toolTip().isEmpty());
}

TEST_F(GeneralPaneTest, WhereOthersKeepTheProgramUpToDateItSaysSo)
{
    desk.isKeptUpToDateByOthers = true;
    const QString detail = row("Check for updates automatically").detail();
    EXPECT_EQ(detail, QStringLiteral("Your system's software manager keeps Corvane up to date."));
    const auto *button = row("Check for updates automatically").findChild<QPushButton *>();
    EXPECT_FALSE(button->isEnabled());
    EXPECT_EQ(button->toolTip(), detail);
}

TEST_F(GeneralPaneTest, TheUpdaterFollowsTheSwitchAndChecksWhenAsked)
{
    FakeUpdater updater;
    desk.updater = &updater;
    auto &updates = row("Check for updates automatically");
    EXPECT_EQ(updates.detail(), QString());
    EXPECT_FALSE(updater.automatic);
    switchOf("Check for updates automatically").click();
    EXPECT_EQ(updater.automatic, false);
    updates.findChild<QPushButton *>()->click();
    EXPECT_EQ(updater.checks, 1);
}

TEST_F(GeneralPaneTest, WhatIsWrongWithUpdatesStandsBesideTheirSwitchAsLongAsItIs)
{
    FakeUpdater updater;
    desk.updater = &updater;
    updater.wrong.set(failed(UpdateFailure::Unverifiable));
    auto &updates = row("Check for updates automatically");
    EXPECT_TRUE(updates.detail().contains(QStringLiteral("cannot verify")));
    updater.wrong.set(failed(UpdateFailure::WentBack));
    EXPECT_TRUE(updates.detail().contains(QStringLiteral("keeping news from you")));
    updater.wrong.set(std::nullopt);
    EXPECT_EQ(updates.detail(), QString());
}

TEST_F(GeneralPaneTest, WhatBecomesWrongWithUpdatesWhileThePaneIsOpenIsSaidOnce)
{
    FakeUpdater updater;
    desk.updater = &updater;
    updater.wrong.set(failed(UpdateFailure::Unverifiable));
    pane();
    updater.wrong.set(failed(UpdateFailure::WentBack));
    EXPECT_EQ(desk.announced, QStringList()) << "the switch has it as its description";
    pane().show();
    updater.wrong.set(failed(UpdateFailure::Expired));
    EXPECT_EQ(desk.announced, QStringList{row("Check for updates automatically").detail()});
    updater.wrong.set(std::nullopt);
    EXPECT_EQ(desk.announced.size(), 1) << "that nothing is wrong any more is no news";
}

TEST_F(GeneralPaneTest, BetasAreThereForThoseWhoChooseThem)
{
    FakeUpdater updater;
    desk.updater = &updater;
    EXPECT_FALSE(switchOf("Offer beta versions too").isChecked());
    switchOf("Offer beta versions too").click();
    EXPECT_TRUE(desk.settings.betaUpdates());
}

TEST_F(GeneralPaneTest, WithoutAnUpdaterThereIsNothingToChooseOf)
{
    EXPECT_THROW(row("Offer beta versions too"), std::runtime_error);
}

TEST_F(GeneralPaneTest, SettingsThatCannotBeKeptAreSaidAndStillWork)
{
    desk.defaults.kept = false;
    const auto labels = pane().findChildren<TextLabel *>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const TextLabel *label) {
        return label->text().contains(QStringLiteral("not kept"));
    }));
    pick(5);
    EXPECT_EQ(desk.settings.inViewCount(), 5);
}

TEST_F(GeneralPaneTest, SaysWhatTheSessionLacksAsLongAsItLacksIt)
{
    const auto says = [this](const QString &text) {
        const auto labels = pane().findChildren<TextLabel *>();
        return std::ranges::any_of(labels, [&](const TextLabel *label) {
            return label->text() == text && label->isVisibleTo(&pane());
        });
    };
    const auto roomAboveTheSettings = [this] {
        pane().layout()->activate();
        return pane().findChild<PreferenceSection *>()->y();
    };
    EXPECT_EQ(roomAboveTheSettings(), 0);
    const Abilities lacking = lackingAbilities(Reason::ServerLacksExtensions);
    const QStringList limits = session_texts::limits(lacking);
    ASSERT_EQ(limits.size(), 5);
    for (const QString &limit : limits)
        EXPECT_FALSE(says(limit));
    desk.abilities.become(lacking);
    for (const QString &limit : limits)
        EXPECT_TRUE(says(limit)) << limit.toStdString();
    EXPECT_GT(roomAboveTheSettings(), 0);
    Abilities better = lacking;
    better.drags = {};
    desk.abilities.become(better);
    EXPECT_FALSE(says(limits[0]));
    EXPECT_TRUE(says(limits[1]));
    desk.abilities.become({});
    EXPECT_FALSE(says(limits[1]));
    EXPECT_EQ(roomAboveTheSettings(), 0);
}

TEST_F(GeneralPaneTest, EveryControlHasANameAndADescription)
{
    const auto controls = pane().findChildren<QAbstractButton *>();
    EXPECT_GE(controls.size(), 8);
    for (const auto *control : controls) {
        const QString name = control->accessibleName() + control->text();
        EXPECT_FALSE(name.isEmpty());
        EXPECT_FALSE(control->accessibleDescription().isEmpty()) << name.toStdString();
    }
}

TEST_F(GeneralPaneTest, ANumberSaysWhatItMeansAndItsGroupWhatItIsFor)
{
    EXPECT_EQ(picker().accessibleName(), QStringLiteral("Items in view"));
    EXPECT_EQ(pickButton(1)->accessibleDescription(), row("Items in view").detail());
    pick(2);
    EXPECT_EQ(pickButton(2)->accessibleDescription(),
              QStringLiteral("2 thumbnails at once, with arrows for the rest."));
}

/// Screen readers read labels when the window opens, and once more with their group.
TEST_F(GeneralPaneTest, TextsThatAControlSaysAreNoLabels)
{
    const auto roleOf
        = [](QWidget *widget) { return QAccessible::queryAccessibleInterface(widget)->role(); };
    const auto texts = row("Launch at login").findChildren<TextLabel *>();
    ASSERT_EQ(texts.size(), 2);
    for (TextLabel *text : texts) {
        EXPECT_EQ(roleOf(text), QAccessible::Paragraph) << text->text().toStdString();
        EXPECT_EQ(QAccessible::queryAccessibleInterface(text)->text(QAccessible::Name),
                  text->text());
    }
    EXPECT_EQ(switchOf("Launch at login").accessibleDescription(), texts[1]->text());
    for (TextLabel *heading : pane().findChildren<TextLabel *>()) {
        const bool isInRow = qobject_cast<SettingRow *>(heading->parentWidget()) != nullptr;
        EXPECT_EQ(roleOf(heading), isInRow ? QAccessible::Paragraph : QAccessible::StaticText)
            << heading->text().toStdString();
    }
}

TEST_F(GeneralPaneTest, TextsOfAShortcutThatIsNotChosenHereAreLabels)
{
    const auto roleOfTitle = [this] {
        auto *const title = shelfRow().findChildren<TextLabel *>().constFirst();
        return QAccessible::queryAccessibleInterface(title)->role();
    };
    EXPECT_EQ(roleOfTitle(), QAccessible::Paragraph);
    desk.abilities.become(lackingAbilities(Reason::KeptByDesktop));
    EXPECT_EQ(roleOfTitle(), QAccessible::StaticText) << "there is no control";
    desk.hotKeys.firstAnswer = ShortcutOutcome::setInDesktop(QStringLiteral("corvane --toggle"));
    desk.binder.bindShelf();
    EXPECT_EQ(roleOfTitle(), QAccessible::Paragraph) << "the command can be copied";
}

TEST_F(GeneralPaneTest, TabComesToTheChosenNumberAndPassesTheOthers)
{
    desk.settings.setInViewCount(4);
    pane().show();
    ASSERT_TRUE(activate(pane()));
    typeKey(pane(), Qt::Key_Tab);
    const QWidget *const first = pane().focusWidget();
    QStringList passed;
    do {
        typeKey(pane(), Qt::Key_Tab);
        if (const auto *number = qobject_cast<QRadioButton *>(pane().focusWidget()))
            passed << number->text();
    } while (pane().focusWidget() != first);
    EXPECT_EQ(passed, QStringList{QStringLiteral("4")});
    pick(2);
    EXPECT_FALSE(pickButton(4)->focusPolicy() & Qt::TabFocus);
    EXPECT_TRUE(pickButton(2)->focusPolicy() & Qt::TabFocus);
}

TEST_F(GeneralPaneTest, NumbersAreChosenWithTheArrowKeys)
{
    pane().show();
    ASSERT_TRUE(activate(pane()));
    pickButton(1)->setFocus();
    typeKey(pane(), Qt::Key_Right);
    EXPECT_EQ(desk.settings.inViewCount(), 2);
}

} // namespace corvane::test
