#pragma once

#include "platform/base/lifetime.h"
#include "platform/desktop/keyboard_focus.h"
#include "platform/desktop/panel_events.h"

#include <map>
#include <optional>

namespace corvane {

class MainQueue;

/// The panels have the keyboard on loan. This decides which of them has it and when it goes back;
/// one for all panels, which tell it what happens to them.
///
///     with its owner --a panel wants it--> with that panel; the owner is remembered
///     with a panel --another panel wants it--> with that one; the owner stays remembered
///     with a panel --it hides, resigns, or its drag is let go elsewhere--> with its owner
///     with a panel --the user clicks elsewhere--> wherever the click takes it
///
/// A window manager that is asked to activate the owner may do so late, after a panel has asked for
/// the keyboard again. Then that panel is given it once more.
///
/// Both that it is given must outlive it. Main thread only.
class KeyboardLoan {
public:
    /// Seconds that a window manager may take to give the keyboard to what was clicked.
    static constexpr double clickPatience = 0.3;
    /// Seconds after which no answer of the window manager is awaited any more: some give none.
    static constexpr double answerPatience = 1;

    KeyboardLoan(KeyboardFocus &focus, MainQueue &queue);
    KeyboardLoan(const KeyboardLoan &) = delete;
    KeyboardLoan &operator=(const KeyboardLoan &) = delete;

    /// A panel, by its window's number, which is hidden. Others call nothing here before that.
    void join(WindowNumber panel);
    /// The panel is hidden, and about to be no more.
    void leave(WindowNumber panel);

    void shown(WindowNumber panel);
    /// Called while it is still on screen.
    void willHide(WindowNumber panel);

    /// The user turned to the panel just now. A hidden one is given nothing.
    void wantedByHand(WindowNumber panel);
    /// The same, unless a window that is no panel has the keyboard.
    void wantedAmongPanels(WindowNumber panel);
    /// The panel stays on screen, and needs the keyboard no longer.
    void resigned(WindowNumber panel);
    /// The user clicked in another program: until it is shown again, hiding the panel takes the
    /// keyboard from nobody.
    void userWentOn(WindowNumber panel);

    /// The left button went down on a panel, which has not done anything for it yet.
    void pressed();
    /// The drag that began with that press is over. `promised` is what the target would do.
    void dragLetGo(DragOperation promised);

    /// Not for repeats. The modifiers by the window system's bits.
    void keyPressed(WindowNumber panel, NativeKey key, std::uint32_t modifiers);
    /// Also where it was a repeat of the key.
    void keyReleased(NativeKey key);
    /// The panel was told that it has the keyboard no more: other releases go to somebody else.
    void lost(WindowNumber panel);

private:
    struct Panel {
        bool isShown = false;
        bool hasUserGoneOn = false;
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
    void giveBackFrom(WindowNumber panel);
    void giveBackFromAnyPanel();
    void giveBack();
    void giveBackUnlessClaimed(WindowNumber hidden);
    void awaitAnswer();
    void answered();
    void forgetAnswers();

    KeyboardFocus &m_focus;
    MainQueue &m_queue;
    std::map<WindowNumber, Panel> m_panels;
    /// Who had it before the panels.
    KeyboardFocus::Owner m_owner;
    /// Who was given it back last, and how many such wishes are not answered yet.
    KeyboardFocus::Owner m_givenBackTo;
    int m_awaitedAnswers = 0;
    /// The panel that asked for it meanwhile.
    std::optional<WindowNumber> m_wantedMeanwhile;
    bool m_wasWithPanelBeforePress = false;
    /// Escape has ended a drag and may be held: its repeats are nobody else's.
    bool m_givesBackOnRelease = false;
    std::optional<HeldKey> m_heldKey;
    /// Restarted where the wait for answers begins anew or ends.
    Lifetime m_waiting;
    Lifetime m_lifetime;
};

} // namespace corvane
