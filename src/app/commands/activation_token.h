#pragma once

#include <QString>

namespace corvane {

/// While one of these exists, a window that is brought to the front uses the permission that the
/// desktop has given to another program for it. Main thread only.
class ActivationToken {
public:
    /// Does nothing if `token` is empty.
    explicit ActivationToken(const QString &token);
    ~ActivationToken();
    ActivationToken(const ActivationToken &) = delete;
    ActivationToken &operator=(const ActivationToken &) = delete;

private:
    bool m_isSet;
};

} // namespace corvane
