// Programs of other toolkits as partners, each as one of the session's own: what is dragged out of
// them, and what they are given. docs/toolkits.md says how all of it went.
//
// Browsers take too long for every day. What else not every run passes by other people's doing,
// most programs of X11 in Wayland sessions and drags out under mutter, tools/try-toolkits tries as
// well.

#include "e2e/wayland_session.h"

#include <tuple>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

enum class Native { Yes, No };

struct Partner {
    Toolkit toolkit;
    /// No for one of X11's programs in a Wayland session.
    Native isNative = Native::Yes;
};

std::string nameOfPartner(const Partner &partner)
{
    const auto name = [&] {
        switch (partner.toolkit) {
        case Toolkit::Gtk3:
            return "gtk3";
        case Toolkit::Gtk4:
            return "gtk4";
        case Toolkit::Qt5:
            return "qt5";
        case Toolkit::Qt6:
            return "qt6";
        case Toolkit::Chromium:
            return "chromium";
        case Toolkit::Firefox:
            return "firefox";
        }
        return "";
    };
    return name() + std::string(partner.isNative == Native::Yes ? "" : "x11");
}

using Trial = std::tuple<DesktopKind, Partner>;

std::string nameOfTrial(const testing::TestParamInfo<Trial> &trial)
{
    const auto &[desktop, partner] = trial.param;
    return nameOf({desktop, 0}) + '_' + nameOfPartner(partner);
}

class Toolkits : public WaylandSessionTest, public testing::WithParamInterface<Trial> {
protected:
    Toolkits()
        : WaylandSessionTest(std::get<DesktopKind>(GetParam()))
    {
    }

    Toolkit toolkit() const { return std::get<Partner>(GetParam()).toolkit; }
    DragPeer::Offer partner(DragPeer::Offer offer = {}) const
    {
        offer.toolkit = toolkit();
        offer.isForX11 = std::get<Partner>(GetParam()).isNative == Native::No;
        return offer;
    }
    /// Pages are told of another end, in X11's sessions too; and KWin does not tell a program of
    /// Qt 6 for X11 that what it dragged was taken.
    bool isToldOfTheEnd() const
    {
        const auto &[desktop, partner] = GetParam();
        const bool isQt6OfX11 = partner.toolkit == Toolkit::Qt6 && partner.isNative == Native::No;
        return !isBrowser(toolkit())
            && !(isQt6OfX11 && desktop.windowManager == WindowManager::KWin);
    }
    /// Room for a browser's own controls, where it has any.
    QRect roomy(const QRect &place) const
    {
        return isBrowser(toolkit()) ? QRect(place.topLeft(), QSize(560, 420)) : place;
    }

    /// Out of that program onto the shelf, and on into one that is known to take everything.
    void takeFrom(const DragPeer::Offer &offer, DragPeer &witness)
    {
        DragPeer source(m_desktop, partner(offer), roomy(leftPlace()));
        ASSERT_EQ(source.problem(), QString());
        hands().beginDrag(source.source(), edge());
        ASSERT_NO_FATAL_FAILURE(dropWhereTheShelfOpens(source));
        // Under KWin a program of X11 hears that the button is up once the pointer is over it
        // again.
        hands().glideTo(source.source());
        EXPECT_TRUE(!isToldOfTheEnd() || source.endOfDrag() == "done");
        ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
        dragOut(witness);
        EXPECT_TRUE(corvane().waitUntilHidden());
    }
    /// Onto the shelf, and from there into the program.
    void giveTo(DragPeer &target, const DragPeer::Offer &offer)
    {
        // Beside a browser mutter lets nobody take hold of another window to move it.
        if (isBrowser(toolkit()))
            ASSERT_NO_FATAL_FAILURE(putByCommand(offer));
        else
            ASSERT_NO_FATAL_FAILURE(putByDrag(offer));
        ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
        dragOut(target);
    }
    void putByDrag(const DragPeer::Offer &offer)
    {
        DragPeer source(m_desktop, offer, leftPlace());
        ASSERT_EQ(source.problem(), QString());
        hands().beginDrag(source.source(), edge());
        ASSERT_NO_FATAL_FAILURE(dropWhereTheShelfOpens(source));
        ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    }
    void putByCommand(const DragPeer::Offer &offer)
    {
        QStringList arguments = offer.files;
        if (arguments.isEmpty())
            arguments = QStringList{makeFile(u"text"_s, offer.text.toUtf8())};
        const auto command
            = offer.files.isEmpty() ? u"exec \"$0\" - < \"$1\""_s : u"exec \"$0\" \"$1\""_s;
        Program putting(u"sh"_s, QStringList{u"-c"_s, command, CorvaneProgram::path()} + arguments,
                        m_desktop.environment());
        ASSERT_EQ(putting.waitForEnd(), 0);
    }

    const QString m_text = u"Grüße, 你好\nzweite Zeile"_s;
};

constexpr auto ownPartners = {Partner{Toolkit::Gtk4}, Partner{Toolkit::Qt5}, Partner{Toolkit::Qt6}};
constexpr Partner gtk3OfX11{Toolkit::Gtk3, Native::No};
constexpr Partner qt6OfX11{Toolkit::Qt6, Native::No};
constexpr auto browsers = {Partner{Toolkit::Chromium}, Partner{Toolkit::Firefox}};

const DesktopKind x11{WindowManager::Openbox, Compositor::Picom};
const auto sway = sessionOf(WindowManager::Sway);
const auto kwin = sessionOf(WindowManager::KWin);
const auto mutter = sessionOf(WindowManager::Mutter);

INSTANTIATE_TEST_SUITE_P(Windows, Toolkits,
                         testing::Combine(testing::Values(x11, sway, kwin),
                                          testing::ValuesIn(ownPartners)),
                         nameOfTrial);
INSTANTIATE_TEST_SUITE_P(DISABLED_UnderMutter, Toolkits,
                         testing::Combine(testing::Values(mutter), testing::ValuesIn(ownPartners)),
                         nameOfTrial);
INSTANTIATE_TEST_SUITE_P(DISABLED_Browsers, Toolkits,
                         testing::Combine(testing::Values(x11, sway, kwin, mutter),
                                          testing::ValuesIn(browsers)),
                         nameOfTrial);
INSTANTIATE_TEST_SUITE_P(ThroughXWayland, Toolkits,
                         testing::Values(Trial(kwin, gtk3OfX11), Trial(kwin, qt6OfX11)),
                         nameOfTrial);
INSTANTIATE_TEST_SUITE_P(DISABLED_ThroughXWayland, Toolkits,
                         testing::Values(Trial(sway, gtk3OfX11), Trial(sway, qt6OfX11),
                                         Trial(mutter, gtk3OfX11), Trial(mutter, qt6OfX11)),
                         nameOfTrial);

TEST_P(Toolkits, aSource)
{
    DragPeer witness(m_desktop, {}, rightPlace());
    ASSERT_EQ(witness.problem(), QString());
    start({{}, "settings.linkPreviews=false\n", {}});
    if (isBrowser(toolkit())) {
        const QString link = u"http://corvane.example/a/b"_s;
        takeFrom({.text = link}, witness);
        EXPECT_EQ(witness.droppedAddresses().trimmed(), link.toUtf8());
    } else {
        const QString file = makeFile(u"report.txt"_s, "report");
        takeFrom({.files = {file}}, witness);
        EXPECT_EQ(witness.droppedAddresses().trimmed(), uriList({file}).trimmed());
    }
    ASSERT_FALSE(HasFailure());
    takeFrom({.text = m_text}, witness);
    EXPECT_EQ(witness.droppedText(), m_text.toUtf8());
}

TEST_P(Toolkits, aTarget)
{
    DragPeer target(m_desktop, partner(), roomy(rightPlace()));
    ASSERT_EQ(target.problem(), QString());
    start();
    const QString file = makeFile(u"report.txt"_s, "report");
    giveTo(target, {.files = {file}});
    if (isBrowser(toolkit()))
        EXPECT_EQ(target.droppedBytes(), "report");
    else
        EXPECT_EQ(target.droppedAddresses().trimmed(), uriList({file}).trimmed());
    EXPECT_TRUE(corvane().waitUntilHidden());
    ASSERT_FALSE(HasFailure());
    giveTo(target, {.text = m_text});
    EXPECT_EQ(target.droppedText(), m_text.toUtf8());
    EXPECT_TRUE(corvane().waitUntilHidden());
}

} // namespace
} // namespace corvane::e2e
