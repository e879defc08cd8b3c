#pragma once

#include "platform/base/callback_list.h"
#include "platform/desktop/keyboard_focus.h"

#include <deque>
#include <set>
#include <utility>
#include <vector>

namespace corvane::test {

/// A window system that gives the keyboard to every window that asks for it, with a window manager
/// that does what it was asked when the test calls `answer`.
class FakeKeyboardFocus : public KeyboardFocus {
public:
    WindowNumber focusedWindow() const override { return focused; }
    Owner owner() const override { return {focused, active}; }
    void giveTo(WindowNumber panel) override
    {
        focused = panel;
        ++timesGiven;
    }
    bool giveBackTo(const Owner &owner) override
    {
        focused = owner.focused;
        givenBack.push_back(owner);
        if (owner.active == WindowNumber::None)
            return false;
        m_asked.push_back(owner.active);
        return true;
    }
    bool askForAnswer() override
    {
        if (!hasWindowManager)
            return false;
        m_asked.push_back(WindowNumber::None);
        return true;
    }
    void observeAnswers(std::function<void()> callback) override
    {
        m_observers.add(std::move(callback));
    }
    bool isKeyDown(NativeKey key) const override { return keysDown.contains(key); }
    bool isAnyKeyDown() const override { return !keysDown.empty(); }
    bool isLeftButtonDown() const override { return leftButtonIsDown; }
    void swallowRepeats(NativeKey key, std::uint32_t modifiers) override
    {
        swallowed.emplace_back(key, modifiers);
    }

    /// The window manager answers what it was asked first. If that was to activate a window it
    /// does; with `givesKeyboard` false it leaves the keyboard with another window.
    void answer(bool givesKeyboard = true)
    {
        if (m_asked.empty())
            return;
        const WindowNumber asked = m_asked.front();
        m_asked.pop_front();
        if (asked != WindowNumber::None) {
            active = asked;
            if (givesKeyboard)
                focused = asked;
        }
        m_observers.notify();
    }

    WindowNumber focused = WindowNumber::None;
    WindowNumber active = WindowNumber::None;
    int timesGiven = 0;
    std::vector<Owner> givenBack;
    std::set<NativeKey> keysDown;
    bool leftButtonIsDown = false;
    bool hasWindowManager = true;
    std::vector<std::pair<NativeKey, std::uint32_t>> swallowed;

private:
    std::deque<WindowNumber> m_asked;
    CallbackList<> m_observers;
};

} // namespace corvane::test
