#pragma once

#include <QPointF>

#include <optional>

namespace corvane {

/// Where the pointer is.
class Pointer {
public:
    virtual ~Pointer() = default;

    /// In global points, origin at the bottom left of the primary display; none where the window
    /// system does not tell.
    virtual std::optional<QPointF> location() const = 0;
};

} // namespace corvane
