#include "core/spool_deletions.h"

#include "core/open_spool.h"
#include "platform/work_queue.h"

#include <QSet>

#include <chrono>
#include <deque>
#include <mutex>
#include <utility>

namespace corvane {

namespace {

constexpr std::chrono::milliseconds patience{100};

} // namespace

struct SpoolDeletions::Shared {
    struct Deletion {
        std::shared_ptr<const OpenSpool> spool;
        QByteArray path;
    };

    std::mutex mutex;
    // Guarded by it.
    std::deque<Deletion> waiting;
    QSet<QByteArray> paths;
    bool isAtWork = false;
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
    const std::lock_guard lock(m_shared->mutex);
    m_shared->waiting.clear();
}

void SpoolDeletions::add(std::shared_ptr<const OpenSpool> spool, const QByteArray &path)
{
    if (!m_queue) {
        spool->remove(path);
        return;
    }
    {
        const std::lock_guard lock(m_shared->mutex);
        // Told again it would go a second time, and by then the name may be another file's.
        if (m_shared->paths.contains(path))
            return;
        m_shared->paths.insert(path);
        m_shared->waiting.push_back({std::move(spool), path});
        // One thread for all of them: a queue of work is not to be filled with files.
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
    {
        const std::lock_guard lock(m_shared->mutex);
        m_shared->waiting.clear();
        m_shared->paths.clear();
    }
    // Where its disk does not answer, what comes next does not wait for it either.
    if (m_shared->deleting.try_lock_for(patience))
        m_shared->deleting.unlock();
}

void SpoolDeletions::work(Shared &shared)
{
    while (true) {
        const std::lock_guard deleting(shared.deleting);
        Shared::Deletion next;
        {
            const std::lock_guard lock(shared.mutex);
            if (shared.waiting.empty()) {
                shared.paths.clear();
                shared.isAtWork = false;
                return;
            }
            next = std::move(shared.waiting.front());
            shared.waiting.pop_front();
        }
        next.spool->remove(next.path);
        const std::lock_guard lock(shared.mutex);
        shared.paths.remove(next.path);
    }
}

} // namespace corvane
