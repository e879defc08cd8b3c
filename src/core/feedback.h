#pragma once

#include <QString>

#include <functional>

namespace corvane {

/// Shows short messages to the user, such as "Link copied". The composition root sets the handler;
/// without one messages are dropped.
struct Feedback {
    std::function<void(const QString &message)> handler;

    void show(const QString &message) const
    {
        if (handler)
            handler(message);
    }
};

} // namespace corvane
