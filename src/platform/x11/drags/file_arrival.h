#pragma once

#include "platform/base/lifetime.h"
#include "platform/base/main_queue.h"

#include <QByteArray>

#include <functional>
#include <memory>

class QSocketNotifier;

namespace corvane {

/// Waits, without blocking, for another program to write a file. To be made before that program is
/// told where to write, so that it misses nothing. The queue must outlive it.
class FileArrival {
public:
    /// In seconds: a source that writes nothing for so long is given up.
    static constexpr double patience = 20;
    /// In seconds: the most that writing may take in all.
    static constexpr double longest = 600;
    /// A larger file is not accepted.
    static constexpr qint64 maximumBytes = 256LL * 1024 * 1024;

    FileArrival(QByteArray path, MainQueue &queue);
    ~FileArrival();
    FileArrival(const FileArrival &) = delete;
    FileArrival &operator=(const FileArrival &) = delete;

    /// `done` is called once, later: true once there is a regular file that is not empty and was
    /// closed after writing; false when the source was given up or the file is too large. It may
    /// destroy this. Not called after this is destroyed.
    void wait(std::function<void(bool hasArrived)> done);
    /// Whether an empty file was written and closed there. It may be meant to be empty; only the
    /// caller can judge that.
    bool isEmptyFile() const;
    /// Deletes what has been written so far.
    void discard();

private:
    bool isComplete() const;
    bool isTooLarge() const;
    void readEvents();
    void lookAgainSoon();
    void look();
    void finish(bool hasArrived);

    QByteArray m_path;
    QByteArray m_name;
    MainQueue &m_queue;
    int m_descriptor = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::unique_ptr<MainQueue::Timer> m_patienceTimer;
    std::function<void(bool)> m_done;
    bool m_wasClosed = false;
    double m_lastProgress = 0;
    /// Restarted by every event about the file, so that only the last delayed look counts.
    Lifetime m_nextLook;
    Lifetime m_lifetime;
};

} // namespace corvane
