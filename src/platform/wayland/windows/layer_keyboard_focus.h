#pragma once

#include "platform/desktop/keyboard_focus.h"

namespace corvane {

class LayerPanelSurface;

/// The keyboard where a compositor gives it to whom it likes: a panel may ask for it, and give it
/// up again, and then the compositor knows who had it before. Of other programs nothing is known,
/// so that wherever no window of ours has the keyboard, somebody else does.
///
/// Keys repeat by the programs themselves, so that a key which is held reaches nobody else when the
/// keyboard goes. The surface must outlive it.
class LayerKeyboardFocus : public KeyboardFocus {
public:
    /// Stands for all windows of which nothing is known.
    static constexpr WindowNumber somebodyElse{~std::uint64_t{0}};

    explicit LayerKeyboardFocus(LayerPanelSurface &panels)
        : m_panels(panels)
    {
    }

    WindowNumber focusedWindow() const override;
    Owner owner() const override { return {}; }
    void giveTo(WindowNumber panel) override;
    /// The compositor's answer is not waited for: nobody gets the keyboard between.
    bool giveBackTo(const Owner &owner) override;
    bool askForAnswer() override { return false; }
    void observeAnswers(std::function<void()> /*callback*/) override { }
    /// What Qt calls a release is one of the hand.
    bool isKeyDown(NativeKey /*key*/) const override { return false; }
    bool isAnyKeyDown() const override { return false; }
    bool isLeftButtonDown() const override;
    void swallowRepeats(NativeKey /*key*/, std::uint32_t /*modifiers*/) override { }

private:
    LayerPanelSurface &m_panels;
};

} // namespace corvane
