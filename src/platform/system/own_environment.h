#pragma once

#include <QByteArray>

/// Variables of the environment that libraries of this process read, and that are nobody else's.
/// Main thread only, while no other thread reads the environment.
namespace corvane::own_environment {

/// Sets a variable for this process alone.
void set(const char *name, const QByteArray &value);

/// While one of these exists the environment is as this process found it, for programs that are
/// started meanwhile.
class AsFound {
public:
    AsFound();
    ~AsFound();
    AsFound(const AsFound &) = delete;
    AsFound &operator=(const AsFound &) = delete;
};

} // namespace corvane::own_environment
