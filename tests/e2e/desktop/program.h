#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

namespace corvane::e2e {

/// A running program, in a session of its own. The destructor ends it and the processes that it
/// started.
class Program {
public:
    Program(const QString &name, const QStringList &arguments,
            const QProcessEnvironment &environment, const QString &workingDirectory = {});
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    qint64 pid() const { return m_pid; }
    bool isRunning();

    /// Sends a signal to the program alone.
    void signal(int number) const;
    /// The exit status, 128 + the signal's number, or none if it does not end in time.
    std::optional<int> waitForEnd(std::chrono::milliseconds limit = std::chrono::seconds{10});
    /// What it has printed so far on standard output and standard error.
    QByteArray output();

private:
    QProcess m_process;
    qint64 m_pid = 0;
    QByteArray m_output;
};

/// Runs a program to its end and gives its standard output; none if it failed or took too long.
std::optional<QByteArray> outputOf(const QString &name, const QStringList &arguments,
                                   const QProcessEnvironment &environment);

/// Whether a program of this name can be found.
bool isInstalled(const QString &name);

} // namespace corvane::e2e
