#pragma once

#include <QString>

#include <functional>

namespace corvane {

/// Short messages to the user. Without a handler they are dropped.
struct Feedback {
    std::function<void(const QString &message)> handler;

    void show(const QString &message) const
    {
        if (handler)
            handler(message);
    }
};

} // namespace corvane
