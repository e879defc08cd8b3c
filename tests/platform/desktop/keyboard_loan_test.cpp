#include "fakes/fake_keyboard_focus.h"
#include "fakes/test_clock.h"
#include "platform/desktop/keyboard_loan.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace corvane::test {

namespace {

constexpr WindowNumber shelf{10};
constexpr WindowNumber bar{11};
/// A program's window, and the one inside of it that it passes the keyboard on to.
constexpr WindowNumber program{20};
constexpr WindowNumber field{21};
constexpr WindowNumber stranger{30};
/// A window of ours that the window manager knows.
constexpr WindowNumber preview{40};

constexpr NativeKey escape{9};
constexpr std::uint32_t controlBit = 4;

class KeyboardLoanTest : public testing::Test {
protected:
    KeyboardLoanTest()
    {
        focus.focused = field;
        focus.active = program;
        loan->join(shelf);
        loan->join(bar);
        loan->shown(shelf);
    }

    void lendToShelf()
    {
        loan->wantedByHand(shelf);
        // Our windows are none of the window manager's.
        focus.active = WindowNumber::None;
    }
    /// A drag out of the shelf, which is let go.
    void drag(DragOperation promised)
    {
        loan->pressed();
        loan->wantedByHand(shelf);
        loan->dragLetGo(promised);
    }
    /// Opened from the shelf, as the user sees it.
    void openPreview()
    {
        lendToShelf();
        loan->windowOpens();
        focus.focused = focus.active = preview;
    }
    void closePreview()
    {
        loan->windowWillHide(preview);
        loan->windowHidden();
    }
    void waitForClick() { clock.advance(KeyboardLoan::clickPatience); }

    FakeKeyboardFocus focus;
    TestClock clock;
    std::optional<KeyboardLoan> loan{std::in_place, focus, clock};
};

} // namespace

TEST_F(KeyboardLoanTest, goesBackToItsOwnerWhenThePanelHides)
{
    lendToShelf();
    EXPECT_EQ(focus.focused, shelf);
    loan->willHide(shelf);
    ASSERT_EQ(focus.givenBack.size(), 1U);
    EXPECT_EQ(focus.givenBack[0].focused, field);
    EXPECT_EQ(focus.givenBack[0].active, program);
}

TEST_F(KeyboardLoanTest, goesBackOnceAPanelResigns)
{
    lendToShelf();
    loan->resigned(shelf);
    EXPECT_EQ(focus.focused, field);
    loan->willHide(shelf);
    EXPECT_EQ(focus.givenBack.size(), 1U);
}

TEST_F(KeyboardLoanTest, goesBackToTheProgramHoweverManyPanelsHadIt)
{
    lendToShelf();
    loan->shown(bar);
    loan->wantedByHand(bar);
    EXPECT_EQ(focus.focused, bar);
    loan->willHide(shelf);
    EXPECT_EQ(focus.focused, bar) << "the shelf did not have it any more";
    loan->willHide(bar);
    EXPECT_EQ(focus.focused, field);
}

TEST_F(KeyboardLoanTest, isTakenFromNobodyElseWhenAPanelHidesOrResigns)
{
    lendToShelf();
    focus.focused = stranger;
    loan->resigned(shelf);
    loan->willHide(shelf);
    EXPECT_EQ(focus.focused, stranger);
    EXPECT_TRUE(focus.givenBack.empty());
}

TEST_F(KeyboardLoanTest, isNotGivenToAHiddenPanel)
{
    loan->wantedByHand(bar);
    focus.focused = WindowNumber::None;
    loan->wantedAmongPanels(bar);
    EXPECT_EQ(focus.focused, WindowNumber::None);
    focus.focused = bar;
    loan->resigned(bar);
    EXPECT_TRUE(focus.givenBack.empty());
}

TEST_F(KeyboardLoanTest, amongPanelsIsTakenFromPanelsAndFromNobody)
{
    loan->shown(bar);
    loan->wantedAmongPanels(bar);
    EXPECT_EQ(focus.focused, field);
    lendToShelf();
    loan->wantedAmongPanels(bar);
    EXPECT_EQ(focus.focused, bar);
    focus.focused = WindowNumber::None;
    loan->wantedAmongPanels(shelf);
    EXPECT_EQ(focus.focused, shelf);
}

TEST_F(KeyboardLoanTest, isWhereTheUserClickedOnceTheyWentOn)
{
    lendToShelf();
    loan->userWentOn(shelf);
    loan->willHide(shelf);
    EXPECT_EQ(focus.focused, shelf) << "the click is not done yet";
    focus.focused = stranger;
    waitForClick();
    EXPECT_EQ(focus.focused, stranger);
}

TEST_F(KeyboardLoanTest, goesBackAfterAClickOnSomethingThatTakesNoKeyboard)
{
    lendToShelf();
    loan->userWentOn(shelf);
    loan->willHide(shelf);
    focus.focused = WindowNumber::None;
    clock.advance(KeyboardLoan::clickPatience - 0.01);
    EXPECT_EQ(focus.focused, WindowNumber::None);
    waitForClick();
    EXPECT_EQ(focus.focused, field);
}

TEST_F(KeyboardLoanTest, staysWithAPanelThatIsShownAgainAfterSuchAClick)
{
    lendToShelf();
    loan->userWentOn(shelf);
    loan->willHide(shelf);
    focus.focused = WindowNumber::None;
    loan->shown(shelf);
    waitForClick();
    EXPECT_EQ(focus.focused, WindowNumber::None);
    loan->wantedByHand(shelf);
    loan->willHide(shelf);
    EXPECT_EQ(focus.givenBack.size(), 1U) << "the click is forgotten";
}

TEST_F(KeyboardLoanTest, aClickElsewhereIsTheAffairOfThatPanelAlone)
{
    loan->shown(bar);
    lendToShelf();
    loan->userWentOn(bar);
    loan->shown(shelf);
    loan->willHide(bar);
    EXPECT_EQ(focus.focused, shelf);
    loan->willHide(shelf);
    EXPECT_EQ(focus.focused, field);
}

TEST_F(KeyboardLoanTest, isNotGivenBackForAPanelThatIsNoMore)
{
    lendToShelf();
    loan->userWentOn(shelf);
    loan->willHide(shelf);
    loan->leave(shelf);
    focus.focused = WindowNumber::None;
    waitForClick();
    EXPECT_TRUE(focus.givenBack.empty());
}

TEST_F(KeyboardLoanTest, goesBackWhenADragIsTakenWhoeverHadItBefore)
{
    drag(DragOperation::Copy);
    EXPECT_EQ(focus.focused, field);
    lendToShelf();
    drag(DragOperation::Link);
    EXPECT_EQ(focus.focused, field);
}

TEST_F(KeyboardLoanTest, isAfterADragThatNobodyTookWhereItWasBeforeThePress)
{
    drag(DragOperation::None);
    EXPECT_EQ(focus.focused, field);
    lendToShelf();
    drag(DragOperation::None);
    EXPECT_EQ(focus.focused, shelf);
    loan->shown(bar);
    loan->wantedByHand(bar);
    drag(DragOperation::None);
    EXPECT_EQ(focus.focused, shelf) << "panels count as one";
}

TEST_F(KeyboardLoanTest, isTakenFromNoProgramWhenADragEnds)
{
    loan->pressed();
    loan->wantedByHand(shelf);
    focus.focused = stranger;
    loan->dragLetGo(DragOperation::Copy);
    EXPECT_EQ(focus.focused, stranger);
}

TEST_F(KeyboardLoanTest, waitsForTheReleaseOfTheKeyThatEndedADrag)
{
    focus.leftButtonIsDown = true;
    focus.keysDown = {escape};
    drag(DragOperation::None);
    EXPECT_EQ(focus.focused, shelf);
    loan->keyReleased(escape);
    EXPECT_EQ(focus.focused, shelf) << "it was a repeat: the key is down";
    focus.keysDown = {};
    loan->keyReleased(escape);
    EXPECT_EQ(focus.focused, field);
    lendToShelf();
    loan->keyReleased(escape);
    EXPECT_EQ(focus.focused, shelf) << "that was for once";
}

TEST_F(KeyboardLoanTest, waitsForNoReleaseWhereAnotherButtonEndedTheDrag)
{
    focus.leftButtonIsDown = true;
    drag(DragOperation::None);
    EXPECT_EQ(focus.focused, field);
}

TEST_F(KeyboardLoanTest, waitsForNoReleaseWhereTheButtonIsUp)
{
    focus.keysDown = {escape};
    drag(DragOperation::None);
    EXPECT_EQ(focus.focused, field);
}

TEST_F(KeyboardLoanTest, staysWithAPanelThatWasPressedBeforeThatRelease)
{
    focus.leftButtonIsDown = true;
    focus.keysDown = {escape};
    drag(DragOperation::None);
    loan->wantedByHand(shelf);
    focus.keysDown = {};
    loan->keyReleased(escape);
    EXPECT_EQ(focus.focused, shelf);
}

TEST_F(KeyboardLoanTest, goesBackWithoutTheKeyThatHidThePanel)
{
    lendToShelf();
    loan->keyPressed(shelf, escape, controlBit);
    loan->willHide(shelf);
    EXPECT_EQ(focus.swallowed, (std::vector{std::pair{escape, controlBit}}));
    loan->shown(shelf);
    lendToShelf();
    loan->willHide(shelf);
    EXPECT_EQ(focus.swallowed.size(), 1U);
}

TEST_F(KeyboardLoanTest, goesBackWithoutTheKeyThatMadeThePanelResign)
{
    lendToShelf();
    loan->keyPressed(shelf, escape, 0);
    loan->resigned(shelf);
    EXPECT_EQ(focus.swallowed.size(), 1U);
}

TEST_F(KeyboardLoanTest, goesBackWithEveryKeyThatNoPanelHolds)
{
    lendToShelf();
    loan->keyPressed(shelf, escape, 0);
    loan->keyReleased(escape);
    loan->resigned(shelf);
    lendToShelf();
    loan->keyPressed(shelf, escape, 0);
    loan->lost(shelf);
    loan->resigned(shelf);
    lendToShelf();
    loan->keyPressed(bar, escape, 0);
    loan->lost(shelf);
    loan->resigned(shelf);
    EXPECT_TRUE(focus.swallowed.empty());
    loan->shown(bar);
    loan->resigned(bar);
    EXPECT_EQ(focus.swallowed.size(), 1U) << "it was the bar's";
}

TEST_F(KeyboardLoanTest, isWithThePanelAlsoAfterTheWindowManagersLateAnswer)
{
    lendToShelf();
    loan->willHide(shelf);
    loan->shown(shelf);
    loan->wantedByHand(shelf);
    focus.answer();
    EXPECT_EQ(focus.focused, shelf);
    loan->willHide(shelf);
    ASSERT_EQ(focus.givenBack.size(), 2U);
    EXPECT_EQ(focus.givenBack[1].focused, field);
    EXPECT_EQ(focus.givenBack[1].active, program) << "as it was before the answer";
}

TEST_F(KeyboardLoanTest, isWithThePanelAfterEveryLateAnswer)
{
    for (int i = 0; i < 3; ++i) {
        lendToShelf();
        loan->resigned(shelf);
    }
    lendToShelf();
    for (int i = 0; i < 3; ++i) {
        focus.answer();
        EXPECT_EQ(focus.focused, shelf) << i;
    }
    loan->resigned(shelf);
    focus.answer();
    EXPECT_EQ(focus.focused, program);
}

TEST_F(KeyboardLoanTest, isWithThePanelAfterALateAnswerWhileALaterOneIsAwaited)
{
    for (int i = 0; i < 2; ++i) {
        lendToShelf();
        loan->resigned(shelf);
        clock.advance(KeyboardLoan::answerPatience * 0.6);
    }
    lendToShelf();
    focus.answer();
    EXPECT_EQ(focus.focused, shelf);
}

TEST_F(KeyboardLoanTest, isLeftWithItsOwnerByAnAnswerWhereNoPanelWantsIt)
{
    lendToShelf();
    loan->resigned(shelf);
    focus.answer();
    EXPECT_EQ(focus.focused, program);
    lendToShelf();
    loan->resigned(shelf);
    loan->wantedByHand(shelf);
    loan->resigned(shelf);
    focus.answer();
    focus.answer();
    EXPECT_EQ(focus.focused, program) << "it wanted it no longer";
}

TEST_F(KeyboardLoanTest, aWishThatIsTakenBackBeforeTheAnswerIsNone)
{
    lendToShelf();
    loan->resigned(shelf);
    loan->wantedByHand(shelf);
    // The window manager was quicker than its sign.
    focus.focused = program;
    loan->resigned(shelf);
    focus.answer();
    EXPECT_EQ(focus.focused, program);
}

TEST_F(KeyboardLoanTest, isLeftWithSomebodyWhoTookItBeforeTheAnswer)
{
    lendToShelf();
    loan->resigned(shelf);
    loan->wantedByHand(shelf);
    focus.focused = stranger;
    focus.answer(false);
    EXPECT_EQ(focus.focused, stranger);
}

TEST_F(KeyboardLoanTest, isLeftWithItsOwnerByAnAnswerOnceTheUserWentThere)
{
    lendToShelf();
    loan->resigned(shelf);
    loan->wantedByHand(shelf);
    loan->userWentOn(shelf);
    focus.answer();
    EXPECT_EQ(focus.focused, program);
}

TEST_F(KeyboardLoanTest, isNotGivenToAPanelThatHidMeanwhileByALateAnswer)
{
    lendToShelf();
    loan->resigned(shelf);
    loan->wantedByHand(shelf);
    loan->userWentOn(shelf);
    loan->wantedByHand(shelf);
    focus.focused = field;
    loan->willHide(shelf);
    focus.answer();
    EXPECT_EQ(focus.focused, program);
}

TEST_F(KeyboardLoanTest, waitsNoLongerThanASecondForAnAnswerThatNeverComes)
{
    lendToShelf();
    loan->resigned(shelf);
    clock.advance(KeyboardLoan::answerPatience);
    // The program has passed the keyboard on to another part of its window since.
    focus.focused = program;
    focus.active = program;
    loan->wantedByHand(shelf);
    loan->resigned(shelf);
    ASSERT_EQ(focus.givenBack.size(), 2U);
    EXPECT_EQ(focus.givenBack[1].focused, program);
    focus.answer();
    EXPECT_EQ(focus.focused, program) << "no panel wants it";
}

TEST_F(KeyboardLoanTest, isWithThePanelAgainBeforeAWindowOfOursHides)
{
    openPreview();
    loan->windowWillHide(preview);
    EXPECT_EQ(focus.focused, shelf);
    loan->windowHidden();
    const int given = focus.timesGiven;
    focus.answer();
    EXPECT_EQ(focus.focused, shelf);
    EXPECT_EQ(focus.timesGiven, given) << "it has it";
    EXPECT_TRUE(focus.givenBack.empty());
    loan->willHide(shelf);
    EXPECT_EQ(focus.focused, field) << "the owner is the one before the panels";
}

TEST_F(KeyboardLoanTest, staysWithThatPanelWhomeverTheWindowManagerChooses)
{
    for (const WindowNumber chosen : {WindowNumber::None, program}) {
        openPreview();
        closePreview();
        focus.focused = chosen;
        focus.answer();
        EXPECT_EQ(focus.focused, shelf) << "chosen: " << static_cast<int>(chosen);
        focus.focused = chosen;
        focus.answer();
        clock.advance(KeyboardLoan::answerPatience);
        EXPECT_EQ(focus.focused, chosen) << "that was for once";
    }
}

TEST_F(KeyboardLoanTest, staysWithThatPanelAlsoWhereAnEarlierAnswerComesFirst)
{
    lendToShelf();
    loan->resigned(shelf);
    openPreview();
    closePreview();
    focus.answer();
    EXPECT_EQ(focus.focused, shelf);
    focus.focused = WindowNumber::None;
    focus.answer();
    EXPECT_EQ(focus.focused, shelf);
}

TEST_F(KeyboardLoanTest, isLeftWhereItIsWhenAWindowOfOursHidesThatHasItNoMore)
{
    openPreview();
    focus.focused = stranger;
    closePreview();
    EXPECT_EQ(focus.focused, stranger);
    focus.answer();
    clock.advance(KeyboardLoan::answerPatience);
    EXPECT_EQ(focus.focused, stranger);
}

TEST_F(KeyboardLoanTest, isLeftToTheWindowManagerWhereNoPanelIsBehindAWindowOfOurs)
{
    loan->windowOpens();
    focus.focused = preview;
    closePreview();
    EXPECT_EQ(focus.focused, preview) << "a program had it";
    openPreview();
    loan->willHide(shelf);
    closePreview();
    EXPECT_EQ(focus.focused, preview) << "the panel is hidden";
    loan->shown(shelf);
    closePreview();
    EXPECT_EQ(focus.focused, preview) << "what opened once hides once";
}

TEST_F(KeyboardLoanTest, isWithAnotherPanelThatWantsItBeforeTheWindowManagerHasChosen)
{
    openPreview();
    closePreview();
    loan->shown(bar);
    loan->wantedByHand(bar);
    focus.focused = WindowNumber::None;
    focus.answer();
    EXPECT_EQ(focus.focused, bar);
}

TEST_F(KeyboardLoanTest, isNotGivenToAPanelThatHidBeforeTheWindowManagerHasChosen)
{
    openPreview();
    closePreview();
    loan->willHide(shelf);
    EXPECT_EQ(focus.focused, field);
    focus.focused = WindowNumber::None;
    focus.answer();
    focus.answer();
    EXPECT_EQ(focus.focused, program);
}

TEST_F(KeyboardLoanTest, isWithThatPanelAlsoWhereTheWindowManagerNeverAnswers)
{
    openPreview();
    closePreview();
    focus.focused = WindowNumber::None;
    clock.advance(KeyboardLoan::answerPatience);
    EXPECT_EQ(focus.focused, shelf);
    openPreview();
    closePreview();
    focus.focused = stranger;
    clock.advance(KeyboardLoan::answerPatience);
    EXPECT_EQ(focus.focused, stranger) << "the user may have gone there in such a time";
}

TEST_F(KeyboardLoanTest, isLaterLeftWithSomebodyWhoTookItWhateverWasAwaitedOfAPreview)
{
    for (const bool hasWindowManager : {true, false}) {
        focus.hasWindowManager = hasWindowManager;
        openPreview();
        closePreview();
        focus.answer();
        focus.focused = focus.active = program;
        lendToShelf();
        loan->resigned(shelf);
        loan->wantedByHand(shelf);
        focus.focused = stranger;
        focus.answer(false);
        EXPECT_EQ(focus.focused, stranger) << hasWindowManager;
    }
}

TEST_F(KeyboardLoanTest, isLeftWithSomebodyWhoTookItOnceThePanelBehindAPreviewHadGivenItUp)
{
    const std::vector<std::function<void()>> givenUp{
        [this] { drag(DragOperation::Copy); },
        [this] { loan->userWentOn(shelf); },
        [this] {
            focus.focused = stranger;
            loan->willHide(shelf);
            loan->shown(shelf);
        },
    };
    for (std::size_t i = 0; i < givenUp.size(); ++i) {
        openPreview();
        closePreview();
        givenUp[i]();
        loan->wantedByHand(shelf);
        focus.focused = stranger;
        focus.answer();
        EXPECT_EQ(focus.focused, stranger) << i;
        focus.answer(false);
        focus.focused = field;
        focus.active = program;
    }
}

TEST_F(KeyboardLoanTest, awaitsNothingWhereNoWindowManagerRuns)
{
    focus.hasWindowManager = false;
    openPreview();
    closePreview();
    EXPECT_EQ(focus.focused, shelf);
    focus.focused = WindowNumber::None;
    clock.advance(KeyboardLoan::answerPatience);
    EXPECT_EQ(focus.focused, WindowNumber::None);
}

TEST_F(KeyboardLoanTest, touchesNothingOnceItIsGone)
{
    lendToShelf();
    loan->resigned(shelf);
    lendToShelf();
    loan->userWentOn(shelf);
    loan->willHide(shelf);
    focus.focused = WindowNumber::None;
    loan.reset();
    waitForClick();
    focus.answer(false);
    EXPECT_EQ(focus.focused, WindowNumber::None);
    EXPECT_EQ(focus.givenBack.size(), 1U);
}

TEST_F(KeyboardLoanTest, goesBackAfterAClickThatLeavesItWithAPanelThatStays)
{
    lendToShelf();
    loan->userWentOn(shelf);
    EXPECT_EQ(focus.focused, shelf) << "the window manager may get the click later";
    waitForClick();
    EXPECT_EQ(focus.focused, field);
}

TEST_F(KeyboardLoanTest, staysWithAPanelThatIsWantedAgainRightAfterAClickElsewhere)
{
    lendToShelf();
    loan->userWentOn(shelf);
    loan->wantedByHand(shelf);
    waitForClick();
    EXPECT_EQ(focus.focused, shelf);
}

TEST_F(KeyboardLoanTest, goesBackToThePanelThatItWasTakenFrom)
{
    lendToShelf();
    loan->shown(bar);
    loan->keyPressed(shelf, escape, 0);
    loan->wantedByHand(bar);
    loan->keyPressed(bar, escape, controlBit);
    loan->willHide(bar);
    EXPECT_EQ(focus.focused, shelf);
    ASSERT_EQ(focus.swallowed.size(), 1U) << "a key that is held would act on the shelf";
    loan->resigned(shelf);
    EXPECT_EQ(focus.focused, field);
}

TEST_F(KeyboardLoanTest, goesBackToTheProgramWhereOnePressTookItToAPanelAndOnToAnother)
{
    loan->shown(bar);
    loan->pressed();
    loan->wantedByHand(shelf);
    loan->wantedByHand(bar);
    loan->pressHandled();
    loan->willHide(bar);
    EXPECT_EQ(focus.focused, field);
}

TEST_F(KeyboardLoanTest, goesBackToThePanelThatHadItBeforeSuchAPress)
{
    lendToShelf();
    loan->shown(bar);
    loan->pressed();
    loan->wantedByHand(shelf);
    loan->wantedByHand(bar);
    loan->pressHandled();
    // The user presses the shelf, which leaves the keyboard with the bar.
    loan->pressed();
    loan->wantedByHand(shelf);
    loan->wantedByHand(bar);
    loan->pressHandled();
    loan->willHide(bar);
    EXPECT_EQ(focus.focused, shelf);
}

TEST_F(KeyboardLoanTest, goesBackToTheProgramWhereThePanelThatItWasTakenFromHides)
{
    lendToShelf();
    loan->shown(bar);
    loan->wantedByHand(bar);
    loan->willHide(shelf);
    loan->willHide(bar);
    EXPECT_EQ(focus.focused, field);
}

} // namespace corvane::test
