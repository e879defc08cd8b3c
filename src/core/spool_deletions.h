#pragma once

#include <QByteArray>

#include <memory>

namespace corvane {

class OpenSpool;
class WorkQueue;

/// Deletes spooled files beside the main thread, one after the other: a disk may take its time for
/// a large one, and thousands may go at once. Without a queue each goes at once.
///
/// Main thread only. The queue must outlive it; what it has begun there may end later.
class SpoolDeletions {
public:
    explicit SpoolDeletions(WorkQueue *queue);
    SpoolDeletions(const SpoolDeletions &) = delete;
    SpoolDeletions &operator=(const SpoolDeletions &) = delete;
    /// Drops what has not begun.
    ~SpoolDeletions();

    void add(std::shared_ptr<const OpenSpool> spool, const QByteArray &path);
    /// Whether what is at that path is still to go: its name must not be given out again before.
    bool isPending(const QByteArray &path) const;
    /// Drops what has not begun, and waits a moment for the one file that is being deleted.
    void stop();

private:
    struct Shared;
    static void work(Shared &shared);

    WorkQueue *m_queue;
    std::shared_ptr<Shared> m_shared;
};

} // namespace corvane
