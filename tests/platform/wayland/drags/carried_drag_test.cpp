#include "fakes/test_clock.h"
#include "platform/desktop/panel_window.h"
#include "platform/wayland/drags/carried_drag.h"

#include <gtest/gtest.h>

#include <vector>

namespace corvane::test {
namespace {

using namespace Qt::StringLiterals;

const QString text = u"text/plain"_s;
const QString addresses = u"text/uri-list"_s;

/// A target's pipe, which takes what a test says.
struct FakeDelivery : Delivery {
    QByteArray bytes;
    Events events;
    bool written = false;
    bool takesAtALook = false;

    bool isWritten() const override { return written; }
    void look() override
    {
        if (takesAtALook)
            events.ended(true);
    }
};

class CarriedDragTest : public testing::Test {
protected:
    void begin(bool areFinal = true)
    {
        const Deliver deliver
            = [this](FileDescriptor /*pipe*/, QByteArray bytes, Delivery::Events events) {
                  auto delivery = std::make_unique<FakeDelivery>();
                  delivery->bytes = std::move(bytes);
                  delivery->events = std::move(events);
                  deliveries.push_back(delivery.get());
                  return delivery;
              };
        drag.emplace(clock, deliver, NamedForms(forms()), areFinal,
                     DragCarrier::Events{[this](DragOperation operation) { promised = operation; },
                                         [this](const DragOutEnd &how) { end = how; }});
    }
    static PasteboardForms forms()
    {
        return {{addresses, "file:///a\r\nfile:///b\r\n", {0, 1}}, {text, "a\nb\nc", {0, 1, 2}}};
    }
    void ask(const QString &name) { drag->asked(name, FileDescriptor()); }
    void take(std::size_t delivery) const { deliveries.at(delivery)->events.ended(true); }

    TestClock clock;
    std::vector<FakeDelivery *> deliveries;
    std::optional<CarriedDrag> drag;
    std::optional<DragOperation> promised;
    std::optional<DragOutEnd> end;
};

TEST_F(CarriedDragTest, whatTheTargetFetchedHasArrivedOnceItHasFinished)
{
    begin();
    EXPECT_TRUE(drag->isCarried());
    drag->dropped();
    EXPECT_FALSE(drag->isCarried());
    EXPECT_EQ(promised, DragOperation::Copy);
    ask(addresses);
    ASSERT_EQ(deliveries.size(), 1U);
    EXPECT_EQ(deliveries.front()->bytes, "file:///a\r\nfile:///b\r\n");
    take(0);
    EXPECT_FALSE(end);
    drag->finished();
    ASSERT_TRUE(end);
    EXPECT_EQ(end->operation, DragOperation::Copy);
    EXPECT_EQ(end->taken, (QList<qsizetype>{0, 1}));
    EXPECT_TRUE(end->wasDropped);
}

TEST_F(CarriedDragTest, whatWasFetchedWhileHoveringCounts)
{
    begin();
    ask(text);
    take(0);
    drag->dropped();
    drag->finished();
    ASSERT_TRUE(end);
    EXPECT_EQ(end->taken, (QList<qsizetype>{0, 1, 2}));
}

TEST_F(CarriedDragTest, aTargetThatFinishesAndFetchedNothingHasNothing)
{
    begin();
    drag->dropped();
    drag->finished();
    ASSERT_TRUE(end);
    EXPECT_EQ(end->taken, QList<qsizetype>());
    EXPECT_TRUE(end->wasDropped);
}

TEST_F(CarriedDragTest, aDragThatIsGivenUpOrRefusedTakesNothingAlong)
{
    begin();
    ask(text);
    take(0);
    drag->cancelled();
    EXPECT_EQ(promised, DragOperation::None);
    ASSERT_TRUE(end);
    EXPECT_EQ(end->operation, DragOperation::None);
    EXPECT_EQ(end->taken, QList<qsizetype>());
    EXPECT_FALSE(end->wasDropped);
}

TEST_F(CarriedDragTest, aTargetThatDoesNotFinishHasNothingWhateverItFetched)
{
    begin();
    drag->dropped();
    ask(text);
    take(0);
    drag->cancelled();
    ASSERT_TRUE(end);
    EXPECT_EQ(end->taken, QList<qsizetype>());
    EXPECT_TRUE(end->wasDropped);
}

TEST_F(CarriedDragTest, whatIsReadInPartOnlyStays)
{
    begin();
    drag->dropped();
    ask(addresses);
    deliveries.front()->events.ended(false);
    drag->finished();
    ASSERT_TRUE(end);
    EXPECT_EQ(end->taken, QList<qsizetype>());
}

TEST_F(CarriedDragTest, aTargetThatFinishesBeforeItHasReadAllIsWaitedFor)
{
    begin();
    drag->dropped();
    ask(addresses);
    drag->finished();
    clock.advance(CarriedDrag::lastLook);
    EXPECT_FALSE(end);
    take(0);
    ASSERT_TRUE(end);
    EXPECT_EQ(end->taken, (QList<qsizetype>{0, 1}));
}

TEST_F(CarriedDragTest, whatHasJustBeenTakenIsSeenAtTheEnd)
{
    begin();
    drag->dropped();
    ask(addresses);
    deliveries.front()->takesAtALook = true;
    drag->finished();
    ASSERT_TRUE(end);
    EXPECT_EQ(end->taken, (QList<qsizetype>{0, 1}));
}

TEST_F(CarriedDragTest, whoOnlyLookedHowSomethingBeginsDoesNotHoldUpTheEnd)
{
    begin();
    ask(text);
    deliveries.front()->written = true;
    drag->dropped();
    ask(addresses);
    take(1);
    drag->finished();
    EXPECT_FALSE(end);
    clock.advance(CarriedDrag::lastLook);
    ASSERT_TRUE(end);
    EXPECT_EQ(end->taken, (QList<qsizetype>{0, 1}));
}

TEST_F(CarriedDragTest, aTargetThatNeverReadsIsGivenUp)
{
    begin();
    drag->dropped();
    ask(addresses);
    clock.advance(CarriedDrag::patience * 0.9);
    deliveries.front()->events.progress();
    clock.advance(CarriedDrag::patience * 0.9);
    EXPECT_FALSE(end) << "it had read something";
    clock.advance(CarriedDrag::patience);
    ASSERT_TRUE(end);
    EXPECT_EQ(end->operation, DragOperation::None);
    EXPECT_EQ(end->taken, QList<qsizetype>());
    EXPECT_TRUE(end->wasDropped);
}

TEST_F(CarriedDragTest, whatIsStillBeingMadeIsGivenWhenItIsThere)
{
    begin(false);
    drag->dropped();
    ask(text);
    EXPECT_TRUE(deliveries.empty());
    drag->finished();
    EXPECT_FALSE(end);
    drag->formsAreReady(PasteboardForms{{text, "made", {0}}});
    ASSERT_EQ(deliveries.size(), 1U);
    EXPECT_EQ(deliveries.front()->bytes, "made");
    take(0);
    ASSERT_TRUE(end);
    EXPECT_EQ(end->taken, QList<qsizetype>{0});
}

TEST_F(CarriedDragTest, whatCannotBeMadeIsGivenToNobody)
{
    begin(false);
    drag->dropped();
    ask(text);
    drag->formsAreReady(std::nullopt);
    EXPECT_TRUE(deliveries.empty());
    drag->finished();
    ASSERT_TRUE(end);
    EXPECT_EQ(end->taken, QList<qsizetype>());
}

TEST_F(CarriedDragTest, targetsDoNotWaitForEverForWhatIsBeingMade)
{
    begin(false);
    drag->dropped();
    ask(text);
    drag->finished();
    clock.advance(CarriedDrag::makingPatience * 0.9);
    EXPECT_FALSE(end);
    clock.advance(CarriedDrag::makingPatience);
    ASSERT_TRUE(end);
    EXPECT_EQ(end->taken, QList<qsizetype>());
    drag->formsAreReady(forms());
    EXPECT_TRUE(deliveries.empty());
}

TEST_F(CarriedDragTest, whatIsNotOfferedAndWhatIsAskedTooOftenIsRefused)
{
    begin();
    ask(u"image/png"_s);
    EXPECT_TRUE(deliveries.empty());
    for (std::size_t i = 0; i < CarriedDrag::maximumRequests + 5; ++i)
        ask(text);
    EXPECT_EQ(deliveries.size(), CarriedDrag::maximumRequests);
}

TEST_F(CarriedDragTest, theEndIsToldOnce)
{
    begin();
    drag->dropped();
    drag->finished();
    end.reset();
    promised.reset();
    drag->cancelled();
    drag->finished();
    drag->dropped();
    EXPECT_FALSE(end);
    EXPECT_FALSE(promised);
}

TEST_F(CarriedDragTest, mayGoAwayWhileItTellsItsEnd)
{
    drag.emplace(
        clock,
        [](FileDescriptor, QByteArray, Delivery::Events) { return std::unique_ptr<Delivery>(); },
        NamedForms(forms()), true,
        DragCarrier::Events{[this](DragOperation) { drag.reset(); },
                            [this](const DragOutEnd &how) { end = how; }});
    drag->cancelled();
    EXPECT_FALSE(drag);
    EXPECT_FALSE(end);
}

} // namespace
} // namespace corvane::test
