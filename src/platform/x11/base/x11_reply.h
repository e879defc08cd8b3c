#pragma once

#include <cstdlib>
#include <memory>

namespace corvane {

/// A reply, event or error of xcb, which has to be freed with `free`.
struct X11Free {
    void operator()(void *memory) const { std::free(memory); }
};

template<typename Reply>
using X11Reply = std::unique_ptr<Reply, X11Free>;

} // namespace corvane
