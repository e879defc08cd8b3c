#include "decoder/confinement.h"

#include <malloc.h>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace corvane::confinement {

namespace {

/// The memory of sanitizers is above any bound.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

bool limit(__rlimit_resource resource, rlim_t most)
{
    const rlimit both = {most, most};
    return ::setrlimit(resource, &both) == 0;
}

} // namespace

bool limitResources()
{
    // Each arena reserves 64 MB of the address space.
    ::mallopt(M_ARENA_MAX, 2);
    // What is in this process is nobody else's, and no crash of it is worth a file.
    const bool isClosed = ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0) == 0;
    const bool isBounded = (isSanitized || limit(RLIMIT_AS, addressSpace))
        && limit(RLIMIT_CPU, processorSeconds) && limit(RLIMIT_NOFILE, openFiles)
        && limit(RLIMIT_CORE, 0) && limit(RLIMIT_FSIZE, addressSpace);
    return isClosed && isBounded;
}

} // namespace corvane::confinement
