#pragma once

#include "platform/reports/pointer.h"

namespace corvane::test {

/// A pointer at a place that a test sets; none at first.
class FakePointer : public Pointer {
public:
    std::optional<QPointF> location() const override { return position; }

    std::optional<QPointF> position;
};

} // namespace corvane::test
