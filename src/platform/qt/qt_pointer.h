#pragma once

#include "platform/pointer.h"

namespace corvane {

/// The pointer as Qt asks the window system for it.
class QtPointer : public Pointer {
public:
    std::optional<QPointF> location() const override;
};

} // namespace corvane
