#include "fakes/test_clock.h"
#include "platform/desktop/panel_window.h"
#include "platform/display.h"
#include "platform/x11/base/x11_qt.h"
#include "platform/x11/drags/x11_drag_support.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

namespace corvane::test {

namespace {

/// A program with a window, whose requests and messages reach the support as Qt passes them on.
class Peer {
public:
    Peer(X11Connection &connection, X11DragSupport &support)
        : m_connection(connection)
        , m_support(support)
        , window(xcb_generate_id(m_server.connection()))
    {
        const std::uint32_t mask = XCB_EVENT_MASK_NO_EVENT;
        xcb_create_window(m_server.connection(), XCB_COPY_FROM_PARENT, window, m_server.root(), 0,
                          0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
                          XCB_CW_EVENT_MASK, &mask);
        m_server.facts(window);
    }

    /// Whether somebody answered for our drag at all.
    bool ask(const char *target, const char *property = "GIVEN",
             xcb_timestamp_t time = XCB_CURRENT_TIME)
    {
        xcb_selection_request_event_t request = {};
        request.response_type = XCB_SELECTION_REQUEST;
        request.requestor = window;
        request.selection = m_connection.atom("XdndSelection");
        request.target = m_connection.atom(target);
        request.property = property ? m_connection.atom(property) : xcb_atom_t{XCB_NONE};
        request.time = time;
        const bool isAnswered
            = m_support.nativeEventFilter("xcb_generic_event_t", &request, nullptr);
        // It is written on another connection than the one that it is read on.
        m_connection.serverTime();
        return isAnswered;
    }
    QByteArray given(const char *property = "GIVEN")
    {
        // It is written on another connection than the one that it is read on.
        m_connection.serverTime();
        return m_server.property(window, property);
    }
    enum class Answer { None, Given, Refused };
    /// What it was told last: a refusal leaves the same property as no answer at all.
    Answer answer()
    {
        m_connection.serverTime();
        m_server.facts(window);
        while (auto *const event = xcb_poll_for_event(m_server.connection())) {
            const auto &notify = *reinterpret_cast<const xcb_selection_notify_event_t *>(event);
            if ((event->response_type & 0x7f) == XCB_SELECTION_NOTIFY)
                m_answer = notify.property == XCB_NONE ? Answer::Refused : Answer::Given;
            std::free(event);
        }
        return m_answer;
    }
    /// Asks, and gives what came; empty for a refusal.
    QByteArray take(const char *target)
    {
        xcb_delete_property(m_server.connection(), window, m_connection.atom("GIVEN"));
        m_server.facts(window);
        ask(target);
        return given();
    }
    /// Whether a list of atoms that came names the type.
    bool names(const QByteArray &atoms, const char *type) const
    {
        return listed(atoms).contains(m_connection.atom(type));
    }
    /// Whether it names just these, in that order.
    bool namesJust(const QByteArray &atoms, const QList<const char *> &types) const
    {
        QList<xcb_atom_t> wanted;
        for (const char *type : types)
            wanted << m_connection.atom(type);
        return listed(atoms) == wanted;
    }
    static QList<xcb_atom_t> listed(const QByteArray &atoms)
    {
        QList<xcb_atom_t> listed(atoms.size() / qsizetype{sizeof(xcb_atom_t)});
        std::memcpy(listed.data(), atoms.constData(),
                    static_cast<std::size_t>(listed.size()) * sizeof(xcb_atom_t));
        return listed;
    }
    QByteArray typeOf(const char *property)
    {
        const X11Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
            m_server.connection(),
            xcb_get_property(m_server.connection(), 0, window, m_connection.atom(property),
                             XCB_GET_PROPERTY_TYPE_ANY, 0, 0),
            nullptr));
        const X11Reply<xcb_get_atom_name_reply_t> name(xcb_get_atom_name_reply(
            m_server.connection(), xcb_get_atom_name(m_server.connection(), reply->type), nullptr));
        return {xcb_get_atom_name_name(name.get()), xcb_get_atom_name_name_length(name.get())};
    }
    void setAtoms(const char *property, const QList<xcb_atom_t> &atoms)
    {
        xcb_change_property(m_server.connection(), XCB_PROP_MODE_REPLACE, window,
                            m_connection.atom(property), m_connection.atom("ATOM_PAIR"), 32,
                            static_cast<std::uint32_t>(atoms.size()), atoms.constData());
        m_server.facts(window);
    }
    void setVersion(std::uint32_t version)
    {
        xcb_change_property(m_server.connection(), XCB_PROP_MODE_REPLACE, window,
                            m_connection.atom("XdndAware"), XCB_ATOM_ATOM, 32, 1, &version);
        m_server.facts(window);
    }
    void accept() { tell("XdndStatus", 1, "XdndActionCopy"); }
    void finish(std::uint32_t flags = 1, const char *action = "XdndActionCopy")
    {
        tell("XdndFinished", flags, action);
    }
    void tell(const char *type, std::uint32_t flags, const char *action)
    {
        xcb_client_message_event_t message = {};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.type = m_connection.atom(type);
        const bool isStatus = QByteArray(type) == "XdndStatus";
        message.data.data32[0] = window;
        message.data.data32[1] = flags;
        message.data.data32[isStatus ? 4 : 2] = action ? m_connection.atom(action) : 0;
        m_support.nativeEventFilter("xcb_generic_event_t", &message, nullptr);
    }
    void destroyWindow()
    {
        xcb_destroy_window(m_server.connection(), window);
        m_server.facts(window);
    }

private:
    X11Connection &m_connection;
    X11DragSupport &m_support;
    e2e::XServer m_server{qgetenv("DISPLAY")};
    Answer m_answer = Answer::None;

public:
    const xcb_window_t window;
};

class X11DragSupportTest : public testing::Test {
protected:
    void SetUp() override
    {
        // The server gives a window's number out again, perhaps while the toolkit has not yet read
        // that the one before is gone.
        settle();
    }
    /// A file, a text and a picture: the first writer, the second and the third.
    static PasteboardForms forms(const QByteArray &text = "/a\nt\xC3\xA4xt")
    {
        return {{QStringLiteral("image/png"), "picture", {2}},
                {QStringLiteral("text/uri-list"), "file:///a\r\n", {0}},
                {QStringLiteral("text/plain"), text, {0, 1}}};
    }
    DragSupport::DragId begin() { return support.dragWillBegin(forms(), true); }
    void drop(DragSupport::DragId drag)
    {
        support.dragWasDropped(drag, [this](const DragOutEnd &end) { ends.push_back(end); });
    }
    /// Drags over the peer and lets go there.
    void dropOn(Peer &peer)
    {
        const auto drag = begin();
        peer.accept();
        drop(drag);
    }
    QList<qsizetype> taken() const
    {
        return ends.empty() ? QList<qsizetype>{-1} : ends.back().taken;
    }
    void runPending() { clock.runPending(); }

    X11Connection connection;
    TestClock clock;
    X11DragSupport support{connection, clock};
    Peer target{connection, support};
    Peer bystander{connection, support};
    std::vector<DragOutEnd> ends;
};

using Places = QList<qsizetype>;

} // namespace

TEST_F(X11DragSupportTest, answersEveryNameThatQtAnnouncesForTexts)
{
    begin();
    for (const char *name : {"text/plain", "text/plain;charset=utf-8", "UTF8_STRING", "TEXT"})
        EXPECT_FALSE(target.take(name).isEmpty()) << name;
    EXPECT_EQ(target.take("UTF8_STRING"), "/a\nt\xC3\xA4xt");
    EXPECT_EQ(target.take("STRING"), "/a\nt\xE4xt");
    EXPECT_EQ(target.typeOf("GIVEN"), "STRING");
}

TEST_F(X11DragSupportTest, aTextThatLatin1CannotSayIsGivenInUtf8WhereTheTypeIsOurs)
{
    const QByteArray euro = "\xE2\x82\xAC";
    support.dragWillBegin(forms(euro), true);
    EXPECT_EQ(target.take("TEXT"), euro);
    EXPECT_EQ(target.typeOf("GIVEN"), "UTF8_STRING");
    EXPECT_EQ(target.take("STRING"), "?");
}

TEST_F(X11DragSupportTest, givesTheFirstAddressToThoseWhoAskLikeFirefox)
{
    begin();
    const QString pair = QStringLiteral("file:///a\nfile:///a");
    EXPECT_EQ(target.take("text/x-moz-url"),
              QByteArray(reinterpret_cast<const char *>(pair.utf16()), pair.size() * 2));
}

TEST_F(X11DragSupportTest, tellsWhenTheSelectionBecameOurs)
{
    xcb_button_press_event_t press = {};
    press.response_type = XCB_BUTTON_PRESS;
    press.time = 4711;
    support.nativeEventFilter("xcb_generic_event_t", &press, nullptr);
    begin();
    const QByteArray time = target.take("TIMESTAMP");
    ASSERT_EQ(time.size(), 4);
    EXPECT_EQ(*reinterpret_cast<const std::uint32_t *>(time.constData()), 4711U);
    EXPECT_EQ(target.typeOf("GIVEN"), "INTEGER");
}

TEST_F(X11DragSupportTest, severalTypesMayBeAskedForAtOnce)
{
    begin();
    const auto atom = [&](const char *name) { return connection.atom(name); };
    target.setAtoms("PAIRS",
                    {atom("image/png"), atom("FIRST"), atom("no/such-type"), atom("SECOND"),
                     atom("text/uri-list"), atom("THIRD")});
    ASSERT_TRUE(target.ask("MULTIPLE", "PAIRS"));
    EXPECT_EQ(target.given("FIRST"), "picture");
    EXPECT_EQ(target.given("THIRD"), "file:///a\r\n");
    const QByteArray pairs = target.given("PAIRS");
    ASSERT_EQ(pairs.size(), 24);
    const auto *atoms = reinterpret_cast<const xcb_atom_t *>(pairs.constData());
    EXPECT_EQ(atoms[0], atom("image/png"));
    EXPECT_EQ(atoms[2], xcb_atom_t{XCB_NONE}) << "what was not given is crossed out";
}

TEST_F(X11DragSupportTest, ofSeveralTypesTheLastOneWithoutAPropertyIsPassedOver)
{
    begin();
    const auto atom = [&](const char *name) { return connection.atom(name); };
    target.setAtoms("PAIRS", {atom("image/png"), atom("FIRST"), atom("text/uri-list")});
    ASSERT_TRUE(target.ask("MULTIPLE", "PAIRS"));
    EXPECT_EQ(target.given("FIRST"), "picture");
    const QByteArray pairs = target.given("PAIRS");
    ASSERT_EQ(pairs.size(), 12);
    const auto *atoms = reinterpret_cast<const xcb_atom_t *>(pairs.constData());
    EXPECT_EQ(atoms[2], atom("text/uri-list"));
}

TEST_F(X11DragSupportTest, whoNamesNoPropertyIsAnsweredUnderTheTargetsName)
{
    begin();
    target.ask("text/uri-list", nullptr);
    EXPECT_EQ(target.given("text/uri-list"), "file:///a\r\n");
}

TEST_F(X11DragSupportTest, whatTheTargetFetchedHasArrivedOnceItSaysSo)
{
    dropOn(target);
    target.ask("text/uri-list");
    EXPECT_TRUE(ends.empty());
    target.finish();
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(ends[0].operation, DragOperation::Copy);
    EXPECT_EQ(taken(), Places{0});
}

TEST_F(X11DragSupportTest, aTextHoldsTheFilesThatItNames)
{
    dropOn(target);
    target.ask("UTF8_STRING");
    target.finish();
    EXPECT_EQ(taken(), (Places{0, 1}));
}

TEST_F(X11DragSupportTest, aTextThatLostCharactersHoldsNothing)
{
    const auto drag = support.dragWillBegin(forms("\xE2\x82\xAC"), true);
    target.accept();
    drop(drag);
    target.ask("STRING");
    target.finish();
    EXPECT_EQ(taken(), Places());
}

TEST_F(X11DragSupportTest, aTargetThatFinishesWellAndFetchedNothingHasNothing)
{
    dropOn(target);
    target.ask("TARGETS");
    target.finish();
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_TRUE(ends[0].wasDropped);
    EXPECT_EQ(taken(), Places());
}

TEST_F(X11DragSupportTest, whatTheTargetFetchedWhileItWasHoveredCounts)
{
    const auto drag = begin();
    target.accept();
    target.ask("image/png");
    drop(drag);
    target.finish();
    EXPECT_EQ(taken(), Places{2});
}

TEST_F(X11DragSupportTest, whatAnotherProgramFetchedOnTheWayDoesNotCount)
{
    const auto drag = begin();
    bystander.accept();
    bystander.ask("image/png");
    target.accept();
    drop(drag);
    target.finish();
    EXPECT_EQ(taken(), Places());
}

TEST_F(X11DragSupportTest, aFailureAtTheEndIsOneWhateverWasFetched)
{
    dropOn(target);
    target.ask("text/uri-list");
    target.finish(0);
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(ends[0].operation, DragOperation::None);
    EXPECT_TRUE(ends[0].wasDropped);
    EXPECT_EQ(taken(), Places());
}

TEST_F(X11DragSupportTest, anEndWithoutAnActionIsAFailure)
{
    dropOn(target);
    target.ask("text/uri-list");
    target.finish(1, nullptr);
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(ends[0].operation, DragOperation::None);
}

TEST_F(X11DragSupportTest, oldTargetsSayOnlyThatTheyHaveFinished)
{
    target.setVersion(4);
    dropOn(target);
    target.ask("text/uri-list");
    target.finish(0, nullptr);
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(ends[0].operation, DragOperation::Copy);
    EXPECT_EQ(taken(), Places{0});
}

TEST_F(X11DragSupportTest, aTargetThatNeverFinishesIsGivenUp)
{
    dropOn(target);
    clock.advance(X11DragSupport::defaultPatience / 2);
    target.ask("text/uri-list");
    clock.advance(X11DragSupport::defaultPatience * 0.7);
    EXPECT_TRUE(ends.empty()) << "it was heard of meanwhile";
    clock.advance(X11DragSupport::defaultPatience);
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(ends[0].operation, DragOperation::None);
    EXPECT_TRUE(ends[0].wasDropped);
    EXPECT_EQ(clock.pendingCount(), 0U) << "nothing wakes up while idle";
    target.finish();
    EXPECT_EQ(ends.size(), 1U);
}

TEST_F(X11DragSupportTest, aTargetWhoseWindowIsGoneHasNothing)
{
    dropOn(target);
    target.ask("text/uri-list");
    target.destroyWindow();
    ASSERT_TRUE(eventually([&] { return !ends.empty(); }));
    EXPECT_EQ(ends[0].operation, DragOperation::None);
}

TEST_F(X11DragSupportTest, aTargetThatIsGoneBeforeItIsWaitedForHasNothing)
{
    const auto drag = begin();
    target.accept();
    target.destroyWindow();
    drop(drag);
    clock.advance(X11DragSupport::lastWords);
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(ends[0].operation, DragOperation::None);
}

TEST_F(X11DragSupportTest, aWindowThatWasOnlyHoveredMayGo)
{
    const auto drag = begin();
    bystander.accept();
    target.accept();
    drop(drag);
    bystander.destroyWindow();
    target.ask("text/uri-list");
    settle();
    EXPECT_TRUE(ends.empty());
    target.finish();
    EXPECT_EQ(taken(), Places{0});
}

// Where several answers wait, Qt reads them all at once.
TEST_F(X11DragSupportTest, aTargetWhoseAnswerNobodySawIsTheOneThatFetchesAndFinishes)
{
    drop(begin());
    bystander.finish();
    EXPECT_TRUE(ends.empty());
    target.ask("text/uri-list");
    target.finish();
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(ends[0].operation, DragOperation::Copy);
    EXPECT_EQ(taken(), Places{0});
}

TEST_F(X11DragSupportTest, aTargetWhoseAnswerNobodySawMayHaveFetchedBefore)
{
    const auto drag = begin();
    target.ask("image/png");
    drop(drag);
    target.finish();
    EXPECT_EQ(taken(), Places{2});
}

TEST_F(X11DragSupportTest, aTargetThatAnswersAfterTheDropIsWatched)
{
    drop(begin());
    target.accept();
    target.destroyWindow();
    ASSERT_TRUE(eventually([&] { return !ends.empty(); }));
    EXPECT_EQ(ends[0].operation, DragOperation::None);
}

TEST_F(X11DragSupportTest, aTargetThatAnswersAfterTheDropMayBeGoneByThen)
{
    drop(begin());
    target.destroyWindow();
    target.accept();
    clock.advance(X11DragSupport::lastWords);
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(ends[0].operation, DragOperation::None);
}

TEST_F(X11DragSupportTest, aTargetWhoseAnswerNobodySawIsGivenUp)
{
    drop(begin());
    clock.advance(X11DragSupport::defaultPatience * 5 / 4);
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(ends[0].operation, DragOperation::None);
    EXPECT_EQ(clock.pendingCount(), 0U);
}

TEST_F(X11DragSupportTest, theNextDragLeavesABusyTargetWhatWasDroppedOnIt)
{
    const auto press = [&](xcb_timestamp_t time) {
        xcb_button_press_event_t event = {};
        event.response_type = XCB_BUTTON_PRESS;
        event.time = time;
        support.nativeEventFilter("xcb_generic_event_t", &event, nullptr);
    };
    press(1000);
    dropOn(target);
    press(2000);
    const auto second = support.dragWillBegin({{QStringLiteral("image/png"), "other", {0}}}, true);
    bystander.accept();
    EXPECT_EQ(bystander.take("image/png"), "other");
    EXPECT_EQ(target.take("image/png"), "picture") << "no time: by the program that asks";
    xcb_timestamp_t droppedAt = 1500;
    bystander.ask("text/uri-list", "GIVEN", droppedAt);
    EXPECT_EQ(bystander.given(), "file:///a\r\n") << "by the time of the drop";
    support.dragCameToNothing(second);
    target.finish();
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(ends[0].operation, DragOperation::Copy);
    EXPECT_TRUE(ends[0].taken.contains(2));
}

TEST_F(X11DragSupportTest, theMostExactTextIsNamedFirst)
{
    support.dragWillBegin({{QStringLiteral("text/plain;charset=utf-8"), "a", {0}},
                           {QStringLiteral("text/plain"), "a", {0}}},
                          true);
    EXPECT_TRUE(target.namesJust(target.take("TARGETS"),
                                 {"text/plain;charset=utf-8", "text/plain", "UTF8_STRING", "STRING",
                                  "TEXT", "TARGETS", "TIMESTAMP", "MULTIPLE"}));
}

TEST_F(X11DragSupportTest, namesThatMayBeLatinOrUtf8AreOfferedOnlyWithATextThatIsTheSameInBoth)
{
    support.dragWillBegin(forms("t\xC3\xA4xt"), true);
    const QByteArray targets = target.take("TARGETS");
    EXPECT_TRUE(target.names(targets, "UTF8_STRING"));
    EXPECT_FALSE(target.names(targets, "STRING"));
    EXPECT_FALSE(target.names(targets, "TEXT"));
    EXPECT_EQ(target.take("STRING"), "t\xE4xt") << "for programs of X11 that ask all the same";
}

TEST_F(X11DragSupportTest, whatIsStillBeingMadeIsNamedAtOnceAndGivenWhenItIsThere)
{
    const auto drag = support.dragWillBegin({{QStringLiteral("image/png"), {}, {0}}}, false);
    const QByteArray targets = target.take("TARGETS");
    EXPECT_TRUE(target.names(targets, "TARGETS"));
    EXPECT_TRUE(target.names(targets, "image/png"));
    EXPECT_FALSE(target.names(targets, "text/uri-list")) << "what was never offered";
    target.accept();
    drop(drag);
    EXPECT_EQ(target.take("image/png"), QByteArray());
    target.finish();
    EXPECT_TRUE(ends.empty()) << "it asked, and has not been answered";
    support.formsAreReady(drag, PasteboardForms{{QStringLiteral("image/png"), "made", {0}}});
    EXPECT_EQ(target.given(), "made");
    EXPECT_EQ(taken(), Places{0});
    EXPECT_EQ(target.take("image/png"), "made");
}

TEST_F(X11DragSupportTest, whatCouldNotBeMadeIsRefused)
{
    const auto drag = support.dragWillBegin({{QStringLiteral("image/png"), {}, {0}}}, false);
    target.accept();
    target.ask("image/png");
    drop(drag);
    EXPECT_EQ(target.answer(), Peer::Answer::None);
    support.formsAreReady(drag, std::nullopt);
    EXPECT_EQ(target.answer(), Peer::Answer::Refused);
    target.finish();
    EXPECT_EQ(taken(), Places());
}

TEST_F(X11DragSupportTest, whatIsNeverMadeIsRefusedAfterAWhile)
{
    const auto drag = support.dragWillBegin({{QStringLiteral("image/png"), {}, {0}}}, false);
    target.accept();
    target.ask("image/png");
    drop(drag);
    clock.advance(X11DragSupport::makingPatience - X11DragSupport::defaultPatience);
    EXPECT_EQ(target.answer(), Peer::Answer::None) << "it may still be made";
    clock.advance(2 * X11DragSupport::defaultPatience);
    EXPECT_EQ(target.answer(), Peer::Answer::Refused);
    clock.advance(X11DragSupport::defaultPatience);
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(taken(), Places());
    EXPECT_EQ(clock.pendingCount(), 0U);
}

TEST_F(X11DragSupportTest, aLateFinishOfAGivenUpTargetEndsNoOtherDrop)
{
    // Dropped on the bystander, which is given up.
    dropOn(bystander);
    clock.advance(2 * X11DragSupport::defaultPatience);
    ASSERT_EQ(ends.size(), 1U);
    // Next drag passes it (it fetches while hovered, as browsers do) and goes to the target.
    const auto drag = begin();
    bystander.accept();
    bystander.ask("text/uri-list");
    target.accept();
    drop(drag);
    bystander.finish();
    EXPECT_EQ(ends.size(), 1U) << "ended by a stranger, taken "
                               << (ends.size() > 1 ? ends[1].taken.size() : 0);
}
TEST_F(X11DragSupportTest, aLateAnswerOfAWindowThatWasLeftIsNotTheTargets)
{
    const auto drag = begin();
    target.accept();
    bystander.tell("XdndStatus", 0, nullptr);
    bystander.destroyWindow();
    drop(drag);
    target.ask("text/uri-list");
    clock.advance(X11DragSupport::lastWords);
    EXPECT_TRUE(ends.empty());
    target.finish();
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(taken(), Places{0});
}
TEST_F(X11DragSupportTest, secondDropOnOneProgramGetsTheSecondContents)
{
    dropOn(target);
    EXPECT_EQ(target.take("image/png"), "picture");
    support.dragWillBegin({{QStringLiteral("image/png"), "other", {0}}}, true);
    target.accept();
    EXPECT_EQ(target.take("image/png"), "other");
}
TEST_F(X11DragSupportTest, twoDropsOnOneWindowDeathIsHeardAfterFirstEnds)
{
    dropOn(target);
    clock.advance(X11DragSupport::defaultPatience * 3 / 4);
    dropOn(target);
    clock.advance(X11DragSupport::defaultPatience / 2);
    ASSERT_EQ(ends.size(), 1U);
    target.destroyWindow();
    EXPECT_TRUE(eventually([&] { return ends.size() == 2; }, std::chrono::seconds{3}));
}
TEST_F(X11DragSupportTest, twoDropsOnOneWindowLeaveOnceBothWentWell)
{
    dropOn(target);
    target.take("image/png");
    dropOn(target);
    target.take("text/uri-list");
    target.finish();
    EXPECT_TRUE(ends.empty()) << "it may be the end of either";
    target.finish();
    ASSERT_EQ(ends.size(), 2U);
    EXPECT_EQ(ends[0].taken, Places{2});
    EXPECT_EQ(ends[1].taken, Places{0});
}
TEST_F(X11DragSupportTest, twoDropsOnOneWindowStayWhereOneOfThemFailed)
{
    for (const bool failsFirst : {true, false}) {
        ends.clear();
        dropOn(target);
        target.take("image/png");
        dropOn(target);
        target.take("text/uri-list");
        target.finish(failsFirst ? 0 : 1);
        target.finish(failsFirst ? 1 : 0);
        ASSERT_EQ(ends.size(), 2U);
        for (const DragOutEnd &end : ends)
            EXPECT_EQ(end.operation, DragOperation::None);
    }
}
TEST_F(X11DragSupportTest, twoDropsOnOneWindowStayWhereTheTargetSpeaksOfOneOnly)
{
    dropOn(target);
    target.take("image/png");
    dropOn(target);
    target.take("text/uri-list");
    target.finish();
    clock.advance(X11DragSupport::defaultPatience * 5 / 4);
    ASSERT_EQ(ends.size(), 2U);
    for (const DragOutEnd &end : ends)
        EXPECT_EQ(end.operation, DragOperation::None);
    dropOn(target);
    target.take("image/png");
    target.finish(0);
    EXPECT_EQ(ends.size(), 2U) << "that was the late word";
    target.finish();
    ASSERT_EQ(ends.size(), 3U);
    EXPECT_EQ(taken(), Places{2});
}
TEST_F(X11DragSupportTest, twoDropsOnOneWindowWaitForTheOneThatIsStillBeingMade)
{
    dropOn(target);
    target.take("image/png");
    const auto slow = support.dragWillBegin({{QStringLiteral("image/png"), {}, {0}}}, false);
    target.accept();
    drop(slow);
    target.ask("image/png");
    target.finish();
    clock.advance(X11DragSupport::defaultPatience * 2);
    EXPECT_TRUE(ends.empty()) << "the target is at work";
    support.formsAreReady(slow, PasteboardForms{{QStringLiteral("image/png"), "made", {0}}});
    target.finish();
    ASSERT_EQ(ends.size(), 2U);
    EXPECT_EQ(ends[0].taken, Places{2});
    EXPECT_EQ(ends[1].taken, Places{0});
}
TEST_F(X11DragSupportTest, twoDropsOnOneWindowOfWhichOneIsALinkMayBothBe)
{
    for (const bool linksFirst : {true, false}) {
        ends.clear();
        dropOn(target);
        target.take("image/png");
        dropOn(target);
        target.take("text/uri-list");
        target.finish(1, linksFirst ? "XdndActionLink" : "XdndActionCopy");
        target.finish(1, linksFirst ? "XdndActionCopy" : "XdndActionLink");
        ASSERT_EQ(ends.size(), 2U);
        for (const DragOutEnd &end : ends)
            EXPECT_EQ(end.operation, DragOperation::Link);
    }
}
TEST_F(X11DragSupportTest, whatAWindowSaidOfEarlierDropsIsNotAboutTheNext)
{
    dropOn(target);
    dropOn(target);
    target.finish();
    support.dragCameToNothing(support.dragWillBegin(forms(), true));
    clock.advance(X11DragSupport::defaultPatience * 5 / 4);
    ASSERT_EQ(ends.size(), 2U);
    target.finish(0);
    dropOn(target);
    target.take("image/png");
    target.finish();
    ASSERT_EQ(ends.size(), 3U);
    EXPECT_EQ(taken(), Places{2});
}
TEST_F(X11DragSupportTest, selectionClearOlderThanTheDrag)
{
    xcb_button_press_event_t press = {};
    press.response_type = XCB_BUTTON_PRESS;
    press.time = 2000;
    support.nativeEventFilter("xcb_generic_event_t", &press, nullptr);
    const auto drag = begin();
    xcb_selection_clear_event_t clear = {};
    clear.response_type = XCB_SELECTION_CLEAR;
    clear.selection = connection.atom("XdndSelection");
    clear.time = 1;
    support.nativeEventFilter("xcb_generic_event_t", &clear, nullptr);
    target.accept();
    EXPECT_EQ(target.take("image/png"), "picture");
    drop(drag);
    clear.time = 3000;
    support.nativeEventFilter("xcb_generic_event_t", &clear, nullptr);
    EXPECT_EQ(target.take("image/png"), "picture") << "waiting";
}
TEST_F(X11DragSupportTest, whatAWindowThatWasLeftFetchedDoesNotCount)
{
    const auto drag = begin();
    bystander.accept();
    bystander.ask("image/png");
    // Let go over another program's window before that one has answered.
    drop(drag);
    target.ask("text/uri-list");
    target.finish();
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(taken(), Places{0});
}
} // namespace corvane::test
