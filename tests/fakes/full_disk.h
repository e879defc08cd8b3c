#pragma once

#include <sys/resource.h>

#include <csignal>

namespace corvane::test {

/// While it lives files can grow no larger than 16 bytes: what a full disk does to a write.
class FullDisk {
public:
    FullDisk()
        : m_handler(::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit tiny = {16, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &tiny);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        ::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_before = {};
    void (*m_handler)(int) = nullptr;
};

} // namespace corvane::test
