#include "platform/desktop/keyboard_loan.h"

#include "platform/base/main_queue.h"

#include <utility>

namespace corvane {

KeyboardLoan::KeyboardLoan(KeyboardFocus &focus, MainQueue &queue)
    : m_focus(focus)
    , m_queue(queue)
{
    m_focus.observeAnswers(m_lifetime.guard([this] { answered(); }));
}

void KeyboardLoan::join(WindowNumber panel)
{
    m_panels[panel] = {};
}

void KeyboardLoan::leave(WindowNumber panel)
{
    lost(panel);
    wishEnds(panel);
    m_panels.erase(panel);
}

void KeyboardLoan::shown(WindowNumber panel)
{
    m_panels[panel].isShown = true;
    m_panels[panel].hasUserGoneOn = false;
}

void KeyboardLoan::willHide(WindowNumber panel)
{
    const Panel before = std::exchange(m_panels[panel], {});
    if (!before.isShown)
        return;
    wishEnds(panel);
    if (!before.hasUserGoneOn) {
        m_panels[panel].lender = before.lender;
        giveBackFrom(panel);
        m_panels[panel].lender = WindowNumber::None;
        return;
    }
    // Not now: the window manager may get the click after us, and our request would then override
    // the user's.
    m_queue.asyncAfter(clickPatience,
                       m_lifetime.guard([this, panel] { giveBackUnlessClaimed(panel); }));
}

/// The clicked window may be one that does not take the keyboard.
void KeyboardLoan::giveBackUnlessClaimed(WindowNumber hidden)
{
    if (isPanel(hidden) && !isShown(hidden) && m_focus.focusedWindow() == WindowNumber::None)
        giveBack();
}

void KeyboardLoan::wantedByHand(WindowNumber panel)
{
    m_givesBackOnRelease = false;
    if (!isShown(panel))
        return;
    m_goingOn.restart();
    take(panel);
}

void KeyboardLoan::wantedAmongPanels(WindowNumber panel)
{
    if (!isShown(panel))
        return;
    const WindowNumber focused = m_focus.focusedWindow();
    if (focused == WindowNumber::None || isPanel(focused))
        wantedByHand(panel);
}

void KeyboardLoan::resigned(WindowNumber panel)
{
    if (isShown(panel))
        giveBackFrom(panel);
}

void KeyboardLoan::userWentOn(WindowNumber panel)
{
    m_panels[panel].hasUserGoneOn = true;
    nobodyWants();
    m_goingOn.restart();
    m_queue.asyncAfter(clickPatience, m_goingOn.guard([this, panel] { resigned(panel); }));
}

void KeyboardLoan::windowOpens()
{
    m_behindWindow = m_focus.focusedWindow();
}

void KeyboardLoan::windowWillHide(WindowNumber window)
{
    const WindowNumber behind = std::exchange(m_behindWindow, WindowNumber::None);
    if (!isShown(behind) || m_focus.focusedWindow() != window)
        return;
    // Before the window is hidden: after that, the window manager gives the keyboard to a window
    // that it manages, and panels are none.
    m_focus.giveTo(behind);
    m_wantedMeanwhile = behind;
    m_isOwnChoiceAwaited = true;
}

void KeyboardLoan::windowHidden()
{
    // Some window managers, when they hear that the window is gone, give the keyboard to another
    // window or to none, although a panel has it.
    if (m_isOwnChoiceAwaited && m_focus.askForAnswer())
        awaitAnswer();
    else if (m_awaitedAnswers == 0)
        forgetAnswers();
}

void KeyboardLoan::pressed()
{
    ++m_inputs;
    m_isBeingPressed = true;
    m_wasWithPanelBeforePress = isPanel(m_focus.focusedWindow());
}

void KeyboardLoan::dragLetGo(DragOperation promised)
{
    if (promised == DragOperation::None && m_wasWithPanelBeforePress)
        return;
    // If the button and a key are still down, it was Escape that ended the drag. Another button
    // ends a drag, too, but then no key release follows.
    m_givesBackOnRelease
        = promised == DragOperation::None && m_focus.isLeftButtonDown() && m_focus.isAnyKeyDown();
    if (!m_givesBackOnRelease)
        giveBackFromAnyPanel();
}

void KeyboardLoan::keyPressed(WindowNumber panel, NativeKey key, std::uint32_t modifiers)
{
    ++m_inputs;
    m_heldKey = {panel, key, modifiers};
}

void KeyboardLoan::keyReleased(NativeKey key)
{
    if (m_focus.isKeyDown(key))
        return;
    if (m_heldKey && m_heldKey->key == key)
        m_heldKey.reset();
    if (std::exchange(m_givesBackOnRelease, false))
        giveBackFromAnyPanel();
}

void KeyboardLoan::lost(WindowNumber panel)
{
    if (m_heldKey && m_heldKey->panel == panel)
        m_heldKey.reset();
}

bool KeyboardLoan::isShown(WindowNumber panel) const
{
    const auto found = m_panels.find(panel);
    return found != m_panels.end() && found->second.isShown;
}

bool KeyboardLoan::isJustGivenBackTo(WindowNumber window) const
{
    return m_awaitedAnswers > 0 && window != WindowNumber::None
        && (window == m_givenBackTo.focused || window == m_givenBackTo.active);
}

void KeyboardLoan::take(WindowNumber panel)
{
    if (m_awaitedAnswers > 0)
        m_wantedMeanwhile = panel;
    const WindowNumber focused = m_focus.focusedWindow();
    if (focused == panel)
        return;
    // Until the window manager has answered, it may still name another active window.
    if (isJustGivenBackTo(focused))
        m_owner = m_givenBackTo;
    else if (!isPanel(focused))
        m_owner = m_focus.owner();
    rememberLender(panel, focused);
    m_focus.giveTo(panel);
}

/// A panel that got the keyboard by the same press only passes it on.
void KeyboardLoan::rememberLender(WindowNumber panel, WindowNumber focused)
{
    Panel &taker = m_panels[panel];
    taker.press = m_isBeingPressed ? m_inputs : 0;
    if (!isPanel(focused))
        taker.lender = WindowNumber::None;
    else if (m_panels[focused].press == 0 || m_panels[focused].press != m_inputs)
        taker.lender = focused;
}

void KeyboardLoan::giveBackFrom(WindowNumber panel)
{
    wishEnds(panel);
    // The key that closed the panel may be held; its repeats must not reach the program behind.
    if (m_heldKey && m_heldKey->panel == panel) {
        m_focus.swallowRepeats(m_heldKey->key, m_heldKey->modifiers);
        m_heldKey.reset();
    }
    // Otherwise another window has it by now: the user went on there, or to another panel.
    if (m_focus.focusedWindow() != panel)
        return;
    const WindowNumber lender = std::exchange(m_panels[panel].lender, WindowNumber::None);
    if (lender != panel && isShown(lender))
        m_focus.giveTo(lender);
    else
        giveBack();
}

void KeyboardLoan::wishEnds(WindowNumber panel)
{
    if (m_wantedMeanwhile == panel)
        nobodyWants();
}

void KeyboardLoan::nobodyWants()
{
    m_wantedMeanwhile.reset();
    // Whoever has the keyboard from now on was not chosen in place of a panel.
    m_isOwnChoiceAwaited = false;
}

void KeyboardLoan::giveBackFromAnyPanel()
{
    if (isPanel(m_focus.focusedWindow()))
        giveBack();
}

void KeyboardLoan::giveBack()
{
    nobodyWants();
    m_givenBackTo = std::exchange(m_owner, {});
    if (m_focus.giveBackTo(m_givenBackTo))
        awaitAnswer();
}

void KeyboardLoan::awaitAnswer()
{
    ++m_awaitedAnswers;
    m_waiting.restart();
    m_queue.asyncAfter(answerPatience, m_waiting.guard([this] { answerIsOverdue(); }));
}

/// The window manager has activated the owner, which now has the keyboard even if a panel asked for
/// it later. If another window has it, the user or that program gave it to it, and it keeps it.
void KeyboardLoan::answered()
{
    const WindowNumber focused = m_focus.focusedWindow();
    const bool isByWindowManager
        = isJustGivenBackTo(focused) || (m_isOwnChoiceAwaited && !isPanel(focused));
    if (m_wantedMeanwhile && isByWindowManager)
        m_focus.giveTo(*m_wantedMeanwhile);
    if (m_awaitedAnswers > 0)
        --m_awaitedAnswers;
    if (m_awaitedAnswers == 0)
        forgetAnswers();
}

void KeyboardLoan::answerIsOverdue()
{
    // If another window has it, the user may have gone there meanwhile.
    if (m_isOwnChoiceAwaited && m_wantedMeanwhile && m_focus.focusedWindow() == WindowNumber::None)
        m_focus.giveTo(*m_wantedMeanwhile);
    forgetAnswers();
}

void KeyboardLoan::forgetAnswers()
{
    m_awaitedAnswers = 0;
    nobodyWants();
    m_waiting.restart();
}

} // namespace corvane
