#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <mutex>
#include <optional>

namespace corvane {

/// Where a program that is not trusted may run: in namespaces of its own, made by bubblewrap.
///
/// It sees the system's programs and libraries, one input file, and memory to write to; no home, no
/// network, no other process, nothing that it could leave behind. What it made is copied to the
/// standard output when it ended well. Time and output are for the caller to bound.
class Sandbox {
public:
    /// Of a program's address space. Programs reserve much more than they use.
    static constexpr qint64 addressSpace = 4LL * 1024 * 1024 * 1024;
    static constexpr int processorSeconds = 10;
    /// Of one file, and of what all files in memory take together.
    static constexpr qint64 fileBytes = 64LL * 1024 * 1024;
    /// Threads count too.
    static constexpr int processes = 256;

    /// Finds the tools in `programFolders`.
    explicit Sandbox(const QByteArrayList &programFolders);

    /// Whether it can be had on this machine: decided once, by trying. Any thread but the main one.
    bool isAvailable() const;

    struct Program {
        /// The program, an absolute path, and its arguments.
        QByteArrayList command;
        QByteArray inputFile;
        /// Where the program finds it.
        QByteArray inputPath;
    };
    /// Where the program is to write, in a folder of its own.
    static QByteArray outputPath();

    /// The command that runs `program` inside.
    QByteArrayList command(const Program &program) const;

private:
    QByteArrayList walls() const;
    bool tryOut() const;

    QByteArray m_bubblewrap;
    QByteArray m_limiter;
    QByteArray m_shell;
    mutable std::mutex m_mutex;
    mutable std::optional<bool> m_isAvailable;
};

} // namespace corvane
