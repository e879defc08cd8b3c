#pragma once

#include <QMetaObject>
#include <QObject>

#include <functional>
#include <mutex>
#include <utility>

namespace corvane {

/// Through which a thread that nobody waits for reaches an object that may be gone by then.
class Mailbox {
public:
    explicit Mailbox(QObject &owner)
        : m_owner(&owner)
    {
    }

    /// Runs `work` on the owner's thread, later; not at all once it is closed. Any thread.
    void post(std::function<void()> work)
    {
        const std::lock_guard lock(m_mutex);
        if (m_owner)
            QMetaObject::invokeMethod(m_owner, std::move(work), Qt::QueuedConnection);
    }

    /// Before the owner goes.
    void close()
    {
        const std::lock_guard lock(m_mutex);
        m_owner = nullptr;
    }

private:
    std::mutex m_mutex;
    QObject *m_owner;
};

} // namespace corvane
