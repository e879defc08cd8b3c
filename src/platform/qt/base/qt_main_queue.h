#pragma once

#include "platform/base/main_queue.h"
#include "platform/qt/base/work_inbox.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>

#include <deque>
#include <memory>

class QSocketNotifier;

namespace corvane {

/// The main queue on Qt's event loop, nested loops included. Must be made on the main thread, after
/// the application object.
///
/// Waiting work runs in slices with a time budget, between which the event loop gets to paint and
/// to hear input: thousands of results that arrive at once cost no frame. While nothing waits,
/// nothing wakes up.
class QtMainQueue : public QObject, public MainQueue {
public:
    /// A quarter of a frame at 60 Hz.
    static constexpr qint64 sliceNanoseconds = 4'000'000;

    QtMainQueue();
    ~QtMainQueue() override;

    void async(Work work) override;
    void asyncAfter(double seconds, Work work) override;
    [[nodiscard]] std::unique_ptr<Timer> repeating(double seconds, Work work) override;
    double now() const override;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void wokenUp();
    void runSlice();
    bool takeNext(Work &work);

    /// Taken over from what waits, all at once.
    std::deque<Work> m_ready;
    WorkInbox m_waiting;
    /// A counter of the kernel's that other threads raise and the event loop watches. Not a posted
    /// event: posting takes a lock that the main thread takes in every turn.
    int m_wakeUp = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QBasicTimer m_nextSlice;
    QElapsedTimer m_clock;
};

} // namespace corvane
