#include "platform/qt/system/bounded_listing.h"

#include <dirent.h>

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace corvane {

struct BoundedListing::Shared {
    std::mutex mutex;
    std::condition_variable hasAnswered;
    // Guarded by `mutex`.
    bool isAtWork = false;
    bool wasAwaitedInVain = false;
    QByteArray folder;
    QList<QByteArray> names;
};

BoundedListing::BoundedListing(List list)
    : m_list(std::move(list))
    , m_shared(std::make_shared<Shared>())
{
}

QList<QByteArray> BoundedListing::names(const QByteArray &folder,
                                        std::chrono::milliseconds patience)
{
    std::unique_lock lock(m_shared->mutex);
    if (!std::exchange(m_shared->isAtWork, true)) {
        m_shared->wasAwaitedInVain = false;
        if (std::exchange(m_shared->folder, folder) != folder)
            m_shared->names.clear();
        try {
            std::thread([shared = m_shared, list = m_list, folder] {
                QList<QByteArray> names = list(folder);
                const std::lock_guard answered(shared->mutex);
                shared->names = std::move(names);
                shared->isAtWork = false;
                shared->hasAnswered.notify_all();
            }).detach();
        } catch (const std::system_error &) {
            // The user may have no more threads.
            m_shared->isAtWork = false;
        }
    }
    if (!m_shared->wasAwaitedInVain)
        m_shared->wasAwaitedInVain = !m_shared->hasAnswered.wait_for(
            lock, patience, [this] { return !m_shared->isAtWork; });
    return m_shared->folder == folder ? m_shared->names : QList<QByteArray>();
}

QList<QByteArray> BoundedListing::namesIn(const QByteArray &folder)
{
    QList<QByteArray> names;
    // Entries are not asked for their types: one on a dead network would block.
    const std::unique_ptr<DIR, int (*)(DIR *)> directory(::opendir(folder.constData()), ::closedir);
    while (directory) {
        const dirent *entry = ::readdir(directory.get());
        if (!entry)
            break;
        names.append(entry->d_name);
    }
    return names;
}

} // namespace corvane
