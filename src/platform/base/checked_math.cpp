#include "platform/base/checked_math.h"

#include <cstdio>
#include <cstdlib>

namespace corvane {

void fatal(const char *message)
{
    std::fputs(message, stderr);
    std::fputc('\n', stderr);
    std::abort();
}

} // namespace corvane
