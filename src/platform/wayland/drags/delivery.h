#pragma once

#include "platform/system/file_descriptor.h"

#include <QByteArray>

#include <functional>
#include <memory>

namespace corvane {

/// Hands bytes to whoever reads a pipe. Destroying it closes the pipe, where that is still open.
class Delivery {
public:
    struct Events {
        /// The reader has taken something.
        std::function<void()> progress;
        /// Called once, later: whether the reader has taken everything. May destroy the delivery.
        std::function<void(bool isWhole)> ended;
    };

    Delivery() = default;
    Delivery(const Delivery &) = delete;
    Delivery &operator=(const Delivery &) = delete;
    virtual ~Delivery() = default;

    /// Whether everything is in the pipe and nothing more is done but to see it being taken.
    virtual bool isWritten() const = 0;
    /// Looks at once whether it has been taken, rather than before long. May call `ended`.
    virtual void look() = 0;
};

/// Begins a delivery. Its `Events` are not called before it returns.
using Deliver = std::function<std::unique_ptr<Delivery>(FileDescriptor pipe, QByteArray bytes,
                                                        Delivery::Events events)>;

} // namespace corvane
