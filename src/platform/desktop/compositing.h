#pragma once

#include <functional>

namespace corvane {

/// Whether windows are blended with what lies below them. Main thread only.
class Compositing {
public:
    virtual ~Compositing() = default;

    /// Without it transparency shows as black.
    virtual bool isComposited() const = 0;
    /// Calls back after it began or ended.
    virtual void observeChanges(std::function<void()> callback) = 0;
};

} // namespace corvane
