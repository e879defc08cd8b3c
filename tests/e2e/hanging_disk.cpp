// A disk that does not answer, for a program that is started with this library before all others.
//
// Whoever touches a path below CORVANE_HANGING_FOLDER waits for good, as with a file server that is
// gone; below CORVANE_SLEEPING_FOLDER only who opens a file does, as with a disk that has gone to
// sleep. That one wakes, where CORVANE_WAKING_PIPE names a pipe, as long as somebody holds that
// open for writing. The table of mounts can be another one: CORVANE_MOUNTS names a file in its
// place.

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdlib>
#include <cstring>

namespace {

bool isBelow(const char *path, const char *variable)
{
    const char *const folder = std::getenv(variable);
    return path && folder && std::strncmp(path, folder, std::strlen(folder)) == 0;
}

void touch(const char *path)
{
    while (isBelow(path, "CORVANE_HANGING_FOLDER"))
        ::pause();
}

template<class Function>
Function real(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

void waitForWaking()
{
    const char *const pipe = std::getenv("CORVANE_WAKING_PIPE");
    // Opening one for reading waits for whoever writes.
    const int waking = pipe ? real<int (*)(const char *, int, ...)>("open")(pipe, O_RDONLY) : -1;
    while (waking < 0)
        ::pause();
    ::close(waking);
}

const char *opened(const char *path)
{
    touch(path);
    if (isBelow(path, "CORVANE_SLEEPING_FOLDER"))
        waitForWaking();
    const char *const mounts = std::getenv("CORVANE_MOUNTS");
    return mounts && std::strcmp(path, "/proc/self/mountinfo") == 0 ? mounts : path;
}

mode_t modeOf(int flags, va_list arguments)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

} // namespace

#define OPEN(name)                                                                                 \
    extern "C" int name(const char *path, int flags, ...)                                          \
    {                                                                                              \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        const mode_t mode = modeOf(flags, arguments);                                              \
        va_end(arguments);                                                                         \
        return real<int (*)(const char *, int, ...)>(#name)(opened(path), flags, mode);            \
    }
#define OPEN_AT(name)                                                                              \
    extern "C" int name(int folder, const char *path, int flags, ...)                              \
    {                                                                                              \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        const mode_t mode = modeOf(flags, arguments);                                              \
        va_end(arguments);                                                                         \
        return real<int (*)(int, const char *, int, ...)>(#name)(folder, opened(path), flags,      \
                                                                 mode);                            \
    }
#define STATUS(name, type)                                                                         \
    extern "C" int name(const char *path, struct type *status) noexcept                            \
    {                                                                                              \
        touch(path);                                                                               \
        return real<int (*)(const char *, struct type *)>(#name)(path, status);                    \
    }
#define STATUS_AT(name, type)                                                                      \
    extern "C" int name(int folder, const char *path, struct type *status, int flags) noexcept     \
    {                                                                                              \
        touch(path);                                                                               \
        return real<int (*)(int, const char *, struct type *, int)>(#name)(folder, path, status,   \
                                                                           flags);                 \
    }

OPEN(open)
OPEN(open64)
OPEN_AT(openat)
OPEN_AT(openat64)
STATUS(stat, stat)
STATUS(lstat, stat)
STATUS(stat64, stat64)
STATUS(lstat64, stat64)
STATUS_AT(fstatat, stat)
STATUS_AT(fstatat64, stat64)

extern "C" int statx(int folder, const char *path, int flags, unsigned int mask,
                     struct statx *status) noexcept
{
    touch(path);
    return real<int (*)(int, const char *, int, unsigned int, struct statx *)>("statx")(
        folder, path, flags, mask, status);
}

extern "C" int access(const char *path, int mode) noexcept
{
    touch(path);
    return real<int (*)(const char *, int)>("access")(path, mode);
}

extern "C" ssize_t readlink(const char *path, char *target, size_t size) noexcept
{
    touch(path);
    return real<ssize_t (*)(const char *, char *, size_t)>("readlink")(path, target, size);
}

struct __dirstream;
extern "C" __dirstream *opendir(const char *path)
{
    touch(path);
    return real<__dirstream *(*)(const char *)>("opendir")(path);
}
