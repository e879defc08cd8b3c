#pragma once

#include "platform/system/file_descriptor.h"

#include <QByteArray>
#include <QByteArrayList>

#include <mutex>
#include <optional>

namespace corvane {

/// Where a program runs that reads strangers' files: in namespaces of its own, made by bubblewrap.
///
/// It sees the system's programs and libraries, and memory to write to; no home, no network, no
/// other process, nothing that it could leave behind. Thumbnail programs of the desktop see one
/// input file besides, and what they made is copied to the standard output when they ended well;
/// system calls that such a program does not need fail, where this system can filter them. Time and
/// output are for the caller to bound.
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
    /// The exit status where the program was not content, or left nothing.
    static constexpr int programFailed = 113;
    /// Where the program is to write, in a folder of its own.
    static QByteArray outputPath();

    /// The command that runs `program` inside. It is to be handed `filter`.
    QByteArrayList command(const Program &program) const;
    /// For one run. Not open where this system has no filters.
    static FileDescriptor filter();

    /// A program of our own, which confines itself further and bounds itself.
    struct OwnProgram {
        QByteArrayList command;
        /// What it needs besides the system's files, for reading; absolute.
        QByteArrayList files;
        /// Names and values in turn.
        QByteArrayList environment;
    };
    /// The same; what it is handed stays open. It may outlive whoever starts it.
    QByteArrayList command(const OwnProgram &program) const;

private:
    QByteArrayList walls() const;
    bool tryOut() const;

    QByteArray m_bubblewrap;
    QByteArray m_limiter;
    QByteArray m_shell;
    bool m_hasFilter;
    mutable std::mutex m_mutex;
    mutable std::optional<bool> m_isAvailable;
};

} // namespace corvane
