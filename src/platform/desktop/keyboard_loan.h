#pragma once

#include "platform/base/lifetime.h"
#include "platform/desktop/keyboard_focus.h"
#include "platform/desktop/panel_events.h"

#include <map>
#include <optional>

namespace corvane {

class MainQueue;

/// Decides which panel has the keyboard, and when it goes back to the window that had it before,
/// its owner. There is one for all panels, which report to it what happens to them.
///
///     with its owner --a panel wants it--> with that panel; the owner is remembered
///     with a panel --another panel wants it--> with that one; the owner stays remembered
///     with a panel --it hides, resigns, or its drag is let go elsewhere--> with its owner, or with
///                    the panel that it took it from, if that is shown
///     with a panel --the user clicks elsewhere--> wherever the click takes it, else with its owner
///     with a panel --a window of ours opens--> with that window
///     with that window --it hides--> with the panel, if that is still shown
///
/// A window manager that is asked to activate the owner may do that after a panel has asked for the
/// keyboard again. And when a window of ours hides, a window manager may give the keyboard to a
/// window that it chooses, or to none. In both cases that panel is given it once more.
///
/// The focus and the queue must outlive it. Main thread only.
class KeyboardLoan {
public:
    /// In seconds: how long a window manager may take to give the keyboard to the window that the
    /// user clicked.
    static constexpr double clickPatience = 0.3;
    /// In seconds: after this no answer of the window manager is awaited any more, because some
    /// give none.
    static constexpr double answerPatience = 1;

    KeyboardLoan(KeyboardFocus &focus, MainQueue &queue);
    KeyboardLoan(const KeyboardLoan &) = delete;
    KeyboardLoan &operator=(const KeyboardLoan &) = delete;

    /// Adds a panel, which is hidden, by its window's number. To be called before the other
    /// functions.
    void join(WindowNumber panel);
    /// Removes a panel, which is hidden.
    void leave(WindowNumber panel);

    void shown(WindowNumber panel);
    /// To be called while the panel is still on screen.
    void willHide(WindowNumber panel);

    /// The user has just done something that asks for the panel: gives it the keyboard. Nothing for
    /// a hidden panel.
    void wantedByHand(WindowNumber panel);
    /// The same, but only if a panel or no window at all has the keyboard.
    void wantedAmongPanels(WindowNumber panel);
    /// The panel stays on screen but needs the keyboard no longer: gives it back.
    void resigned(WindowNumber panel);
    /// The user clicked in another program. Until the panel is shown again, hiding it leaves the
    /// keyboard where the click puts it. A panel that still has it after `clickPatience` gives it
    /// back.
    void userWentOn(WindowNumber panel);

    /// To be called before a window of ours opens that the window manager manages and gives the
    /// keyboard to, such as a preview. One at a time.
    void windowOpens();
    /// To be called while that window is still on screen, right before it is hidden; after that,
    /// `windowHidden`.
    void windowWillHide(WindowNumber window);
    void windowHidden();

    /// The left button went down on a panel; to be called before the panel reacts, and the other
    /// when it has.
    void pressed();
    void pressHandled() { m_isBeingPressed = false; }
    /// The drag that began with that press is over. `promised` is what the target would do.
    void dragLetGo(DragOperation promised);

    /// A key was pressed on the panel; not to be called for repeats. The modifiers are the window
    /// system's bits.
    void keyPressed(WindowNumber panel, NativeKey key, std::uint32_t modifiers);
    /// A key was released; repeats' releases may be reported, too.
    void keyReleased(NativeKey key);
    /// The panel was told that it lost the keyboard, so releases of its keys go elsewhere.
    void lost(WindowNumber panel);

private:
    struct Panel {
        bool isShown = false;
        bool hasUserGoneOn = false;
        /// The panel that it took the keyboard from, unless that had got it by the same press.
        WindowNumber lender = WindowNumber::None;
        /// The press by which it got the keyboard; 0 for none.
        std::uint64_t press = 0;
    };
    /// The latest key that was pressed on a panel and not released.
    struct HeldKey {
        WindowNumber panel = WindowNumber::None;
        NativeKey key = NativeKey::None;
        std::uint32_t modifiers = 0;
    };

    bool isPanel(WindowNumber window) const { return m_panels.contains(window); }
    bool isShown(WindowNumber panel) const;
    bool isJustGivenBackTo(WindowNumber window) const;
    void take(WindowNumber panel);
    void wishEnds(WindowNumber panel);
    void nobodyWants();
    void rememberLender(WindowNumber panel, WindowNumber focused);
    void giveBackFrom(WindowNumber panel);
    void giveBackFromAnyPanel();
    void giveBack();
    void giveBackUnlessClaimed(WindowNumber hidden);
    void awaitAnswer();
    void answered();
    void answerIsOverdue();
    void forgetAnswers();

    KeyboardFocus &m_focus;
    MainQueue &m_queue;
    std::map<WindowNumber, Panel> m_panels;
    /// The window that had the keyboard before the panels.
    KeyboardFocus::Owner m_owner;
    /// The window that was last given the keyboard back, and how many answers of the window manager
    /// about that are awaited.
    KeyboardFocus::Owner m_givenBackTo;
    int m_awaitedAnswers = 0;
    /// The panel that asked for the keyboard while answers were awaited.
    std::optional<WindowNumber> m_wantedMeanwhile;
    /// The window that had the keyboard when a window of ours opened.
    WindowNumber m_behindWindow = WindowNumber::None;
    /// A window of ours was hidden, and the window manager may now give the keyboard to a window
    /// that it chooses, or to none.
    bool m_isOwnChoiceAwaited = false;
    bool m_wasWithPanelBeforePress = false;
    /// Counts presses and keys on panels.
    std::uint64_t m_inputs = 0;
    bool m_isBeingPressed = false;
    /// Escape ended a drag and is still held. The keyboard is given back when it is released, so
    /// that its repeats do not reach the owner.
    bool m_givesBackOnRelease = false;
    std::optional<HeldKey> m_heldKey;
    /// Restarted when waiting for answers begins again or ends.
    Lifetime m_waiting;
    /// Restarted when the user wants a panel again after a click elsewhere.
    Lifetime m_goingOn;
    Lifetime m_lifetime;
};

} // namespace corvane
