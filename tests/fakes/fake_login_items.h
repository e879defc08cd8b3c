#pragma once

#include "platform/system/login_items.h"

namespace corvane::test {

/// A login item that can be told to fail.
class FakeLoginItems : public LoginItems {
public:
    bool isRegistered() const override { return registered; }
    std::optional<QString> registerItem() override { return change(true); }
    std::optional<QString> unregisterItem() override { return change(false); }

    bool registered = false;
    /// If set, changes fail with this message.
    std::optional<QString> error;

private:
    std::optional<QString> change(bool on)
    {
        if (!error)
            registered = on;
        return error;
    }
};

} // namespace corvane::test
