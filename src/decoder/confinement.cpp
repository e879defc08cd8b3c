#include "decoder/confinement.h"

#include <malloc.h>
#include <pthread.h>
#include <sys/prctl.h>
#include <sys/resource.h>

#include <csignal>

namespace corvane::confinement {

namespace {

bool limit(__rlimit_resource resource, long long most, long long last)
{
    const rlimit both = {static_cast<rlim_t>(most), static_cast<rlim_t>(last)};
    return ::setrlimit(resource, &both) == 0;
}

bool limit(__rlimit_resource resource, long long most)
{
    return limit(resource, most, most);
}

/// So that a stack costs no more than it has to: all of it counts as memory.
bool limitThreadStacks()
{
    pthread_attr_t attributes;
    if (::pthread_attr_init(&attributes) != 0)
        return false;
    const bool isSet
        = ::pthread_attr_setstacksize(&attributes, static_cast<std::size_t>(threadStack)) == 0
        && ::pthread_setattr_default_np(&attributes) == 0;
    ::pthread_attr_destroy(&attributes);
    return isSet;
}

} // namespace

bool limitResources(decoder_protocol::Room room)
{
    // Each arena keeps memory of its own.
    ::mallopt(M_ARENA_MAX, 2);
    // Where a file would become too large, writing fails.
    std::signal(SIGXFSZ, SIG_IGN);
    // What is in this process is nobody else's, and no crash of it is worth a file.
    const bool isClosed = ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0) == 0;
    const bool hasBoundedMemory = isSanitized
        || (limitThreadStacks() && limit(RLIMIT_AS, addressSpace)
            && limit(RLIMIT_DATA, decoder_protocol::memoryIn(room)));
    const bool isBounded = hasBoundedMemory
        && limit(RLIMIT_CPU, processorSeconds, lastProcessorSeconds)
        && limit(RLIMIT_NOFILE, openFiles) && limit(RLIMIT_CORE, 0)
        && limit(RLIMIT_FSIZE, fileBytes(room));
    return isClosed && isBounded;
}

} // namespace corvane::confinement
