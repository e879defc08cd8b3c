#pragma once

#include <sys/types.h>

#include <map>
#include <string>

namespace corvane::bench {

/// A program that runs beside this one and is measured from outside; the destructor ends it.
class Child {
public:
    /// `program` is a path, or the name of a file beside this program.
    explicit Child(const std::string &program);
    Child(const Child &) = delete;
    Child &operator=(const Child &) = delete;
    ~Child();

    /// The time of its start, by `now()`, in milliseconds.
    double startTime() const { return m_startTime; }
    /// The next line of its standard output; empty when it has ended.
    std::string readLine();

    /// How often its threads have been taken off a CPU, voluntarily or not.
    long contextSwitches() const;
    /// The same of each thread, by its number.
    std::map<std::string, long> contextSwitchesByThread() const;
    double residentKilobytes() const;
    /// Waits until it has slept for one second.
    void waitUntilQuiet() const;
    /// Asks it to end, and waits for that.
    void end();

private:
    pid_t m_pid = -1;
    int m_output = -1;
    double m_startTime = 0;
};

} // namespace corvane::bench
