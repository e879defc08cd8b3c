#pragma once

#include <QByteArray>

#include <memory>

namespace corvane {

class OpenSpool;
class WorkQueue;

/// Deletes files of a spool on another thread, one after the other: a large file takes time, and
/// thousands may go at once. Without a queue each is deleted inside `add`.
///
/// Main thread only. The queue must outlive it; work that has begun there may end after this is
/// destroyed.
class SpoolDeletions {
public:
    explicit SpoolDeletions(WorkQueue *queue);
    SpoolDeletions(const SpoolDeletions &) = delete;
    SpoolDeletions &operator=(const SpoolDeletions &) = delete;
    /// Deletes no more files; does not wait for the one that is being deleted.
    ~SpoolDeletions();

    /// Has the file deleted; nothing if that is pending already.
    void add(std::shared_ptr<const OpenSpool> spool, const QByteArray &path);
    /// Whether the file at that path is still to be deleted; until then its name must not be given
    /// out again.
    bool isPending(const QByteArray &path) const;
    /// Deletes no more files, and waits up to 0.1 s for the one that is being deleted.
    void stop();

private:
    struct Shared;
    static void work(Shared &shared);

    WorkQueue *m_queue;
    std::shared_ptr<Shared> m_shared;
};

} // namespace corvane
