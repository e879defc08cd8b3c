#pragma once

#include <QByteArray>

#include <atomic>
#include <thread>

namespace corvane::e2e {

/// Looks at what a program takes of the memory, together with all that it has started and that
/// shows it strangers' files, as often as it can, on a thread of its own.
///
/// What several of them share counts once (their PSS); where this user may not see that, each
/// process counts with what is its own.
class MemoryWatch {
public:
    /// `mark` is a line of the program's environment that no other program's has: what shuts others
    /// in is no child of the program any more, but has it, too.
    MemoryWatch(qint64 program, QByteArray mark);
    ~MemoryWatch();
    MemoryWatch(const MemoryWatch &) = delete;
    MemoryWatch &operator=(const MemoryWatch &) = delete;

    /// The most that was seen so far, in bytes.
    qint64 peak() const { return m_peak; }
    /// The most processes that were seen at once.
    qsizetype processes() const { return m_processes; }

private:
    void look();

    qint64 m_program;
    QByteArray m_mark;
    std::atomic<qint64> m_peak = 0;
    std::atomic<qsizetype> m_processes = 0;
    std::atomic<bool> m_isOver = false;
    std::thread m_thread;
};

} // namespace corvane::e2e
