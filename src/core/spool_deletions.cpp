#include "core/spool_deletions.h"

#include "core/open_spool.h"
#include "platform/base/work_queue.h"

#include <QSet>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <deque>
#include <iterator>
#include <mutex>
#include <utility>
#include <vector>

namespace corvane {

namespace {

/// How long `stop` waits for the file that is being deleted.
constexpr std::chrono::milliseconds patience{100};
/// How many files are taken off the list under one lock. Taken one by one, this thread and the main
/// thread, which adds thousands, would keep waiting for each other's lock.
constexpr std::size_t mostTakenAtOnce = 100;

} // namespace

struct SpoolDeletions::Shared {
    struct Deletion {
        std::shared_ptr<const OpenSpool> spool;
        QByteArray path;
    };

    /// Moves up to `mostTakenAtOnce` deletions to `taken`; where none wait the work is marked as
    /// ended. Returns `stops`.
    int take(std::vector<Deletion> &taken)
    {
        const std::lock_guard lock(mutex);
        const auto end = waiting.begin()
            + static_cast<std::ptrdiff_t>(std::min(waiting.size(), mostTakenAtOnce));
        taken.assign(std::move_iterator(waiting.begin()), std::move_iterator(end));
        waiting.erase(waiting.begin(), end);
        if (taken.empty()) {
            paths.clear();
            isAtWork = false;
        }
        return stops;
    }
    /// The files of `taken` are deleted: their names are free again. After a stop the paths were
    /// forgotten already, and may have been added anew.
    void end(const std::vector<Deletion> &taken, int stopsBefore)
    {
        const std::lock_guard lock(mutex);
        for (const Deletion &deletion : taken) {
            if (stops == stopsBefore)
                paths.remove(deletion.path);
        }
    }
    void drop()
    {
        const std::lock_guard lock(mutex);
        ++stops;
        waiting.clear();
        paths.clear();
    }

    std::mutex mutex;
    // Guarded by `mutex`.
    std::deque<Deletion> waiting;
    QSet<QByteArray> paths;
    bool isAtWork = false;
    /// How often the work was stopped. Files that were taken off the list before the last stop are
    /// not deleted.
    std::atomic<int> stops = 0;
    /// Held while a file is being deleted.
    std::timed_mutex deleting;
};

SpoolDeletions::SpoolDeletions(WorkQueue *queue)
    : m_queue(queue)
    , m_shared(std::make_shared<Shared>())
{
}

SpoolDeletions::~SpoolDeletions()
{
    m_shared->drop();
}

void SpoolDeletions::add(std::shared_ptr<const OpenSpool> spool, const QByteArray &path)
{
    if (!m_queue) {
        spool->remove(path);
        return;
    }
    {
        const std::lock_guard lock(m_shared->mutex);
        // A second deletion of the same path could hit a new file that was given the name after the
        // first.
        const qsizetype before = m_shared->paths.size();
        m_shared->paths.insert(path);
        if (m_shared->paths.size() == before)
            return;
        m_shared->waiting.push_back({std::move(spool), path});
        // One job deletes all files, so that they do not fill the work queue.
        if (std::exchange(m_shared->isAtWork, true))
            return;
    }
    m_queue->run([shared = m_shared] { work(*shared); });
}

bool SpoolDeletions::isPending(const QByteArray &path) const
{
    const std::lock_guard lock(m_shared->mutex);
    return m_shared->paths.contains(path);
}

void SpoolDeletions::stop()
{
    m_shared->drop();
    // A disk that does not answer must not hold up the end of the program: wait no longer than
    // `patience`.
    if (m_shared->deleting.try_lock_for(patience))
        m_shared->deleting.unlock();
}

void SpoolDeletions::work(Shared &shared)
{
    std::vector<Shared::Deletion> taken;
    while (true) {
        const int stops = shared.take(taken);
        if (taken.empty())
            return;
        for (const Shared::Deletion &next : taken) {
            const std::lock_guard deleting(shared.deleting);
            if (shared.stops != stops)
                break;
            next.spool->remove(next.path);
        }
        shared.end(taken, stops);
    }
}

} // namespace corvane
