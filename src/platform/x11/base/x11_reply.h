#pragma once

#include <cstdlib>
#include <memory>

namespace corvane {

/// What xcb hands out is freed with `free`.
struct X11Free {
    void operator()(void *memory) const { std::free(memory); }
};

template<typename Reply>
using X11Reply = std::unique_ptr<Reply, X11Free>;

} // namespace corvane
