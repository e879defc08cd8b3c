#pragma once

#include <functional>

namespace corvane {

/// In device-independent pixels: default fonts of desktops are up to this size. A larger one was
/// chosen by the user.
constexpr double usualFontPixels = 15;

/// What the user asked the desktop for, to see better. Main thread only.
class AppearancePreference {
public:
    static constexpr double largestTextScale = 2;

    virtual ~AppearancePreference() = default;

    /// How many times as large as usual texts are wanted, beyond what the screens' scale does
    /// already: 1 to `largestTextScale`.
    virtual double textScale() const = 0;
    /// Edges are to be drawn where tints and shadows alone tell things apart otherwise.
    virtual bool wantsMoreContrast() const = 0;
    /// Calls back after one of them has changed.
    virtual void observeChanges(std::function<void()> callback) = 0;
};

} // namespace corvane
