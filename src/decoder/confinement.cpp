#include "decoder/confinement.h"

#include <malloc.h>
#include <pthread.h>
#include <sys/prctl.h>
#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <cstdint>
#include <fstream>

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

/// Whether the users that are known here are known here alone, so that nobody else's processes are
/// counted. All of them are known to the system's first namespace.
bool hasOwnUsers()
{
    std::ifstream map("/proc/self/uid_map");
    std::int64_t inside = 0;
    std::int64_t outside = 0;
    std::int64_t count = 0;
    constexpr std::int64_t all = 4'294'967'295;
    return map >> inside >> outside >> count && count < all;
}

bool canBeginThread()
{
    pthread_t thread = {};
    return ::pthread_create(
               &thread, nullptr, [](void *argument) { return argument; }, nullptr)
        == 0
        && ::pthread_join(thread, nullptr) == 0;
}

bool limitThreads()
{
    if (!hasOwnUsers())
        return true;
    rlimit before = {};
    if (::getrlimit(RLIMIT_NPROC, &before) != 0)
        return false;
    const auto most = std::min<rlim_t>(threads, before.rlim_max);
    const rlimit tried = {most, before.rlim_max};
    if (::setrlimit(RLIMIT_NPROC, &tried) != 0)
        return false;
    // Older kernels than 5.14 count in all namespaces.
    if (!canBeginThread())
        return ::setrlimit(RLIMIT_NPROC, &before) == 0;
    return limit(RLIMIT_NPROC, static_cast<long long>(most));
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
    return isClosed && isBounded && limitThreads();
}

} // namespace corvane::confinement
