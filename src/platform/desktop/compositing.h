#pragma once

#include <functional>

namespace corvane {

/// Whether windows are blended with those below them, as compositing managers do. Main thread only.
class Compositing {
public:
    virtual ~Compositing() = default;

    /// If false, transparent pixels of windows are black.
    virtual bool isComposited() const = 0;
    /// Calls back after compositing began or ended.
    virtual void observeChanges(std::function<void()> callback) = 0;
};

} // namespace corvane
