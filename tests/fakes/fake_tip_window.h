#pragma once

#include "platform/desktop/tip_window.h"

#include <QStringList>

#include <memory>
#include <optional>

namespace corvane::test {

/// A tip that is shown nowhere.
class FakeTipWindow : public TipWindow {
public:
    void show(const PanelPlacement &wanted, const Content &what) override
    {
        placement = wanted;
        content = what;
        isVisible = true;
    }
    void raise() override { ++raises; }
    void hide() override { isVisible = false; }

    bool isVisible = false;
    int raises = 0;
    PanelPlacement placement;
    Content content;
};

/// Makes one, and tells of it.
class FakeTipWindows {
public:
    std::unique_ptr<TipWindow> make()
    {
        ++made;
        auto tip = std::make_unique<FakeTipWindow>();
        last = tip.get();
        return tip;
    }
    bool isShown() const { return last && last->isVisible; }

    int made = 0;
    /// Null before the first.
    FakeTipWindow *last = nullptr;
};

} // namespace corvane::test
