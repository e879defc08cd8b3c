#pragma once

#include "platform/qt/web/host_resolver.h"

#include <atomic>
#include <memory>

namespace corvane {

/// The system's resolver. It blocks its caller for as long as it likes, so each lookup has a thread
/// of its own, for which nobody waits: neither the end of this object nor that of the process.
class SystemHostResolver : public HostResolver {
public:
    /// While so many lookups hang, nobody answers them, and a further one fails at once.
    static constexpr int maximumLookups = 16;

    /// Literal addresses and the names of this machine, "localhost" and all below it, take no
    /// lookup.
    void resolve(const QString &host, Completion completion) override;

private:
    std::shared_ptr<std::atomic<int>> m_lookups = std::make_shared<std::atomic<int>>(0);
};

} // namespace corvane
