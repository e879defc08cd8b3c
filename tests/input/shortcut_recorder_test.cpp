#include "fakes/fake_hot_keys.h"
#include "fakes/fake_key_monitors.h"
#include "input/shortcut_recorder.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

const Shortcut shiftCommandD
    = {KeyPosition{2}, Shortcut::command | Shortcut::shift, QStringLiteral("D")};
constexpr KeyPosition keyA = KeyPosition::A;
const QString typesA = QStringLiteral("a");

class ShortcutRecorderTest : public testing::Test {
protected:
    ShortcutRecorderTest()
    {
        recorder->setShortcut(shiftCommandD);
        recorder->onNeedsDisplay = [this] { ++draws; };
        recorder->onTakeFocus = [this] { log << QStringLiteral("focus"); };
        recorder->onChange = [this](const Shortcut &shortcut) { log << shortcut.display(); };
    }

    FakeKeyMonitors keys;
    FakeHotKeys hotKeys;
    std::optional<ShortcutRecorder> recorder{std::in_place, keys, hotKeys};
    QStringList log;
    int draws = 0;
};

} // namespace

TEST_F(ShortcutRecorderTest, RecordsACombinationAndStops)
{
    recorder->clicked();
    EXPECT_TRUE(recorder->isRecording());
    EXPECT_EQ(log, QStringList{QStringLiteral("focus")});
    EXPECT_FALSE(keys.type(keyA, Modifier::Control | Modifier::Shift, typesA));
    const Shortcut expected = {keyA, Shortcut::control | Shortcut::shift, QStringLiteral("A")};
    EXPECT_EQ(recorder->shortcut(), expected);
    EXPECT_EQ(log.last(), QStringLiteral("⌃⇧A"));
    EXPECT_FALSE(recorder->isRecording());
    EXPECT_EQ(keys.monitorCount(), 0U);
}

TEST_F(ShortcutRecorderTest, EachOfThreeModifiersMakesAShortcut)
{
    for (const Modifier modifier : {Modifier::Command, Modifier::Option, Modifier::Control}) {
        recorder->startRecording();
        keys.type(keyA, modifier, typesA);
        EXPECT_FALSE(recorder->isRecording());
        ASSERT_TRUE(recorder->shortcut());
        EXPECT_EQ(recorder->shortcut()->modifiers, Shortcut::modifierBits(modifier));
    }
}

TEST_F(ShortcutRecorderTest, ShiftAloneNeverMakesAShortcut)
{
    recorder->clicked();
    log.clear();
    EXPECT_FALSE(keys.type(keyA, Modifier::Shift, typesA));
    EXPECT_FALSE(keys.type(keyA, {}, typesA));
    EXPECT_TRUE(recorder->isRecording());
    EXPECT_TRUE(log.isEmpty());
    EXPECT_EQ(recorder->shortcut(), shiftCommandD);
    keys.type(keyA, Modifier::Control | Modifier::Shift, typesA);
    EXPECT_EQ(log, QStringList{QStringLiteral("⌃⇧A")});
}

TEST_F(ShortcutRecorderTest, ModifierPressesAreSwallowed)
{
    recorder->clicked();
    EXPECT_FALSE(keys.holdModifiers(Modifier::Command));
    EXPECT_FALSE(keys.holdModifiers({}));
    EXPECT_TRUE(recorder->isRecording());
}

TEST_F(ShortcutRecorderTest, EscapeEndsRecordingWithTheShortcutKept)
{
    for (const Modifiers modifiers : {Modifiers{}, Modifiers{Modifier::Command}}) {
        recorder->clicked();
        log.clear();
        EXPECT_FALSE(keys.type(KeyPosition::Escape, modifiers));
        EXPECT_FALSE(recorder->isRecording());
        EXPECT_EQ(recorder->shortcut(), shiftCommandD);
        EXPECT_TRUE(log.isEmpty());
    }
}

TEST_F(ShortcutRecorderTest, EscapeEndsRecordingByItsSymbolAndByItsPlace)
{
    constexpr KeyPosition capsLock{57};
    recorder->clicked();
    EXPECT_FALSE(keys.typeEscapeElsewhere(capsLock));
    EXPECT_FALSE(recorder->isRecording());
    recorder->clicked();
    EXPECT_FALSE(keys.typeInEscapesPlace());
    EXPECT_FALSE(recorder->isRecording());
    EXPECT_EQ(recorder->shortcut(), shiftCommandD);
}

TEST_F(ShortcutRecorderTest, KeysReachOthersBeforeAndAfterButNotMeanwhile)
{
    EXPECT_TRUE(keys.type(keyA, Modifier::Command, typesA));
    recorder->clicked();
    EXPECT_FALSE(keys.type(keyA, {}, typesA));
    keys.type(KeyPosition::Escape, {});
    EXPECT_TRUE(keys.type(keyA, Modifier::Command, typesA));
    EXPECT_EQ(recorder->shortcut(), shiftCommandD);
}

TEST_F(ShortcutRecorderTest, ClickingTwiceStartsAndStopsWithoutAChange)
{
    recorder->clicked();
    recorder->clicked();
    EXPECT_FALSE(recorder->isRecording());
    EXPECT_EQ(recorder->shortcut(), shiftCommandD);
    EXPECT_EQ(log, QStringList{QStringLiteral("focus")});
    EXPECT_EQ(keys.monitorCount(), 0U);
}

TEST_F(ShortcutRecorderTest, HasOneMonitorExactlyWhileItRecords)
{
    EXPECT_EQ(keys.monitorCount(), 0U);
    recorder->startRecording();
    recorder->startRecording();
    EXPECT_EQ(keys.monitorCount(), 1U);
    recorder->stopRecording();
    recorder->stopRecording();
    EXPECT_EQ(keys.monitorCount(), 0U);
}

TEST_F(ShortcutRecorderTest, WhileRecordingTheGrabsAreSuspended)
{
    recorder->clicked();
    EXPECT_EQ(hotKeys.suspensions, 1);
    recorder->onChange = [this](const Shortcut &) {
        log << QStringLiteral("suspended %1").arg(hotKeys.suspensions);
    };
    keys.type(keyA, Modifier::Command, typesA);
    EXPECT_EQ(log.last(), QStringLiteral("suspended 0")) << "what it tells can be bound at once";
    recorder->clicked();
    recorder->stopRecording();
    EXPECT_EQ(hotKeys.suspensions, 0);
}

TEST_F(ShortcutRecorderTest, AKeyThatNoKeyboardHasIsIgnored)
{
    recorder->clicked();
    EXPECT_FALSE(keys.type(KeyPosition::Unknown, Modifier::Command));
    EXPECT_TRUE(recorder->isRecording());
}

TEST_F(ShortcutRecorderTest, DestroyingItRemovesTheMonitorAndTheSuspension)
{
    recorder->clicked();
    recorder.reset();
    EXPECT_EQ(keys.monitorCount(), 0U);
    EXPECT_EQ(hotKeys.suspensions, 0);
}

TEST_F(ShortcutRecorderTest, OnChangeMayDestroyIt)
{
    recorder->onChange = [this](const Shortcut &shortcut) {
        log << shortcut.display();
        recorder.reset();
    };
    recorder->clicked();
    EXPECT_FALSE(keys.type(keyA, Modifier::Command, typesA));
    EXPECT_EQ(log.last(), QStringLiteral("⌘A"));
}

TEST_F(ShortcutRecorderTest, EverythingThatShowsAsksToBeDrawn)
{
    const auto asks = [this](const std::function<void()> &change) {
        draws = 0;
        change();
        return draws > 0;
    };
    EXPECT_TRUE(asks([this] { recorder->setShortcut(std::nullopt); }));
    EXPECT_TRUE(asks([this] { recorder->setConflict(true); }));
    EXPECT_TRUE(asks([this] { recorder->clicked(); }));
    EXPECT_TRUE(asks([this] { keys.type(keyA, Modifier::Command, typesA); }));
    EXPECT_TRUE(asks([this] { recorder->stopRecording(); }));
}

} // namespace corvane::test
