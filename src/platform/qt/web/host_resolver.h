#pragma once

#include <QHostAddress>
#include <QList>
#include <QString>

#include <functional>

namespace corvane {

/// Finds the addresses of a host's name.
class HostResolver {
public:
    using Completion = std::function<void(const QList<QHostAddress> &)>;

    virtual ~HostResolver() = default;

    /// Calls `completion` on any thread, also inside this call: with the addresses in the order in
    /// which they are to be tried, none when there are none. It may take long, and cannot be
    /// cancelled: `completion` must not count on anything to live that long. Any thread.
    virtual void resolve(const QString &host, Completion completion) = 0;
};

} // namespace corvane
