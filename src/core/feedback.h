#pragma once

#include "core/message.h"

#include <functional>

namespace corvane {

/// Shows short messages to the user. The composition root sets the handler;
/// without one messages are dropped.
struct Feedback {
    std::function<void(const Message &message)> handler;

    void show(const Message &message) const
    {
        if (handler)
            handler(message);
    }
};

} // namespace corvane
