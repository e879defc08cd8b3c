#pragma once

#include "platform/base/callback_list.h"
#include "platform/desktop/appearance_preference.h"

#include <utility>

namespace corvane::test {

class FakeAppearancePreference : public AppearancePreference {
public:
    double textScale() const override { return scale; }
    bool wantsMoreContrast() const override { return isForContrast; }
    void observeChanges(std::function<void()> callback) override
    {
        observers.add(std::move(callback));
    }

    double scale = 1;
    bool isForContrast = false;
    CallbackList<> observers;
};

} // namespace corvane::test
