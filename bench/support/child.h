#pragma once

#include <sys/types.h>

#include <string>

namespace corvane::bench {

/// A program that runs beside this one, looked at from outside; ended along with this object.
class Child {
public:
    /// `program` is a path, or the name of a file beside this program.
    explicit Child(const std::string &program);
    Child(const Child &) = delete;
    Child &operator=(const Child &) = delete;
    ~Child();

    /// When it was started, by `now()`.
    double startTime() const { return m_startTime; }
    /// The next line that it writes to its standard output; "" when it ends instead.
    std::string readLine();

    /// How often any of its threads has been taken off a CPU, of its own will or not.
    long contextSwitches() const;
    double residentKilobytes() const;
    /// Waits until it has slept for a second.
    void waitUntilQuiet() const;
    /// Asks it to end, and waits for that.
    void end();

private:
    pid_t m_pid = -1;
    int m_output = -1;
    double m_startTime = 0;
};

} // namespace corvane::bench
