#pragma once

#include "platform/base/lifetime.h"
#include "platform/base/main_queue.h"

#include <QByteArray>

#include <functional>
#include <memory>

class QSocketNotifier;

namespace corvane {

/// Hears when another program has written a file, without standing still. Made before that program
/// is told to write it, so that nothing it does is missed. The queue must outlive it.
class FileArrival {
public:
    /// Seconds without a byte after which a source counts as gone.
    static constexpr double patience = 20;
    /// Seconds that it may take in all.
    static constexpr double longest = 600;
    static constexpr qint64 maximumBytes = 256LL * 1024 * 1024;

    FileArrival(QByteArray path, MainQueue &queue);
    ~FileArrival();
    FileArrival(const FileArrival &) = delete;
    FileArrival &operator=(const FileArrival &) = delete;

    /// `done` is called once, later: true once the file is there as a regular file, is not empty,
    /// and was closed after writing. It may destroy this. Never called once this is gone.
    void wait(std::function<void(bool hasArrived)> done);
    /// Whether a file was closed there that has nothing in it. It may be meant to be empty: who
    /// waits in vain for more can only guess.
    bool isEmptyFile() const;
    /// Removes what has arrived so far.
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
    /// Restarted by every news of the file: only the look that follows the latest is of use.
    Lifetime m_nextLook;
    Lifetime m_lifetime;
};

} // namespace corvane
